/* The block moves and fills once more with the probe's answer set to "no
   SSE", so that the general-register paths, which processors without it
   take, are checked against the model too; and then with it set to SSE.
   Naming the 16-byte entries pulls this program's own copies of memset and
   memmove in, and with them their own view of the probe's answer. */
#include "block_model.h"

extern int __sse_state;
extern char __fill_wide[], __move_down_wide[];

/* Kept as data, so that the compiler cannot drop the references. */
char *const block_entries[] = {__fill_wide, __move_down_wide};

int main(void) {
    __sse_state = -1;
    t_section("without SSE");
    block_moves_and_fills();
    __sse_state = 1;
    t_section("with SSE");
    block_moves_and_fills();
    return t_finish();
}
