#pragma once
// What the opcode lookup of the lexer needs of the instruction tables: the
// mnemonic rows, the encoding state, and the name translations of the parser.
#include <cstdint>
#include <string>

struct simd_type_rule;

// Slots of a mnemonic_row, indexed by encode_state.
enum : uint32_t {
  STATE_ARM = 0, STATE_THUMB16 = 1, STATE_THUMB2 = 2, STATE_THUMB2_REG = 3,
};

struct inst_class {
  uint16_t ic_id;
  uint32_t ic_shape;
  uint16_t ic_min_ops;
  uint16_t ic_max_ops;
  uint32_t ic_allowed;
  const simd_type_rule *ic_rule;
  struct { uint16_t type; uint32_t size; } ic_types[3];  // scratch: suffixes of the statement
  uint32_t ic_align;                                      // scratch: alignment specifier
};

struct mnemonic_slot {
  uint32_t opcode;
  inst_class *cls;   // null: no such instruction in this state
};

struct mnemonic_row {
  const char *name;  // upper case
  mnemonic_slot slot[4];
};

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
// Reads the data-type suffixes (.I32, @128, ...) that follow the mnemonic in
// the source into the row's class.
void parse_simd_suffix(const mnemonic_row *row);
