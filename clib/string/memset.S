/* memset. Lengths below 8, taken as signed, go byte by byte; 8 to 16 bytes
   as four words that may overlap; longer ones with the processor's repeated
   byte store. That starts up quickly below 128 bytes but slowly from there,
   so blocks from 128 bytes up to quick_fill_limit go as quick stores of up
   to 127 bytes, after four words at the end, which often spare one more. */

#define quick_fill_bytes 127
#define quick_fill_limit 640

        .text

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
