/* The control word of the fast helpers' x87 paths: all exceptions masked,
   64-bit significand, rounding toward zero. Truncation is what makes the
   conversions chop and the divisions exact. */
        .section .rodata
        .globl  __orvane_x87_cw
        .hidden __orvane_x87_cw
        .type   __orvane_x87_cw, @object
        .size   __orvane_x87_cw, 2
        .p2align 1
__orvane_x87_cw:
        .short  0x0F3F

        .section .note.GNU-stack,"",@progbits
