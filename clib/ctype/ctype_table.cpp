#include "include/ctype.h"
#include "runtime/export.h"

namespace {

// The class bits of one character of 7-bit ASCII; the upper half of the
// byte range belongs to no class.
constexpr signed char classify(int c) {
    int bits = 0;
    if (c < 0x20 || c == 0x7F) bits = _IS_CTL;
    if (c >= 0x09 && c <= 0x0D) bits = _IS_CTL | _IS_SP;
    if (c == 0x20) bits = _IS_BLK | _IS_SP;
    if (c > 0x20 && c < 0x7F) bits = _IS_PUN;
    if (c >= '0' && c <= '9') bits = _IS_HEX | _IS_DIG;
    if (c >= 'A' && c <= 'Z') bits = c <= 'F' ? (_IS_HEX | _IS_UPP) : _IS_UPP;
    if (c >= 'a' && c <= 'z') bits = c <= 'f' ? (_IS_HEX | _IS_LOW) : _IS_LOW;
    if (c >= 0x80) bits = 0;
    return static_cast<signed char>(bits);
}

struct table {
    signed char entry[257];
};

constexpr table build() {
    table t{};
    t.entry[0] = 0; // EOF
    for (int c = 0; c < 256; ++c) t.entry[c + 1] = classify(c);
    return t;
}

constexpr table built = build();

} // namespace

// Entry c + 1 holds the class bits of c; entry 0 stands for EOF.
ORV_EXPORT constinit signed char _ctype[257] = {
#define E(i) built.entry[i]
#define E8(i) E(i), E(i + 1), E(i + 2), E(i + 3), E(i + 4), E(i + 5), E(i + 6), E(i + 7)
#define E64(i) E8(i), E8(i + 8), E8(i + 16), E8(i + 24), E8(i + 32), E8(i + 40), E8(i + 48), E8(i + 56)
    E64(0), E64(64), E64(128), E64(192), E(256)
#undef E64
#undef E8
#undef E
};
static_assert(sizeof(_ctype) == 257);
