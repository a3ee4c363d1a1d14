/* Signed and unsigned 64 bits to floating point. One integer load: the
   value stays exact in ST(0) and is rounded, under the caller's rounding
   mode, only when the caller stores it. The float and double forms are the
   same instruction. An unsigned value with its top bit set would load as
   negative, so it goes to the integer conversion. */
#include "arith/x87.inc"

        .text
        .globl  _orvane_cvtllf
        .type   _orvane_cvtllf, @function
FUNCTION _orvane_cvtlld
_orvane_cvtllf:
        fildll  4(%esp)
        ret
END _orvane_cvtlld
        .size   _orvane_cvtllf, .-_orvane_cvtllf

FUNCTION _orvane_cvtulld
        testb   $0x80, 11(%esp)
        jnz     1f
        fildll  4(%esp)
        ret
1:      jmp     _orvane_slow_cvtulld
END _orvane_cvtulld

FUNCTION _orvane_cvtullf
        testb   $0x80, 11(%esp)
        jnz     1f
        fildll  4(%esp)
        ret
1:      jmp     _orvane_slow_cvtullf
END _orvane_cvtullf

        .section .note.GNU-stack,"",@progbits
