// What the platform's file queries report, read from the kernel's statx.
#pragma once

#include "../kernel32.h"

#include <cstdint>

namespace orv::k32 {

struct FileStatus {
    DWORD attributes;
    std::uint64_t size;
    FILETIME creation, last_access, last_write;
    DWORD links;
    std::uint64_t index;
    std::uint32_t device;
    std::uint32_t mode;  // the Linux type bits
};

// False with the last error set when the object cannot be reached.
bool status_of_path(const char *native_path, FileStatus &out);
bool status_of_fd(int fd, FileStatus &out);

} // namespace orv::k32
