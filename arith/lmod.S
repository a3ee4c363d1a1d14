/* Signed 64-bit remainder, with the sign of the dividend. */
#include "arith/x87.inc"
#include "arith/div_frame.inc"

        .text
SIGNED_DIVIDE _orvane_lmod, 1

        .section .note.GNU-stack,"",@progbits
