#pragma once
// Jump expansion: Thumb branches, ADR and LDR of labels whose length depends
// on the distance to their label. Pass 1 gives each its shortest length and
// records it with the labels and alignment gaps behind it; between the passes
// the lengths grow until everything reaches; pass 2 reads them back.
#include <cstdint>

#include "target/arm/trg.h"

struct section_record;
struct symbol_record;
struct value_record;

enum JUMP_LIST_TYPE : uint8_t {
  JUMP_LABEL = 2,       // a label behind a jump
  JUMP_ALIGN = 3,       // an alignment gap behind a jump
  JUMP_COND = 4,        // conditional branch, 2 or 4 bytes
  JUMP_UNCOND = 5,      // unconditional branch, 2 or 4 bytes
  JUMP_COND_FAR = 6,    // conditional pseudo-branch, 2, 4 or 6 bytes
  JUMP_LOAD_ADDR = 7,   // Thumb-2 LDR or ADR of a label into a low register
};

constexpr bool is_jump_kind(JUMP_LIST_TYPE kind) { return kind >= JUMP_COND && kind <= JUMP_LOAD_ADDR; }

struct jumprec {
  jumprec *next;
  JUMP_LIST_TYPE kind;
  symbol_record *symbol;       // JUMP_LABEL: the label
  value_record *label_value;   // JUMP_LABEL: the label's value
  uint32_t pc;                 // jumps: curpc of the statement (it holds the section base)
  uint16_t power;              // JUMP_ALIGN: the alignment is 2^power bytes
  int32_t pad;                 // JUMP_ALIGN: the gap's present size in bytes
  value_record *dest;          // jumps: the target symbol's own value, as it moves
  uint32_t size_index;         // jumps: index of the length in isize_list
  jumprec *chain;              // the branch this one chains to, or null
  uint8_t cond;                // COND_*; 15 when made without a condition
  uint32_t chain_size;         // length when chained
  int32_t chain_limit;         // longest chain this branch may join; 0: none
};

// Pass 1: records in the list of the current section. For a jump kind,
// `dest` is the operand's value: a record is made only for a simple label,
// and it keeps the value of the label's symbol, which moves with the label.
// `size_index` is where the caller's VLI_push puts the length (the size of
// isize_list before the push); the caller pushes the length in any case.
// VLI_addjump also makes JUMP_LABEL records (label_value, symbol) and
// JUMP_ALIGN records (power, pad); its jumps have no condition (15).
void VLI_addjump(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                 value_record *label_value, symbol_record *symbol, uint16_t power, int32_t pad);
void VLI_addjump_cond(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                      value_record *label_value, symbol_record *symbol, uint16_t power, uint8_t cond,
                      int32_t chain_limit);
// A value that is a label of its own section and nothing more.
bool VLI_dst_is_simple_label(const value_record *value);
// The lengths themselves go through VLI_push and VLI_pop (driver/pipeline.h).

// The length a jump record needs where things stand now: its chained length;
// 4 for a target in another section; its recorded length for a target that
// is no address; otherwise what its kind needs for the distance.
uint32_t VLI_jump_size(const section_record *section, const jumprec *rec);
// The length a jump of `kind` needs for the offset `off` from its pc + 4
// (for JUMP_LOAD_ADDR already rounded up to a word).
uint32_t VLI_length_for(JUMP_LIST_TYPE kind, int64_t off);

// reintroduce_branch_chains and expand_jumps, which the driver calls between
// the passes, are declared in trg.h.
// Looks for a nearer branch with the same target for `rec` and chains it
// there; false if there is none.
bool can_chain_branch(section_record *section, jumprec *rec);
// Pass 2, for BT and BQ in plain Thumb: the chained target of the branch at
// the current address as a signed halfword offset in *out; false if it has none.
bool chained_branch(int class_id, int *out);
// Drops every record; the sections' lists become empty.
void VLI_free_jumps();
