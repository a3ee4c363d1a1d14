// The wall clock: GetSystemTime, GetLocalTime, GetSystemTimeAsFileTime.
#include "civil.h"
#include "syscall.h"
#include "time_control.h"
#include "time_zone.h"
#include "vdso_clock.h"

namespace orv::k32 {

namespace {

constinit bool frozen = false;
constinit std::uint64_t frozen_ticks = 0;

constexpr long nr_clock_gettime64 = 403;
constexpr long clock_realtime = 0;

std::uint64_t kernel_now() {
    std::int64_t sec, nsec;
    if (vdso_realtime(sec, nsec))
        return static_cast<std::uint64_t>(epoch_1970_ticks + sec * ticks_per_second + nsec / 100);
    struct { std::int64_t sec, nsec; } ts64{};
    if (!sys::failed(sys::call2(nr_clock_gettime64, clock_realtime, sys::arg(&ts64))))
        return static_cast<std::uint64_t>(epoch_1970_ticks + ts64.sec * ticks_per_second +
                                          ts64.nsec / 100);
    // Older kernels: the 32-bit call, good until 2038.
    struct { std::int32_t sec, nsec; } ts32{};
    sys::call2(sys::nr_clock_gettime, clock_realtime, sys::arg(&ts32));
    return static_cast<std::uint64_t>(epoch_1970_ticks +
                                      std::int64_t{ts32.sec} * ticks_per_second +
                                      ts32.nsec / 100);
}

} // namespace

std::uint64_t clock_now_ticks() { return frozen ? frozen_ticks : kernel_now(); }

} // namespace orv::k32

using namespace orv::k32;

extern "C" K32_API void k32_set_clock(const FILETIME *now) {
    frozen = now != nullptr;
    if (now) frozen_ticks = filetime_value(*now);
}

extern "C" K32_API void WINAPI GetSystemTimeAsFileTime(FILETIME *ft) {
    *ft = make_filetime(clock_now_ticks());
}

extern "C" K32_API void WINAPI GetSystemTime(SYSTEMTIME *st) {
    FILETIME ft = make_filetime(clock_now_ticks());
    FileTimeToSystemTime(&ft, st);
}

extern "C" K32_API void WINAPI GetLocalTime(SYSTEMTIME *st) {
    std::uint64_t now = clock_now_ticks();
    FILETIME local = make_filetime(now - static_cast<std::uint64_t>(
                                             std::int64_t{zone_bias_now()} * 60 * ticks_per_second));
    FileTimeToSystemTime(&local, st);
}
