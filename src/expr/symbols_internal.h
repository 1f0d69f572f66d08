#pragma once
// Helpers shared by the files of the symbol table, and what they need from
// subsystems whose headers don't say it yet.
#include <cstdint>
#include <string>

#include "directives/sections.h"
#include "driver/option_ids.h"
#include "expr/int128.h"
#include "target/arm/trg.h"

struct section_record;
struct symbol_record;
namespace OFE {
class OF_SECTION;
class OF_SYMBOL;
class OFBA_ATTR_LIST;
}  // namespace OFE

// The register name that `.map` substitutes for `name`, or null.
const std::string *SYM_register_substitute(const std::string &name);

// The list option `id` was given with the item `item` (compared without case).
bool SYM_option_item_is(option_id id, const char *item);

// Set by the instruction parser: the statement modifies the operand being read.
extern uint8_t modified_op;

// Page control of the listing file.
extern uint16_t LST_linesprinted;
extern uint16_t LST_pagelen;
void LST_pagehdr();

// The section manager's answers to the symbol table (section_glue.cpp): the
// label address counts the bytes in the section's field accumulator, and a
// section with a jump list records its labels for jump expansion.
uint32_t SYM_label_address();
bool SYM_section_has_jumps();
// Jump expansion.
void SYM_record_label_jump(symbol_record *sym);

// What the object hand-over reads of a section (section_glue.cpp).
OFE::OF_SECTION *SYM_scn_object(section_record *section);
symbol_record *SYM_scn_symbol(section_record *section);  // the section's own symbol
bool SYM_scn_has_code(section_record *section);
uint32_t SYM_scn_start(section_record *section);          // section_start()

// The ZQ-COFF writer: storage class, type and auxiliary entries
void SYM_invent_coff(symbol_record *sym, OFE::OF_SYMBOL *os, section_record *section, int storage);
void SYM_file_coff(OFE::OF_SYMBOL *os);
// The build-attribute tables.
void SYM_attrs_add(OFE::OFBA_ATTR_LIST *list, OFE::OF_SYMBOL *os);
