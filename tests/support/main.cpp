// The main function of the test programs: GoogleTest's, under the locale that the environment asks
// for.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <stdexcept>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (const char* name = std::getenv("KORVA_TEST_LOCALE")) {
        // Both must follow: C's functions, and streams that are made from here on.
        try {
            std::locale::global(std::locale(name));
        } catch (const std::runtime_error&) {
            std::fprintf(stderr, "There is no locale \"%s\" here.\n", name);
            return EXIT_FAILURE;
        }
        if (std::setlocale(LC_ALL, name) == nullptr || *std::localeconv()->decimal_point != ',') {
            std::fprintf(stderr, "The locale \"%s\" has no decimal comma.\n", name);
            return EXIT_FAILURE;
        }
    }
    return RUN_ALL_TESTS();
}
