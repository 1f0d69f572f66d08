// .text, .data and .sect: the section that statements go to; .newblock.
#include <cstring>
#include <string>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/secdir_pending.h"
#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "ofe/of_section.h"
#include "source/lexer.h"
#include "target/arm/trg.h"

namespace {

constexpr unsigned short DW_TAG_subprogram = 46;
constexpr unsigned short DW_TAG_ZQ_asm_range = 16521;

// The attributes a .sect may give an ELF section, and what each does to it.
struct sect_attribute {
  const char *name;
  const char *conflicts_with;
  void (*apply)(OFE::OF_SECTION *);
};
constexpr sect_attribute sect_attributes[] = {
    {"RW", "RO", [](OFE::OF_SECTION *s) { s->set_data(); }},
    {"RO", "RW", [](OFE::OF_SECTION *s) { s->set_const_data(); }},
    {"ALLOC", "NOALLOC", [](OFE::OF_SECTION *s) { s->set_allocated(true); }},
    {"NOALLOC", "ALLOC", [](OFE::OF_SECTION *s) { s->set_allocated(false); }},
    {nullptr, nullptr, nullptr},
};

const sect_attribute *find_attribute(const std::string &name) {
  for (const sect_attribute *a = sect_attributes; a->name; ++a)
    if (name == a->name) return a;
  return nullptr;
}

// The attributes of slots 1 and 2 go to the section just entered.
void apply_attributes(instruct *ir) {
  const sect_attribute *seen[2] = {nullptr, nullptr};
  int count = 0;
  for (short slot = 1; slot <= 2; ++slot) {
    const char *text = DIR_opnd_text(ir->oprnds[slot]);
    if (!text) continue;
    std::string name = text;
    strupper(name);
    const sect_attribute *attr = find_attribute(name);
    if (!attr) {
      error(ir->line, "E0000", "Illegal section attribute %s is specified", name.c_str());
      continue;
    }
    for (int i = 0; i < count; ++i) {
      if (std::strcmp(seen[i]->name, attr->conflicts_with) == 0) {
        error(ir->line, "E0000", "Attribute %s cannot be combined with attribute %s", attr->name, seen[i]->name);
        return;
      }
    }
    seen[count++] = attr;
    attr->apply(curseg->scn_object);
  }
}

// A section change ends an assembly function that is open.
void close_asm_function(instruct *ir) {
  if (!DBD_curr_asmfunc) return;
  if (DBD_asmfunc_tag(DBD_curr_asmfunc) == DW_TAG_subprogram)
    warn(ir->line, "W0000",
         "Assembly functions must be contiguous within one section; generating implicit .endasmfunc");
  dw_create_asm_func(ir, 0, DW_TAG_ZQ_asm_range);
}

// The sequence that .text, .data and .sect share: labels of earlier lines
// stay in the old section, a label on this line goes to the new one.
void switch_section(instruct *ir, int kind, const char *name) {
  LBL_flushbuf(ir->line);
  LOCLBL_flush();
  close_asm_function(ir);
  SCN_queue(kind, name);
  if (kind != SCN_KIND_DATA) TRG_process_sect(name);
  if (kind == SCN_KIND_SECT && DIR_elf()) apply_attributes(ir);
  if (LBL_current) LBL_define();
  TRG_signal_section_change();
  DIR_list_location(ir, SCN_address());
  LOCLBL_block_start();
}

}  // namespace

void DP_sect(instruct *ir) {
  if (!DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT)) return;
  // Attributes exist only in ELF; elsewhere they are trailing text.
  if (DIR_elf()) {
    DIR_read_slot(ir, 1, DPS_IDENT | DPS_OPTIONAL);
    DIR_read_slot(ir, 2, DPS_IDENT | DPS_OPTIONAL);
  }
  skip_to_expected_eol(ir->line);
}

void GD_text(instruct *ir) { switch_section(ir, SCN_KIND_CODE, ".text"); }

void GD_data(instruct *ir) { switch_section(ir, SCN_KIND_DATA, ".data"); }

void GD_sect(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) return;
  switch_section(ir, SCN_KIND_SECT, name);
}

void GD_newblock(instruct *) { LOCLBL_flush(); }
