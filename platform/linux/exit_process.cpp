#include "../kernel32.h"
#include "syscall.h"

extern "C" K32_API void WINAPI ExitProcess(UINT status) {
    for (;;) orv::sys::call1(orv::sys::nr_exit_group, static_cast<long>(status));
}
