// Branch chains: a pseudo-branch that would need a long form may instead
// jump to a nearer branch with the same target, and stay short.
#include "directives/sections.h"
#include "expr/value.h"
#include "target/arm/jumps.h"
#include "target/arm/jumps_internal.h"
#include "target/arm/opcodes.h"
#include "target/arm/trg.h"

namespace {

bool is_conditional(const jumprec *rec) { return rec->kind == JUMP_COND || rec->kind == JUMP_COND_FAR; }

// Links from `rec` along its chain; a cycle, should one form, counts as
// longer than any limit.
int64_t links_behind(const jumprec *rec, int64_t cap) {
  int64_t n = 0;
  for (const jumprec *p = rec->chain; p; p = p->chain) {
    if (++n > cap) break;
  }
  return n;
}

int64_t jump_count(const section_record *section) {
  int64_t n = 0;
  for (const jumprec *r = section->scn_jumps.head; r; r = r->next) n += is_jump_kind(r->kind);
  return n;
}

}  // namespace

bool can_chain_branch(section_record *section, jumprec *rec) {
  const auto d = static_cast<int32_t>(rec->dest->v_val.to_u32() - rec->pc - 4);
  if (d == 0) return false;
  const bool backward = d < 0;
  const bool conditional = is_conditional(rec);
  const uint32_t before = VLI_jump_size(section, rec);
  const int64_t cap = jump_count(section);
  uint32_t best = before;
  jumprec *best_candidate = nullptr;
  int64_t sum = 0;
  // Backward the candidates run from the head up to the branch, forward from
  // behind it to the end; the sum reserves room for every branch passed.
  jumprec *const first = backward ? section->scn_jumps.head : rec->next;
  const jumprec *const stop = backward ? rec : nullptr;
  for (jumprec *c = first; c != stop; c = c->next) {
    if (!is_jump_kind(c->kind)) continue;
    sum += VLI_jump_size(section, c);
    if (c->dest != rec->dest) continue;
    if (is_conditional(c) && (!conditional || c->cond != rec->cond)) continue;
    const int64_t distance = static_cast<int64_t>(c->pc) - rec->pc + (backward ? -sum : sum);
    const uint32_t t = VLI_length_for(rec->kind, distance);
    if (t >= before) continue;
    // Among equals, forward the last candidate wins, backward the first.
    if (backward ? t >= best : t > best) continue;
    if (links_behind(c, cap) >= rec->chain_limit) continue;
    best = t;
    best_candidate = c;
  }
  if (!best_candidate) return false;
  rec->chain = best_candidate;
  rec->chain_size = best;
  return true;
}

void reintroduce_branch_chains() {
  // The state in force at the end of pass 1 decides, not each branch's own.
  if (cur_state != STATE_THUMB16) return;
  for (section_record *s = seglist; s; s = s->scn_next) {
    for (jumprec *r = s->scn_jumps.head; r; r = r->next) {
      if (is_jump_kind(r->kind) && r->chain_limit != 0 && VLI_jump_size(s, r) >= 3) can_chain_branch(s, r);
    }
  }
  for (section_record *s = seglist; s; s = s->scn_next) {
    const int64_t cap = jump_count(s);
    for (jumprec *r = s->scn_jumps.head; r; r = r->next) {
      if (is_jump_kind(r->kind) && r->chain && 1 + links_behind(r->chain, cap) > r->chain_limit) r->chain = nullptr;
    }
  }
}
