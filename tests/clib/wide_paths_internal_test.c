/* The block and string functions that have 16-byte paths, run with the
   probe's answer set to "no SSE", so that the general-register paths,
   which processors without it take, are checked too; and then with it set
   to SSE. Naming the 16-byte entries pulls this program's own copies of
   the functions in, and with them their own view of the probe's answer. */
#include "block_model.h"

extern int __sse_state;
extern char __fill_wide[], __move_down_wide[], __wide_strlen[], __wide_strchr[];

/* Kept as data, so that the compiler cannot drop the references. */
char *const wide_entries[] = {__fill_wide, __move_down_wide, __wide_strlen, __wide_strchr};

/* Every alignment and length up to 70, bytes from 0x80 up among them, and
   strings that run into the next page. */
static void scans(void) {
    static char area[3 * 4096];
    char *page = (char *)(((unsigned long)area + 4096) & ~4095ul);
    int wrong = 0;
    for (unsigned at = 0; at < 48; ++at)
        for (unsigned len = 0; len <= 70; ++len) {
            char *s = page - at;
            for (unsigned k = 0; k < len; ++k) s[k] = (char)(0x61 + (k * 37) % 150);
            s[len] = 0;
            s[len + 1] = ',';
            wrong += strlen(s) != len || strchr(s, ',') != 0 || strchr(s, 0) != s + len;
            if (len > 0) wrong += strchr(s, s[len - 1]) == 0 || *strchr(s, s[len - 1]) != s[len - 1];
            if (len > 20) wrong += strchr(s, (char)0xC8) != (memchr(s, 0xC8, len));
        }
    CHECK_EQ(wrong, 0);
}

int main(void) {
    __sse_state = -1;
    t_section("without SSE");
    block_moves_and_fills();
    scans();
    __sse_state = 1;
    t_section("with SSE");
    block_moves_and_fills();
    scans();
    return t_finish();
}
