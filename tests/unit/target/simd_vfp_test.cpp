// The unified-to-VFP table against the mnemonic table, and the rewrite of
// hand-built statements.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/pipeline.h"
#include "expr/fval.h"
#include "target/arm/instr.h"
#include "target/arm/simd_vfp.h"
#include "target/arm/tables.h"

namespace {

const mnemonic_row *row_named(const char *name) {
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row)
    if (std::strcmp(row->name, name) == 0) return row;
  return nullptr;
}

int operand_count(const simd_name_translation &t) {
  int n = 0;
  while (n < 4 && t.op_kinds[n]) ++n;
  return n;
}

TEST(SimdVfpTable, RowsAgainstTheMnemonicTable) {
  size_t count = 0;
  while (simd_to_vfp_mnemonics[count].simd_name) ++count;
  EXPECT_EQ(count, SIMD_VFP_ROW_COUNT);

  for (size_t i = 0; i < count; ++i) {
    const simd_name_translation &t = simd_to_vfp_mnemonics[i];
    SCOPED_TRACE(std::string(t.simd_name) + " -> " + t.vfp_name);

    // The target is an old VFP row, in ARM and Thumb-2 state alike.
    const mnemonic_row *vfp = row_named(t.vfp_name);
    ASSERT_NE(vfp, nullptr);
    for (uint32_t state : {STATE_ARM, STATE_THUMB2}) {
      const inst_class *cls = vfp->slot[state].cls;
      ASSERT_NE(cls, nullptr);
      EXPECT_TRUE(cls->ic_id >= 19 && cls->ic_id <= 23) << cls->name;
      // What reaches the VFP encoder after the fix-up fits its operand count.
      int ops = operand_count(t);
      if (t.fixup == simd_vfp_fix_reg_pair || t.fixup == simd_vfp_fix_fixed_point) --ops;
      if (t.fixup == simd_vfp_fix_compare && (t.op_kinds[1] == OP_ICON || t.op_kinds[1] == OP_FCON)) --ops;
      EXPECT_GE(ops, cls->ic_min_ops) << cls->name;
      EXPECT_LE(ops, cls->ic_max_ops) << cls->name;
    }

    // The unified row takes suffixes, and its rule admits what the row asks.
    const mnemonic_row *simd = row_named(t.simd_name);
    ASSERT_NE(simd, nullptr);
    const inst_class *cls = simd->slot[STATE_ARM].cls ? simd->slot[STATE_ARM].cls : simd->slot[STATE_THUMB2].cls;
    ASSERT_NE(cls, nullptr);
    ASSERT_NE(cls->ic_rule, nullptr) << cls->name;
    for (int s = 0; s < 3; ++s) {
      const simd_type_slot &want = t.slot[s];
      const simd_type_slot &rule = cls->ic_rule->slot[s];
      if (want.sizes == 0) {
        EXPECT_EQ(want.types, SIMD_T_ABSENT);
        EXPECT_TRUE(rule.types & SIMD_T_ABSENT) << "slot " << s << " of " << cls->ic_rule->name;
      } else {
        EXPECT_EQ(want.types & ~rule.types, 0u) << "slot " << s << " of " << cls->ic_rule->name;
        EXPECT_EQ(want.sizes & ~rule.sizes, 0u) << "slot " << s << " of " << cls->ic_rule->name;
      }
    }
  }
}

// Two rows of a name with the same operand kinds never match one statement:
// the order of the table only matters between names.
TEST(SimdVfpTable, RowsOfANameDoNotOverlap) {
  for (const simd_name_translation *a = simd_to_vfp_mnemonics; a->simd_name; ++a)
    for (const simd_name_translation *b = a + 1; b->simd_name; ++b) {
      if (std::strcmp(a->simd_name, b->simd_name) != 0) continue;
      if (std::memcmp(a->op_kinds, b->op_kinds, sizeof a->op_kinds) != 0) continue;
      bool disjoint = false;
      for (int s = 0; s < 3; ++s)
        if (!(a->slot[s].types & b->slot[s].types) || (a->slot[s].sizes != 0) != (b->slot[s].sizes != 0) ||
            (a->slot[s].sizes && !(a->slot[s].sizes & b->slot[s].sizes)))
          disjoint = true;
      EXPECT_TRUE(disjoint) << a->simd_name << ": " << a->vfp_name << " and " << b->vfp_name;
    }
}

TEST(SimdVfpTable, NameTableKeepsTableOrder) {
  simd_vfp_init();
  simd_vfp_init();  // a second start-up adds nothing
  EXPECT_EQ(simd_name_table.size(), SIMD_VFP_ROW_COUNT);
  std::set<std::string> names;
  for (const simd_name_translation *t = simd_to_vfp_mnemonics; t->simd_name; ++t) names.insert(t->simd_name);
  for (const std::string &name : names) {
    std::vector<const simd_name_translation *> expected;
    for (const simd_name_translation *t = simd_to_vfp_mnemonics; t->simd_name; ++t)
      if (name == t->simd_name) expected.push_back(t);
    std::vector<const simd_name_translation *> got;
    auto [first, last] = simd_name_table.equal_range(name);
    for (auto it = first; it != last; ++it) {
      got.push_back(it->second.row);
      EXPECT_EQ(it->second.vfp_row, row_named(it->second.row->vfp_name));
    }
    EXPECT_EQ(got, expected) << name;
  }
}

// ---- The rewrite on statements built by hand ---------------------------------

constexpr simd_suffix NONE{SIMD_T_ABSENT, 0}, F32{SIMD_T_F, SIMD_SZ_32}, F64{SIMD_T_F, SIMD_SZ_64},
    S16{SIMD_T_S, SIMD_SZ_16}, S32{SIMD_T_S, SIMD_SZ_32}, U32{SIMD_T_U, SIMD_SZ_32}, I32{SIMD_T_I, SIMD_SZ_32};
constexpr uint16_t S = OP_SREG, D = OP_DREG, Q = OP_QREG, R = OP_REGISTER, IMM = OP_ICON;

class SimdVfpRewrite : public ::testing::Test {
 protected:
  linebuf line{};
  char text[16] = "\tVMOV S0, S1\n";
  std::vector<instruct *> made;

  void SetUp() override {
    line.text = line.source_text = text;
    pass1 = 0;
    pass2 = 1;
    num_errors = 0;
    encode_state = STATE_ARM;
    testing::internal::CaptureStderr();
  }
  void TearDown() override {
    testing::internal::GetCapturedStderr();
    for (instruct *ir : made) IR_free(ir);
    for (char *&m : line.messages) std::free(std::exchange(m, nullptr));
    encode_state = STATE_ARM;
    num_errors = 0;
  }

  // Operand i of kind k: register i (`numbers` overrides), or the immediate `imm`.
  instruct *stmt(const char *name, std::vector<simd_suffix> suffixes, std::vector<uint16_t> kinds,
                 std::vector<uint8_t> numbers = {}, uint32_t flags = 0, int imm = 0) {
    instruct *ir = IR_alloc(IR_MNEMONIC, row_named(name), &line);
    made.push_back(ir);
    ir->ia_flags = flags;
    suffixes.resize(3, NONE);
    std::copy(suffixes.begin(), suffixes.end(), cur_suffixes.types);
    for (size_t i = 0; i < kinds.size(); ++i) {
      operand *op = new_operand(kinds[i]);
      op->op_reg = i < numbers.size() ? numbers[i] : static_cast<uint8_t>(i);
      op->op_lane = -2;
      op->value.v_val = xi_from_int(imm);
      IR_add_oprnd(ir, static_cast<short>(i), op);
    }
    return ir;
  }

  std::string messages() const {
    std::string all;
    for (char *m : line.messages)
      if (m) all += std::string(m) + "\n";
    return all;
  }
};

const char *row_name(const instruct *ir) { return ia_row(ir)->name; }

TEST_F(SimdVfpRewrite, RowChoice) {
  const struct {
    const char *name;
    std::vector<simd_suffix> suffixes;
    std::vector<uint16_t> kinds;
    const char *vfp;  // null: stays NEON
  } cases[] = {
      {"VADD", {F32}, {S, S, S}, "FADDS"},         {"VNMLA", {F64}, {D, D, D}, "FNMSCD"},
      {"VADD", {F32}, {Q, Q, Q}, nullptr},         {"VADD", {F32}, {D, D, D}, nullptr},
      {"VADD", {I32}, {S, S, S}, nullptr},         {"VADD", {F32, F32}, {S, S, S}, nullptr},
      {"VMUL", {F32}, {S, S}, nullptr},            {"VADD", {F32}, {S, S, S, S, S}, nullptr},
      {"VHADD", {S32}, {S, S, S}, nullptr},        {"VMOV", {F64}, {D, D}, "FCPYD"},
      {"VMOV", {}, {D, D}, nullptr},               {"VMOV", {}, {S, S}, "FCPYS"},
      {"VMOV", {F64}, {D, IMM}, "FCONSTD"},        {"VMOV", {}, {R, R, D}, nullptr},
      {"VMOV", {}, {S, R}, "FMSR"},                {"VMOV", {F32}, {R, S}, nullptr},
      {"VMRS", {}, {OP_APSRF, OP_VFPSYS}, "FMRX"}, {"VMSR", {}, {OP_VFPSYS, R}, "FMXR"},
      {"VCVT", {F64, F32}, {D, S}, "FCVTDS"},      {"VCVT", {F32, U32}, {S, S}, "FUITOS"},
      {"VCVT", {S32, F64}, {S, D}, "FTOSIZD"},     {"VCVTR", {S32, F64}, {S, D}, "FTOSID"},
      {"VCVT", {F64, S32}, {D, S}, "FSITOD"},      {"VCMPE", {F32}, {S, S}, "FCMPES"},
  };
  for (const auto &c : cases) {
    SCOPED_TRACE(std::string(c.name) + " " + (c.vfp ? c.vfp : "NEON"));
    instruct *ir = stmt(c.name, c.suffixes, c.kinds, {}, IF_COND);
    const void *before = ir->record;
    ASSERT_EQ(simd_to_vfp_rewrite(ir), c.vfp != nullptr);
    if (c.vfp) EXPECT_STREQ(row_name(ir), c.vfp);
    else EXPECT_EQ(ir->record, before);
    EXPECT_TRUE(ir->ia_flags & IF_COND);
  }
  // A scalar (D2[1]) is no VFP operand.
  instruct *ir = stmt("VMUL", {F64}, {D, D, D});
  ia_op(ir, 2)->op_lane = 1;
  EXPECT_FALSE(simd_to_vfp_rewrite(ir));
  // The VFP row is taken in the state in force.
  encode_state = STATE_THUMB2;
  ir = stmt("VSUB", {F64}, {D, D, D});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_EQ(ia_opcode(ir), 0xEE300B40u);
  EXPECT_EQ(messages(), "");
}

TEST_F(SimdVfpRewrite, FlagFixups) {
  instruct *ir = stmt("VMOV", {F32}, {S, S}, {}, IF_FLT_IMM | IF_FLT64_IMM | IF_COND);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_EQ(ir->ia_flags, IF_COND);
  ir = stmt("VCMP", {F64}, {D, D}, {}, IF_FLT_IMM | IF_FLT64_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_EQ(ir->ia_flags, IF_FLT64_IMM);  // a compare clears only the float flag
  ASSERT_NE(ia_op(ir, 1), nullptr);
  ir = stmt("VMOV", {F32}, {S, OP_FCON}, {}, IF_FLT_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCONSTS");
  EXPECT_EQ(ir->ia_flags, IF_FLT_IMM);
}

TEST_F(SimdVfpRewrite, CompareWithZeroDropsTheConstant) {
  instruct *ir = stmt("VCMP", {F64}, {D, IMM}, {3});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCMPZD");
  EXPECT_EQ(ia_op(ir, 0)->op_reg, 3);
  EXPECT_EQ(ia_op(ir, 1), nullptr);
  for (const simul_fval *f : {&neg_zero, &one_half}) {
    ir = stmt("VCMPE", {F32}, {S, OP_FCON});
    ia_op(ir, 1)->value.v_fval = static_cast<simul_fval *>(std::malloc(sizeof(simul_fval)));
    *ia_op(ir, 1)->value.v_fval = *f;
    ASSERT_TRUE(simd_to_vfp_rewrite(ir));
    EXPECT_STREQ(row_name(ir), "FCMPEZS");
    EXPECT_EQ(ia_op(ir, 1), nullptr);
  }
  ir = stmt("VCMP", {F32}, {S, IMM}, {}, 0, 1);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_EQ(num_errors, 2u);  // 0.5 and 1; -0.0 is zero
  EXPECT_NE(messages().find("[E0004]"), std::string::npos);
  EXPECT_NE(messages().find("Immediate value must be #0.0"), std::string::npos);
}

TEST_F(SimdVfpRewrite, FixedPointDropsTheRepeatedRegister) {
  instruct *ir = stmt("VCVT", {F32, S16}, {S, S, IMM}, {4, 4, 0}, 0, 8);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FSHTOS");
  EXPECT_EQ(ia_op(ir, 1)->kind, OP_ICON);
  EXPECT_EQ(ia_op(ir, 2), nullptr);
  EXPECT_EQ(messages(), "");
  ir = stmt("VCVT", {U32, F64}, {D, D, IMM}, {1, 2, 0});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FTOULD");
  EXPECT_EQ(ia_op(ir, 1)->kind, OP_ICON);
  EXPECT_NE(messages().find("Illegal operands, must be the same register"), std::string::npos);
}

TEST_F(SimdVfpRewrite, TwoSingleRegistersBecomeOneList) {
  instruct *ir = stmt("VMOV", {}, {R, R, S, S}, {0, 1, 6, 7});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMRRS");
  const operand *list = ia_op(ir, 2);
  EXPECT_EQ(list->kind, OP_REGLIST);
  EXPECT_EQ(list->value.v_val, xi_from_uint(0xC0));
  EXPECT_EQ(list->op_reg, 6);
  EXPECT_EQ(list->op_reg2, 7);
  EXPECT_EQ(ia_op(ir, 3), nullptr);
  EXPECT_EQ(messages(), "");

  ir = stmt("VMOV", {}, {S, S, R, R}, {31, 30, 2, 4});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMSRR");
  EXPECT_EQ(ia_op(ir, 0)->value.v_val, xi_from_uint(0xC0000000u));
  EXPECT_EQ(ia_op(ir, 1)->op_reg, 2);
  EXPECT_EQ(ia_op(ir, 2)->op_reg, 4);
  EXPECT_EQ(ia_op(ir, 3), nullptr);
  EXPECT_NE(messages().find("Illegal SIMD operands"), std::string::npos);
}

}  // namespace
