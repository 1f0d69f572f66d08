// Relocation expressions: a tree that folding could not reduce becomes a
// postfix program of relocation operations in v_rel.
#include <cstdlib>
#include <map>
#include <memory>

#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/expr_internal.h"
#include "expr/reloc.h"
#include "ofe/object_file.h"
#include "source/lexer.h"
#include "support/memory.h"

namespace {

// Operations by opcode; 0 where a node has no relocation operation.
constexpr uint32_t op_templates[EOP_COUNT] = {
    0, 0, 0, 0,                                           // ICON FCON SPC SYM: leaves
    OFE::OFRE_ADD, OFE::OFRE_SUB, OFE::OFRE_MPY, OFE::OFRE_DIV, OFE::OFRE_MOD,
    OFE::OFRE_SR, OFE::OFRE_ASR, OFE::OFRE_SL,
    OFE::OFRE_AND, OFE::OFRE_OR, OFE::OFRE_XOR, OFE::OFRE_NOTB,
    OFE::OFRE_NEG,
    0, 0, 0, 0, 0, 0, 0,                                  // comparisons, NOT
};

// Elements of v_rel are 8-bit counted; the array grows by this many.
constexpr unsigned REL_GROWTH = 10;
constexpr unsigned REL_LIMIT = 256;

relrec element(uint32_t template_id) {
  relrec r{};
  r.rr_type = const_cast<OFE::OF_RELOC_TYPE *>(RELOC_op_type(template_id));
  return r;
}

void append_leaf(value_record *value, const node *n) {
  const value_record *leaf = n->n_value;
  switch (n->n_op) {
    case EOP_ICON: {
      relrec r = element(leaf->v_val.is_negative() ? OFE::OFRE_PUSHSK : OFE::OFRE_PUSHUK);
      r.rr_value.k = leaf->v_val.to_u32();
      E_rel_cat(value, r);
      return;
    }
    case EOP_SPC: {
      relrec r = element(OFE::OFRE_PUSHPC);
      r.rr_value.k = leaf->v_val.to_u32();
      E_rel_cat(value, r);
      return;
    }
    case EOP_SYM: {
      // A symbol that stands for an expression brings its program along.
      if (leaf->v_rel) {
        for (unsigned i = 0; i < leaf->v_rel_count; ++i) E_rel_cat(value, leaf->v_rel[i]);
        return;
      }
      relrec r = element(OFE::OFRE_PUSH);
      r.rr_symbol = RELOC_symbol(leaf);
      E_rel_cat(value, r);
      return;
    }
    default:
      break;
  }
}

}  // namespace

const OFE::OF_RELOC_TYPE *RELOC_op_type(uint32_t template_id) {
  if (!ofile) return nullptr;
  const OFE::OF_RELOC_TYPE_TABLE &table = ofile->reloc_types();
  if (const OFE::OF_RELOC_TYPE *t = table.by_template_id(template_id)) return t;
  const OFE::OF_RELOC_TEMPLATE *tmpl = table.find_template(template_id);
  if (!tmpl) return nullptr;
  // ELF stores no operations; the program still needs them to be recognised.
  static std::map<uint32_t, std::unique_ptr<OFE::OF_RELOC_TYPE>> bare;
  auto &slot = bare[template_id];
  if (!slot || slot->reloc_template() != tmpl)
    slot = std::make_unique<OFE::OF_RELOC_TYPE>(tmpl->name, 0, template_id, tmpl);
  return slot.get();
}

const OFE::OF_RELOC_TYPE *reloc_signedness(const OFE::OF_RELOC_TYPE *type) {
  switch (type ? type->template_id() : 0) {
    case OFE::OFR_PCRBYTE:
    case OFE::OFR_PCRWORD:
    case OFE::OFR_PCRLONG:
    case OFE::OFR_ARM_PC24:
    case OFE::OFR_ARM_THM_CALL:
    case OFE::OFR_ARM_THM_JUMP24:
    case OFE::OFR_ARM_THM_JUMP19:
      return RELOC_op_type(OFE::OFRE_SSTFLD);
    default:
      return RELOC_op_type(OFE::OFRE_XSTFLD);
  }
}

void E_rel_alloc(value_record *value, unsigned n) {
  const unsigned need = value->v_rel_count + n;
  if (need >= REL_LIMIT) {
    error_internal(1, curline, "Relocation expression failure");
    return;
  }
  if (need <= value->v_rel_cap) return;
  unsigned cap = value->v_rel_cap;
  while (cap < need) cap += REL_GROWTH;
  if (cap >= REL_LIMIT) cap = REL_LIMIT - 1;
  value->v_rel = static_cast<relrec *>(saferealloc(value->v_rel, sizeof(relrec) * cap));
  value->v_rel_cap = static_cast<uint8_t>(cap);
}

void E_rel_cat(value_record *value, const relrec &r) {
  E_rel_alloc(value, 1);
  if (value->v_rel_count >= value->v_rel_cap) return;
  value->v_rel[value->v_rel_count++] = r;
}

void E_reloc(value_record *value, node *n) {
  E_clrval(value);
  value->v_type = 0;
  bool known = true, forward = false, has_float = false;
  const value_record *reloc_leaf = nullptr;
  bool bad_node = false;
  // Pass 1 only sizes statements: a program would be thrown away, and a
  // chain of forward references would make one of any length.
  const bool build = pass2 && ofile;
  E_walk(
      n, [](node *, int) {},
      [&](node *m, int) {
        if (const value_record *leaf = m->n_value) {
          known = known && leaf->v_known;
          forward = forward || leaf->v_forward;
          if (!reloc_leaf && is_relocatable(leaf)) reloc_leaf = leaf;
          if (m->n_op == EOP_FCON)
            has_float = true;
          else if (build)
            append_leaf(value, m);
          return m;
        }
        uint32_t id = m->n_op < EOP_COUNT ? op_templates[m->n_op] : 0;
        if (m->n_op == EOP_SUB && !m->n_right) id = OFE::OFRE_NEG;
        if (!id)
          bad_node = true;
        else if (build)
          E_rel_cat(value, element(id));
        return m;
      });
  value->v_known = known;
  value->v_forward = forward;
  // A relocatable tree keeps its type so that pass 1 sizes the statement as
  // pass 2 will.
  value->v_type = reloc_leaf ? reloc_leaf->v_type : 0;
  // Folding has reported a floating operand already.
  if (has_float || !build) {
    std::free(value->v_rel);
    value->v_rel = nullptr;
    value->v_rel_count = value->v_rel_cap = 0;
    return;
  }
  if (bad_node) error_internal(1, curline, "illegal reloc expr node!");
}
