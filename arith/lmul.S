/* 64-bit product modulo 2^64, for signed and unsigned operands alike. When
   both operands fit in 32 signed bits one widening multiply is exact. */
#include "arith/x87.inc"

        .text
FUNCTION _orvane_lmul
        movl    4(%esp), %eax
        cltd
        cmpl    8(%esp), %edx
        jne     1f
        movl    12(%esp), %ecx
        movl    %ecx, %edx
        sarl    $31, %edx
        cmpl    16(%esp), %edx
        jne     1f
        imull   %ecx
        ret
1:      jmp     _orvane_slow_lmul
END _orvane_lmul

        .section .note.GNU-stack,"",@progbits
