#pragma once
// The target hooks: the only way the core of the assembler reaches the ARM
// target. Each hook states who calls it and what it must do.
#include <cstdint>

#include "expr/symbols.h"

struct instruct;
struct operand;
struct linebuf;
struct node;
struct value_record;
struct simul_fval;
struct trg_fval;
namespace OFE { class OF_RELOC_TYPE; }

// State of the code being assembled: 0 ARM, 1 Thumb, 2 Thumb-2.
extern uint32_t cur_state;
extern uint32_t def_state;   // state at the start of each pass

// Static rows the driver enters at start-up (and again before pass 2).
extern const sym_init trg_keywords[];
extern const sym_init trg_ucpredefs[];   // P0..P15
extern const sym_init trg_lcpredefs[];   // p0..p15

// Bytes of the current instruction, set by TRG_encode (through
// TRG_get_instlen); IR_process clears it and advances the section by it in pass 1.
extern uint32_t instlen;

// ---- Options and start-up (driver) ------------------------------------------

// Silicon-version option and prepare_pass1: nothing to do on this target.
void TRG_version_check();
// Silicon-version option: selects the architecture from its text and corrects
// cur_state/def_state/ual_mode to it; returns the architecture value.
int TRG_get_version(const char *text);
// get_files, after the command line: defaults the float support to FLOAT_NONE,
// takes the maximum branch chain length (warning and 0 when negative, else 10).
void TRG_verify_options();
// initialize: fills the name tables of the target and SCN_trg_align.
void TRG_initialize();
// prepare_pass1 / prepare_pass2: nothing to do on this target.
void TRG_initialize_pass1();
void TRG_initialize_pass2();
// set_predefs, once per pass: the architecture, state, endianness, float and
// ABI symbols (and, ELF with EABI in pass 2, the library request symbols).
void TRG_version_predefs();
// initialize and prepare_pass2: enters trg_ucregs, and trg_lcregs unless
// --syms_ignore_case is set.
void TRG_init_regsyms();
// prepare_pass2: cur_state back to def_state; signal_state_change set.
void TRG_reset();
// --code_state and --thumb_state: 16 selects Thumb (Thumb-2 where the
// architecture has it), anything else ARM; sets cur_state and def_state.
void TRG_set_code_state(long bits);
// --ual: unified syntax on.
void TRG_set_ual_mode();
// The word that pads code of a state: two Thumb no-ops, or the ARM one.
uint32_t TRG_fill_pattern(uint32_t state);

// ---- Statements --------------------------------------------------------------

// IR_parse: curtk is the instruction token. Decomposes mnemonic, condition,
// suffixes and operands into a new instruct; null after a message, with the
// rest of the line skipped.
instruct *TRG_parse();
// IR_process, both passes: pass 1 sets instlen (and records label-dependent
// lengths); pass 2 encodes the bits into the section.
void TRG_encode(instruct *ir);
// TRG_encode and the Thumb-2 narrowing: bytes of the statement.
uint32_t TRG_get_instlen(instruct *ir);

// ---- Sections, mapping symbols, build attributes -------------------------------

// GD_text, GD_sect: nothing to do on this target.
void TRG_process_sect(const char *name);
// GD_text, GD_data, GD_sect: in pass 2 the next field starts a mapping-symbol run.
void TRG_signal_section_change();
// SCN_insert_field, for each emitted field: kind 0 data, 1 code, 2 neither.
void TRG_add_mapping_sym(int kind);
// BLD_object: invents "$a"/"$t"/"$d" (or the COFF names) for the recorded runs.
void TRG_dump_mapping_syms();
// BA_gen_build_attributes: the target's attributes.
void TRG_gen_build_attributes();
// BLD_object: file header fields (COFF ABI/ISA/dual mode; ELF EABI version).
void TRG_set_fhdr();
// BLD_object: ELF EABI ".ARM.exidx*" sections take their special type, flags and link.
void TRG_finalize_sections();
// BLD_object: Thumb symbol values; versioned names take the binding of their target.
void TRG_finalize_symbols();
// end_processing: Thumb-2 statistics into the listing when they apply.
void TRG_end_process();
// GD_bss, GD_usect: applies the alignment operand (bytes) and refuses an extra
// operand; returns curpc.
uint32_t TRG_usect_align(unsigned long bits, instruct *ir, operand *align, operand *extra);

// ---- Relocations -------------------------------------------------------------------

// Data directives: emits the relocation of a relocatable element of `bits` bits.
void TRG_reloc_data(instruct *ir, operand *op, unsigned int bits);
// TRG_reloc_data: the relocation type of a built-in function's name, or 0.
int TRG_bif_rtype(const char *name);
// RELOC_emit: the addend of MOVT-type relocations, 0 for others.
uint32_t TRG_reloc_disp(value_record *value, const OFE::OF_RELOC_TYPE *type);
// RELOC_emit, ELF only: turns "s - $" into a plain pc-relative relocation.
void TRG_reloc_preprocess(value_record *value, unsigned int pc, const OFE::OF_RELOC_TYPE **type,
                          short *field_size);
// RELOC_symbol, RELOC_is_scnrel: true for VT_LABEL values.
bool TRG_reloc_requires_sym_rel(value_record *value);
// RELOC_emit: true for all types.
bool TRG_reloc_addend_is_symrel_offset(const OFE::OF_RELOC_TYPE *type);
// RELOC_emit: true for all types.
bool TRG_requires_scaling(const OFE::OF_RELOC_TYPE *type);

// ---- Expressions and values -----------------------------------------------------------

// Expression evaluator: returns the node as it is.
node *TRG_simplify_expr(node *n);
// Float data directives: writes one (size 0) or two (size 1) words in the
// word order that the float option and endianness give.
void TRG_emit_flt(instruct *ir, trg_fval *value, short size);
// GD_equ: a float .equ lists no value.
void TRG_lst_flt_value(linebuf *line, simul_fval *value);
// .struct handling: both false, no target directive may stand in a structure.
bool TRG_dp_sumem(instruct *ir);
bool TRG_su_mem(instruct *ir, unsigned int *size, unsigned int *offset);

// ---- Trial encodings ---------------------------------------------------------------------

// IOR_write: true when suppress_output is clear.
bool TRG_IOR_write();
// warn / error: false during a trial (output_error 0), after raising
// errors_or_warn; then the message is neither printed nor counted.
bool TRG_warn();
bool TRG_error();

// ---- Listing and dumps ---------------------------------------------------------------------

// LST_dump: twenty blanks, the object fields of a line without object code.
void TRG_delete_objflds();
const char *TRG_tkname(int kind);       // "INVALID TOKEN TYPE " for unknown kinds
const char *TRG_opname(int kind);       // padded with blanks to 21 characters
const char *TRG_irname(int kind);       // "INVALID INSTRUCTION TYPE " for unknown kinds
const char *TRG_regname(int reg);
void TRG_dump_components(operand *op);  // "Write TRG_dump_components()!" for kinds 2 to 14

// ---- ABI tests ---------------------------------------------------------------------------------

bool arm_eabi();          // --abi given with value 1
bool arm_zqabi();         // false
bool arm_zq_arm9_abi();   // false

// SCN_align in code sections: fills an alignment gap with the state's pattern.
void ARM_trg_align(unsigned long bits);

// Between the passes: lets long pseudo-branches chain to a nearer branch with
// the same target, then widens what does not reach, moves labels and
// re-sizes alignment gaps.
void reintroduce_branch_chains();
void expand_jumps();
