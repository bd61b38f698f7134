// uint32_t tav_test_call(function, words, count, shift): calls function with `count` stacked words, the stack `shift`
// bytes (0, 4, 8 or 12) off the 16-byte boundary that the compiler would keep.
#if defined(__i386__)
        .text
        .globl  tav_test_call
        .type   tav_test_call, @function
tav_test_call:
        pushl   %ebp
        movl    %esp, %ebp
        pushl   %ebx
        pushl   %esi
        pushl   %edi
        movl    16(%ebp), %ecx
        leal    15(,%ecx,4), %eax
        andl    $-16, %eax
        andl    $-16, %esp
        subl    %eax, %esp
        subl    $16, %esp
        addl    20(%ebp), %esp
        movl    12(%ebp), %esi
        movl    %esp, %edi
        cld
        rep movsl
        call    *8(%ebp)
        leal    -12(%ebp), %esp
        popl    %edi
        popl    %esi
        popl    %ebx
        popl    %ebp
        ret
        .size   tav_test_call, . - tav_test_call
#endif
        .section .note.GNU-stack,"",@progbits
