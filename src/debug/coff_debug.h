#pragma once
// COFF debug directives.
#include <cstdint>
struct instruct;

extern uint16_t DBD_file_seen;   // a .file directive was seen
extern uint16_t last_func_id, curr_func_id, curr_lex_level;

void DP_file(instruct *ir);      // .file
void DP_block(instruct *ir);     // .func, .block, .endblock
void DP_endfunc(instruct *ir);   // .endfunc
void DP_line(instruct *ir);      // .line
void DP_sym(instruct *ir);       // .sym, .member
void DP_dbgtag(instruct *ir);    // .stag, .etag, .utag
void DBD_file(instruct *ir);
void DBD1_func(instruct *ir);
void DBD2_func(instruct *ir);
void DBD_line(instruct *ir);
void DBD_sym(instruct *ir);      // pass 2 only
void DBD_tag(instruct *ir);
void DBD_eos(instruct *ir);
