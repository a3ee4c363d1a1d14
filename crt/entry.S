/* The program's entry: the kernel leaves argc, argv and the environment on
   the stack. Align the stack and go on in C++. */
        .text
        .globl  mainCRTStartup
        .type   mainCRTStartup, @function
mainCRTStartup:
        xorl    %ebp, %ebp
        movl    (%esp), %eax
        leal    4(%esp), %ecx
        andl    $-16, %esp
        subl    $8, %esp
        pushl   %ecx
        pushl   %eax
        call    orv_crt_main
        hlt
        .size   mainCRTStartup, .-mainCRTStartup
        .section .note.GNU-stack,"",@progbits
