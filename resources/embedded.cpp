// Puts the compiled resources into the program, for systems whose programs have no resources of their own. The layer
// reads them between platformResourcesBegin and platformResourcesEnd. They must be aligned to 4 bytes. The path of the
// file comes from the build. This is assembly because a table of 720,000 numbers would take the compiler much longer.
asm(".pushsection .rodata.platformResources, \"a\", @progbits\n"
    ".balign 4\n"
    ".globl platformResourcesBegin\n"
    ".type platformResourcesBegin, @object\n"
    "platformResourcesBegin:\n"
    ".incbin \"" TIDEWRIGHT_COMPILED_RESOURCES
    "\"\n"
    ".globl platformResourcesEnd\n"
    ".type platformResourcesEnd, @object\n"
    "platformResourcesEnd:\n"
    ".size platformResourcesBegin, platformResourcesEnd - platformResourcesBegin\n"
    ".popsection\n");
