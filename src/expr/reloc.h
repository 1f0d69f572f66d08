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

struct IOR_STRUCT;

// The value is a constant offset into a section.
bool RELOC_const_scnrel_offset(const value_record *value);
// The value can be relocated by its section's own symbol.
bool RELOC_is_scnrel(const value_record *value);
// The symbol a relocation for the value names (marked referenced), or null.
symbol_record *RELOC_symbol(const value_record *value);

// Records one relocation for `value` at the current position of the current
// section. `ior` may be null; `pc` is the place's address for PC-relative
// COFF types (0 for data); `ior_offset` is the bit offset in the record for
// the listing mark; `field_offset` is the field's bit position. On return
// v_val holds what goes into the field.
void RELOC_emit(IOR_STRUCT *ior, value_record *value, uint32_t pc, const OFE::OF_RELOC_TYPE *type,
                short field_size, unsigned ior_offset, unsigned field_offset);
// Creates the object relocation for one element at the current position.
void RELOC_append(const relrec *rr, unsigned field_offset);
// Where a field at bit `field_offset` of the current statement lies in the
// object section, for a relocation of `type`.
uint64_t RELOC_place(const OFE::OF_RELOC_TYPE *type, unsigned field_offset);
// Whether `value` fits a field of `bits` bits stored by `store_template`.
bool RELOC_offset_fits(int64_t value, unsigned bits, uint32_t store_template);
// Connects relocations to the object symbols, once every symbol exists.
void RELOC_fixup();

// The type of a template id: the object format's, or for an operation of a
// relocation expression that the format can't store, one of the template
// alone (number 0). Null without an object file or template.
const OFE::OF_RELOC_TYPE *RELOC_op_type(uint32_t template_id);
// The store operation that fits a field of `type`.
const OFE::OF_RELOC_TYPE *reloc_signedness(const OFE::OF_RELOC_TYPE *type);

// A tree that folding could not reduce, made a relocation expression in value.
void E_reloc(value_record *value, node *n);
// Room for `n` more elements in v_rel.
void E_rel_alloc(value_record *value, unsigned n);
// Appends one element to v_rel.
void E_rel_cat(value_record *value, const relrec &element);
// Emits a value that carries a relocation expression.
void E_emit_relexpr(value_record *value, const OFE::OF_RELOC_TYPE *type, short field_size,
                    unsigned field_offset);

struct operand;
// Whether a pc-relative use of the operand must be left to the linker even
// though the assembler could resolve it: another section, or a global symbol
// that may be preempted, is weak, or lives in a COMDAT section.
bool OPND_requires_reloc(const operand *op);
