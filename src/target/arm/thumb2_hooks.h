#pragma once
// What the encoder entry calls of the Thumb and Thumb-2 width machinery.
#include "target/arm/instr.h"

// Pass 1: what jump expansion and the width choice record for the statement.
void TRG_encode_pass1(instruct *ir);
// A 32-bit Thumb-2 statement that has a 16-bit encoding, made ready for it.
bool conv_32t2_to_16t(instruct *ir);
// Counts the width choice for the Thumb-2 statistics of the listing.
void update_thumb2_lst(instruct *ir);
