// .group, .gmember and .endgroup: a group section and the names of its
// members. The lines of a group are read here, not by the main loop.
#include <cstdint>
#include <cstring>

#include "directives/directives.h"
#include "directives/secdir_internal.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/directive_ids.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "ofe/elf_defs.h"
#include "ofe/elf_section.h"
#include "source/lexer.h"
#include "source/ophash.h"

namespace {

constexpr uint32_t COMDAT_GROUP = 1;

bool is_comdat_kind(const operand *op) {
  return op && is_int_type(op->value.v_type) && op->value.v_val == xi_from_uint(COMDAT_GROUP);
}

// Pass 1 records the member's name (newest first); pass 2 wants the section.
void add_member(instruct *ir, section_record *group, const char *name) {
  if (pass1) {
    if (group) group->scn_group_members = new scn_group_member{strdup(name), group->scn_group_members};
    return;
  }
  if (!SCN_query(name)) error(ir->line, "E0900", "Section with member name not found");
}

// The statement of the directive token at curtk, parsed by its row.
instruct *parse_block_directive(const dir_oprec *row) {
  instruct *stmt = IR_alloc(IR_DIRECTIVE, row, curtk->line);
  row->parse(stmt);
  return stmt;
}

// Reads the lines up to .endgroup; the result counts the members.
int read_group_block(section_record *group) {
  int members = 0;
  while (IR_getline()) {
    linebuf *line = curtk->line;
    lookup_opcode();
    if (curtk->kind != IR_DIRECTIVE) {
      error(line, "E0800", "Instructions not permitted in group definitions");
      continue;
    }
    const dir_oprec *row = curtk->value.op->dir();
    switch (row->id) {
      case DIR_GMEMBER: {
        instruct *stmt = parse_block_directive(row);
        if (const char *name = DIR_opnd_text(stmt->oprnds[0])) {
          add_member(stmt, group, name);
          ++members;
        }
        IR_free(stmt);
        break;
      }
      case DIR_END: {
        instruct *stmt = parse_block_directive(row);
        GD_end(stmt);
        IR_free(stmt);
        break;
      }
      case DIR_ENDGROUP: {
        instruct *stmt = parse_block_directive(row);
        IR_free(stmt);
        return members;
      }
      default:
        error(line, "E0900", "Invalid group contents");
        break;
    }
  }
  if (members) error(curline, "E0900", "Unexpected end-of-file.");
  return members;
}

}  // namespace

void DP_group(instruct *ir) {
  if (DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT)) DIR_read_slot(ir, 1, DPS_EXPR);
  skip_to_expected_eol(ir->line);
  if (is_comdat_kind(ir->oprnds[1]) && DIR_coff()) {
    error(ir->line, "E0900", "COMDAT Groups not supported for COFF");
    IR_free_oprnd(ir->oprnds[1]);
    ir->oprnds[1] = nullptr;
  }
}

void DP_gmember(instruct *ir) {
  DIR_read_slot(ir, 0, DPS_STRING | DPS_IDENT);
  skip_to_expected_eol(ir->line);
}

void GD_group(instruct *ir) {
  const char *name = DIR_opnd_text(ir->oprnds[0]);
  if (!name || !ir->oprnds[1]) return;
  const bool pushed = curseg != nullptr;
  if (pushed) SCN_push();

  section_record *group = nullptr;
  if (is_comdat_kind(ir->oprnds[1])) {
    SCN_queue(SCN_KIND_GROUP, name);
    group = curseg;
    SYM_mark_referenced(group->scn_symbol);
    if (pass1) {
      if (OFE::ELF_SECTION *elf = DIR_elf_section(group)) {
        elf->set_sh_type(OFE::SHT_GROUP);
        elf->set_sh_flags(0);
        group->scn_group_kind = COMDAT_GROUP;
      }
    }
  } else {
    error(ir->line, "E0900", "Illegal group kind");
  }

  if (!read_group_block(group)) warn(ir->line, "W0005", "Group does not contain any members");
  if (pushed) SCN_pop();
}

void GD_gmember(instruct *ir) { error(ir->line, "E0900", "Matching .group directive is not present"); }

void GD_endgroup(instruct *ir) { error(ir->line, "E0900", "Matching .group directive is not present"); }
