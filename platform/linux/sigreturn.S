/* The restorer of the stand-in's signal handlers: back to the kernel. */
        .text
        .globl  orv_sigreturn
        .hidden orv_sigreturn
        .type   orv_sigreturn, @function
orv_sigreturn:
        movl    $173, %eax      /* rt_sigreturn */
        int     $0x80
        .size   orv_sigreturn, .-orv_sigreturn
        .section .note.GNU-stack,"",@progbits
