// What every function of the descriptor layer starts with.
#pragma once

#include "include/errno.h"
#include "platform/kernel32.h"
#include "runtime/fd/fd_map.h"

namespace orv {

// Sets errno and answers -1: the layer's failure answer.
inline int fail(int code) {
    errno = code;
    return -1;
}

inline bool is_std_handle(HANDLE h, DWORD which) { return h == GetStdHandle(which); }

} // namespace orv
