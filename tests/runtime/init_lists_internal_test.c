/* The walk of the static initialiser lists: every entry once, in the
   fixed order, init_clib first. This program defines the 24 entries
   itself and walks its own copy of the lists. The library's load-time walk
   also reaches those of them that the library does not define itself, so
   that walk is checked too, for order. */
#include "harness.h"

void walk_init_lists(void) __asm__("_ZN3orv15walk_init_listsEv");

static int order[64], count;
static void called(int slot) {
    if (count < 64) order[count] = slot;
    ++count;
}

#define SLOT(name, n) void __sinit_##name(void) { called(n); }
SLOT(init_clib, 1) SLOT(comperr, 2) SLOT(compexc, 3) SLOT(compin, 4)
SLOT(complex, 5) SLOT(compout, 6) SLOT(dbp, 7) SLOT(fstream, 8)
SLOT(ios, 9) SLOT(iostream, 10) SLOT(istream, 11) SLOT(istreamf, 12)
SLOT(istreami, 13) SLOT(istreamx, 14) SLOT(manip, 15) SLOT(ostream, 16)
SLOT(ostreamf, 17) SLOT(ostreami, 18) SLOT(ostreamx, 19) SLOT(siosync, 20)
SLOT(stiostream, 21) SLOT(stream, 22) SLOT(streambf, 23) SLOT(strstream, 24)

int main(void) {
    t_section("load-time walk");
    int rising = 1;
    for (int i = 1; i < count; ++i) rising &= order[i] > order[i - 1];
    CHECK(rising && count <= 24);
    count = 0;

    t_section("walk order, and no guard against a second walk");
    walk_init_lists();
    walk_init_lists();
    CHECK_EQ(count, 48);
    int in_order = 1;
    for (int i = 0; i < 48; ++i) in_order &= order[i] == i % 24 + 1;
    CHECK(in_order);
    return t_finish();
}
