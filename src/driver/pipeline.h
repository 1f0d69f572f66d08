#pragma once
// The statement pipeline: build, process and drop one statement; the directive
// table and the generic operand reader that every directive parse handler uses.
#include <cstdint>
#include <vector>
#include "driver/records.h"

// --- Statements ---------------------------------------------------------

// The next statement, or null at the end of the file, on a line without a
// statement, or when the statement failed to parse.
instruct *IR_build();
// An instruction statement: aligns, defines pending labels, calls TRG_parse.
instruct *IR_parse();
// Runs the statement's handlers for the current pass; null does nothing.
void IR_process(instruct *ir);
// Releases curtk, lets the listing print the queued lines, frees the statement.
void IR_drop(instruct *ir);
// Frees the statement with all its operand lists.
void IR_free(instruct *ir);
// Moves curtk to the first token of the next non-blank line; 0 at end of file.
int IR_getline();
// Makes a zero-filled statement of the given kind for the given line.
instruct *IR_alloc(uint16_t kind, const void *record, linebuf *line);

// --- Operand lists ------------------------------------------------------

// Appends `op` to the tail of the slot's list; a null operand is ignored.
// A null statement or a slot above 9 is an internal error.
void IR_add_oprnd(instruct *ir, short slot, operand *op);
// The same for a list that the caller builds from its start: *tail is its
// last operand (null before the first) and becomes op, so that long lists
// don't walk to their end for each element. A null op adds nothing.
void IR_append_oprnd(instruct *ir, short slot, operand **tail, operand *op);
// Unlinks *op and frees it; *op moves to the next operand, else the previous.
void IR_rm_oprnd(operand **op);
// Frees `op` and the operands behind it, with the strings their values own.
void IR_free_oprnd(operand *op);

// A zero-filled operand of the given kind.
operand *new_operand(uint16_t kind);
operand *create_icon_operand(int value);
// `kind` is OP_SCON, OP_SSNAME or OP_SYMBOL; the text is copied.
operand *create_str_operand(const char *text, unsigned short kind);
// Null with "Operand %s not defined" when `name` is no known register.
operand *create_reg_operand(const char *name, unsigned short kind);
// A single operand (not its list) with its own copies of the owned strings.
operand *duplicate_operand(operand *op);

// --- Directives ---------------------------------------------------------

// The directive statement of curtk (kind IR_DIRECTIVE): runs the row's parse
// handler. Pending labels are left to the directive's handlers.
instruct *DIR_parse();
// Reads one directive operand as the state's flags (DPS_*) and width ask.
// On entry curtk is the directive name or the comma before the operand; after
// a successful read it is the comma or the line end behind the operand.
operand *DIR_get_oprnd(const dir_parse_state_t &state);
// Pass 1 of a directive whose element sizes don't depend on values: as
// DIR_get_oprnd, but a plain integer expression is only read for the symbols
// it names (EXPR_skim) and stands as an integer operand of value 0.
operand *DIR_get_counted_oprnd(const dir_parse_state_t &state);
// Consumes a comma; otherwise warns "Comma expected after operand".
void DIR_skip_comma(instruct *ir);
// Skips tokens up to the next comma or the line end (curtk is left on it).
void DIR_skip_to_comma();
// Skips tokens up to the line end (curtk is left on TK_EOL).
void DIR_skip_to_eol();

// Generic parse handlers.
void DP_no_oprnds(instruct *ir);
void DP_filename(instruct *ir);
template <unsigned N> void DP_icons(instruct *ir);
extern template void DP_icons<8>(instruct *);
extern template void DP_icons<16>(instruct *);
extern template void DP_icons<32>(instruct *);
void DP_comma();
void DP_compiler_opts(instruct *ir);
void DP_template(instruct *ir);

// Generic pass handlers.
void donothing(instruct *ir);
void GD_template(instruct *ir);
void GD_end(instruct *ir);

// The directive tables, each ending in a row with a null name.
extern const dir_oprec gen_direct[];
extern const dir_oprec trg_direct[];
constexpr int GEN_DIRECT_ROWS = 154;
constexpr int TRG_DIRECT_ROWS = 6;

// --- Values frozen between the passes ------------------------------------

// One stream of 32-bit values in statement order: lengths of label-dependent
// instructions and values of layout-relevant directive operands. Pass 1
// appends, pass 2 reads back from isize_idx 0.
extern std::vector<uint32_t> isize_list;
extern uint32_t isize_idx;   // next value to read in pass 2
// Pass 1 records the value's integer; pass 2 compares it with the recorded one
// and, if it changed, reports it and puts the pass-1 value back.
void VLI_check(value_record *value);
// A label-dependent length: pass 1 pushes it, pass 2 pops it back in the same
// statement order.
void VLI_push(uint32_t length);
uint32_t VLI_pop();
