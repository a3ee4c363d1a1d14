/* Unsigned 64-bit remainder. */
#include "arith/x87.inc"
#include "arith/div_frame.inc"

        .text
UNSIGNED_DIVIDE _orvane_ulmod, 1

        .section .note.GNU-stack,"",@progbits
