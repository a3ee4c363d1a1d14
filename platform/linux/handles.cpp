#include "handles.h"
#include "last_error.h"
#include "spinlock.h"

namespace orv::k32 {
namespace {

constexpr unsigned capacity = 4096;

// Entries 0, 1 and 2 stand for the process's standard descriptors from
// load on, so GetStdHandle needs no initialisation.
constinit HandleEntry table[capacity] = {
    {Kind::file, 0, nullptr}, {Kind::file, 1, nullptr}, {Kind::file, 2, nullptr}};
constinit SpinLock table_lock;

// Handle values are multiples of four, as the platform's are, and never 0.
HANDLE value_of(unsigned index) {
    return reinterpret_cast<HANDLE>((index + 1) * 4);
}

bool index_of(HANDLE h, unsigned &index) {
    unsigned long v = reinterpret_cast<unsigned long>(h);
    if (v == 0 || (v & 3) != 0 || v / 4 > capacity) return false;
    index = v / 4 - 1;
    return true;
}

} // namespace

HANDLE std_handle(unsigned index) { return value_of(index); }

HANDLE handle_new(Kind kind, int fd, void *extra) {
    Guard g(table_lock);
    for (unsigned i = 0; i < capacity; ++i) {
        if (table[i].kind == Kind::none) {
            table[i] = HandleEntry{kind, fd, extra};
            return value_of(i);
        }
    }
    return nullptr;
}

HandleEntry *handle_entry(HANDLE h) {
    unsigned i;
    if (!index_of(h, i) || table[i].kind == Kind::none) return nullptr;
    return &table[i];
}

int handle_fd(HANDLE h) {
    HandleEntry *e = handle_entry(h);
    if (e == nullptr || e->kind != Kind::file)
        return fail(ERROR_INVALID_HANDLE, -1);
    return e->fd;
}

void handle_release(HANDLE h) {
    unsigned i;
    if (!index_of(h, i)) return;
    Guard g(table_lock);
    table[i] = HandleEntry{Kind::none, -1, nullptr};
}

} // namespace orv::k32
