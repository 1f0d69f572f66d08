#pragma once
// DWARF debug directives written by a compiler, and the DWARF editor's life.
struct instruct;

// A name for the source that a directive gave (DW_AT_name of the unit); empty if none.
extern char orig_src_name[4096];

// Makes the DWARF editor on ofile under --symdebug:dwarf or --symdebug:skeletal.
void dw_init();
void dw_cleanup();

// Parse handlers that do all the work; both pass handlers are donothing.
void DP_dwtag(instruct *ir);
void DP_dwattr(instruct *ir);
void DP_dwmtype(instruct *ir);
void DP_dwendtag(instruct *ir);
void DP_dwpsn(instruct *ir);
void DP_dwmacinfo(instruct *ir);
void DP_dwloclist(instruct *ir);
void DP_dwloc(instruct *ir);
void DP_dwendloclist(instruct *ir);
void DP_dwrnglist(instruct *ir);
void DP_dwrng(instruct *ir);
void DP_dwendrnglist(instruct *ir);
void DP_dwcie(instruct *ir);
void DP_dwfde(instruct *ir);
void DP_dwcfi(instruct *ir);
void DP_dwendentry(instruct *ir);

struct sym_init;
// The DW_* names as predefined integer symbols, entered at start-up.
extern const sym_init dwarf_predefs[];
