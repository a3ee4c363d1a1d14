#include "include/stdlib.h"
#include "runtime/exit/exit_list.h"

extern "C" {
ORV_EXPORT int __atexit_count = 0;
ORV_EXPORT exit_handler *__atexit_table = nullptr;
}

namespace {

constexpr int growth = 128; // entries added at a time; the table never shrinks

// Room for one more entry, or false with table and count as they were.
bool make_room() {
    if (__atexit_count % growth != 0) return true;
    size_t bytes = (static_cast<size_t>(__atexit_count) + growth) * sizeof(exit_handler);
    void *table = __atexit_count == 0 ? malloc(bytes) : realloc(__atexit_table, bytes);
    if (table == nullptr) return false;
    __atexit_table = static_cast<exit_handler *>(table);
    return true;
}

} // namespace

extern "C" ORV_EXPORT int atexit(exit_handler handler) {
    if (!make_room()) return -1;
    __atexit_table[__atexit_count++] = handler;
    return 0;
}
