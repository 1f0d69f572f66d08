#pragma once
// What the data directive handlers share: element access, one element's
// bytes, the listing and debug notes of a directive.
#include <cstdint>

#include "driver/records.h"

// The elements of a list directive in slot 0; null when there are none.
inline operand *data_elements(const instruct *ir) { return ir->oprnds[0]; }

// An element that reached the list with a usable value: a string, an integer
// or a relocatable value. Others had their message from the operand reader.
bool data_element_ok(const operand *op);

// The low 32 bits of an element's integer.
uint32_t data_u32(const operand *op);

// Pass 2: a relocatable element records its relocation first.
void data_reloc(instruct *ir, operand *op, unsigned bits);

// Pass 2: `bits` (8, 16 or 32) of value through the statement's output
// record into the section, listed on the statement's line.
void data_emit(instruct *ir, unsigned bits, uint32_t value);

// Pass 2, with the listing option of the directive's size: only the first
// line of object bytes is listed.
void data_list_first_only(instruct *ir, uint32_t lst_bit);

// Pass 2 with --cdebug_asm_data: the debug record of the directive's type.
void data_debug_sym(instruct *ir);
