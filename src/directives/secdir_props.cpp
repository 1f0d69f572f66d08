// Properties of a section that the linker reads: .clink, .retain,
// .retainrefs, .comdat, .bound and .noinit.
#include <cstdint>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/secdir_pending.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "ofe/of_machine.h"
#include "source/lexer.h"

namespace {

constexpr uint32_t STYP_CLINK = 0x4000;

// The named section, or the current one without an operand.
section_record *section_of(const instruct *ir) {
  const operand *op = ir->oprnds[0];
  return op ? SCN_query(DIR_opnd_text(op)) : curseg;
}

const char *named_or_unknown(const instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  return name ? name : "<unknown>";
}

const char *link_type_name(uint32_t id) {
  switch (id) {
    case DIR_CLINK: return ".CLINK";
    case DIR_RETAIN: return ".RETAIN";
    default: return "link type";
  }
}

// Where a section stands now, in bits from address 0.
uint64_t present_bits(const section_record *s) {
  const uint32_t pc = s == curseg ? curpc : s->scn_saved_pc;
  return static_cast<uint64_t>(pc) * 8 + s->scn_field_bits;
}

}  // namespace

void DP_opt_sect(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

void DP_comdat(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

void DP_bound(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_STRING) && DIR_read_slot(ir, 1, DPS_ABSINT))
    DIR_read_slot(ir, 2, DPS_ABSINT | DPS_OPTIONAL);
  skip_to_expected_eol(ir->line);
}

void DP_noinit(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_STRING);
  skip_to_expected_eol(ir->line);
}

// .clink [name] and .retain [name]: the first link type given stands.
void GD_link_type(instruct *ir) {
  section_record *s = section_of(ir);
  if (!s) {
    warn(ir->line, "W0000", "Section %s does not exist - ignoring %s directive\n", named_or_unknown(ir), DIR_name(ir));
    return;
  }
  const uint32_t id = static_cast<uint32_t>(DIR_id(ir));
  if (s->scn_link_type && s->scn_link_type != id) {
    warn(ir->line, "W0000", "Section %s already has %s specified - ignoring %s directive\n", s->name(),
         link_type_name(s->scn_link_type), DIR_name(ir));
    return;
  }
  s->scn_link_type = id;
  if (id == DIR_RETAIN && DIR_elf()) DIR_set_zq_flag(s, OFE::ZQ_SHF_RETAIN);
  if (id == DIR_CLINK && DIR_coff()) zqcoff_set_scn_flags(s->scn_object, STYP_CLINK);
}

void GD_retainrefs(instruct *ir) {
  if (!DIR_elf()) return;
  section_record *s = section_of(ir);
  if (!s) {
    warn(ir->line, "W0000", "Section %s does not exist - ignoring .retainrefs directive\n", named_or_unknown(ir));
    return;
  }
  DIR_set_zq_flag(s, OFE::ZQ_SHF_RETAINREFS);
}

// COMDAT output comes from .group; this only checks the name.
void GD_comdat(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (pass2 && name && !SCN_query(name)) error(ir->line, "E0300", "Section \"%s\" not defined", name);
}

// .bound "name", address[, page]: the section's fixed load address.
void GD_bound(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name || !ir->oprnds[1]) return;
  if (DIR_coff()) {
    error(ir->line, "E0900", ".bound directive is only supported for ELF");
    return;
  }
  const uint32_t address = static_cast<uint32_t>(DIR_opnd_i64(ir->oprnds[1]));
  const uint32_t page = ir->oprnds[2] ? static_cast<uint32_t>(DIR_opnd_i64(ir->oprnds[2])) : 0;
  auto known = scn_address_set.find(name);
  if (known != scn_address_set.end() && (known->second.first != address || known->second.second != page)) {
    error(ir->line, "E0900", ".bound directive repeated for section %s", name);
    return;
  }
  // The accumulator counts too: a byte written is content.
  if (const section_record *s = SCN_query(name);
      s && present_bits(s) != static_cast<uint64_t>(s->section_start()) * 8) {
    error(ir->line, "E0900", "The .bound directive for a section must be specified before any content.");
    return;
  }
  if (pass1) scn_address_set[name] = {address, page};
}

// .noinit "name": only pass 2 looks, so it may stand before the section's first use.
void GD_noinit(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name) return;
  if (DIR_coff()) {
    error(ir->line, "E0900", ".noinit directive is only supported for ELF");
    return;
  }
  if (!pass2) return;
  section_record *s = SCN_query(name);
  if (!s) {
    error(ir->line, "E0900", ".noinit directive applied to undefined section \"%s\"", name);
    return;
  }
  DIR_set_zq_flag(s, OFE::ZQ_SHF_NOINIT);
}
