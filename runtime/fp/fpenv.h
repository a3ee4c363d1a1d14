// The floating-point environment: one control value sets the x87 control
// word and MXCSR together (low half: the x87 word; high half, signed: the
// SSE flush mode). None of this is exported.
#pragma once

#include "runtime/export.h"

#include <cstdint>

extern "C" {

// 0: not yet probed; above 0: SSE usable; below 0: not usable.
ORV_HIDDEN extern std::int32_t __sse_state;
// 0: not yet read; else the writable bits of MXCSR.
ORV_HIDDEN extern std::uint32_t __mxcsr_mask;

ORV_HIDDEN void __fp_set_control_ref(const std::int32_t *value);
ORV_HIDDEN void __fp_set_control(std::int32_t value);
ORV_HIDDEN std::uint32_t __fp_get_control();
ORV_HIDDEN std::uint32_t __fp_get_status();
ORV_HIDDEN void __fp_set_status_ref(const std::uint32_t *status);
ORV_HIDDEN std::uint32_t __fp_get_environment();
ORV_HIDDEN void __fp_set_environment_ref(const std::uint32_t *environment);
ORV_HIDDEN void __fp_reset();

ORV_HIDDEN std::uint32_t __mxcsr_writable_mask();
ORV_HIDDEN std::uint32_t __mxcsr_set_masked(std::uint32_t value);

} // extern "C"

namespace orv {

// The MXCSR value for an x87 control word and a flush mode, given the
// current MXCSR (whose flush bits flush mode 0 keeps).
constexpr std::uint32_t mxcsr_for(std::uint32_t control, std::int32_t flush,
                                  std::uint32_t current) {
    constexpr std::uint32_t flush_bits = 0x8040;  // FTZ and DAZ
    std::uint32_t v = ((control & 0x3F) << 7) | ((control & 0xC00) << 3);
    if (flush == 0) return v | (current & flush_bits);
    if (flush == 1) return v | flush_bits;
    return v;
}

static_assert(mxcsr_for(0x27F, 1, 0) == 0x9FC0);
static_assert(mxcsr_for(0x27F, 0, 0x8040) == 0x9FC0);
static_assert(mxcsr_for(0xE7F, 2, 0x8040) == 0x7F80);

// Runs the guarded probe of the SSE unit and, when it is usable, sets
// MXCSR for `control` and `flush`.
ORV_HIDDEN void sse_probe(std::uint32_t control, std::int32_t flush);

// Sets MXCSR for a control word and flush mode through the writable mask.
ORV_HIDDEN void set_mxcsr_for(std::uint32_t control, std::int32_t flush);

} // namespace orv
