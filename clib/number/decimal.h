// The plain decimal reading behind atoi and atol: no overflow test, the
// value wraps modulo 2 to the 32, and errno is left alone.
#pragma once

#include "clib/number/integer_text.h"

#include <cstdint>

namespace orv::inttext {

inline std::int32_t read_decimal(const char *text) {
    const unsigned char *p = skip_space(reinterpret_cast<const unsigned char *>(text));
    bool negative = false;
    if (*p == '+' || *p == '-') negative = *p++ == '-';
    std::uint32_t acc = 0; // negated, as strtol keeps it
    for (; ctype::bits(*p) & _IS_DIG; ++p) acc = acc * 10 - (*p - '0');
    return static_cast<std::int32_t>(negative ? acc : 0u - acc);
}

} // namespace orv::inttext
