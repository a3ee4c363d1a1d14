/* Unsigned 64-bit quotient. */
#include "arith/x87.inc"
#include "arith/div_frame.inc"

        .text
UNSIGNED_DIVIDE _orvane_uldiv, 0

        .section .note.GNU-stack,"",@progbits
