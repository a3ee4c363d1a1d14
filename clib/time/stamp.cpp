#include "clib/time/stamp.h"
#include "arith/orvane.h"
#include "platform/kernel32.h"

#include <cstdint>

namespace orv::cal {

// Two separate platform reads: at the turn of a second the fields may
// belong to different seconds, which nothing corrects.
Stamp current_stamp() {
    SYSTEMTIME st;
    GetSystemTime(&st);
    FILETIME ft;
    GetSystemTimeAsFileTime(&ft);
    std::uint64_t ticks = (std::uint64_t{ft.dwHighDateTime} << 32) | ft.dwLowDateTime;
    // Adding 0xFE624E212AC18000 subtracts the ticks from 1601 to 1970; the
    // division truncates toward zero, also before 1970.
    auto since_1970 = static_cast<std::int64_t>(ticks + 0xFE624E212AC18000ULL);
    std::int64_t seconds = _orvane_ldiv(since_1970, 10000000);
    return Stamp{static_cast<time_t>(static_cast<std::uint32_t>(seconds)), st.wMilliseconds};
}

} // namespace orv::cal
