// What every function of the double and float families shares: access to
// the bits, the comparisons with their NaN rule, the truncating conversion,
// rounding to float, and the error values.
#pragma once

#include <bit>
#include <cstdint>

#include "include/errno.h"

namespace orv::m {

using u32 = std::uint32_t;
using u64 = std::uint64_t;
using i32 = std::int32_t;

inline u64 bits(double x) { return std::bit_cast<u64>(x); }
inline double from_bits(u64 b) { return std::bit_cast<double>(b); }
inline u32 fbits(float x) { return std::bit_cast<u32>(x); }
inline float from_fbits(u32 b) { return std::bit_cast<float>(b); }

inline u32 hi(double x) { return static_cast<u32>(bits(x) >> 32); }
inline u32 lo(double x) { return static_cast<u32>(bits(x)); }
inline double from_words(u32 h, u32 l) { return from_bits((u64(h) << 32) | l); }

inline int exp_field(double x) { return static_cast<int>((hi(x) >> 20) & 0x7FF); }
inline int fexp_field(float x) { return static_cast<int>((fbits(x) >> 23) & 0xFF); }

inline double with_exp_field(double x, u32 e) {
    return from_bits((bits(x) & ~(u64(0x7FF) << 52)) | (u64(e & 0x7FF) << 52));
}
inline float with_fexp_field(float x, u32 e) {
    return from_fbits((fbits(x) & ~(u32(0xFF) << 23)) | ((e & 0xFF) << 23));
}

// Adds n to the exponent field, sign and fraction kept; the callers know
// the field stays in range.
inline float add_fexp(float x, int n) { return from_fbits(fbits(x) + (u32(n) << 23)); }

inline constexpr double kDoubleNan = std::bit_cast<double>(u64(0x7FF8000000000000));
inline constexpr double kDoubleInf = std::bit_cast<double>(u64(0x7FF0000000000000));
inline constexpr float kFloatNan = std::bit_cast<float>(u32(0x7FC00000));
inline constexpr float kFloatInf = std::bit_cast<float>(u32(0x7F800000));

// Below this magnitude the kernels return their argument: 2^-26.5, and
// 2^-12 for the float kernels.
inline constexpr double kEps = std::bit_cast<double>(u64(0x3E46A09E667F3BC8));
inline constexpr double kEpsF = 1.0 / 4096;

// The sign cleared, as one instruction: the library is built without the
// compiler's built-in knowledge of fabs.
inline double absd(double x) { return __builtin_fabs(x); }

inline double domain_error(double r) { errno = EDOM; return r; }
inline double range_error(double r) { errno = ERANGE; return r; }

// The comparisons of the family. One FUCOMI of left against right decides
// each: an unordered pair sets ZF and CF as "equal" and "below" together,
// so with a NaN on either side the left operand is less than and equal to
// the right one. Written as instructions so that the compiler can neither
// swap the operands nor fold the test under IEEE rules.
inline bool lt(double a, double b) {
    bool r;
    __asm__("fucomi %2, %%st" : "=@ccb"(r) : "t"(a), "f"(b) : "cc");
    return r;
}
inline bool le(double a, double b) {
    bool r;
    __asm__("fucomi %2, %%st" : "=@ccbe"(r) : "t"(a), "f"(b) : "cc");
    return r;
}
inline bool eq(double a, double b) {
    bool r;
    __asm__("fucomi %2, %%st" : "=@ccz"(r) : "t"(a), "f"(b) : "cc");
    return r;
}
inline bool gt(double a, double b) { return !le(a, b); }
inline bool ge(double a, double b) { return !lt(a, b); }
inline bool ne(double a, double b) { return !eq(a, b); }

// Truncation toward zero to 32 bits whatever the rounding mode; a NaN or a
// value out of range gives -2147483648. FIST rounds by the current mode
// and yields that value itself for NaNs and overflows; one step toward
// zero corrects the rounding, with no branch on the sign, which callers
// meet at random.
inline constexpr double kStep[4] = {0.0, -1.0, 1.0, 0.0};

// The truncated value as a double; stores it as an integer in *n.
inline double trunc_i32(double x, i32 *n) {
    i32 r;
    __asm__("fistl %0" : "=m"(r) : "t"(x));
    const double d = r;
    const unsigned down = !(x < 0) & (d > x);  // rounded up, above zero
    const unsigned up = (x < 0) & (d < x);     // rounded down, below zero
    r = r - static_cast<i32>(down) + static_cast<i32>(up);
    if (r == INT32_MIN && x >= 0 && x < 2147483648.0) {  // rounded up out of range
        *n = INT32_MAX;
        return 2147483647.0;
    }
    *n = r;
    return d + kStep[down | (up << 1)];
}

inline i32 to_i32(double x) {
    i32 n;
    trunc_i32(x, &n);
    return n;
}

// The conversion of a value that is integral already, or out of range or
// NaN (which give -2147483648): FIST alone, in any rounding mode.
inline i32 integral_to_i32(double x) {
    i32 r;
    __asm__("fistl %0" : "=m"(r) : "t"(x));
    return r;
}

// Trips through memory each want a word of their own. When two trips of
// one call go through the same word, the processor mispredicts which store
// a later load reads from, at tens of cycles a call, and the compiler
// shares stack words freely. A kernel that makes several trips keeps one
// Trips and names a word for each (the overloads below).
struct Trips {
    float f[3];
    i32 n[4];
};

inline i32 integral_to_i32(double x, i32 &word) {
    __asm__("fistl %0" : "=m"(word) : "t"(x));
    return word;
}

// Truncation toward zero to a multiple of 2^-k, of a value the caller
// knows to lie within (-2^(31-k), 2^(31-k)), without leaving the registers:
// 1.5 * 2^(52-k) added and taken away rounds to the nearest multiple at
// 53-bit precision, and a step toward zero corrects the rounding as in
// trunc_i32.
template <int k = 0>
inline double trunc_small(double u) {
    constexpr double kRound = 0x1.8p52 / (1 << k);
    static constexpr double kStepK[4] = {0.0, -1.0 / (1 << k), 1.0 / (1 << k), 0.0};
    const double r = (u + kRound) - kRound;
    const unsigned down = !(u < 0) & (r > u);
    const unsigned up = (u < 0) & (r < u);
    return r + kStepK[down | (up << 1)];
}

// The same for a value known to be positive.
inline double trunc_small_pos(double u) {
    constexpr double kRound = 6755399441055744.0;
    static constexpr double kDown[2] = {0.0, 1.0};
    const double r = (u + kRound) - kRound;
    return r - kDown[r > u];
}

// -x when the flag is set, else x, without a branch. Negation flips the
// sign of a NaN too, which a product by -1 would not.
inline double negate_if(double x, unsigned flag) {
    const double n = -x;
    __asm__("testl %2, %2\n\tfcmovne %1, %%st" : "+t"(x) : "f"(n), "r"(flag) : "cc");
    return x;
}

// 1 and -1 by a flag, to set a sign by multiplication rather than a branch.
inline constexpr double kSign[2] = {1.0, -1.0};
inline constexpr double kHalf[2] = {-0.5, 0.5};

// The value as a float, rounded through memory: the compiler may keep a
// float in a wider register otherwise.
inline float to_float(double x) {
    float f = static_cast<float>(x);
    __asm__("" : "+m"(f));
    return f;
}
inline float to_float(double x, float &word) {
    word = static_cast<float>(x);
    __asm__("" : "+m"(word));
    return word;
}

inline double fsqrt(double x) {
    __asm__("fsqrt" : "+t"(x));
    return x;
}

// FPATAN: the arctangent of y over x, here always with x = 1.
inline double fpatan(double y, double x) {
    double r;
    __asm__("fpatan" : "=t"(r) : "0"(x), "u"(y) : "st(1)");
    return r;
}

// Exact powers of two for scaling in registers: 2^(64i - 1040), then the
// same negated (at 33 + i), and 2^j. Writing integer words and reading them
// back as a double stalls the processor's store forwarding; two
// multiplications by exact powers of two give the same result whenever it
// is a normal number.
extern const double pow2_coarse[66];
extern const double pow2_fine[64];

// x times 2^k, for k in [-1040, 1071]; the product of x by the fine factor
// comes first, so that only the last product can leave the double range.
inline double scale2(double x, int k) {
    const unsigned i = static_cast<unsigned>(k + 1040);
    return x * pow2_fine[i & 63] * pow2_coarse[i >> 6];
}

// A double argument as the caller left it on the stack: its two words.
// Callers often push a double argument as two 32-bit words, and an 8-byte
// load cannot be forwarded from two stores: it waits until they retire,
// which chains each call behind the whole of the one before. The hot
// functions therefore take their argument as words, under the exported
// name, and build the value in the registers.
struct arg64 {
    u32 lo, hi;
};
static_assert(sizeof(arg64) == 8);

// The integer at v, loaded onto the register stack.
inline double fild(const i32 &v) {
    double r;
    __asm__("fildl %1" : "=t"(r) : "m"(v));
    return r;
}

// An integer as a double, through the given word.
inline double to_double(i32 v, i32 &word) {
    word = v;
    return fild(word);
}

// The 53-bit significand of a double, hidden bit set, as an integer: two
// exact integer loads (FILD reads the low word as signed, which one carry
// into the high part makes up for). The high part makes its trip through
// memory in the given word.
inline double significand(const arg64 &a, i32 &word) {
    word = static_cast<i32>((a.hi & 0xFFFFF) | 0x100000) + static_cast<i32>(a.lo >> 31);
    return fild(word) * 4294967296.0 + fild(reinterpret_cast<const i32 &>(a.lo));
}

// The value of a double whose exponent field lies in [35, 0x7FE], from its
// words: the significand, then the exponent and the sign as exact powers
// of two.
inline double normal_value(const arg64 &a, i32 &word) {
    const unsigned i = ((a.hi >> 20) & 0x7FF) - 1075 + 1040;
    return significand(a, word) * pow2_fine[i & 63] * pow2_coarse[(i >> 6) + 33 * (a.hi >> 31)];
}

// The rare values, through memory, out of line: inline, the compiler would
// hoist the 8-byte load above the test, and every call would wait on it.
[[gnu::cold, gnu::noinline]] double stored_value(u32 hi, u32 lo);

// Whether 2^-74 <= |x| < 2^127: the sizes that value() builds from two
// floats (the high one may carry into the next binade), and that have no
// zero, infinity or NaN among them.
inline bool ordinary_size(const arg64 &a) { return ((a.hi >> 20) & 0x7FF) - 949 < 1150 - 949; }

// The value of any double from its words: through the registers when it is
// normal and not tiny, through memory otherwise (zeros, denormals,
// infinities and NaNs keep their exact bits that way). Of ordinary size,
// two floats made from one word each carry it exactly: the high word with
// its 20 fraction bits (plus the carry that makes up for FILD reading the
// low word as signed), and the scale 2^(e-1075) of the low word, both with
// the sign.
inline double value(const arg64 &a, i32 &high, i32 &scale) {
    const u32 e = (a.hi >> 20) & 0x7FF;
    if (ordinary_size(a)) {
        const u32 sign = a.hi & 0x80000000;
        high = static_cast<i32>(((a.hi - sign - (896u << 20) + (a.lo >> 31)) << 3) | sign);
        scale = static_cast<i32>(((e - 948) << 23) | sign);
        return reinterpret_cast<const float &>(high) +
               fild(reinterpret_cast<const i32 &>(a.lo)) * reinterpret_cast<const float &>(scale);
    }
    if (e - 35 < 0x7FF - 35) return normal_value(a, high);
    return stored_value(a.hi, a.lo);
}

// The binary search of pow and powf for the odd p with A1[p+1] < g <=
// A1[p-1] (A1[j] = 2^(-j/16), g in [0.5, 1)), done by lookup on the bit
// patterns, which order as the values: for each 1/128 of [0.5, 1), the
// largest even j <= 14 with A1[j] at or above the bucket's low end. Entries
// of A1 lie further apart than a bucket, so within it the search ends at
// that j or at j - 2.
template <typename Bits, int kFraction>
class PowSearch {
  public:
    constexpr explicit PowSearch(const Bits *a1) : a1_(a1), j_() {
        for (int i = 0; i < 64; ++i) {
            const Bits low = a1[16] | (Bits(i) << (kFraction - 6));  // a1[16] is 0.5
            int j = 14;
            while (a1[j] < low) j -= 2;
            j_[i] = static_cast<unsigned char>(j);
        }
    }
    int operator()(Bits g) const {
        const int j = j_[(g >> (kFraction - 6)) & 63];
        return j - 2 * static_cast<int>(g > a1_[j]) + 1;
    }

  private:
    const Bits *a1_;
    unsigned char j_[64];
};

// The last steps of the logarithm in pow and powf: y log2 x carried in
// sixteenths, as I/16 + W2, from log2 x = u1 + u2 with u1 a multiple of
// 1/16. reduce truncates to a multiple of 1/16: reduce_any by the
// conversion of the method (-2147483648 sixteenths when out of range),
// reduce_small in the registers, where |16 v| < 2^31 is known.
inline double reduce_any(double v) {
    i32 n;
    return trunc_i32(16.0 * v, &n) * 0.0625;
}
inline double reduce_small(double v) { return trunc_small<4>(v); }

struct Sixteenths {
    i32 i;
    double w2;
};

template <double (*reduce)(double)>
inline Sixteenths sixteenths(double y, double u1, double u2, i32 &word) {
    const double y1 = reduce(y);
    const double y2 = y - y1;
    double w = u2 * y + y2 * u1;
    double w1 = reduce(w);
    double w2 = w - w1;
    w = w1 + u1 * y1;
    w1 = reduce(w);
    w2 = w2 + (w - w1);
    const double r16 = reduce(w2);
    // sixteenths: integral already; every conversion out of range above
    // ends as -2147483648 here
    const i32 i = integral_to_i32(16.0 * (w1 + r16), word);
    return {i, w2 - r16};
}

// Truncation to an integral value on the bits alone.
double dint(double x);
float aint(float x);

}  // namespace orv::m
