// The handle table: the platform's handles are small opaque values; here
// each names an entry that holds what it stands for.
#pragma once

#include "../kernel32.h"

namespace orv::k32 {

enum class Kind : unsigned char { none, file, process, thread, find };

struct HandleEntry {
    Kind kind;
    int fd;        // file: the Linux descriptor; process/thread: the pid
    void *extra;   // kind-specific state owned by the entry
};

// A new handle of `kind` for `fd`, or null when the table is full.
HANDLE handle_new(Kind kind, int fd, void *extra = nullptr);

// The entry of a live handle, or null.
HandleEntry *handle_entry(HANDLE h);

// The Linux descriptor of a file handle, or -1 (last error set).
int handle_fd(HANDLE h);

// The handle of standard input (0), output (1) or error (2).
HANDLE std_handle(unsigned index);

// Frees the table entry; the caller has released what it stood for.
void handle_release(HANDLE h);

} // namespace orv::k32
