/* Signed 64-bit remainder, with the sign of the dividend. The x87 path
   repeats the partial remainder until the unit reports it complete; the
   value is exact. */
#include "arith/x87.inc"
#include "arith/sdiv_frame.inc"

        .text
.macro QUOTIENT_ZERO
        movl    A_LO, %eax
        movl    A_HI, %edx
.endm
.macro FROM_IDIV
        movl    %edx, %eax
        cltd
.endm
.macro FROM_X87
        fildll  B_LO
        fildll  A_LO
4:      fprem
        fnstsw  %ax
        testb   $4, %ah
        jnz     4b
        fstp    %st(1)
.endm

SIGNED_DIVIDE _orvane_lmod

        .section .note.GNU-stack,"",@progbits
