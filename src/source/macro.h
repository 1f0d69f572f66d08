#pragma once
// The macro engine, as the driver and the statement loop reach it.
#include <cstdint>
struct instruct;
struct ophashtbl;
class FHM_FILE;

constexpr int MAC_MAX_LEVELS = 32;

// One expansion in progress: where the input goes back to after it.
struct mac_frame {
  FHM_FILE *file;         // the ASSY_SRC to go back to
  int32_t position;       // its file position behind the call
  int16_t loclbl_count;   // mac_loclbl_cnt of the calling level
};

extern int16_t MAC_lvl;     // current expansion, -1 outside macros
extern mac_frame MAC_stack[MAC_MAX_LEVELS];

void DP_macro(instruct *ir);
void MAC_define(instruct *ir);   // .macro, both passes
void MAC_endm(instruct *ir);     // .endm
void MAC_exit(instruct *ir);     // .mexit
// A call: redirects the input to the macro's text.
void MAC_invoke(ophashtbl *entry);
// The temporary macro file: opened at each pass, emptied for pass 2, removed at the end.
void MAC_open();
void MAC_close();
void MAC_clear();
