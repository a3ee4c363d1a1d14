/* long orv_syscall6(nr, a, b, c, d, e, f): a system call with six
   arguments, for which ebp must carry the sixth. */
        .text
        .globl  orv_syscall6
        .hidden orv_syscall6
        .type   orv_syscall6, @function
orv_syscall6:
        pushl   %ebp
        pushl   %edi
        pushl   %esi
        pushl   %ebx
        movl    20(%esp), %eax
        movl    24(%esp), %ebx
        movl    28(%esp), %ecx
        movl    32(%esp), %edx
        movl    36(%esp), %esi
        movl    40(%esp), %edi
        movl    44(%esp), %ebp
        int     $0x80
        popl    %ebx
        popl    %esi
        popl    %edi
        popl    %ebp
        ret
        .size   orv_syscall6, .-orv_syscall6
        .section .note.GNU-stack,"",@progbits
