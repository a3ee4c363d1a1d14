#include "stdio/x96/decimal_text.h"

namespace orv::decimal {
namespace {

using std::uint32_t;

// The powers that texts in the range of double need are kept once made:
// the same words _cmath_xtoi gives, without its squarings and reciprocal
// on every call.
constexpr int kept_powers = 350;
uint32_t kept[2 * kept_powers + 1][3];
bool made[2 * kept_powers + 1];

const uint32_t *ten_to(int power, uint32_t *scratch) {
    if (power < -kept_powers || power > kept_powers) {
        _cmath_xtoi(x96f::kTen.word, power, scratch);
        return scratch;
    }
    uint32_t *slot = kept[power + kept_powers];
    // Two threads may both make a power; they write the same words, and the
    // words are stored before the mark (the processor keeps stores in order;
    // the barrier keeps the compiler from moving them).
    if (!made[power + kept_powers]) {
        _cmath_xtoi(x96f::kTen.word, power, slot);
        __asm__ volatile("" ::: "memory");
        made[power + kept_powers] = true;
    }
    return slot;
}

} // namespace

// A product with ten to the 0, one, is the number itself, exactly.
void multiply_by_ten_to(uint32_t *x, int power) {
    if (power == 0) return;
    uint32_t scratch[3];
    _mulx(x, ten_to(power, scratch), x);
}

} // namespace orv::decimal
