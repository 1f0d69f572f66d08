// Sections at the end of assembly: what they became, how big they are, and
// which sections and symbol make up a COMDAT group.
#include "debug/object_build_sections.h"

#include <cstdlib>
#include <cstring>

#include "debug/object_build.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "ofe/of_group.h"
#include "ofe/of_section.h"
#include "ofe/of_symbol.h"

namespace {

constexpr uint32_t GROUP_KIND_COMDAT = 1;

bool is_comdat_group(const section_record *s) {
  return s->scn_kind == SCN_KIND_GROUP && s->scn_object && s->scn_object->group_type() &&
         s->scn_group_kind == GROUP_KIND_COMDAT;
}

// The group's signature: the first symbol of the group's name, along the
// hash chain, that has an object symbol other than a section's own.
OFE::OF_SYMBOL *group_signature(const char *name) {
  symbol_record *first = SYM_query(name);
  for (symbol_record *s = first; s; s = s->sym_next) {
    if (s->sym_name != first->sym_name) continue;
    if (s->sym_object && s->sym_object->type() != OFE::OFY_SECTION) return s->sym_object;
  }
  return nullptr;
}

}  // namespace

void BLD_group_section(section_record *section) {
  OFE::OF_GROUP_TABLE *group = section->scn_object->group_api();
  if (!group) {
    error_internal(1, nullptr, "Unknown file format found in BLD_group_section");
    return;
  }
  if (section->scn_group_kind != GROUP_KIND_COMDAT) {
    error_internal(1, nullptr, "Section %s, invalid group kind %d", section->name(),
                   static_cast<int>(section->scn_group_kind));
    return;
  }
  group->set_comdat_flag();
  // Newest first, as .gmember recorded them; the list is used up here.
  while (scn_group_member *m = section->scn_group_members) {
    section_record *member = SCN_query(m->name);
    if (!member) {
      error_internal(1, nullptr, "Section %s missing while processing group %s", m->name, section->name());
      return;
    }
    group->add_member(member->scn_object);
    section->scn_group_members = m->next;
    std::free(m->name);
    delete m;
  }
  OFE::OF_SYMBOL *signature = group_signature(section->name());
  if (!signature) {
    error_internal(1, nullptr, "Cannot find symbol corresponding to section %s", section->name());
    return;
  }
  group->set_symbol(signature);
}

void BLD_finish_section(section_record *section) {
  OFE::OF_SECTION *os = section->scn_object;
  if (!os) return;
  // A data section that received instructions becomes executable and read-only.
  if (section->scn_has_code || section->scn_has_vcode) os->set_exec();
  if (!os->initialized()) os->set_size(section->scn_saved_pc - section->section_start());
  if (os->group_type()) BLD_group_section(section);
}

void COMGRP_process() {
  if (object_format() != 2) return;
  for (section_record *g = seglist; g; g = g->scn_next) {
    if (!is_comdat_group(g)) continue;
    for (const scn_group_member *m = g->scn_group_members; m; m = m->next) {
      section_record *member = SCN_query(m->name);
      if (!member) continue;  // pass 2 reports it
      std::free(member->scn_group_name);
      member->scn_group_name = strdup(g->name());
    }
  }
}
