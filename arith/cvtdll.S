/* Floating point to signed 64 bits, truncated, saturating at both ends.
   The upper limit is tested with "not greater than", which a NaN of either
   sign also satisfies. The unordered compare leaves a quiet NaN without
   raising the invalid flag. */
#include "arith/x87.inc"

        .section .rodata
        .p2align 3
.Lmax:  .quad   0x7FFFFFFFFFFFFFFF
.Lmin:  .quad   0x8000000000000000

        .text
FUNCTION _orvane_cvtdll
        subl    $12, %esp
        X87_TRUNCATE 8(%esp)
        fldl    16(%esp)
        jmp     .Lconvert
END _orvane_cvtdll

FUNCTION _orvane_cvtfll
        subl    $12, %esp
        X87_TRUNCATE 8(%esp)
        flds    16(%esp)
        /* ECX holds the GOT address from here on. */
.Lconvert:
        fildll  .Lmax@GOTOFF(%ecx)
        fucomip %st(1), %st
        jbe     .Lhigh
        fildll  .Lmin@GOTOFF(%ecx)
        fucomip %st(1), %st
        jae     .Llow
        fistpll (%esp)
        movl    (%esp), %eax
        movl    4(%esp), %edx
        jmp     .Lout
.Lhigh: fstp    %st(0)
        movl    $-1, %eax
        movl    $0x7FFFFFFF, %edx
        jmp     .Lout
.Llow:  fstp    %st(0)
        xorl    %eax, %eax
        movl    $0x80000000, %edx
.Lout:  fldcw   8(%esp)
        addl    $12, %esp
        ret
END _orvane_cvtfll

        .section .note.GNU-stack,"",@progbits
