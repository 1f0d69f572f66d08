#pragma once
// Relocatable values: what the expression engine asks of relocation handling.
#include <cstdint>
#include "expr/value.h"

namespace OFE { class OF_RELOC_TYPE; }
struct node;

// One element of a relocation expression, and the argument of RELOC_append.
struct relrec {
  OFE::OF_RELOC_TYPE *rr_type;
  union {
    uint64_t raw;
    uint32_t k;   // constant, ELF addend, or COFF displacement in the low 16 bits
    struct { uint8_t offset, size, word_size; } field;
  } rr_value;
  symbol_record *rr_symbol;
};

// The value is a constant offset into a section.
bool RELOC_const_scnrel_offset(const value_record *value);

// A tree that folding could not reduce, made a relocation expression in value.
void E_reloc(value_record *value, node *n);

struct operand;
// Whether a pc-relative use of the operand must be left to the linker even
// though the assembler could resolve it: another section, or a global symbol
// that may be preempted, is weak, or lives in a COMDAT section.
bool OPND_requires_reloc(const operand *op);
