#pragma once
// Helpers shared by the files of the symbol table, and what they need from
// subsystems whose headers don't say it yet.
#include <cstdint>
#include <string>

#include "driver/option_ids.h"
#include "expr/int128.h"

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

// until directives/sections.h lands
extern section_record *curseg;

// until the target's state and instruction-parser headers land
extern uint32_t cur_state;    // 0 ARM, 1 Thumb, 2 Thumb-2
extern uint8_t modified_op;   // the statement modifies the operand being read

// until listing/listing.h carries the page control of the listing file
extern uint16_t LST_linesprinted;
extern uint16_t LST_pagelen;
void LST_pagehdr();

// until directives/sections.h lands: the label address counts the bytes in
// the section's field accumulator, and a section with a jump list records
// its labels for jump expansion
uint32_t SYM_label_address();
bool SYM_section_has_jumps();
// until the jump-expansion header lands
void SYM_record_label_jump(symbol_record *sym);

// until directives/sections.h lands: what the object hand-over reads of a section
OFE::OF_SECTION *SYM_scn_object(section_record *section);
symbol_record *SYM_scn_symbol(section_record *section);  // the section's own symbol
bool SYM_scn_has_code(section_record *section);
uint32_t SYM_scn_start(section_record *section);          // section_start()

// until the ZQ-COFF writer lands: storage class, type and auxiliary entries
void SYM_invent_coff(symbol_record *sym, OFE::OF_SYMBOL *os, section_record *section, int storage);
void SYM_file_coff(OFE::OF_SYMBOL *os);
// until the build-attribute tables land
void SYM_attrs_add(OFE::OFBA_ATTR_LIST *list, OFE::OF_SYMBOL *os);
