// Conversions between the platform's file times and time_t, through local
// time; for the file-system functions.
#pragma once

#include "include/time.h"
#include "platform/kernel32.h"
#include "runtime/export.h"

#ifdef __cplusplus
extern "C" {
#endif
ORV_EXPORT int ConvertTime(const FILETIME *ft, time_t *t);
ORV_EXPORT int ConvertTimeInverse(const time_t *t, FILETIME *ft);
ORV_EXPORT int IsWinNT(void);
#ifdef __cplusplus
}
#endif
