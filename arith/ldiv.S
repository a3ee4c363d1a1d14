/* Signed 64-bit quotient, truncated toward zero. On the x87 path both
   operands load exactly and the truncating control word keeps every bit of
   the quotient's integer part, so the result is exact; -2^63 / -1 stores
   as the integer indefinite, 0x8000000000000000. */
#include "arith/x87.inc"
#include "arith/sdiv_frame.inc"

        .text
.macro QUOTIENT_ZERO
        xorl    %eax, %eax
        xorl    %edx, %edx
.endm
.macro FROM_IDIV
        cltd
.endm
.macro FROM_X87
        fildll  B_LO
        fildll  A_LO
        fdiv    %st(1), %st
        fstp    %st(1)
.endm

SIGNED_DIVIDE _orvane_ldiv

        .section .note.GNU-stack,"",@progbits
