// Jump expansion: the length rule at every limit, the records pass 1 makes,
// the fix-point against a plain walk behind each growth, and branch chains.
#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "directives/section_pending.h"
#include "directives/sections.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "expr/reloc.h"
#include "expr/symbols_internal.h"
#include "expr/value.h"
#include "target/arm/instr.h"
#include "target/arm/jumps.h"
#include "target/arm/jumps_internal.h"
#include "target/arm/trg.h"

namespace {

// A section laid out as pass 1 would: code, labels, alignments and jumps
// (2 bytes each) at a running address, records made by the real entries.
struct layout {
  section_record section{};
  std::deque<symbol_record> symbols;
  std::map<std::string, symbol_record *> names;
  std::vector<jumprec *> jumps;
  uint32_t pc = 0;
  // Records even the alignments that VLI_addalign leaves out.
  bool every_align = false;

  layout() { curseg = &section; }

  symbol_record *sym(const std::string &name) {
    symbol_record *&s = names[name];
    if (!s) {
      s = &symbols.emplace_back();
      s->sym_name = name;
      s->sym_value.v_type = VT_UNDEFSYM;
      s->sym_value.v_symbol = s;
    }
    return s;
  }
  void code(uint32_t bytes) { pc += bytes; }
  symbol_record *label(const std::string &name) {
    symbol_record *s = sym(name);
    if (s->sym_value.v_type == VT_LABEL) return s;  // the first definition stands
    s->sym_value.v_type = VT_LABEL;
    s->sym_value.v_val = xi_from_uint(pc);
    s->sym_value.v_section = &section;
    s->sym_section = &section;
    curseg = &section;
    if (section.scn_jumps.head) SYM_record_label_jump(s);
    return s;
  }
  void align(int power) {
    const uint32_t unit = 1u << power;
    const uint32_t pad = (unit - pc % unit) % unit;
    curseg = &section;
    if (every_align && power > 0 && section.scn_jumps.head)
      VLI_addjump(JUMP_ALIGN, 0, nullptr, 0, nullptr, nullptr, static_cast<uint16_t>(power), static_cast<int32_t>(pad));
    else if (section.scn_jumps.head)
      VLI_addalign(power, static_cast<int32_t>(pad));
    pc += pad;
  }
  jumprec *jump(JUMP_LIST_TYPE kind, const std::string &target, uint8_t cond = COND_NV, int32_t limit = 0) {
    value_record operand = sym(target)->sym_value;  // what the statement's operand holds
    curseg = &section;
    jumprec *const before = section.scn_jumps.tail;
    VLI_addjump_cond(kind, pc, &operand, static_cast<uint32_t>(isize_list.size()), nullptr, nullptr, 0, cond,
                     limit);
    VLI_push(2);
    pc += 2;
    jumprec *made = section.scn_jumps.tail != before ? section.scn_jumps.tail : nullptr;
    jumps.push_back(made);
    return made;
  }
  uint32_t length(size_t jump) const { return isize_list[jumps[jump]->size_index]; }
  uint32_t at(const std::string &name) const { return names.at(name)->sym_value.v_val.to_u32(); }
};

class Jumps : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_seglist_ = seglist;
    saved_curseg_ = curseg;
    saved_state_ = cur_state;
    isize_list.clear();
  }
  void TearDown() override {
    seglist = nullptr;  // the layouts of the test are gone
    VLI_free_jumps();
    seglist = saved_seglist_;
    curseg = saved_curseg_;
    cur_state = saved_state_;
    isize_list.clear();
  }
  // The sections taking part, in seglist order.
  static void use(std::initializer_list<layout *> sections) {
    section_record **link = &seglist;
    for (layout *l : sections) {
      *link = &l->section;
      link = &l->section.scn_next;
    }
    *link = nullptr;
  }

 private:
  section_record *saved_seglist_ = nullptr;
  section_record *saved_curseg_ = nullptr;
  uint32_t saved_state_ = 0;
};

// The length of one jump of `kind` at pc 0x100 whose label stands so that
// dest - pc - 4 is `off`.
uint32_t size_at(JUMP_LIST_TYPE kind, int32_t off) {
  section_record section{};
  symbol_record label{};
  label.sym_value.v_type = VT_LABEL;
  label.sym_value.v_section = &section;
  label.sym_value.v_val = xi_from_uint(0x100u + 4 + static_cast<uint32_t>(off));
  jumprec rec{};
  rec.kind = kind;
  rec.pc = 0x100;
  rec.dest = &label.sym_value;
  return VLI_jump_size(&section, &rec);
}

TEST(JumpSize, EveryKindAtAndAcrossItsLimits) {
  // 8-bit fields: -256 to 254.
  EXPECT_EQ(size_at(JUMP_COND, 254), 2u);
  EXPECT_EQ(size_at(JUMP_COND, 256), 4u);
  EXPECT_EQ(size_at(JUMP_COND, -256), 2u);
  EXPECT_EQ(size_at(JUMP_COND, -258), 4u);
  EXPECT_EQ(size_at(JUMP_COND, 100000), 4u);
  // 11-bit fields: -2048 to 2046.
  EXPECT_EQ(size_at(JUMP_UNCOND, 2046), 2u);
  EXPECT_EQ(size_at(JUMP_UNCOND, 2048), 4u);
  EXPECT_EQ(size_at(JUMP_UNCOND, -2048), 2u);
  EXPECT_EQ(size_at(JUMP_UNCOND, -2050), 4u);
  // Conditional pseudo-branch: the second halfword reaches from 2 further on.
  EXPECT_EQ(size_at(JUMP_COND_FAR, 254), 2u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, 256), 4u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, 300), 4u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, 2048), 4u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, 2050), 6u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, 3000), 6u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, -258), 4u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, -2046), 4u);
  EXPECT_EQ(size_at(JUMP_COND_FAR, -2048), 6u);
  // Loads: forward only, to 1020, the offset rounded up to a word first.
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, 0), 2u);
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, 1017), 2u);
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, 1020), 2u);
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, 1021), 4u);
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, 1024), 4u);
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, -3), 2u);  // rounds up to 0
  EXPECT_EQ(size_at(JUMP_LOAD_ADDR, -4), 4u);
  // Offsets far out of 32-bit reach and the widths at their ends.
  EXPECT_EQ(VLI_width(0), 1);
  EXPECT_EQ(VLI_width(-1), 1);
  EXPECT_EQ(VLI_width(1), 2);
  EXPECT_EQ(VLI_width(-2), 2);
  EXPECT_EQ(VLI_width((int64_t{1} << 30) - 1), 31);
  EXPECT_EQ(VLI_width(-(int64_t{1} << 30)), 31);
  EXPECT_EQ(VLI_width(int64_t{1} << 30), 32);
  EXPECT_EQ(VLI_width(INT64_MIN), 32);
  EXPECT_EQ(size_at(JUMP_COND_FAR, INT32_MIN), 6u);
}

TEST_F(Jumps, SizeOfTargetsThatAreNoDistance) {
  layout a, b;
  a.label("here");
  b.label("there");
  a.code(8);
  a.sym("there")->sym_value = b.sym("there")->sym_value;
  jumprec *to_other = a.jump(JUMP_COND, "there");
  jumprec *to_extern = a.jump(JUMP_UNCOND, "nowhere");
  a.sym("five")->sym_value.v_type = VT_ICON;  // an absolute symbol: kept as recorded
  jumprec *to_const = a.jump(JUMP_UNCOND, "five");
  jumprec *near = a.jump(JUMP_UNCOND, "here");
  ASSERT_TRUE(to_other && to_extern && to_const && near);
  EXPECT_EQ(VLI_jump_size(&a.section, to_other), 4u);
  EXPECT_EQ(VLI_jump_size(&a.section, to_extern), 4u);
  isize_list[to_const->size_index] = 6;
  EXPECT_EQ(VLI_jump_size(&a.section, to_const), 6u);
  EXPECT_EQ(VLI_jump_size(&a.section, near), 2u);
  near->chain = to_other;
  near->chain_size = 4;
  EXPECT_EQ(VLI_jump_size(&a.section, near), 4u);  // the chained length, whatever the distance
}

TEST_F(Jumps, SimpleLabelsAndTheRecordsPassOneMakes) {
  layout a, b;
  symbol_record *early = a.label("early");
  symbol_record *other = b.label("other");
  value_record v = early->sym_value;
  EXPECT_TRUE(VLI_dst_is_simple_label(&v));
  v.v_val = xi_from_uint(4);  // label + 4
  EXPECT_FALSE(VLI_dst_is_simple_label(&v));
  v = other->sym_value;
  v.v_section = &a.section;
  EXPECT_FALSE(VLI_dst_is_simple_label(&v));
  v = a.sym("fwd")->sym_value;
  EXPECT_TRUE(VLI_dst_is_simple_label(&v));
  v.v_val = xi_from_uint(2);
  EXPECT_FALSE(VLI_dst_is_simple_label(&v));
  v = early->sym_value;
  v.v_type = VT_SCNREL;
  EXPECT_FALSE(VLI_dst_is_simple_label(&v));
  v = early->sym_value;
  relrec rel{};
  v.v_rel = &rel;
  EXPECT_FALSE(VLI_dst_is_simple_label(&v));

  // Ahead of the first jump nothing is recorded, and a target that is not
  // simple gets no record.
  curseg = &a.section;
  VLI_addalign(2, 2);
  SYM_record_label_jump(early);
  EXPECT_EQ(a.section.scn_jumps.head, nullptr);
  a.code(4);
  value_record plus4 = early->sym_value;
  plus4.v_val = xi_from_uint(4);
  VLI_addjump_cond(JUMP_UNCOND, a.pc, &plus4, 0, nullptr, nullptr, 0, COND_NV, 0);
  EXPECT_EQ(a.section.scn_jumps.head, nullptr);
  jumprec *j = a.jump(JUMP_COND, "fwd", COND_NE, 3);
  ASSERT_NE(j, nullptr);
  EXPECT_EQ(j->dest, &a.sym("fwd")->sym_value);  // the symbol's own value, not the operand's
  EXPECT_EQ(j->cond, COND_NE);
  EXPECT_EQ(j->chain_limit, 3);
  EXPECT_EQ(j->size_index, isize_list.size() - 1);
  a.code(1);
  a.align(0);  // alignments to 2 bytes or less never move anything: no record
  a.code(1);
  a.align(1);
  a.code(2);
  a.align(3);
  a.label("fwd");
  curseg = &a.section;
  VLI_addjump(JUMP_UNCOND, a.pc, &early->sym_value, 0, nullptr, nullptr, 0, 0);
  std::vector<JUMP_LIST_TYPE> kinds;
  for (const jumprec *r = a.section.scn_jumps.head; r; r = r->next) kinds.push_back(r->kind);
  EXPECT_EQ(kinds, (std::vector<JUMP_LIST_TYPE>{JUMP_COND, JUMP_ALIGN, JUMP_LABEL, JUMP_UNCOND}));
  EXPECT_EQ(a.section.scn_jumps.tail->cond, COND_NV);
  EXPECT_EQ(a.section.scn_jumps.head->next->pad, 6);
}

TEST_F(Jumps, AWideningPushesAnEarlierBranchOutOfReach) {
  layout a;
  a.label("before");
  a.jump(JUMP_UNCOND, "y");   // off 2046 in pass 1: fits until the jump behind it grows
  a.jump(JUMP_UNCOND, "far");
  a.code(2046);
  a.label("y");
  a.code(10);
  a.label("far");
  a.jump(JUMP_COND, "before");  // backward, 2062 back: grows, moves nothing behind it
  use({&a});
  EXPECT_EQ(VLI_expand_section(&a.section, nullptr), 3);
  EXPECT_EQ(a.length(0), 4u);
  EXPECT_EQ(a.length(1), 4u);
  EXPECT_EQ(a.length(2), 4u);
  EXPECT_EQ(a.at("before"), 0u);  // ahead of the first jump: never moves
  EXPECT_EQ(a.at("y"), 2046u + 4 + 4);
  EXPECT_EQ(a.at("far"), 2064u);
  EXPECT_EQ(a.jumps[1]->pc, 4u);
  EXPECT_EQ(a.jumps[2]->pc, 2064u);
}

TEST_F(Jumps, AlignmentGapsAbsorbGrowthUntilExhausted) {
  layout a;
  a.jump(JUMP_COND, "far");  // grows by 2
  a.code(4);
  a.align(3);                // gap 2 at 6 takes it
  a.label("l1");
  a.jump(JUMP_COND, "far");  // grows by 2
  a.align(2);                // gap 2 at 10 takes it
  a.jump(JUMP_COND, "far");  // grows by 2
  a.code(2);
  a.align(2);                // gap 0 at 16: exhausted, what follows moves by 4
  a.label("l2");
  a.code(300);
  a.label("far");
  use({&a});
  expand_jumps();
  EXPECT_EQ(a.length(0), 4u);
  EXPECT_EQ(a.length(1), 4u);
  EXPECT_EQ(a.length(2), 4u);
  EXPECT_EQ(a.at("l1"), 8u);
  EXPECT_EQ(a.at("l2"), 20u);
  EXPECT_EQ(a.at("far"), 320u);
  std::vector<int32_t> pads;
  for (const jumprec *r = a.section.scn_jumps.head; r; r = r->next)
    if (r->kind == JUMP_ALIGN) pads.push_back(r->pad);
  EXPECT_EQ(pads, (std::vector<int32_t>{0, 0, 2}));
  EXPECT_EQ(a.jumps[1]->pc, 8u);
  EXPECT_EQ(a.jumps[2]->pc, 12u);
}

// The plain walk: each growth moves everything behind it until a gap
// absorbs it.
int walk_expand(section_record *s) {
  int sweeps = 0;
  bool changed = true;
  while (changed) {
    ++sweeps;
    changed = false;
    for (jumprec *r = s->scn_jumps.head; r; r = r->next) {
      if (!is_jump_kind(r->kind)) continue;
      const uint32_t now = VLI_jump_size(s, r);
      uint32_t &old = isize_list[r->size_index];
      if (now <= old) continue;
      int64_t delta = now - old;
      old = now;
      changed = true;
      for (jumprec *b = r->next; b; b = b->next) {
        if (b->kind == JUMP_LABEL) {
          b->label_value->v_val += xi_from_i64(delta);
        } else if (b->kind == JUMP_ALIGN) {
          const int32_t unit = 1 << b->power;
          b->pad -= static_cast<int32_t>(delta);
          if (b->pad < 0) {
            for (delta = 0; b->pad < 0; delta += unit) b->pad += unit;
          } else if (b->pad < unit) {
            break;
          } else {
            for (delta = 0; b->pad >= unit; delta -= unit) b->pad -= unit;
          }
        } else {
          b->pc += static_cast<uint32_t>(delta);
        }
      }
    }
  }
  return sweeps;
}

// A random section: code of every size, many labels and jumps of every kind
// to them (ahead, behind, never defined, absolute, in another section, some
// chained) and alignments of 2 to 16 bytes.
void random_layout(layout &l, layout &other, uint32_t seed) {
  std::mt19937 rng(seed);
  auto pick = [&](uint32_t n) { return static_cast<uint32_t>(rng() % n); };
  // Labels are numbered as they come; a jump mostly goes a few labels ahead
  // or back, sometimes anywhere, to a label that may never come.
  uint32_t labels = 1;
  l.sym("abs")->sym_value.v_type = VT_ICON;
  other.label("elsewhere");
  l.label("L0");
  const JUMP_LIST_TYPE kinds[] = {JUMP_COND, JUMP_UNCOND, JUMP_COND_FAR, JUMP_LOAD_ADDR};
  const uint32_t items = 20 + pick(400);
  for (uint32_t i = 0; i < items; ++i) {
    const uint32_t what = pick(10);
    if (what < 3) {
      // Often just short of a limit, so that growths tip jumps over it.
      const uint32_t near[] = {10, 10, 10, 116, 500, 1000};
      l.code(2 * (near[pick(6)] + pick(12)));
    } else if (what < 5) {
      l.label("L" + std::to_string(labels++));
    } else if (what < 6) {
      l.align(1 + static_cast<int>(pick(4)));
    } else {
      const uint32_t t = pick(20);
      const std::string target = t == 0 ? "abs" : t == 1 ? "elsewhere" : t == 2 ? "undefined"
                                                                     : "L" + std::to_string(t < 5 ? pick(labels + 40) : labels + pick(8) - 4);
      if (target == "elsewhere") l.sym(target)->sym_value = other.names["elsewhere"]->sym_value;
      jumprec *j = l.jump(kinds[pick(4)], target, static_cast<uint8_t>(pick(15)));
      jumprec *to = l.jumps[pick(static_cast<uint32_t>(l.jumps.size()))];
      if (j && to && to != j && pick(12) == 0) {
        j->chain = to;
        j->chain_size = 2 + 2 * pick(2);
      }
    }
  }
}

struct outcome {
  std::vector<uint32_t> lengths, pcs, labels;
  std::vector<int32_t> pads;
  int sweeps;
  bool operator==(const outcome &) const = default;
};

outcome results(const layout &l, int sweeps) {
  outcome o{{}, {}, {}, {}, sweeps};
  for (const jumprec *r = l.section.scn_jumps.head; r; r = r->next) {
    if (r->kind == JUMP_LABEL) o.labels.push_back(r->label_value->v_val.to_u32());
    if (r->kind == JUMP_ALIGN && r->power > 1) o.pads.push_back(r->pad);
    if (is_jump_kind(r->kind)) {
      o.pcs.push_back(r->pc);
      o.lengths.push_back(isize_list[r->size_index]);
    }
  }
  return o;
}

TEST_F(Jumps, OnePassPerSweepGivesThePlainWalksResults) {
  int grown = 0, moved = 0;
  for (uint32_t seed = 1; seed <= 1500; ++seed) {
    layout a, a_other, b, b_other;
    a.every_align = true;  // the plain walk sees the 2-byte alignments too
    random_layout(a, a_other, seed);
    random_layout(b, b_other, seed);
    const outcome before = results(a, 0);
    const outcome walked = results(a, walk_expand(&a.section));
    const outcome swept = results(b, VLI_expand_section(&b.section, nullptr));
    ASSERT_EQ(walked, swept) << "seed " << seed;
    grown += walked.sweeps > 2;
    moved += walked.labels != before.labels;
    VLI_free_jumps();
    isize_list.clear();
  }
  // The lists are meant to exercise the expansion, not only to settle at once.
  EXPECT_GT(grown, 100);
  EXPECT_GT(moved, 1000);
}

TEST_F(Jumps, ManyBranchesOverLargeGapsSettleQuickly) {
  // Every branch grows, and its growth passes every alignment behind it: a
  // walk behind each growth would take some 10^10 steps.
  layout a;
  for (int i = 0; i < 100000; ++i) {
    a.jump(JUMP_COND, "L" + std::to_string(i + 1000));
    a.code(2);
    a.align(2);
    a.label("L" + std::to_string(i));
  }
  for (int i = 100000; i < 101000; ++i) {
    a.label("L" + std::to_string(i));
    a.code(4);
  }
  EXPECT_EQ(VLI_expand_section(&a.section, nullptr), 2);
  EXPECT_EQ(a.length(99999), 4u);
  EXPECT_EQ(a.at("L0"), 8u);
  EXPECT_EQ(a.at("L100000"), 800000u);
}

TEST_F(Jumps, ChainSearchOfASectionAtOnceGivesTheSearchOfEachBranch) {
  // Many far pseudo-branches to few targets, ahead and behind, with every
  // condition and small limits.
  auto build = [](layout &a, uint32_t seed) {
    std::mt19937 rng(seed);
    auto pick = [&](uint32_t n) { return static_cast<uint32_t>(rng() % n); };
    const JUMP_LIST_TYPE kinds[] = {JUMP_COND, JUMP_UNCOND, JUMP_COND_FAR, JUMP_LOAD_ADDR};
    a.jump(JUMP_UNCOND, "T0");
    for (uint32_t i = 0; i < 300; ++i) {
      if (pick(8) == 0) a.label("T" + std::to_string(pick(4)));
      const auto cond = static_cast<uint8_t>(pick(3) == 0 ? uint32_t{COND_NV} : pick(3));
      a.jump(kinds[pick(4)], "T" + std::to_string(pick(4)), cond, static_cast<int32_t>(pick(4)));
      a.code(2 * pick(pick(4) == 0 ? 1000 : 60));
    }
  };
  int chained = 0;
  for (uint32_t seed = 1; seed <= 150; ++seed) {
    layout a, b;
    build(a, seed);
    build(b, seed);
    use({&a});
    for (jumprec *r = a.section.scn_jumps.head; r; r = r->next)
      if (is_jump_kind(r->kind) && r->chain_limit != 0 && VLI_jump_size(&a.section, r) >= 3)
        can_chain_branch(&a.section, r);
    for (jumprec *r = a.section.scn_jumps.head; r; r = r->next) {
      int64_t links = 0;
      for (const jumprec *p = r; p->chain && links <= 1000; p = p->chain) ++links;
      if (links > r->chain_limit) r->chain = nullptr;
    }
    use({&b});
    cur_state = 1;
    reintroduce_branch_chains();
    for (size_t k = 0; k < a.jumps.size(); ++k) {
      const jumprec *x = a.jumps[k], *y = b.jumps[k];
      ASSERT_EQ(x->chain != nullptr, y->chain != nullptr) << "seed " << seed << " jump " << k;
      if (!x->chain) continue;
      ++chained;
      EXPECT_EQ(x->chain->pc, y->chain->pc) << "seed " << seed << " jump " << k;
      EXPECT_EQ(x->chain_size, y->chain_size);
    }
    VLI_free_jumps();
    isize_list.clear();
  }
  EXPECT_GT(chained, 1000);
}

TEST_F(Jumps, ChainsOnlyInPlainThumbWithinTheirLimits) {
  auto build = [](layout &a, int32_t limit) {
    a.jump(JUMP_UNCOND, "t", COND_NV, limit);   // 0: far from t
    a.code(1000);
    a.jump(JUMP_UNCOND, "t", COND_NV, limit);   // 1, 2: half way
    a.jump(JUMP_UNCOND, "t", COND_NV, limit);
    a.code(1200);
    a.jump(JUMP_COND, "t", COND_EQ);            // 3: conditional: no target for the others
    a.code(900);
    a.label("t");
  };
  {
    layout a;
    build(a, 10);
    use({&a});
    cur_state = 2;  // Thumb-2 at the end of pass 1: no chains
    reintroduce_branch_chains();
    EXPECT_EQ(a.jumps[0]->chain, nullptr);
    cur_state = 1;
    reintroduce_branch_chains();
    EXPECT_EQ(a.jumps[0]->chain, a.jumps[2]);  // forward, the last of equals
    EXPECT_EQ(a.jumps[0]->chain_size, 2u);
    EXPECT_EQ(a.jumps[1]->chain, a.jumps[2]);
    EXPECT_EQ(a.jumps[2]->chain, nullptr);
    expand_jumps();
    EXPECT_EQ(a.length(0), 2u);
    EXPECT_EQ(a.length(1), 2u);
    EXPECT_EQ(a.length(2), 4u);
    EXPECT_EQ(a.length(3), 4u);
    // Pass 2 at a chained branch: the signed halfword offset to its chain.
    int out = 0;
    curpc = 0;
    EXPECT_TRUE(chained_branch(117, &out));
    EXPECT_EQ(out, (1004 - 4) / 2);
    EXPECT_FALSE(chained_branch(114, &out));
    curpc = 1002;
    EXPECT_TRUE(chained_branch(118, &out));
    EXPECT_EQ(out, -1);
    curpc = 1004;
    EXPECT_FALSE(chained_branch(117, &out));
    cur_state = 2;
    curpc = 0;
    EXPECT_FALSE(chained_branch(117, &out));
    VLI_free_jumps();
  }
  {
    layout a;
    build(a, 0);  // --max_branch_chain=0 and no limit given
    use({&a});
    cur_state = 1;
    reintroduce_branch_chains();
    EXPECT_EQ(a.jumps[0]->chain, nullptr);
    EXPECT_EQ(a.jumps[1]->chain, nullptr);
    VLI_free_jumps();
  }
  {
    // Each may join a chain of one link. The search runs in list order, so
    // 0 and 1 find their candidates still unlinked; the count afterwards
    // drops the chains that came out too long.
    layout a;
    for (int i = 0; i < 3; ++i) {
      a.jump(JUMP_UNCOND, "t", COND_NV, 1);
      a.code(1200);
    }
    a.jump(JUMP_UNCOND, "t", COND_NV, 0);
    a.code(1200);
    a.label("t");
    use({&a});
    cur_state = 1;
    reintroduce_branch_chains();
    EXPECT_EQ(a.jumps[0]->chain, nullptr);
    EXPECT_EQ(a.jumps[1]->chain, nullptr);
    EXPECT_EQ(a.jumps[2]->chain, a.jumps[3]);
    VLI_free_jumps();
  }
  {
    // Backward: conditional far branches chain to one with the same
    // condition or to an unconditional one, the first of equals.
    layout a;
    a.label("t");
    a.code(3000);
    a.jump(JUMP_COND_FAR, "t", COND_NE, 5);  // 0
    a.jump(JUMP_COND_FAR, "t", COND_EQ, 5);  // 1
    a.jump(JUMP_COND_FAR, "t", COND_NE, 5);  // 2: to 0
    a.jump(JUMP_COND_FAR, "t", COND_EQ, 5);  // 3: to 1
    a.jump(JUMP_UNCOND, "t", COND_NV, 0);     // 4
    a.jump(JUMP_UNCOND, "t", COND_NV, 0);     // 5
    a.jump(JUMP_COND_FAR, "t", COND_GT, 5);  // 6: to 4
    use({&a});
    cur_state = 1;
    reintroduce_branch_chains();
    EXPECT_EQ(a.jumps[0]->chain, nullptr);
    EXPECT_EQ(a.jumps[1]->chain, nullptr);
    EXPECT_EQ(a.jumps[2]->chain, a.jumps[0]);
    EXPECT_EQ(a.jumps[3]->chain, a.jumps[1]);
    EXPECT_EQ(a.jumps[6]->chain, a.jumps[4]);
    EXPECT_EQ(a.jumps[6]->chain_size, 2u);
  }
}

}  // namespace
