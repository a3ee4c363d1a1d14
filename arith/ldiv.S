/* Signed 64-bit quotient, truncated toward zero. */
#include "arith/x87.inc"
#include "arith/div_frame.inc"

        .text
SIGNED_DIVIDE _orvane_ldiv, 0

        .section .note.GNU-stack,"",@progbits
