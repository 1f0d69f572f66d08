// Interim listing-control directives: until the listing file is written they
// change nothing that a run produces. The substitution symbols and listing
// step makes them real.
#include "listing/lst_directives.h"

#include "driver/pending.h"

uint16_t LST_pagelen = 60;
uint16_t LST_pagewidth = 104;
uint16_t LST_tabwidth = 8;
uint16_t LST_linesprinted = 32768;
uint16_t LST_pagenum = 0;
char LST_title[65];

void DP_title(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_option(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_lstparm(instruct *ir) { DIR_pass_over_operands(ir); }
void GD_title(instruct *) {}
void GD_option(instruct *) {}
void GD_lstparms(instruct *) {}
void GD_lstflags(instruct *) {}
