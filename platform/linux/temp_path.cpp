// GetTempPathA: TMP, else TEMP, else /tmp, with a separator behind.
#include "../kernel32.h"
#include "start_environment.h"

namespace {
constexpr unsigned path_max = 1024;
} // namespace

extern "C" K32_API DWORD WINAPI GetTempPathA(DWORD size, LPSTR buffer) {
    char path[path_max + 2];
    if (!orv::k32::startup_variable("TMP", path, path_max) || !path[0]) {
        if (!orv::k32::startup_variable("TEMP", path, path_max) || !path[0]) {
            const char fallback[] = "/tmp";
            for (unsigned i = 0; i < sizeof fallback; ++i) path[i] = fallback[i];
        }
    }
    unsigned n = 0;
    while (path[n]) ++n;
    if (path[n - 1] != '\\' && path[n - 1] != '/') path[n++] = '\\', path[n] = 0;
    if (n + 1 > size) return n + 1;
    for (unsigned i = 0; i <= n; ++i) buffer[i] = path[i];
    return n;
}
