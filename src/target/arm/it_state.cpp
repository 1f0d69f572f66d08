// State of the open IT block, shared by the parser and the encoders.
#include "target/arm/instr.h"

char cur_it_string[IT_STRING_SIZE] = {};
uint8_t cur_it_cc = COND_AL;
