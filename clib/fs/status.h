// What _stat and _fstat share: the cleared record and the mode from the
// platform's attributes.
#pragma once

#include "include/sys/stat.h"
#include "platform/kernel32.h"

namespace orv::fs {

// st_dev and st_rdev -1, st_nlink 1, everything else 0.
void clear_status(struct stat &s);

// Type and owner bits from the attributes, with `execute` as told, copied
// to group and others.
unsigned short mode_of(DWORD attributes, bool execute);

// The three times through ConvertTime; false if any conversion failed.
bool convert_times(struct stat &s, const FILETIME &creation, const FILETIME &write,
                   const FILETIME &access);

} // namespace orv::fs
