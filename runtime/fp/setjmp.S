/* Non-local jumps. A jmp_buf is six words: EBX, EDI, ESI, EBP, the stack
   pointer as it stands on entry to setjmp (pointing at the return
   address), and that return address. Nothing else is saved. */
        .text

        .globl  setjmp
        .type   setjmp, @function
setjmp:
        movl    4(%esp), %eax
        movl    %ebx, 0(%eax)
        movl    %edi, 4(%eax)
        movl    %esi, 8(%eax)
        movl    %ebp, 12(%eax)
        movl    %esp, 16(%eax)
        movl    (%esp), %ecx
        movl    %ecx, 20(%eax)
        xorl    %eax, %eax
        ret
        .size   setjmp, .-setjmp

/* longjmp(env, value): cut the stack back to that of setjmp, put the
   return address in the top slot and return with value, or 1 for 0. */
        .globl  longjmp
        .type   longjmp, @function
longjmp:
        movl    4(%esp), %edx
        movl    8(%esp), %eax
        testl   %eax, %eax
        jnz     1f
        incl    %eax
1:      movl    0(%edx), %ebx
        movl    4(%edx), %edi
        movl    8(%edx), %esi
        movl    12(%edx), %ebp
        movl    16(%edx), %esp
        movl    20(%edx), %ecx
        movl    %ecx, (%esp)
        ret
        .size   longjmp, .-longjmp

        .section .note.GNU-stack,"",@progbits
