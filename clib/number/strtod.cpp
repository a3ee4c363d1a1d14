#include "clib/number/integer_text.h"
#include "include/errno.h"
#include "include/stdlib.h"
#include "runtime/export.h"
#include "stdio/x96/decimal_text.h"

#include <cstdint>

// Decimal text to double through the 96-bit number. No floating-point
// instruction but the final load.
namespace {

// A string read to its terminator, which no reader takes.
struct TextCursor {
    const unsigned char *p;
    int current() const { return *p; }
    void advance() { ++p; }
};

} // namespace

extern "C" ORV_EXPORT double strtod(const char *text, char **end) {
    TextCursor in{orv::inttext::skip_space(reinterpret_cast<const unsigned char *>(text))};
    std::uint32_t sign = 0;
    if (*in.p == '+' || *in.p == '-') sign = *in.p++ == '-' ? 0x80000000u : 0;
    orv::decimal::Reading r;
    orv::decimal::read_number(in, r);
    std::uint64_t result = orv::decimal::to_double_bits(r, sign);
    if (end != nullptr) *end = const_cast<char *>(r.valid ? reinterpret_cast<const char *>(in.p) : text);
    double d;
    __builtin_memcpy(&d, &result, sizeof d);
    return d;
}

extern "C" ORV_EXPORT double atof(const char *text) {
    int saved = errno;
    double d = strtod(text, nullptr);
    errno = saved;
    return d;
}
