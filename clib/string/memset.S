/* memset. Lengths below 8, taken as signed, go byte by byte; 8 to 16 bytes
   as four words that may overlap, 17 to 32 as eight. Longer ones below
   wide_fill_limit go as 16-byte stores where the processor has SSE; without
   it, up to 64 bytes as sixteen words. From wide_fill_limit on, and without
   SSE, they go with the processor's repeated byte store, the fastest fill
   of large blocks. That starts up quickly below 128 bytes but slowly from
   there, so without SSE blocks from 128 bytes up to quick_fill_limit go as
   quick stores of up to 127 bytes, after four words at the end, which
   often spare one more. */

#include "clib/string/sse.inc"

#define quick_fill_bytes 127
#define quick_fill_limit 640
#define wide_fill_limit 2048

        .text
        PC_THUNK ecx

        .globl  memset
        .type   memset, @function
memset:
        movl    4(%esp), %edx
        movzbl  8(%esp), %eax
        movl    12(%esp), %ecx
        cmpl    $8, %ecx
        jl      .Lbytes
        cmpl    $16, %ecx
        jbe     .Lsmall
        cmpl    $32, %ecx
        jbe     .Lwords
        cmpl    $wide_fill_limit, %ecx
        jae     .Lnarrow
        COMPARE_SSE_STATE ecx
        jg      .Lwide
        cmpl    $64, %ecx
        jbe     .Lwords
.Lnarrow:
        pushl   %edi
        movl    %edx, %edi
        cmpl    $quick_fill_bytes, %ecx
        jbe     .Lstore
        cmpl    $quick_fill_limit, %ecx
        jae     .Lstore
        leal    -16(%edx,%ecx), %edx
        imull   $0x01010101, %eax, %eax
        movl    %eax, (%edx)
        movl    %eax, 4(%edx)
        movl    %eax, 8(%edx)
        movl    %eax, 12(%edx)
        subl    %edi, %edx
1:      movl    $quick_fill_bytes, %ecx
        cmpl    %ecx, %edx
        cmovbe  %edx, %ecx
        subl    %ecx, %edx
        rep stosb
        testl   %edx, %edx
        jnz     1b
        popl    %edi
        movl    4(%esp), %eax
        ret
.Lstore:
        rep stosb
        popl    %edi
        movl    4(%esp), %eax
        ret

/* 17 bytes to wide_fill_limit: the first and the last 16 bytes as they
   lie, four aligned stores at a time between them, then the aligned
   stores that are left. */
        .globl  __fill_wide
        .hidden __fill_wide
__fill_wide:
.Lwide:
        SPREAD_BYTE
        movdqu  %xmm0, (%edx)
        movdqu  %xmm0, -16(%edx,%ecx)
        leal    -16(%edx,%ecx), %ecx
        leal    16(%edx), %eax
        andl    $-16, %eax
        subl    %eax, %ecx
        jbe     3f
        cmpl    $64, %ecx
        jb      2f
1:      movdqa  %xmm0, (%eax)
        movdqa  %xmm0, 16(%eax)
        movdqa  %xmm0, 32(%eax)
        movdqa  %xmm0, 48(%eax)
        addl    $64, %eax
        subl    $64, %ecx
        cmpl    $64, %ecx
        jae     1b
        testl   %ecx, %ecx
        jz      3f
2:      movdqa  %xmm0, (%eax)
        addl    $16, %eax
        subl    $16, %ecx
        ja      2b
3:      movl    %edx, %eax
        ret

/* 17 to 64 bytes: the first and the last 16 as words, and for more than
   32 the first and the last 32. */
.Lwords:
        imull   $0x01010101, %eax, %eax
        movl    %eax, (%edx)
        movl    %eax, 4(%edx)
        movl    %eax, 8(%edx)
        movl    %eax, 12(%edx)
        movl    %eax, -16(%edx,%ecx)
        movl    %eax, -12(%edx,%ecx)
        movl    %eax, -8(%edx,%ecx)
        movl    %eax, -4(%edx,%ecx)
        cmpl    $32, %ecx
        jbe     1f
        movl    %eax, 16(%edx)
        movl    %eax, 20(%edx)
        movl    %eax, 24(%edx)
        movl    %eax, 28(%edx)
        movl    %eax, -32(%edx,%ecx)
        movl    %eax, -28(%edx,%ecx)
        movl    %eax, -24(%edx,%ecx)
        movl    %eax, -20(%edx,%ecx)
1:      movl    %edx, %eax
        ret

.Lsmall:
        imull   $0x01010101, %eax, %eax
        movl    %eax, (%edx)
        movl    %eax, 4(%edx)
        movl    %eax, -8(%edx,%ecx)
        movl    %eax, -4(%edx,%ecx)
        movl    %edx, %eax
        ret

/* Also for a length of 0x80000000 and more, which no memory holds. */
.Lbytes:
        testl   %ecx, %ecx
        jz      2f
        addl    %ecx, %edx
        negl    %ecx
1:      movb    %al, (%edx,%ecx)
        incl    %ecx
        jnz     1b
2:      movl    4(%esp), %eax
        ret
        .size   memset, .-memset

        .section .note.GNU-stack,"",@progbits
