#include "small.h"

namespace orv::k32::heap {

constinit SpinLock heap_lock;
constinit SizeClass classes[class_count]{};

namespace {

void list_push(SizeClass &c, std::uint32_t r) {
    Slab &s = slabs[r];
    s.prev = 0;
    s.next = c.partial;
    if (c.partial != 0) slabs[c.partial].prev = static_cast<std::uint16_t>(r);
    c.partial = static_cast<std::uint16_t>(r);
    s.flags |= slab_listed;
}

void list_remove(SizeClass &c, std::uint32_t r) {
    Slab &s = slabs[r];
    if (s.prev != 0)
        slabs[s.prev].next = s.next;
    else
        c.partial = s.next;
    if (s.next != 0) slabs[s.next].prev = s.prev;
    s.flags &= static_cast<std::uint8_t>(~slab_listed);
}

} // namespace

void *small_alloc_slow(unsigned cls, bool &clean) {
    SizeClass &c = classes[cls];
    std::uint32_t r = c.partial;
    if (r != 0)
        list_remove(c, r);
    else if ((r = slab_take(cls)) == 0)
        return nullptr;
    c.current = static_cast<std::uint16_t>(r);
    return carve(slabs[r], class_size(cls), clean);
}

void small_freed_slow(std::uint32_t r) {
    Slab &s = slabs[r];
    SizeClass &c = classes[s.cls];
    if (s.used == 0) {
        if (s.flags & slab_listed) list_remove(c, r);
        slab_release(r);
    } else if (!(s.flags & slab_listed)) {
        list_push(c, r);
    }
}

} // namespace orv::k32::heap
