// Branch chains: a pseudo-branch that would need a long form may instead
// jump to a nearer branch with the same target, and stay short.
#include <unordered_map>
#include <vector>

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

int32_t distance_to_target(const jumprec *rec) {
  return static_cast<int32_t>(rec->dest->v_val.to_u32() - rec->pc - 4);
}

// The search for one branch: the best candidate so far.
struct chain_choice {
  jumprec *rec;
  bool backward;
  uint32_t before;  // the branch's length before the search
  int64_t cap;
  uint32_t best;
  jumprec *candidate = nullptr;

  chain_choice(const section_record *section, jumprec *r, int64_t links_cap)
      : rec(r), backward(distance_to_target(r) < 0), before(VLI_jump_size(section, r)), cap(links_cap),
        best(before) {}

  // Weighs c, with `sum` the lengths of the branches passed up to c
  // (included). False when c is too far to take, whatever it is.
  bool consider(jumprec *c, int64_t sum) {
    const int64_t distance = static_cast<int64_t>(c->pc) - rec->pc + (backward ? -sum : sum);
    const uint32_t t = VLI_length_for(rec->kind, distance);
    if (t >= before) return false;
    if (c->dest != rec->dest) return true;
    if (is_conditional(c) && (!is_conditional(rec) || c->cond != rec->cond)) return true;
    // Among equals, forward the last candidate wins, backward the first.
    if (backward ? t >= best : t > best) return true;
    if (links_behind(c, cap) >= rec->chain_limit) return true;
    best = t;
    candidate = c;
    return true;
  }

  bool take() {
    if (!candidate) return false;
    rec->chain = candidate;
    rec->chain_size = best;
    return true;
  }
};

// Sums of the lengths of a section's jumps in list order, as chains change them.
class length_sums {
 public:
  explicit length_sums(size_t n) : tree_(n + 1, 0) {}
  void add(size_t k, int64_t v) {
    for (++k; k < tree_.size(); k += k & (~k + 1)) tree_[k] += v;
  }
  int64_t upto(size_t k) const {  // jumps 0 to k - 1
    int64_t s = 0;
    for (; k; k -= k & (~k + 1)) s += tree_[k];
    return s;
  }

 private:
  std::vector<int64_t> tree_;
};

// Every search of a section at once: candidates come only from the branches
// with the same target, and the lengths passed from running sums.
void chain_section(section_record *section) {
  std::vector<jumprec *> jumps;
  for (jumprec *r = section->scn_jumps.head; r; r = r->next)
    if (is_jump_kind(r->kind)) jumps.push_back(r);
  const auto cap = static_cast<int64_t>(jumps.size());
  length_sums sums(jumps.size());
  std::vector<uint32_t> length(jumps.size());
  std::unordered_map<const value_record *, std::vector<uint32_t>> same_target;
  std::vector<uint32_t> place(jumps.size());  // index in its same_target list
  bool ascending = true;
  for (uint32_t k = 0; k < jumps.size(); ++k) {
    if (k && jumps[k]->pc <= jumps[k - 1]->pc) ascending = false;
    length[k] = VLI_jump_size(section, jumps[k]);
    sums.add(k, length[k]);
    auto &list = same_target[jumps[k]->dest];
    place[k] = static_cast<uint32_t>(list.size());
    list.push_back(k);
  }
  for (uint32_t k = 0; k < jumps.size(); ++k) {
    jumprec *rec = jumps[k];
    if (rec->chain_limit == 0 || length[k] < 3 || distance_to_target(rec) == 0) continue;
    chain_choice choice(section, rec, cap);
    const std::vector<uint32_t> &list = same_target[rec->dest];
    if (choice.backward) {
      // The sum runs from the head of the list.
      for (uint32_t i = 0; i < place[k]; ++i) choice.consider(jumps[list[i]], sums.upto(list[i] + 1));
    } else {
      // Ahead, distances only grow (with addresses that do): the first that
      // is too far ends the search.
      const int64_t passed = sums.upto(k + 1);
      for (uint32_t i = place[k] + 1; i < list.size(); ++i)
        if (!choice.consider(jumps[list[i]], sums.upto(list[i] + 1) - passed) && ascending) break;
    }
    if (choice.take()) {
      sums.add(k, static_cast<int64_t>(rec->chain_size) - length[k]);
      length[k] = rec->chain_size;
    }
  }
}

}  // namespace

bool can_chain_branch(section_record *section, jumprec *rec) {
  if (distance_to_target(rec) == 0) return false;
  chain_choice choice(section, rec, jump_count(section));
  // Backward the candidates run from the head up to the branch, forward from
  // behind it to the end; the sum reserves room for every branch passed.
  jumprec *const first = choice.backward ? section->scn_jumps.head : rec->next;
  const jumprec *const stop = choice.backward ? rec : nullptr;
  int64_t sum = 0;
  for (jumprec *c = first; c != stop; c = c->next) {
    if (!is_jump_kind(c->kind)) continue;
    sum += VLI_jump_size(section, c);
    choice.consider(c, sum);
  }
  return choice.take();
}

void reintroduce_branch_chains() {
  // The state in force at the end of pass 1 decides, not each branch's own.
  if (cur_state != STATE_THUMB16) return;
  for (section_record *s = seglist; s; s = s->scn_next) chain_section(s);
  for (section_record *s = seglist; s; s = s->scn_next) {
    const int64_t cap = jump_count(s);
    for (jumprec *r = s->scn_jumps.head; r; r = r->next) {
      if (is_jump_kind(r->kind) && r->chain && links_behind(r, cap) > r->chain_limit) r->chain = nullptr;
    }
  }
}
