#pragma once
// What the handlers of the section and symbol directives share: operand
// access, the object format, and the listing of a location.
#include <cstdint>
#include <string>
#include <string_view>

#include "driver/records.h"
#include "expr/int128.h"

struct section_record;
struct symbol_record;
namespace OFE {
class ELF_SECTION;
}

// ---- Operands -----------------------------------------------------------------

// The text of a name or string operand; null for a missing operand.
const char *DIR_opnd_text(const operand *op);
// The low 32 bits of an operand's integer, signed.
int32_t DIR_opnd_i32(const operand *op);
// The operand's integer as a signed 64-bit value (the reader's width is 64).
int64_t DIR_opnd_i64(const operand *op);
// An integer as a message shows it: decimal, or hex beyond 64 bits.
std::string DIR_int_text(const INT128 &v);
// The operand is a structure or union tag read through the tag flag.
bool DIR_opnd_is_tag(const operand *op);

// Reads one operand into `slot`. After a failed required operand at the line
// end nothing further can be read: the result says whether to go on.
bool DIR_read_slot(instruct *ir, short slot, uint32_t flags);

// The name of the directive's row, as in the table (".SECT").
inline const char *DIR_name(const instruct *ir) { return ir->dir()->name; }
inline int32_t DIR_id(const instruct *ir) { return ir->dir()->id; }
inline bool DIR_is(const instruct *ir, std::string_view name) { return name == ir->dir()->name; }

// ---- Object format ---------------------------------------------------------------

inline constexpr unsigned OBJ_COFF = 1;
inline constexpr unsigned OBJ_ELF = 2;
bool DIR_elf();
bool DIR_coff();
// The ELF twin of a section; null unless the object is ELF.
OFE::ELF_SECTION *DIR_elf_section(const section_record *section);
// Sets a vendor section flag (ZQ_SHF_*) through the machine database.
void DIR_set_zq_flag(section_record *section, uint32_t flag);

// ---- Listing --------------------------------------------------------------------

// Shows `address` in the object column of the statement's line, without bytes.
void DIR_list_location(instruct *ir, uint32_t address);

// ---- Labels ---------------------------------------------------------------------

// Appends `name` as the oldest pending label, standing on `line`.
void DIR_append_label(std::string_view name, linebuf *line);
// The pending label of `line`, if the newest pending label stands there.
const char *DIR_line_label(const linebuf *line);
