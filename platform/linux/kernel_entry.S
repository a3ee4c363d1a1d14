/* The way into the kernel. The loader hands every process the address of
   the kernel's own fast entry (AT_SYSINFO), which is many times faster than
   int $0x80 on current machines; until it is known, orv_kernel_entry
   points at a stub that takes the old road. Both keep every register but
   eax. */
        .text
        .globl  orv_int80
        .hidden orv_int80
        .type   orv_int80, @function
orv_int80:
        int     $0x80
        ret
        .size   orv_int80, .-orv_int80

        .data
        .balign 4
        .globl  orv_kernel_entry
        .hidden orv_kernel_entry
        .type   orv_kernel_entry, @object
orv_kernel_entry:
        .long   orv_int80
        .size   orv_kernel_entry, 4
        .section .note.GNU-stack,"",@progbits
