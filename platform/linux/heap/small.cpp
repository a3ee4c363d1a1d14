#include "small.h"

#include "size_classes.h"
#include "slabs.h"

namespace orv::k32::heap {

constinit SpinLock heap_lock;

namespace {

// A class allocates from its current slab; slabs that were full and have
// had a block freed wait on its list. Full slabs are on no list, empty ones
// go back at once, except the current slab, which stays to spare a churning
// class a slab exchange per call.
struct Class {
    std::uint16_t current;
    std::uint16_t partial;
};

constinit Class classes[class_count]{};

void list_push(Class &c, std::uint32_t r) {
    Slab &s = slabs[r];
    s.prev = 0;
    s.next = c.partial;
    if (c.partial != 0) slabs[c.partial].prev = static_cast<std::uint16_t>(r);
    c.partial = static_cast<std::uint16_t>(r);
    s.flags |= slab_listed;
}

void list_remove(Class &c, std::uint32_t r) {
    Slab &s = slabs[r];
    if (s.prev != 0)
        slabs[s.prev].next = s.next;
    else
        c.partial = s.next;
    if (s.next != 0) slabs[s.next].prev = s.prev;
    s.flags &= static_cast<std::uint8_t>(~slab_listed);
}

// Hands out one block of a slab that has room.
void *carve(Slab &s, std::uint32_t size, bool &clean) {
    ++s.used;
    if (s.free != nullptr) {
        void *p = s.free;
        s.free = *static_cast<void **>(p);
        clean = false;
        return p;
    }
    char *p = s.bump;
    char *next = p + size;
    std::uint32_t offset = static_cast<std::uint32_t>(next - region_base(region_of(p)));
    s.bump = offset + size <= slab_bytes ? next : nullptr;
    clean = (s.flags & slab_fresh) != 0;
    return p;
}

} // namespace

void *small_alloc(unsigned cls, bool &clean) {
    Class &c = classes[cls];
    Slab *s = &slabs[c.current];
    if (s->free == nullptr && s->bump == nullptr) {
        std::uint32_t r = c.partial;
        if (r != 0)
            list_remove(c, r);
        else if ((r = slab_take(cls)) == 0)
            return nullptr;
        c.current = static_cast<std::uint16_t>(r);
        s = &slabs[r];
    }
    return carve(*s, class_size(cls), clean);
}

void small_free(void *p, std::uint32_t r) {
    Slab &s = slabs[r];
    Class &c = classes[s.cls];
    *static_cast<void **>(p) = s.free;
    s.free = p;
    --s.used;
    if (r == c.current) return;
    if (s.used == 0) {
        if (s.flags & slab_listed) list_remove(c, r);
        slab_release(r);
    } else if (!(s.flags & slab_listed)) {
        list_push(c, r);
    }
}

} // namespace orv::k32::heap
