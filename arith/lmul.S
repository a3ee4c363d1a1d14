/* 64-bit product modulo 2^64, for signed and unsigned operands alike:
   the low words' full product and the two cross products' low words.
   The high words' product lies wholly above bit 63. Three multiplies
   and no branch cost less than telling the narrow case apart. */
#include "arith/x87.inc"

        .text
FUNCTION _orvane_lmul
        movl    8(%esp), %ecx
        movl    16(%esp), %eax
        imull   12(%esp), %ecx
        imull   4(%esp), %eax
        addl    %eax, %ecx
        movl    4(%esp), %eax
        mull    12(%esp)
        addl    %ecx, %edx
        ret
END _orvane_lmul

        .section .note.GNU-stack,"",@progbits
