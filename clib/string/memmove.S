/* memmove and memcpy. memcpy is the upward half of memmove.

   Lengths below 8, taken as signed, go byte by byte; 8 to 16 bytes as two
   words from each end, all read before any is written, which suits both
   directions. Longer blocks go upward with the processor's repeated byte
   move: on current processors it moves whole cache lines, and beats any
   loop of general registers. It has no fast downward form, so a block that
   must go downward over its own source goes as words from the end up to
   word_loop_limit bytes, and beyond that in pieces (__move_down_overlapping).
   A downward block that does not overlap its source goes upward: the result
   is the same.

   Register use on the way in: eax the destination, edx the source, ecx the
   length. The result is reloaded from the argument at the end. */

#include "clib/string/sse.inc"

#define word_loop_limit 768

        .text
        PC_THUNK ecx

/* The direction follows the order of the addresses alone, compared as
   signed numbers; upward, memmove goes on as memcpy. */
        .globl  memmove
        .type   memmove, @function
memmove:
        movl    4(%esp), %eax
        cmpl    8(%esp), %eax
        jg      .Ldown

        .globl  memcpy
        .type   memcpy, @function
memcpy:
        movl    4(%esp), %eax
        movl    8(%esp), %edx
        movl    12(%esp), %ecx
        testl   %ecx, %ecx
        jz      .Lreturn
        cmpl    %edx, %eax
        je      .Lreturn

.Lup:
        cmpl    $8, %ecx
        jl      .Lbytes_up
        cmpl    $16, %ecx
        jbe     .Lsmall
.Lup_long:
        pushl   %edi
        pushl   %esi
        /* The string move takes a destination 1 to 31 bytes above its
           source, counted within a page, for an overlap and falls back to
           a byte at a time; such blocks go through a buffer. */
        movl    %eax, %edi
        subl    %edx, %edi
        andl    $4095, %edi
        decl    %edi
        cmpl    $31, %edi
        jb      .Lbounce_up
        movl    %eax, %edi
        movl    %edx, %esi
        rep movsb
        popl    %esi
        popl    %edi
.Lreturn:
        movl    4(%esp), %eax
        ret

.Lbounce_up:
        popl    %esi
        popl    %edi
        pushl   %ecx
        pushl   %edx
        pushl   %eax
        call    __move_up_bounced
        addl    $12, %esp
        movl    4(%esp), %eax
        ret

/* Also for a length of 0x80000000 and more, which no memory holds. */
.Lbytes_up:
        pushl   %ebx
        addl    %ecx, %eax
        addl    %ecx, %edx
        negl    %ecx
1:      movzbl  (%edx,%ecx), %ebx
        movb    %bl, (%eax,%ecx)
        incl    %ecx
        jnz     1b
        popl    %ebx
        movl    4(%esp), %eax
        ret

/* 8 to 16 bytes: two words from each end, all read before any is
   written. */
.Lsmall:
        pushl   %ebx
        pushl   %esi
        pushl   %edi
        movl    -8(%edx,%ecx), %ebx
        movl    -4(%edx,%ecx), %esi
        movl    4(%edx), %edi
        movl    (%edx), %edx
        movl    %edx, (%eax)
        movl    %edi, 4(%eax)
        movl    %ebx, -8(%eax,%ecx)
        movl    %esi, -4(%eax,%ecx)
        popl    %edi
        popl    %esi
        popl    %ebx
        ret

.Ldown:
        movl    8(%esp), %edx
        movl    12(%esp), %ecx
        testl   %ecx, %ecx
        jz      .Lreturn
        cmpl    $8, %ecx
        jl      .Lbytes_down
        cmpl    $16, %ecx
        jbe     .Lsmall
        subl    %edx, %eax
        cmpl    %ecx, %eax
        leal    (%eax,%edx), %eax
        jae     .Lup_long
        cmpl    $64, %ecx
        jbe     .Ldown_words
        COMPARE_SSE_STATE ecx
        jg      .Ldown_wide
        cmpl    $word_loop_limit, %ecx
        jae     .Ldown_far
.Ldown_words:

/* Four words at a time from the end; every load of a step comes before its
   stores, which land above all the source still to be read. The first
   bytes, fewer than 16, go as a short block of their own. */
        pushl   %ebx
        pushl   %esi
        pushl   %edi
        pushl   %ebp
        leal    (%edx,%ecx), %esi
        leal    (%eax,%ecx), %edi
1:      subl    $16, %esi
        subl    $16, %edi
        subl    $16, %ecx
        movl    12(%esi), %eax
        movl    8(%esi), %ebx
        movl    4(%esi), %edx
        movl    (%esi), %ebp
        movl    %eax, 12(%edi)
        movl    %ebx, 8(%edi)
        movl    %edx, 4(%edi)
        movl    %ebp, (%edi)
        cmpl    $16, %ecx
        jae     1b
        popl    %ebp
        popl    %edi
        popl    %esi
        popl    %ebx
        movl    4(%esp), %eax
        movl    8(%esp), %edx
        cmpl    $8, %ecx
        jae     .Lsmall
        testl   %ecx, %ecx
        jz      .Lreturn

.Lbytes_down:
        pushl   %ebx
1:      movzbl  -1(%edx,%ecx), %ebx
        movb    %bl, -1(%eax,%ecx)
        decl    %ecx
        jnz     1b
        popl    %ebx
        movl    4(%esp), %eax
        ret

/* Downward over its own source with SSE: aligned 16-byte stores from the
   end, each step's load before its store, which lands above every source
   byte still to be read. The first and the last 16 bytes are read before
   anything is written and stored last, around the aligned stores. */
        .globl  __move_down_wide
        .hidden __move_down_wide
__move_down_wide:
.Ldown_wide:
        movdqu  (%edx), %xmm1
        movdqu  -16(%edx,%ecx), %xmm2
        pushl   %ebx
        pushl   %esi
        addl    %eax, %ecx
        subl    %eax, %edx
        movl    %ecx, %ebx
        andl    $-16, %ebx
        leal    80(%eax), %esi
        cmpl    %esi, %ebx
        jbe     2f
1:      subl    $64, %ebx
        movdqu  48(%ebx,%edx), %xmm0
        movdqu  32(%ebx,%edx), %xmm3
        movdqu  16(%ebx,%edx), %xmm4
        movdqu  (%ebx,%edx), %xmm5
        movdqa  %xmm0, 48(%ebx)
        movdqa  %xmm3, 32(%ebx)
        movdqa  %xmm4, 16(%ebx)
        movdqa  %xmm5, (%ebx)
        cmpl    %esi, %ebx
        ja      1b
2:      subl    $64, %esi
3:      subl    $16, %ebx
        movdqu  (%ebx,%edx), %xmm0
        movdqa  %xmm0, (%ebx)
        cmpl    %esi, %ebx
        ja      3b
        movdqu  %xmm2, -16(%ecx)
        movdqu  %xmm1, (%eax)
        popl    %esi
        popl    %ebx
        ret

.Ldown_far:
        pushl   %ecx
        pushl   %edx
        pushl   %eax
        call    __move_down_overlapping
        addl    $12, %esp
        movl    4(%esp), %eax
        ret
        .size   memmove, .-memmove
        .size   memcpy, .-memcpy

        .section .note.GNU-stack,"",@progbits
