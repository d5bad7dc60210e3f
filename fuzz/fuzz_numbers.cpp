// Texts that stand for numbers, compared with what the C library makes of them.
#include "fuzz/Target.h"
#include "types/Numbers.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <string>

void korva::fuzz::attack(std::string_view input) {
    const std::string_view text = types::trimmed(input);
    std::string copy(text);
    std::replace(copy.begin(), copy.end(), 'D', 'E');
    std::replace(copy.begin(), copy.end(), 'd', 'e');

    float number = 0;
    if (types::parse(text, number)) {
        require(std::isfinite(number), "a number is finite");
        require(number == static_cast<float>(std::strtod(copy.c_str(), nullptr)),
                "a float is what it says");
    } else if (copy.find_first_not_of("0123456789 +-.Ee") == std::string::npos) {
        require(std::isinf(static_cast<float>(std::strtod(copy.c_str(), nullptr))),
                "only what is too large is refused");
    }
    int integer = 0;
    if (types::parse(text, integer)) {
        errno = 0;
        const long long value = std::strtoll(copy.c_str(), nullptr, 10);
        require(integer == std::clamp<long long>(value, INT_MIN, INT_MAX),
                "an integer is what it says");
    }
    bool flag = false;
    require(!types::parse(text, flag) || text.size() <= 5, "a boolean is one of six words");
}
