#include "generator/emit/Printer.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace korva::schemac::emit {
namespace {

std::string printed(std::string_view text, Printer::Values values = {}) {
    Printer printer;
    printer.print(text, values);
    return printer.take();
}

TEST(Printer, ReplacesNamesByValues) {
    EXPECT_EQ(printed("$class$::$class$() : $base$() {}", {{"class", "A"}, {"base", "B"}}),
              "A::A() : B() {}");
}

TEST(Printer, PrintsTwoDollarSignsAsOne) {
    EXPECT_EQ(printed("a $$ b $$\n"), "a $ b $\n");
}

TEST(Printer, DoesNotLookForNamesInValues) {
    EXPECT_EQ(printed("[$a$]", {{"a", "$b$"}}), "[$b$]");
    EXPECT_EQ(printed("$a$\n", {{"a", "$b$ 1 $"}}), "$b$ 1 $\n");
}

TEST(Printer, LeavesOutTheNewlineAtTheStart) {
    EXPECT_EQ(printed("\nfirst\n"), "first\n");
    EXPECT_EQ(printed("\n\nsecond\n"), "\nsecond\n");
}

TEST(Printer, IndentsEachLineOfAValueThatStandsAlone) {
    EXPECT_EQ(printed("  $a$\n", {{"a", "one\n\ntwo\n"}}), "  one\n\n  two\n");
    EXPECT_EQ(printed("  $a$\n", {{"a", "one\ntwo"}}), "  one\n  two\n");
}

TEST(Printer, TakesTheLineAwayWithAnEmptyValueThatStandsAlone) {
    EXPECT_EQ(printed("before\n    $a$\nafter\n", {{"a", ""}}), "before\nafter\n");
    EXPECT_EQ(printed("before$a$\nafter\n", {{"a", ""}}), "before\nafter\n");
}

TEST(Printer, RefusesANameWithoutAValue) {
    EXPECT_THROW(printed("$a$", {{"b", "c"}}), std::logic_error);
    EXPECT_THROW(printed("  $a$\n"), std::logic_error);
    EXPECT_THROW(printed("5 $ a day"), std::logic_error);
}

}  // namespace
}  // namespace korva::schemac::emit
