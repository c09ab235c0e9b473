// The compiled resources as bytes within the program, for platforms that keep no resources in programs themselves. The
// layer looks for them between platformResourcesBegin and platformResourcesEnd. Assembly, because a table of 720,000
// numbers would take the compiler far longer; the file's path comes from the build. Compiled resources count on an
// alignment of 4 bytes.
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
