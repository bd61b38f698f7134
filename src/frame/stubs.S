// The exported functions: one jump each, in the order of exports.def, through the variant table. They touch no
// argument, so a body sees the call as the caller made it. The assembler counts the table's rows.
#define TAV_SHARED(name) stub tavs##name ;
#define TAV_SPLIT(name)  stub tavs##name ;

        .hidden tav_variant_index
        .hidden tav_variant_table
        .set    export_index, 0

#if defined(__x86_64__)
        .macro  stub name
        .globl  \name
        .type   \name, @function
        .balign 32
\name:
        endbr64
        movl    tav_variant_index(%rip), %eax
        leaq    tav_variant_table + 16*export_index(%rip), %r11
        jmp     *(%r11,%rax,8)
        .balign 32, 0xCC
        .size   \name, . - \name
        .set    export_index, export_index + 1
        .endm
        .text
#else
        .macro  stub name
        .globl  \name
        .type   \name, @function
        .balign 32
\name:
        endbr32
        call    tav_pc_in_eax
        addl    $_GLOBAL_OFFSET_TABLE_, %eax
        movl    tav_variant_index@GOTOFF(%eax), %ecx
        jmp     *tav_variant_table@GOTOFF + 8*export_index(%eax,%ecx,4)
        .balign 32, 0xCC
        .size   \name, . - \name
        .set    export_index, export_index + 1
        .endm

        .text
        .type   tav_pc_in_eax, @function
tav_pc_in_eax:
        movl    (%esp), %eax
        ret
        .size   tav_pc_in_eax, . - tav_pc_in_eax
#endif

#include "frame/exports.def"

        .section .note.GNU-stack,"",@progbits

// This object works under indirect-branch tracking and shadow stacks.
#if defined(__x86_64__)
#define NOTE_ALIGN 8
#else
#define NOTE_ALIGN 4
#endif
        .section .note.gnu.property,"a",@note
        .balign NOTE_ALIGN
        .long   4                       // size of the owner's name
        .long   2f - 1f                 // size of the description
        .long   5                       // NT_GNU_PROPERTY_TYPE_0
        .asciz  "GNU"
1:      .long   0xC0000002              // GNU_PROPERTY_X86_FEATURE_1_AND
        .long   4
        .long   3                       // IBT and SHSTK
        .balign NOTE_ALIGN
2:
