#pragma once
// Jump expansion: Thumb branches, ADR and LDR of labels whose length depends
// on the distance to their label. Pass 1 gives each its shortest length and
// records it with the labels and alignment gaps behind it; between the passes
// the lengths grow until everything reaches; pass 2 reads them back.
#include <cstdint>

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

struct jumprec {
  jumprec *next;
  JUMP_LIST_TYPE kind;
  symbol_record *symbol;       // JUMP_LABEL: the label
  value_record *label_value;   // JUMP_LABEL: the label's value
  uint32_t pc;                 // jumps: section base plus curpc of the branch
  uint16_t power;              // JUMP_ALIGN: the alignment is 2^power bytes
  int32_t pad;                 // JUMP_ALIGN: the gap's present size in bytes
  value_record *dest;          // jumps: the target's value, as it moves
  uint32_t size_index;         // jumps: index of the length in isize_list
  jumprec *chain;              // the branch this one chains to, or null
  uint8_t cond;                // COND_*; 15 when made without a condition
  uint32_t chain_size;         // length when chained
  int32_t chain_limit;         // longest chain this branch may join; 0: none
};

// Pass 1: a jump record in the current section (only for a simple label;
// VLI_addjump_cond makes none otherwise, and its caller pushes the length
// in any case).
void VLI_addjump(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                 value_record *label_value, symbol_record *symbol, uint16_t power, int32_t pad);
void VLI_addjump_cond(JUMP_LIST_TYPE kind, uint32_t pc, value_record *dest, uint32_t size_index,
                      value_record *label_value, symbol_record *symbol, uint16_t power, uint8_t cond,
                      int32_t chain_limit);
// A value that is a label of its own section and nothing more.
bool VLI_dst_is_simple_label(const value_record *value);
// The lengths themselves go through VLI_push and VLI_pop (driver/pipeline.h).

// Lets long pseudo-branches chain to a nearer branch with the same target.
void reintroduce_branch_chains();
// Widens what does not reach, moves labels and re-sizes alignment gaps.
void expand_jumps();
// Pass 2, for BT and BQ in plain Thumb: the chained target of the branch at
// the current address as a signed halfword offset in *out; false if it has none.
bool chained_branch(int class_id, int *out);
