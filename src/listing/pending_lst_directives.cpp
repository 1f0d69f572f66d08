// Interim listing-control directives: until the listing file is written they
// change nothing that a run produces. The substitution symbols and listing
// step makes them real.
#include "listing/lst_directives.h"

#include "driver/pending.h"

[[gnu::weak]] uint16_t LST_pagelen = 60;
[[gnu::weak]] uint16_t LST_pagewidth = 104;
[[gnu::weak]] uint16_t LST_tabwidth = 8;
[[gnu::weak]] uint16_t LST_linesprinted = 32768;
[[gnu::weak]] uint16_t LST_pagenum = 0;
[[gnu::weak]] char LST_title[65];

[[gnu::weak]] void DP_title(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_option(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_lstparm(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void GD_title(instruct *) {}
[[gnu::weak]] void GD_option(instruct *) {}
[[gnu::weak]] void GD_lstparms(instruct *) {}
[[gnu::weak]] void GD_lstflags(instruct *) {}
