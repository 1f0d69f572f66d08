#pragma once
// Object assembly after pass 2: sections, symbols, relocations and debug data
// handed to ofile, which is then written.
void BLD_object();
