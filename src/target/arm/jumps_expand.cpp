// The fix-point between the passes: lengths grow until every jump reaches,
// and the labels and alignment gaps behind a grown jump follow it.
//
// A growth moves everything behind it until an alignment gap absorbs it.
// Walking the list behind each growth would make a sweep quadratic; instead
// one pass carries the sum of the growths ahead of it. An alignment gap then
// sees all of them at once, which comes to the same: with its pad kept within
// one unit, a gap maps the total shift D arriving at it to
// D + ((pad - D) mod unit) - pad, whatever the steps D came in.
// A jump to a label further on needs that label where the growths so far have
// put it; the gaps in between are composed in a segment tree.
#include <cstdio>
#include <unordered_map>
#include <vector>

#include "directives/sections.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "expr/value.h"
#include "target/arm/jumps.h"
#include "target/arm/jumps_internal.h"

namespace {

int64_t mod(int64_t a, int64_t unit) {
  const int64_t m = a % unit;
  return m < 0 ? m + unit : m;
}

// D -> D + ((rem - D) mod unit) + add: the shift behind one or more gaps for
// a shift D in front of them. Units are powers of two, so the composition of
// two such maps is one again, with the larger unit.
struct shift_map {
  int64_t unit = 1;
  int64_t rem = 0;
  int64_t add = 0;

  int64_t operator()(int64_t d) const { return d + mod(rem - d, unit) + add; }
};

// g after f.
shift_map then(const shift_map &f, const shift_map &g) {
  if (g.unit <= f.unit) return {f.unit, f.rem, f.add + g.add + mod(g.rem - f.rem - f.add, g.unit)};
  // The smallest v >= f's result in g's class is the smallest v >= D + e.
  const int64_t s = g.rem - f.add;
  const int64_t e = mod(s - f.rem, f.unit);
  return {g.unit, mod(s - e, g.unit), f.add + g.add + e};
}

struct node {
  jumprec *rec;
  uint32_t value = 0;    // label: its value; jump: its pc
  int64_t moved = 0;     // label: how far it moved
  int64_t unit = 1;      // alignment
  int64_t pad = 0;
  int32_t target = -1;   // jump: the node of its label, or -1
  uint32_t dest = 0;     // jump: the target's value when it has no node
  VLI_size_rule rule = VLI_size_rule::keep;
  uint32_t size = 0;     // jump: its length under VLI_size_rule::fixed
};

class section_sweep {
 public:
  explicit section_sweep(section_record *section);
  bool sweep();
  void store() const;

 private:
  uint32_t target_value(size_t at, const node &jump, int64_t shift);
  void build_tree();

  std::vector<node> nodes_;
  std::vector<uint32_t> aligns_before_;  // per node: alignment nodes ahead of it
  std::vector<uint32_t> align_nodes_;
  std::vector<shift_map> tree_;
  bool tree_built_ = false;
};

section_sweep::section_sweep(section_record *section) {
  std::unordered_map<const value_record *, int32_t> label_node;
  for (jumprec *r = section->scn_jumps.head; r; r = r->next) {
    node n{r};
    if (r->kind == JUMP_LABEL) {
      n.value = r->label_value->v_val.to_u32();
      label_node.emplace(r->label_value, static_cast<int32_t>(nodes_.size()));
    } else if (r->kind == JUMP_ALIGN) {
      n.unit = int64_t{1} << (r->power < 62 ? r->power : 62);
      n.pad = r->pad;
      align_nodes_.push_back(static_cast<uint32_t>(nodes_.size()));
    } else if (is_jump_kind(r->kind)) {
      n.value = r->pc;
      n.rule = VLI_rule_of(section, r, &n.size);
      if (r->size_index >= isize_list.size()) n.rule = VLI_size_rule::keep;
    }
    aligns_before_.push_back(static_cast<uint32_t>(align_nodes_.size()));
    nodes_.push_back(n);
  }
  for (node &n : nodes_) {
    if (n.rule != VLI_size_rule::distance) continue;
    const auto found = label_node.find(n.rec->dest);
    if (found != label_node.end()) {
      n.target = found->second;
    } else {
      n.dest = n.rec->dest->v_val.to_u32();
    }
  }
}

void section_sweep::build_tree() {
  const size_t m = align_nodes_.size();
  tree_.assign(2 * m, shift_map{});
  for (size_t k = 0; k < m; ++k) {
    const node &a = nodes_[align_nodes_[k]];
    tree_[m + k] = {a.unit, mod(a.pad, a.unit), -a.pad};
  }
  for (size_t k = m; k-- > 1;) tree_[k] = then(tree_[2 * k], tree_[2 * k + 1]);
  tree_built_ = true;
}

uint32_t section_sweep::target_value(size_t at, const node &jump, int64_t shift) {
  if (jump.target < 0) return jump.dest;
  const auto t = static_cast<size_t>(jump.target);
  const node &label = nodes_[t];
  // Behind: already moved in this sweep. Ahead: untouched so far, so the gaps
  // in between still hold their pads of the sweep's start.
  if (t < at || shift == 0) return label.value;
  if (!tree_built_) build_tree();
  shift_map left, right;
  const size_t m = align_nodes_.size();
  for (size_t l = aligns_before_[at] + m, r = aligns_before_[t] + m; l < r; l >>= 1, r >>= 1) {
    if (l & 1) left = then(left, tree_[l++]);
    if (r & 1) right = then(tree_[--r], right);
  }
  return label.value + static_cast<uint32_t>(then(left, right)(shift));
}

bool section_sweep::sweep() {
  bool changed = false;
  tree_built_ = false;
  int64_t shift = 0;  // what the growths so far have moved this point by
  for (size_t i = 0; i < nodes_.size(); ++i) {
    node &n = nodes_[i];
    const JUMP_LIST_TYPE kind = n.rec->kind;
    if (kind == JUMP_LABEL) {
      n.value += static_cast<uint32_t>(shift);
      n.moved += shift;
    } else if (kind == JUMP_ALIGN) {
      if (shift == 0) continue;
      int64_t pad = n.pad - shift;
      if (pad < 0) {
        // The gap is exhausted: what follows moves by whole units.
        const int64_t units = (-pad + n.unit - 1) / n.unit;
        pad += units * n.unit;
        shift = units * n.unit;
      } else if (pad < n.unit) {
        shift = 0;  // absorbed
      } else {
        // The gap had more than a unit: what follows moves back.
        const int64_t units = pad / n.unit;
        pad -= units * n.unit;
        shift = -units * n.unit;
      }
      n.pad = pad;
    } else if (is_jump_kind(kind)) {
      n.value += static_cast<uint32_t>(shift);
      uint32_t size = n.size;
      if (n.rule == VLI_size_rule::keep) continue;
      if (n.rule == VLI_size_rule::distance) {
        size = VLI_length_for(kind, VLI_jump_offset(kind, target_value(i, n, shift), n.value));
      }
      uint32_t &length = isize_list[n.rec->size_index];
      if (size <= length) continue;  // lengths only grow: the loop ends
      shift += size - length;
      length = size;
      changed = true;
    }
  }
  return changed;
}

void section_sweep::store() const {
  for (const node &n : nodes_) {
    jumprec *r = n.rec;
    if (r->kind == JUMP_LABEL) {
      if (n.moved) r->label_value->v_val += xi_from_i64(n.moved);
    } else if (r->kind == JUMP_ALIGN) {
      r->pad = static_cast<int32_t>(n.pad);
    } else if (is_jump_kind(r->kind)) {
      r->pc = n.value;
    }
  }
}

int sweeps_reported = 0;

void trace_sweep(const section_record *section) {
  std::printf(" PASS 1.%d ON SECTION %-8s\n", ++sweeps_reported, section->name());
}

}  // namespace

int VLI_expand_section(section_record *section, void (*trace)(const section_record *)) {
  section_sweep work(section);
  int sweeps = 0;
  bool changed = true;
  while (changed) {
    if (trace) trace(section);
    ++sweeps;
    changed = work.sweep();
  }
  work.store();
  return sweeps;
}

void expand_jumps() {
  const bool traced = opt_on(OPT_DEBUG_D) || opt_on(OPT_EX);
  for (section_record *s = seglist; s; s = s->scn_next) {
    if (s->scn_jumps.head) VLI_expand_section(s, traced ? trace_sweep : nullptr);
  }
  VLI_index_chains();
}
