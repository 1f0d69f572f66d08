#pragma once
// The hand-written relocation directive; it does its work while it is parsed.
struct instruct;

void DP_reloc(instruct *ir);
