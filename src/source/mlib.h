#pragma once
// Macro libraries.
struct instruct;

void MLIB_include(instruct *ir);   // .mlib, both passes; DP_filename reads the name
