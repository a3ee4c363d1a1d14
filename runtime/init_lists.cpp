#include "runtime/init_lists.h"

// The entries of the main list. They are referenced weakly: an entry whose
// file is not part of this build yet leaves a null slot, which the walk
// skips.
#define ORV_SINIT(file) extern "C" [[gnu::weak]] ORV_EXPORT void __sinit_##file();
ORV_SINIT(init_clib)
ORV_SINIT(comperr)
ORV_SINIT(compexc)
ORV_SINIT(compin)
ORV_SINIT(complex)
ORV_SINIT(compout)
ORV_SINIT(dbp)
ORV_SINIT(fstream)
ORV_SINIT(ios)
ORV_SINIT(iostream)
ORV_SINIT(istream)
ORV_SINIT(istreamf)
ORV_SINIT(istreami)
ORV_SINIT(istreamx)
ORV_SINIT(manip)
ORV_SINIT(ostream)
ORV_SINIT(ostreamf)
ORV_SINIT(ostreami)
ORV_SINIT(ostreamx)
ORV_SINIT(siosync)
ORV_SINIT(stiostream)
ORV_SINIT(stream)
ORV_SINIT(streambf)
ORV_SINIT(strstream)
#undef ORV_SINIT

namespace orv {
namespace {

// Each list opens with a head slot that is always null and never looked
// at; its end is the end of its array, not a terminator.
[[gnu::section(".CRT"), gnu::used]] constinit init_entry early_list[] = {nullptr};

[[gnu::section(".CRT"), gnu::used]] constinit init_entry main_list[] = {
    nullptr,
    __sinit_init_clib,
    __sinit_comperr,
    __sinit_compexc,
    __sinit_compin,
    __sinit_complex,
    __sinit_compout,
    __sinit_dbp,
    __sinit_fstream,
    __sinit_ios,
    __sinit_iostream,
    __sinit_istream,
    __sinit_istreamf,
    __sinit_istreami,
    __sinit_istreamx,
    __sinit_manip,
    __sinit_ostream,
    __sinit_ostreamf,
    __sinit_ostreami,
    __sinit_ostreamx,
    __sinit_siosync,
    __sinit_stiostream,
    __sinit_stream,
    __sinit_streambf,
    __sinit_strstream,
};
static_assert(sizeof main_list / sizeof main_list[0] == 25);

void walk(init_entry *head, init_entry *end) {
    for (init_entry *slot = head + 1; slot < end; ++slot) {
        init_entry entry = *static_cast<init_entry volatile *>(slot);
        if (entry != nullptr) entry();
    }
}

} // namespace

void walk_init_lists() {
    walk(early_list, early_list + sizeof early_list / sizeof early_list[0]);
    walk(main_list, main_list + sizeof main_list / sizeof main_list[0]);
}

} // namespace orv
