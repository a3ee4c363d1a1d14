#include "../kernel32.h"

// Reports the NT line (top bit clear): version 6.1, build 7601.
extern "C" K32_API DWORD WINAPI GetVersion(void) { return (7601UL << 16) | (1 << 8) | 6; }
