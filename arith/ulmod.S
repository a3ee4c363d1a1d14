/* Unsigned remainder: operands below 2^63 are the signed helper's
   business (a zero divisor included); the rest is integer work. */
#include "arith/x87.inc"

        .text
FUNCTION _orvane_ulmod
        movl    8(%esp), %eax
        orl     16(%esp), %eax
        js      1f
        jmp     _orvane_lmod
1:      jmp     _orvane_slow_ulmod
END _orvane_ulmod

        .section .note.GNU-stack,"",@progbits
