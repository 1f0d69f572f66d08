#pragma once
// What the opcode lookup of the lexer needs of the instruction tables: the
// mnemonic rows, the encoding state, and the name translations of the parser.
#include <cstdint>
#include <string>

// Slots of a mnemonic_row, indexed by encode_state.
enum : uint32_t {
  STATE_ARM = 0, STATE_THUMB16 = 1, STATE_THUMB2 = 2, STATE_THUMB2_REG = 3,
};

// Allowed types and sizes of one data-type suffix position.
struct simd_type_slot {
  uint32_t types;  // 0x1 absent, 0x2 bare number, 0x4 I, 0x8 F, 0x10 P, 0x20 S, 0x40 U, 0x80 anything
  uint32_t sizes;  // 0x2 8 bits, 0x4 16, 0x8 32, 0x10 64
};

struct simd_type_rule {
  const char *name;
  simd_type_slot slot[3];
};

// One encoding family. The rows are shared and constant: what a statement
// parses (its suffixes, its alignment) lives in stmt_suffixes, never here.
struct inst_class {
  const char *name;
  uint16_t ic_id;
  uint32_t ic_shape;
  uint16_t ic_min_ops;
  uint16_t ic_max_ops;
  uint32_t ic_allowed;
  const simd_type_rule *ic_rule;
};

struct mnemonic_slot {
  uint32_t opcode;
  const inst_class *cls;   // null: no such instruction in this state
};

struct mnemonic_row {
  const char *name;  // upper case
  mnemonic_slot slot[4];
};

// The data-type suffixes and alignment specifier of one statement, as read
// behind its mnemonic; the encoder of the same statement reads them back.
struct simd_suffix {
  uint16_t type;   // one bit of simd_type_slot::types; 0x1 for an absent suffix
  uint32_t size;   // one bit of simd_type_slot::sizes; 0 when absent
};
struct stmt_suffixes {
  simd_suffix types[3];
  uint32_t align;  // @16 gives 1, @32 2, @64 4, @128 8, @256 16; 0 when none
};

// The statement being read.
extern stmt_suffixes cur_suffixes;

// The mnemonic table, ending in a row with a null name.
extern const mnemonic_row trg_mnemonics[];

// Slot of mnemonic_row used for the current statement.
extern uint32_t encode_state;
// Unified syntax on.
extern uint8_t ual_mode;

// Architecture tests of the selected architecture.
bool arch_is_v6_or_higher();
bool arch_is_v6m0();

// In unified mode: the name with its longest known unified prefix replaced by
// the older form (and the translation row remembered for the parser).
std::string ual_translate_name(const std::string &name);
// The name passes the parallel-arithmetic test and has one of the prefixes S,
// Q, SH, U, UQ, UH; *length_out gets the prefix length. The prefix is kept for
// the parser.
bool has_mext_prefix(const char *name, int *length_out);
// For a row whose class takes data-type suffixes: reads the suffixes and the
// alignment written behind the mnemonic's word (curtk) into cur_suffixes,
// with their messages; the lexer goes on behind them.
void parse_simd_suffix(const mnemonic_row *row);
