#pragma once
// The section manager: the list of sections, the current section and its
// location counter, alignment, and the bit-field accumulator through which
// every byte of a section's contents goes. Pass 1 moves counters only; pass 2
// writes into each object section's DATA_MAP.
//
// Units: SCN_align, SCN_space, SCN_insert_field and alignment arguments
// count bits; curpc counts bytes.
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "directives/ior.h"
#include "expr/int128.h"

struct instruct;
struct linebuf;
struct symbol_record;
struct value_record;
struct jumprec;
namespace OFE {
class OF_SECTION;
class OF_RELOC;
}  // namespace OFE

// Section kinds.
enum : int8_t {
  SCN_KIND_CODE = 0,     // .text
  SCN_KIND_DATA = 1,     // .data, .encode, a .sect named ".data"
  SCN_KIND_SECT = 2,     // .sect
  SCN_KIND_BSS = 3,      // .bss, .usect
  SCN_KIND_ABS = 4,      // no directive makes it
  SCN_KIND_UDATA = 5,    // no directive makes it
  SCN_KIND_NOALLOC = 6,  // .template and debug sections
  SCN_KIND_GROUP = 7,    // .group
};

// A name in the member list of a group section, newest first.
struct scn_group_member {
  char *name;  // owned
  scn_group_member *next;
};

struct section_record {
  section_record *scn_next;          // next section of seglist
  OFE::OF_SECTION *scn_object;       // made with the record
  symbol_record *scn_symbol;         // the section's own symbol (not in names)
  int8_t scn_kind;
  uint8_t scn_has_code;              // set at the first instruction
  uint8_t scn_has_vcode;             // set by .vinstr
  uint32_t scn_saved_pc;             // curpc while another section is current
  std::map<OFE::OF_RELOC *, symbol_record *> scn_reloc_syms;
  // The jump list of jump expansion; a null head means no list.
  struct {
    jumprec *head;
    jumprec *tail;
    jumprec *cur;                    // working fields of the expansion
    int32_t growth;
  } scn_jumps;
  uint32_t scn_page;
  uint8_t scn_big_endian;
  symbol_record *scn_func_sym;       // COFF source debug: the $ASM$ function symbol
  uint32_t scn_func_line;
  uint32_t scn_func_pc;
  uint32_t scn_field_word;           // bits not yet written
  uint32_t scn_field_bits;           // how many, 0 to 32
  scn_group_member *scn_group_members;
  uint32_t scn_group_kind;           // 1: COMDAT group
  char *scn_group_name;              // member: name of its COMDAT group (owned)
  uint32_t scn_link_type;            // directive id of .clink/.retain, 0 if none
  section_record *scn_exidx_target;  // .ARM.exidx: the section it describes
  // Reached the end of the 32-bit address space: the counter stays at the
  // last byte, and nothing more goes into the section in this pass.
  uint8_t scn_full;

  // Base address: 0 unless --absolute_listing is given and scn_address_set
  // holds the name.
  uint32_t section_start() const;
  const char *name() const;
};


// ---- State -----------------------------------------------------------------

extern section_record *seglist;   // in order of first appearance
extern section_record *curseg;
// Section name -> (address, page), under --absolute_listing and for .bound.
extern std::map<std::string, std::pair<uint32_t, uint32_t>> scn_address_set;
// Fills alignment gaps in initialised sections; `bits` is the gap.
extern void (*SCN_trg_align)(unsigned long bits);

// ---- Sections ----------------------------------------------------------------

section_record *SCN_create(int kind, const char *name);   // SCN_queue's helper
section_record *SCN_query(const char *name);               // exact name, or null
// Makes the named section current, creating it if need be.
void SCN_queue(int kind, const char *name);
// One-level save and restore of the current section (no nesting).
void SCN_push();
void SCN_pop();
void SCN_reset();        // before pass 2
void SCN_flush();        // after pass 2
void SCN_def_snames();   // from BLD_object: object section symbols
char SCN_get_relch(const section_record *section);   // listing mark of the kind
void SCN_setvcode();     // .vinstr: the current section holds code
bool SCN_iscomdat(section_record *section);
void SCN_asm_debug(instruct *ir);

// ---- Location and alignment ---------------------------------------------------

void SCN_align(unsigned long bits, unsigned long fill);
void SCN_core_align(unsigned long bits, unsigned long fill, void (*fill_function)(unsigned long));
// Raises the section's alignment; log2 of the byte alignment.
int SCN_align_flag(unsigned long bits);
void SCN_space(unsigned long bits);
// Whether `bits` more bits fit in the current section below 4 GiB. The first
// advance that doesn't is reported at the current line and leaves the
// section full, so both passes agree on every later address.
bool SCN_room(uint64_t bits);
// The current address: curpc plus the whole bytes waiting in the accumulator.
uint32_t SCN_address();

// ---- Contents ------------------------------------------------------------------

// mapping_kind: 0 data, 1 code, 2 neither (alignment fill).
void SCN_insert_field(unsigned bits, const INT128 &value, instruct *ir, int mapping_kind, bool swap);
void SCN_insert_byte(unsigned byte, int mapping_kind);
// `count` (1 to 4) bytes of value, the low byte first, as SCN_insert_byte
// would put them, in a little-endian section on a byte boundary; false
// (nothing done) otherwise.
bool SCN_insert_bytes_le(uint32_t value, unsigned count, int mapping_kind);
void SCN_align_field(unsigned bits);
void SCN_emit_raw(unsigned size, uint32_t word);
// Zero words written at once: the accumulator must be empty or hold a whole word.
void SCN_insert_zero_words(uint64_t words);
void SCN_dump_field();


// ---- The instruction output record ------------------------------------------------

void IOR_clear(IOR_STRUCT *ior);
void IOR_write(IOR_STRUCT *ior, unsigned size, unsigned offset, uint32_t value);
void IOR_reloc(IOR_STRUCT *ior, const value_record *value, unsigned offset);
void IOR_dump(IOR_STRUCT *ior, instruct *ir, int mapping_kind);
void IOR_list(IOR_STRUCT *ior, linebuf *line, uint32_t address);
void IOR_merge(IOR_STRUCT *a, const IOR_STRUCT *b);
bool IOR_intersect(const IOR_STRUCT *a, const IOR_STRUCT *b);
