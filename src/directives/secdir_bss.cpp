// .bss, .usect and .common: uninitialised space and common symbols.
#include <cstdint>
#include <string>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/secdir_pending.h"
#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/expr.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "ofe/of_symbol.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

// What the size operand asks for: bytes, and for a tag its access offset,
// alignment and members.
struct block_size {
  uint64_t bytes = 0;
  uint32_t access = 0;
  uint32_t tag_align = 0;   // bytes
  membrec *members = nullptr;
  bool tag = false;
};

// The size operand; a tag gives its size (in v_bits) and, for a structure,
// the access point that the operand's value names. A negative integer is
// refused: the block would reach far beyond the 32-bit address space.
bool read_block_size(instruct *ir, const operand *op, block_size *out) {
  if (DIR_opnd_is_tag(op)) {
    const symbol_record *tag = op->value.v_symbol;
    out->tag = true;
    out->bytes = op->value.v_bits;
    if (op->value.v_type == VT_STAG) out->access = static_cast<uint32_t>(DIR_opnd_i32(op));
    out->tag_align = tag ? tag->sym_align >> 3 : 0;
    out->members = tag ? tag->sym_members : nullptr;
    return true;
  }
  const INT128 &n = op->value.v_val;
  if (n < 0 || n > xi_from_uint(UINT32_C(0xFFFFFFFF))) {
    error(ir->line, "E0004", "Size of %s out of range: %s", DIR_name(ir), DIR_int_text(n).c_str());
    return false;
  }
  out->bytes = n.to_u32();
  return true;
}

// Reserves the block in the current (uninitialised) section and defines the
// pending labels at its start, as far as the alignment lets it. Returns the
// blocking flag: an alignment operand other than 0. A block that would pass
// the 32-bit address space is refused; its label still gets the location.
bool reserve_block(instruct *ir, const block_size &size, symbol_record *sym) {
  operand *align = ir->oprnds[2];
  operand *extra = ir->oprnds[3];
  const uint64_t bits = size.bytes * 8;
  if (size.tag) {
    // Rounding up past the top of the address space would wrap to 0.
    const uint32_t aligned = SU_align(curpc, size.tag_align);
    if (aligned >= curpc)
      curpc = aligned;
    else
      SCN_room(UINT64_MAX);   // reports, and leaves the section full
  }
  const uint32_t before = curpc;
  const uint32_t before_bits = curseg->scn_field_bits;
  curpc = TRG_usect_align(bits, ir, align, extra);
  const bool blocking = align && DIR_opnd_i64(align) != 0;
  const bool wrapped = curpc < before;
  if (wrapped) curseg->scn_field_bits = 0;

  // A full section has reported already.
  const uint64_t next_bit = uint64_t{curpc} * 8 + curseg->scn_field_bits;
  const bool fits = !wrapped && !curseg->scn_full && next_bit + bits <= UINT64_C(0xFFFFFFFF) * 8;
  if (!wrapped && !curseg->scn_full && !fits)
    error(ir->line, "E0004", "%s size %s goes beyond the 32-bit address space",
          DIR_id(ir) == DIR_USECT ? ".usect" : ".bss", DIR_int_text(xi_from_uint(size.bytes)).c_str());
  const uint32_t access = fits ? size.access : 0;
  curpc += access;
  DIR_list_location(ir, SCN_address());
  LBL_define();
  if (size.members && sym) sym->sym_members = size.members;

  curpc -= access;
  if (fits) {
    SCN_space(bits);
  } else if (wrapped) {
    curpc = before;
    curseg->scn_field_bits = before_bits;
  }
  return blocking;
}

// Pass 2 with --cdebug_asm_data: the debug record of a .bss symbol, typed by
// the optional type operand.
void bss_debug_record(instruct *ir, const block_size &size) {
  int type = 0;
  uint64_t bits = size.bytes * 8;
  if (const char *type_name = DIR_opnd_text(ir->oprnds[4])) {
    std::string upper = type_name;
    strupper(upper);
    if (const dir_type_row *row = get_type(upper.c_str(), 0)) {
      type = row->type;
      bits = get_dir_size(row);
    } else if (SYM_query(type_name)) {
      type = 8;   // a structure
      bits = size.bytes * 32;
    } else {
      warn(ir->line, "W0000", "Trailing operand does not exist");
      return;
    }
  }
  debug_sym(ir, type, 3, static_cast<int>(bits), 0, nullptr);
}

// Size and blocking of the symbol, after pass 2 has placed it.
void finish_symbol(symbol_record *sym, uint64_t bytes, bool blocking, bool object_too) {
  sym->sym_size = static_cast<uint32_t>(bytes);
  if (blocking)
    sym->sym_flags |= SYMF_BLOCKED;
  else
    sym->sym_flags &= ~SYMF_BLOCKED;
  if (object_too && sym->sym_object) sym->sym_object->set_size(bytes);
}

constexpr uint32_t MAX_COMMON_ALIGN_LOG2 = 15;

}  // namespace

// ---- Parse handlers ---------------------------------------------------------------------

void DP_bss(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT) && DIR_read_slot(ir, 1, DPS_ABSINT | DPS_TAG)) {
    DIR_read_slot(ir, 2, DPS_ABSINT | DPS_OPTIONAL);
    DIR_read_slot(ir, 3, DPS_ABSINT | DPS_OPTIONAL);
    DIR_read_slot(ir, 4, DPS_IDENT | DPS_OPTIONAL);
  }
  skip_to_expected_eol(ir->line);
}

void DP_usect(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT) && DIR_read_slot(ir, 1, DPS_ABSINT | DPS_TAG)) {
    DIR_read_slot(ir, 2, DPS_ABSINT | DPS_OPTIONAL);
    DIR_read_slot(ir, 3, DPS_ABSINT | DPS_OPTIONAL);
  }
  skip_to_expected_eol(ir->line);
}

void DP_common(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_IDENT) && DIR_read_slot(ir, 1, DPS_ABSINT | DPS_TAG))
    DIR_read_slot(ir, 2, DPS_ABSINT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

// ---- .bss sym, size[, align[, extra[, type]]] --------------------------------------------

void GD_bss(instruct *ir) {
  LBL_flushbuf(ir->line);
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name || !ir->oprnds[1]) return;
  block_size size;
  if (!read_block_size(ir, ir->oprnds[1], &size)) return;
  symbol_record *sym = SYM_find(name);
  if (sym->sym_flags & SYMF_DEFINED) {
    error(ir->line, "E0300", "Symbol %s has already been defined", name);
    return;
  }

  SCN_push();
  SCN_queue(SCN_KIND_BSS, ".bss");
  // Defined together with a label written on the line.
  DIR_append_label(sym->sym_name, ir->line);
  const bool blocking = reserve_block(ir, size, sym);
  SCN_pop();

  if (!pass2) return;
  finish_symbol(sym, size.bytes, blocking, true);
  if (opt_on(OPT_CDEBUG_ASM_DATA)) bss_debug_record(ir, size);
}

// ---- sym .usect name, size[, align[, extra]] -----------------------------------------------

void GD_usect(instruct *ir) {
  LBL_flushbuf(ir->line);
  const char *section = DIR_opnd_text(ir->oprnds[0]);
  if (!section || !ir->oprnds[1]) return;
  const char *label = DIR_line_label(ir->line);
  if (!label) {
    error(ir->line, "E0300", "Symbol expected in label field");
    return;
  }
  const std::string name = label;
  block_size size;
  if (!read_block_size(ir, ir->oprnds[1], &size)) {
    LBL_free_current();
    return;
  }
  if (SYM_find(name)->sym_flags & SYMF_DEFINED) {
    error(ir->line, "E0300", "Symbol %s has already been defined", name.c_str());
    LBL_free_current();
    return;
  }

  SCN_push();
  SCN_queue(SCN_KIND_BSS, section);
  const bool blocking = reserve_block(ir, size, SYM_find(name));
  SCN_pop();

  if (!pass2) return;
  if (symbol_record *sym = SYM_query(name)) finish_symbol(sym, size.bytes, blocking, false);
}

// ---- .common sym, size[, align] --------------------------------------------------------------

void GD_common(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  const operand *size_op = ir->oprnds[1];
  if (!name || !size_op) return;
  if (DIR_coff()) {
    error(ir->line, "E0900", "Common symbols require ELF object format");
    return;
  }
  symbol_record *sym = SYM_find(name);
  if (sym->sym_flags & SYMF_DEFINED) {
    error(ir->line, "E0300", "Symbol has already been defined.");
    return;
  }
  if (LBL_current) {
    error(ir->line, "E0300", "Label not allowed on this directive.");
    LBL_define();   // the label takes the location all the same
  }

  block_size size;
  if (!read_block_size(ir, size_op, &size)) return;
  uint32_t alignment = 1;
  if (size.tag) {
    alignment = size.tag_align;
    if (size.access) error(ir->line, "E0300", "Can't create a common symbol from a non-zero structure access point");
  }
  if (const operand *align = ir->oprnds[2]) {
    const int32_t a = DIR_opnd_i32(align);
    const int log2 = ispowerof2(a);
    if (log2 < 0)
      error(ir->line, "E1400", "Alignment must be a power of two; found %d", a);
    else if (static_cast<uint32_t>(log2) > MAX_COMMON_ALIGN_LOG2)
      error(ir->line, "E1400", "Maximum alignment allowed is to 32K boundary; found %d", a);
    alignment = static_cast<uint32_t>(a);
  }

  if (pass1) {
    sym->sym_size = static_cast<uint32_t>(size.bytes);
    sym->sym_align = alignment;
    value_record v;
    E_clrval(&v);
    v.v_type = VT_COMMON;
    v.v_symbol = sym;
    SYM_define(sym, &v);
  } else {
    sym->sym_flags |= SYMF_DECLARED | SYMF_DEFINED;
  }
  if (size.members) sym->sym_members = size.members;
  if (pass2 && !sym->sym_object) SYM_invent(sym, SCN_address(), curseg, 4, SYM_is_global(sym) ? 2 : 3);
}
