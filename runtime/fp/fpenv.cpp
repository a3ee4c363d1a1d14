#include "runtime/fp/fpenv.h"
#include "runtime/fp/fp_unit.h"

extern "C" {

constinit std::int32_t __sse_state = 0;
constinit std::uint32_t __mxcsr_mask = 0;

std::uint32_t __mxcsr_writable_mask() {
    if (__mxcsr_mask == 0) {
        std::uint32_t mask = orv::fxsave_mxcsr_mask();
        __mxcsr_mask = mask != 0 ? mask : 0xFFBF;
    }
    return __mxcsr_mask;
}

std::uint32_t __mxcsr_set_masked(std::uint32_t value) {
    std::uint32_t old = orv::__mxcsr_read();
    orv::__mxcsr_write(value & __mxcsr_writable_mask());
    return old;
}

void __fp_set_control_ref(const std::int32_t *value) {
    std::uint32_t control = static_cast<std::uint32_t>(*value) & 0xFFFF;
    std::int32_t flush = static_cast<std::int16_t>(*value >> 16);
    if (__sse_state > 0)
        orv::set_mxcsr_for(control, flush);
    else if (__sse_state == 0)
        orv::sse_probe(control, flush);
    orv::__x87_load_control(control);
}

void __fp_set_control(std::int32_t value) { __fp_set_control_ref(&value); }

std::uint32_t __fp_get_control() { return orv::__x87_read_control(); }

std::uint32_t __fp_get_status() {
    std::uint32_t status = orv::__x87_read_status();
    if (__sse_state > 0) status |= orv::__mxcsr_read() & 0x3F;
    return status;
}

void __fp_set_status_ref(const std::uint32_t *status) {
    if (__sse_state > 0)
        orv::__mxcsr_write((orv::__mxcsr_read() & ~0x3Fu) | (*status & 0x3F));
    orv::__x87_write_status(*status);
}

std::uint32_t __fp_get_environment() {
    return (__fp_get_status() << 16) | (__fp_get_control() & 0xFFFF);
}

void __fp_set_environment_ref(const std::uint32_t *environment) {
    std::int32_t control = static_cast<std::int32_t>(*environment & 0xFFFF);
    std::uint32_t status = *environment >> 16;
    __fp_set_control_ref(&control);
    __fp_set_status_ref(&status);
}

void __fp_reset() { __fp_set_control(0x27F); }

} // extern "C"

namespace orv {

void set_mxcsr_for(std::uint32_t control, std::int32_t flush) {
    __mxcsr_set_masked(mxcsr_for(control, flush, __mxcsr_read()));
}

} // namespace orv
