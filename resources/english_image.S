/* The English resource module as bytes of the program; src/shell/english_image.h hands them out. */
    .section .rodata
    .balign 16
    .global rlx_english_image_begin
    .hidden rlx_english_image_begin
rlx_english_image_begin:
    .incbin "English.dll"
    .global rlx_english_image_end
    .hidden rlx_english_image_end
rlx_english_image_end:
    .byte 0
    .section .note.GNU-stack, "", @progbits
