#include "environment.h"
#include "last_error.h"

// The length without the terminator when the value fits, the size needed
// with it when it does not, 0 for a variable that is missing or empty,
// whatever the buffer's size.
extern "C" K32_API DWORD WINAPI GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size) {
    const char *value = orv::k32::environment_value(name);
    if (value == nullptr) return orv::k32::fail(ERROR_ENVVAR_NOT_FOUND, DWORD{0});
    DWORD length = 0;
    while (value[length]) ++length;
    if (length + 1 > size) return length == 0 ? 0 : length + 1;
    for (DWORD i = 0; i <= length; ++i) buffer[i] = value[i];
    return length;
}
