// 16-byte steps for the string scans, taken where the probe of the
// floating-point state found SSE (`__sse_state` above 0); elsewhere the
// word scans of scan.h run. An aligned 16-byte load never crosses a page,
// so past a terminator nothing is read that could fault.
#pragma once

#include "runtime/fp/fpenv.h"

#include <cstdint>

namespace orv::wide {

using v16 = char __attribute__((vector_size(16), may_alias));
using v16u = char __attribute__((vector_size(16), may_alias, aligned(1)));

inline bool usable() { return __sse_state > 0; }

// One bit per byte of the block, set where `lanes` has its byte set.
[[gnu::target("sse2")]] inline unsigned marks(v16 lanes) {
    return static_cast<unsigned>(__builtin_ia32_pmovmskb128(lanes));
}

// The tests a scan applies to each block: terminators, or terminators and
// one character.
struct Zeros {
    [[gnu::target("sse2")]] unsigned operator()(v16 v) const { return marks(v == v16{}); }
};

struct ZerosOr {
    v16 want;
    [[gnu::target("sse2")]] explicit ZerosOr(char c) : want(v16{} + c) {}
    [[gnu::target("sse2")]] unsigned operator()(v16 v) const { return marks((v == v16{}) | (v == want)); }
};

inline const v16 *block_of(const char *s) {
    return reinterpret_cast<const v16 *>(reinterpret_cast<std::uintptr_t>(s) & ~std::uintptr_t{15});
}

inline unsigned before(const char *s) { return reinterpret_cast<std::uintptr_t>(s) & 15; }

inline unsigned first(unsigned marks) { return static_cast<unsigned>(__builtin_ctz(marks)); }

// The first byte from s on that the test marks; the test sees whole
// aligned blocks, of which the bytes before s are dropped.
template <class Test> [[gnu::target("sse2")]] inline const char *find(const char *s, Test test) {
    const v16 *p = block_of(s);
    if (unsigned m = test(*p) >> before(s)) return s + first(m);
    for (;;) {
        ++p;
        if (unsigned m = test(*p)) return reinterpret_cast<const char *>(p) + first(m);
    }
}

} // namespace orv::wide
