#pragma once
// Object assembly: after pass 2 the assembler's sections, symbols and
// relocations become the final content of ofile, which is then written.

// The whole sequence; on failure it leaves the process with status 1.
void BLD_object();
// ELF, between the passes: members of COMDAT groups learn their group's name.
void COMGRP_process();
