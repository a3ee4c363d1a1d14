// Interim process heap: one mapping per block. To be replaced by the real
// allocator.
#include "../kernel32.h"
#include "faults.h"
#include "last_error.h"
#include "syscall.h"

namespace {

struct Header {
    SIZE_T size;
    SIZE_T mapped;
    unsigned pad[2];
};

constexpr SIZE_T page = 4096;

void *allocate(SIZE_T size) {
    SIZE_T mapped = (size + sizeof(Header) + page - 1) & ~(page - 1);
    if (mapped < size) return nullptr;
    auto *h = static_cast<Header *>(orv::sys::mmap_anon(mapped));
    if (h == nullptr) return nullptr;
    h->size = size;
    h->mapped = mapped;
    return h + 1;
}

Header *header_of(LPCVOID p) { return const_cast<Header *>(static_cast<const Header *>(p)) - 1; }

constinit int process_heap_object = 0;

} // namespace

extern "C" K32_API HANDLE WINAPI GetProcessHeap(void) { return &process_heap_object; }

extern "C" K32_API LPVOID WINAPI HeapAlloc(HANDLE, DWORD, SIZE_T size) {
    if (orv::k32::fault_hit(K32_HeapAlloc)) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    return allocate(size);
}

extern "C" K32_API BOOL WINAPI HeapFree(HANDLE, DWORD, LPVOID block) {
    if (block == nullptr) return 1;
    Header *h = header_of(block);
    orv::sys::munmap(h, h->mapped);
    return 1;
}

extern "C" K32_API SIZE_T WINAPI HeapSize(HANDLE, DWORD, LPCVOID block) {
    return header_of(block)->size;
}

extern "C" K32_API LPVOID WINAPI HeapReAlloc(HANDLE, DWORD flags, LPVOID block, SIZE_T size) {
    if (orv::k32::fault_hit(K32_HeapReAlloc)) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    Header *old = header_of(block);
    if (size + sizeof(Header) <= old->mapped) {
        old->size = size;
        return block;
    }
    if (flags & HEAP_REALLOC_IN_PLACE_ONLY) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    void *p = allocate(size);
    if (p == nullptr) return orv::k32::fail(ERROR_NOT_ENOUGH_MEMORY, LPVOID{});
    for (SIZE_T i = 0; i < old->size; ++i) static_cast<char *>(p)[i] = static_cast<char *>(block)[i];
    HeapFree(nullptr, 0, block);
    return p;
}
