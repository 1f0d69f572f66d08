// Helpers of the section and symbol directive handlers.
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "ofe/elf_section.h"
#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "source/lexer.h"

const char *DIR_opnd_text(const operand *op) { return op ? op->value.v_str : nullptr; }

int32_t DIR_opnd_i32(const operand *op) {
  int32_t v = 0;
  if (op) XI_xtoi(op->value.v_val.b, &v);
  return v;
}

int64_t DIR_opnd_i64(const operand *op) {
  int64_t v = 0;
  if (op) XI_xtolli(op->value.v_val.b, &v);
  return v;
}

std::string DIR_int_text(const INT128 &v) {
  INT128 lo, hi;
  XI_llitox(INT64_MIN, lo.b);
  XI_llitox(INT64_MAX, hi.b);
  if (v < lo || v > hi) return v.to_string();
  int64_t n = 0;
  XI_xtolli(v.b, &n);
  return std::to_string(n);
}

bool DIR_opnd_is_tag(const operand *op) {
  return op && (op->value.v_type == VT_STAG || op->value.v_type == VT_UTAG);
}

bool DIR_read_slot(instruct *ir, short slot, uint32_t flags) {
  operand *op = DIR_get_oprnd({flags, 64});
  IR_add_oprnd(ir, slot, op);
  return op || (flags & DPS_OPTIONAL) || !curtk || curtk->kind != TK_EOL;
}

bool DIR_elf() { return object_format() == OBJ_ELF; }
bool DIR_coff() { return object_format() == OBJ_COFF; }

OFE::ELF_SECTION *DIR_elf_section(const section_record *section) {
  if (!section || !DIR_elf()) return nullptr;
  return dynamic_cast<OFE::ELF_SECTION *>(section->scn_object);
}

void DIR_set_zq_flag(section_record *section, uint32_t flag) {
  if (section && ofile && ofile->machine_db()) ofile->machine_db()->set_zq_sh_flag(section->scn_object, flag, true);
}

void DIR_list_location(instruct *ir, uint32_t address) {
  if (!pass2 || !ir->line) return;
  LST_object(ir->line, address, nullptr, 0, 4);
  ir->line->flags &= static_cast<uint16_t>(~LNF_OBJECT);
}

void DIR_append_label(std::string_view name, linebuf *line) {
  pending_label **tail = &LBL_current;
  while (*tail) tail = &(*tail)->next;
  *tail = new pending_label{std::string(name), line, nullptr};
}

const char *DIR_line_label(const linebuf *line) {
  return LBL_current && LBL_current->line == line ? LBL_current->name.c_str() : nullptr;
}
