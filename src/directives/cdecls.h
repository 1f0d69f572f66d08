#pragma once
// The C header conversion directive.
struct instruct;

void DP_cdecls(instruct *ir);
void GD_cdecls(instruct *ir);
