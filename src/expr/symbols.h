#pragma once
// The assembler's one name space: the symbol table `names`, labels waiting
// for their statement, local-label scopes, tags, and the hand-over of symbols
// to the object file.
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "expr/value.h"

struct section_record;
struct membrec;
struct linebuf;
namespace OFE {
class OF_SYMBOL;
class OFBA_ATTR_LIST;
class ELF_SYMBOL;
}  // namespace OFE

// Every name table has this many buckets; the arrays have one slot more.
constexpr int NAME_BUCKETS = 5003;

// sym_storage: bit 1 tells global, bit 0 tells defined here.
enum : uint32_t {
  SYM_STOR_NONE = 0,    // neither defined nor declared
  SYM_STOR_LOCAL = 1,   // defined here, not global
  SYM_STOR_EXTERN = 2,  // declared global, no definition seen
  SYM_STOR_GLOBAL = 3,  // declared global and defined here
};

// sym_flags.
enum : uint32_t {
  SYMF_DECLARED = 1u << 0,
  SYMF_DEFINED = 1u << 1,
  SYMF_REFERENCED = 1u << 2,
  SYMF_REF_THIS_PASS = 1u << 3,
  SYMF_WEAK = 1u << 4,
  SYMF_SYSTEM = 1u << 5,
  SYMF_BUILTIN = 1u << 6,
  SYMF_PREDEF = 1u << 7,
  SYMF_VERSIONED = 1u << 8,
  SYMF_AUTO_IMPORT = 1u << 9,
  SYMF_VIS = 7u << 10,  // field: one of SYM_VIS_*
  SYMF_TLS = 1u << 13,
  SYMF_NEAR_COMMON = 1u << 14,
  SYMF_BLOCKED = 1u << 15,
  SYMF_PRESERVE = 1u << 16,
  SYMF_UPDATE = 1u << 17,
};
constexpr int SYMF_VIS_SHIFT = 10;

// Values of the SYMF_VIS field.
enum : uint32_t {
  SYM_VIS_NONE = 0, SYM_VIS_IMPORT = 1, SYM_VIS_EXPORT = 2,
  SYM_VIS_PROTECTED = 3, SYM_VIS_HIDDEN = 4,
};

// One cross-reference entry (pass 1, --cross_reference only); newest first.
struct xref_record {
  xref_record *next;
  uint16_t file_letter;  // f_lchar
  uint16_t line;         // f_lnum
  uint8_t is_def;
  uint8_t modified;
};

struct symbol_record {
  symbol_record *sym_next;
  uint32_t sym_hash;    // hash_full of sym_name while in the name table: beside the link for the walk
  section_record *sym_section;
  xref_record *sym_xref;
  membrec *sym_members;
  value_record sym_value;
  uint32_t sym_storage;
  uint32_t sym_align;   // bits for tags, bytes for common symbols
  uint32_t sym_flags;
  uint32_t sym_state;   // cur_state where a label was defined
  OFE::OF_SYMBOL *sym_object;
  OFE::OFBA_ATTR_LIST *sym_attrs;
  std::string sym_name;
  uint32_t sym_size;
};

// A label read from column 0 that waits for its statement's address.
struct pending_label {
  std::string name;
  linebuf *line;
  pending_label *next;
};

struct tag_record {
  tag_record *next;
  std::string name;
  OFE::OF_SYMBOL *tag_object;  // COFF debugging
  uint16_t kind;
  uint16_t level;
};

// A row of the static tables of keywords and predefined symbols; a table
// ends with a row whose name is null.
struct sym_init {
  const char *name;
  uint32_t value;
  uint32_t type;  // VT_*
};

extern symbol_record *names[NAME_BUCKETS + 1];
extern tag_record *tagnames[NAME_BUCKETS + 1];
extern pending_label *LBL_current;  // newest first

// Local-label numbering: the lexer appends these to `$n` and `name?`.
extern int32_t file_loclbl_cnt;
extern int32_t mac_loclbl_cnt;
extern int32_t LBL_max_count;
extern uint32_t local_block_start;

extern std::vector<std::pair<symbol_record *, symbol_record *>> SYM_aliases;
extern std::map<std::string, std::vector<std::pair<std::string, std::string>>> symtab_meta_records;
extern std::map<std::string, uint32_t> sym_address_set;

// ---- Look-up and definition ----------------------------------------------
// Find or create; never null. `builtin` selects the built-in records.
symbol_record *SYM_find(std::string_view name, bool builtin = false);
// Find only; null if there is none (and for a null name).
symbol_record *SYM_query(const char *name);
symbol_record *SYM_query(std::string_view name);

void SYM_define(symbol_record *sym, const value_record *value);
bool SYM_value_eq(const symbol_record *sym, const value_record *value);
void SYM_global(symbol_record *sym);
symbol_record *SYM_set_predef(std::string_view name, int64_t value, bool is_signed);

void SYM_reset();      // before pass 2
void SYM_checkdefs();  // after pass 2: the list of undefined symbols

// Empties the tables, pending labels, counters and side lists: start-up and tests.
void SYM_init();

inline bool SYM_is_global(const symbol_record *s) { return (s->sym_storage & 2) != 0; }
inline bool SYM_is_defined_here(const symbol_record *s) { return (s->sym_storage & 1) != 0; }
inline uint32_t SYM_get_vis(const symbol_record *s) { return (s->sym_flags & SYMF_VIS) >> SYMF_VIS_SHIFT; }
inline void SYM_set_vis(symbol_record *s, uint32_t vis) {
  s->sym_flags = (s->sym_flags & ~SYMF_VIS) | ((vis << SYMF_VIS_SHIFT) & SYMF_VIS);
}
// Every reference to a symbol sets both reference bits.
inline void SYM_mark_referenced(symbol_record *s) { s->sym_flags |= SYMF_REFERENCED | SYMF_REF_THIS_PASS; }

// --import_undef is given with the item that imports, and the symbol is an external.
bool is_imported_undef(const symbol_record *sym);

// ---- Start-up tables ------------------------------------------------------
void init_keywords(const sym_init *rows);
void init_predefs(const sym_init *rows);

// ---- Labels ---------------------------------------------------------------
void LBL_save();                                      // curtk's name from column 0
void LBL_save_name(std::string_view name, linebuf *line);  // the same for a given name
void LBL_define();
void LBL_flushbuf(linebuf *line);
void LBL_free();
void LBL_free_current();
void LBL_free_prefix(std::string_view prefix);

void LOCLBL_flush();
void LOCLBL_block_start();
void LOCLBL_init();

// ---- Tags -----------------------------------------------------------------
tag_record *TAG_find(std::string_view name, uint16_t kind, uint16_t level);
tag_record *TAG_define(std::string_view name, uint16_t kind, uint16_t level);

// ---- Object file ----------------------------------------------------------
// kind: OF_SYM_KIND 1 undefined, 2 defined, 3 absolute, 4 common.
// storage: the COFF storage class, mapped to a binding for ELF.
OFE::OF_SYMBOL *SYM_invent(symbol_record *sym, uint32_t value, section_record *section,
                           int kind, int storage);
unsigned SYM_elf_visibility(const symbol_record *sym);
void SYM_set_extern_linkage_elf(const symbol_record *sym, OFE::ELF_SYMBOL *elf_symbol);
void SYM_add_globs();
void SYM_add_aliases();
void SYM_add_metainfo();
void SYM_add_alias(symbol_record *alias, symbol_record *target);
void SYM_add_file(const char *name);
void SYM_update_file(const char *old_name, const char *new_name);
