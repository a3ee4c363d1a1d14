/* The constants of the fast helpers' x87 paths. */
        .section .rodata
/* The control word: all exceptions masked, 64-bit significand, rounding
   toward zero. Truncation is what makes the conversions chop and the
   divisions exact. */
        .globl  __orvane_x87_cw
        .hidden __orvane_x87_cw
        .type   __orvane_x87_cw, @object
        .size   __orvane_x87_cw, 2
        .p2align 1
__orvane_x87_cw:
        .short  0x0F3F

/* 0, 2^32 and 2^64 as floats: the weight of a high word, and what a word
   or a 64-bit integer loaded as signed lacks when its top bit is set. */
        .globl  __orvane_x87_powers
        .hidden __orvane_x87_powers
        .type   __orvane_x87_powers, @object
        .size   __orvane_x87_powers, 12
        .p2align 2
__orvane_x87_powers:
        .long   0, 0x4F800000, 0x5F800000

        .section .note.GNU-stack,"",@progbits
