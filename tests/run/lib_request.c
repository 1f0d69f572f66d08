/* The assembler's objects ask for the run-time libraries by two undefined
   symbols; the C library of the cross tool chain has no use for them, so
   they are satisfied here. */
void Lib$$Request$$armlib(void) {}
void Lib$$Request$$cpplib(void) {}
