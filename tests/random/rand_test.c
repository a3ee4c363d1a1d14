/* The C generator: its sequences for known seeds, its range, and the
   switching of tables. */
#include <stdlib.h>

#include "harness.h"

static const int seed1[5] = {2012933251, 520896441, 1153802468, 1487909249, 1229166838};

static void check_sequence(const int *want, int n) {
    for (int i = 0; i < n; ++i) CHECK_EQ(rand(), want[i]);
}

static char small_state[219];

static int initstate_too_small(void *arg) {
    (void)arg;
    srand(42);
    (void)rand();
    char *table = setstate(0);
    setstate(table);
    char *got = initstate(1, small_state, 219);
    /* The generator goes on as if nothing happened: the second value of seed 42. */
    return (got == table && rand() == 1815030053) ? 0 : 1;
}

int main(void) {
    t_section("unseeded start is seed 1");
    check_sequence(seed1, 5);
    srand(1);
    check_sequence(seed1, 5);

    t_section("known seeds");
    static const int seed0[3] = {1931596989, 175066307, 402310301};
    static const int seed42[3] = {1052752699, 1815030053, 1900210257};
    srand(0);
    check_sequence(seed0, 3);
    for (int again = 0; again < 2; ++again) { /* re-seeding starts over */
        srand(42);
        check_sequence(seed42, 3);
    }

    t_section("range over a long run");
    srand(7);
    int bad = 0, high = 0;
    for (int i = 0; i < 200000; ++i) {
        int r = rand();
        if (r < 0 || r > 0x7FFFFFFE) ++bad;
        if (r > 0x70000000) ++high;
    }
    CHECK_EQ(bad, 0);
    CHECK(high > 0); /* the top of the range is reached */

    t_section("initstate with a table too small");
    t_child child;
    t_run_child(&child, initstate_too_small, 0, "", 0);
    CHECK(child.exited && child.status == 0);
    static const char message[] = "'initstate' must be called with value of at least 220\r\n";
    CHECK_MEM(child.err, child.err_len, message, sizeof message - 1);
    CHECK_EQ(child.out_len, 0);

    t_section("own table, then back");
    static int table[55];
    srand(42);
    CHECK_EQ(rand(), seed42[0]);
    char *builtin = initstate(0, (char *)table, 220);
    CHECK(builtin != (char *)table && builtin != 0);
    CHECK_EQ(rand(), seed0[0]); /* seeded afresh in the caller's table */
    CHECK(table[54] != 0);
    CHECK(setstate(builtin) == (char *)table);
    /* No re-seed: the built-in table resumes its words at the positions the
       other table reached, which are those of its own second draw. */
    CHECK_EQ(rand(), seed42[1]);
    /* An initstate that succeeds also answers the table it leaves. */
    CHECK(initstate(5, (char *)table, 220) == builtin);
    CHECK(setstate(builtin) == (char *)table);
    return t_finish();
}
