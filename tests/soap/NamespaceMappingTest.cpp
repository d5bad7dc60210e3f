#include "tests/support/ExpectThrow.h"

#include <korva/KORVANamespaceMapping.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

char* copy(const char* text) {
    if (text == nullptr) return nullptr;
    char* const result = new char[std::strlen(text) + 1];
    std::strcpy(result, text);
    return result;
}

void add(KORVANamespaceMapping& mapping, const char* prefix, const char* uri) {
    char* prefixText = copy(prefix);
    char* uriText = copy(uri);
    mapping.add(prefixText, uriText);
    EXPECT_EQ(prefixText, nullptr);
    EXPECT_EQ(uriText, nullptr);
}

TEST(NamespaceMapping, APrefixDeclaredTwiceAnswersWithTheInnerUriUntilItIsRemoved) {
    KORVANamespaceMapping mapping;
    add(mapping, "p", "outer");
    add(mapping, "q", "other");
    add(mapping, "p", "inner");
    EXPECT_STREQ(mapping.getNamespace("p"), "inner");
    mapping.remove("p");
    EXPECT_STREQ(mapping.getNamespace("p"), "outer");
    mapping.remove("p");
    EXPECT_EQ(mapping.getNamespace("p"), nullptr);
    EXPECT_STREQ(mapping.getNamespace("q"), "other");
}

TEST(NamespaceMapping, RemovingFromAnEmptyMappingOrWhatIsNotThereDoesNothing) {
    KORVANamespaceMapping mapping;
    mapping.remove("p");
    EXPECT_EQ(mapping.size(), 0U);
    add(mapping, "p", "uri");
    mapping.remove("q");
    EXPECT_EQ(mapping.size(), 1U);
    EXPECT_STREQ(mapping.getNamespace("p"), "uri");
}

TEST(NamespaceMapping, LookingUpANullPrefixIsTheAssertion) {
    const KORVANamespaceMapping mapping;
    EXPECT_ASSERTION(mapping.getNamespace(nullptr), "ZEL_ASSERT(prefix);");
}

TEST(NamespaceMapping, ANullUriStaysNullAndHidesTheOuterOne) {
    KORVANamespaceMapping mapping;
    add(mapping, "p", "outer");
    add(mapping, "p", nullptr);
    EXPECT_EQ(mapping.size(), 2U);
    EXPECT_EQ(mapping.getNamespace("p"), nullptr);
}

TEST(NamespaceMapping, TheEmptyPrefixIsAPrefixLikeAnother) {
    KORVANamespaceMapping mapping;
    EXPECT_EQ(mapping.getNamespace(""), nullptr);
    add(mapping, "", "default");
    EXPECT_STREQ(mapping.getNamespace(""), "default");
}

TEST(NamespaceMapping, TheRevisionChangesWithEveryDeclarationOpenedOrClosed) {
    KORVANamespaceMapping mapping;
    const std::size_t first = mapping.revision();
    add(mapping, "p", "uri");
    const std::size_t second = mapping.revision();
    EXPECT_NE(second, first);
    mapping.remove("absent");
    EXPECT_EQ(mapping.revision(), second);
    mapping.remove("p");
    EXPECT_NE(mapping.revision(), second);
    EXPECT_NE(mapping.revision(), first);
}

}  // namespace
