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

void __sinit_init_clib(void) { called(1); }
void __sinit_comperr(void) { called(2); }
void __sinit_compexc(void) { called(3); }
void __sinit_compin(void) { called(4); }
void __sinit_complex(void) { called(5); }
void __sinit_compout(void) { called(6); }
void __sinit_dbp(void) { called(7); }
void __sinit_fstream(void) { called(8); }
void __sinit_ios(void) { called(9); }
void __sinit_iostream(void) { called(10); }
void __sinit_istream(void) { called(11); }
void __sinit_istreamf(void) { called(12); }
void __sinit_istreami(void) { called(13); }
void __sinit_istreamx(void) { called(14); }
void __sinit_manip(void) { called(15); }
void __sinit_ostream(void) { called(16); }
void __sinit_ostreamf(void) { called(17); }
void __sinit_ostreami(void) { called(18); }
void __sinit_ostreamx(void) { called(19); }
void __sinit_siosync(void) { called(20); }
void __sinit_stiostream(void) { called(21); }
void __sinit_stream(void) { called(22); }
void __sinit_streambf(void) { called(23); }
void __sinit_strstream(void) { called(24); }

int main(void) {
    t_section("load-time walk");
    int rising = 1;
    for (int i = 1; i < count; ++i) rising &= order[i] > order[i - 1];
    CHECK(rising);
    CHECK(count <= 24);
    count = 0;

    t_section("walk order");
    walk_init_lists();
    CHECK_EQ(count, 24);
    int in_order = 1;
    for (int i = 0; i < 24; ++i) in_order &= order[i] == i + 1;
    CHECK(in_order);

    t_section("no guard against a second walk");
    walk_init_lists();
    CHECK_EQ(count, 48);
    CHECK_EQ(order[24], 1);
    CHECK_EQ(order[47], 24);
    return t_finish();
}
