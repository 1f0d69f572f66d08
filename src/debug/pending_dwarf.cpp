// Interim DWARF directives and editor; the DWARF steps make them real.
#include "debug/dwarf_directives.h"

#include "driver/pending.h"
#include "expr/symbols.h"

char orig_src_name[4096];
extern const sym_init dwarf_predefs[] = {{nullptr, 0, 0}};

// Asked-for debug information that cannot be made is refused by dw_write,
// once, when the object would be written.
void dw_init() {}
void dw_cleanup() {}

void DP_dwtag(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwattr(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwmtype(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwendtag(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwpsn(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwmacinfo(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwloclist(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwloc(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwendloclist(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwrnglist(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwrng(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwendrnglist(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwcie(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwfde(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwcfi(instruct *ir) { DIR_parse_not_supported(ir); }
void DP_dwendentry(instruct *ir) { DIR_parse_not_supported(ir); }
