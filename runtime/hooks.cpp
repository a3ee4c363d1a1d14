#include "runtime/hooks.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

namespace orv {
namespace {

// The defaults stand in the table from load on, so the library works with
// no host at all.
int default_read(void *buffer, unsigned count, int *) {
    DWORD n = 0;
    if (!ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer, count, &n, nullptr))
        return 0;
    return static_cast<int>(n);
}

int default_write(const void *buffer, unsigned *count, void *handle, int *) {
    DWORD n = 0;
    if (!WriteFile(handle, buffer, *count, &n, nullptr)) return 0;
    return static_cast<int>(n);
}

int do_nothing() { return 0; }

} // namespace
} // namespace orv

ORV_EXPORT constinit __tvlkc_funcs __TVLKCFuncs = {
    orv::default_read, orv::default_write, orv::do_nothing, orv::do_nothing};

extern "C" ORV_EXPORT void tvlk_c_init(__hook_read_t read, __hook_write_t write,
                                       __hook_exit_t exit, __hook_spare_t spare) {
    __TVLKCFuncs.hook_read = read;
    __TVLKCFuncs.hook_write = write;
    __TVLKCFuncs.hook_exit = exit;
    __TVLKCFuncs.hook_spare = spare;
}
