// The unified-to-VFP table against the mnemonic table, and the rewrite of
// hand-built statements.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
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

class SimdVfpRewrite : public ::testing::Test {
 protected:
  linebuf line{};
  char text[32] = "\tVMOV S0, S1\n";
  std::vector<instruct *> made;

  void SetUp() override {
    simd_vfp_init();
    line.text = line.source_text = text;
    line.line_number = 7;
    pass1 = 0;
    pass2 = 1;
    num_errors = 0;
    encode_state = STATE_ARM;
    testing::internal::CaptureStderr();
  }
  void TearDown() override {
    testing::internal::GetCapturedStderr();
    for (instruct *ir : made) IR_free(ir);
    for (char *&m : line.messages) {
      std::free(m);
      m = nullptr;
    }
    encode_state = STATE_ARM;
    num_errors = 0;
  }

  static operand *reg(uint16_t kind, uint8_t number) {
    operand *op = new_operand(kind);
    op->op_reg = op->op_reg2 = number;
    op->op_lane = -2;
    return op;
  }
  static operand *icon(int value) {
    operand *op = new_operand(OP_ICON);
    op->value.v_type = VT_ICON;
    op->value.v_val = xi_from_int(value);
    return op;
  }
  static operand *fcon(const simul_fval &f) {
    operand *op = new_operand(OP_FCON);
    op->value.v_type = VT_FCON;
    op->value.v_fval = static_cast<simul_fval *>(std::malloc(sizeof(simul_fval)));
    *op->value.v_fval = f;
    return op;
  }

  // A statement of the named unified row, its suffixes and operands.
  instruct *stmt(const char *name, std::vector<simd_suffix> suffixes, std::vector<operand *> ops,
                 uint32_t flags = 0) {
    instruct *ir = IR_alloc(IR_MNEMONIC, row_named(name), &line);
    made.push_back(ir);
    ir->ia_flags = flags;
    for (simd_suffix &s : cur_suffixes.types) s = {SIMD_T_ABSENT, 0};
    for (size_t i = 0; i < suffixes.size(); ++i) cur_suffixes.types[i] = suffixes[i];
    for (size_t i = 0; i < ops.size(); ++i) IR_add_oprnd(ir, static_cast<short>(i), ops[i]);
    return ir;
  }

  std::string messages() const {
    std::string all;
    for (char *m : line.messages)
      if (m) all += std::string(m) + "\n";
    return all;
  }
};

constexpr simd_suffix F32{SIMD_T_F, SIMD_SZ_32}, F64{SIMD_T_F, SIMD_SZ_64}, S16{SIMD_T_S, SIMD_SZ_16},
    S32{SIMD_T_S, SIMD_SZ_32}, U32{SIMD_T_U, SIMD_SZ_32}, I32{SIMD_T_I, SIMD_SZ_32};

const char *row_name(const instruct *ir) { return ia_row(ir)->name; }

TEST_F(SimdVfpRewrite, ScalarArithmeticTakesTheVfpRow) {
  instruct *ir = stmt("VADD", {F32}, {reg(OP_SREG, 0), reg(OP_SREG, 1), reg(OP_SREG, 2)}, IF_COND | IF_FLT_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FADDS");
  EXPECT_EQ(ir->ia_flags, IF_COND | IF_FLT_IMM);  // kept
  EXPECT_EQ(ia_op(ir, 2)->op_reg, 2);

  ir = stmt("VNMLA", {F64}, {reg(OP_DREG, 0), reg(OP_DREG, 1), reg(OP_DREG, 2)});
  encode_state = STATE_THUMB2;
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FNMSCD");
  EXPECT_EQ(ia_opcode(ir), 0xEE100B40u);
  EXPECT_EQ(messages(), "");
}

TEST_F(SimdVfpRewrite, VectorFormsStayWithNeon) {
  struct Case {
    const char *name;
    std::vector<simd_suffix> suffixes;
    std::vector<operand *> ops;
  };
  std::vector<Case> cases;
  cases.push_back({"VADD", {F32}, {reg(OP_QREG, 0), reg(OP_QREG, 1), reg(OP_QREG, 2)}});
  cases.push_back({"VADD", {F32}, {reg(OP_DREG, 0), reg(OP_DREG, 1), reg(OP_DREG, 2)}});   // F32 on D is NEON
  cases.push_back({"VADD", {I32}, {reg(OP_SREG, 0), reg(OP_SREG, 1), reg(OP_SREG, 2)}});
  cases.push_back({"VADD", {F32, F32}, {reg(OP_SREG, 0), reg(OP_SREG, 1), reg(OP_SREG, 2)}});
  cases.push_back({"VMUL", {F32}, {reg(OP_SREG, 0), reg(OP_SREG, 1)}});
  cases.push_back({"VMOV", {F32}, {reg(OP_DREG, 0), reg(OP_DREG, 1)}});                   // FCPYD wants F64
  cases.push_back({"VMOV", {}, {reg(OP_DREG, 0), reg(OP_DREG, 1)}});                     // VORR
  cases.push_back({"VMOV", {}, {reg(OP_REGISTER, 0), reg(OP_REGISTER, 1), reg(OP_DREG, 2)}});
  cases.push_back({"VMOV", {F32}, {reg(OP_REGISTER, 0), reg(OP_SREG, 1)}});
  cases.push_back({"VHADD", {S32}, {reg(OP_SREG, 0), reg(OP_SREG, 1), reg(OP_SREG, 2)}});  // no row of that name
  operand *scalar = reg(OP_DREG, 2);
  scalar->op_lane = 1;
  cases.push_back({"VMUL", {F64}, {reg(OP_DREG, 0), reg(OP_DREG, 1), scalar}});
  std::vector<operand *> five;
  for (uint8_t i = 0; i < 5; ++i) five.push_back(reg(OP_SREG, i));
  cases.push_back({"VADD", {F32}, five});

  for (Case &c : cases) {
    SCOPED_TRACE(c.name);
    instruct *ir = stmt(c.name, c.suffixes, c.ops);
    const void *before = ir->record;
    EXPECT_FALSE(simd_to_vfp_rewrite(ir));
    EXPECT_EQ(ir->record, before);
  }
  EXPECT_EQ(messages(), "");
}

TEST_F(SimdVfpRewrite, CopyAndConstant) {
  // With or without the type, S to S is FCPYS; the float flags go.
  for (bool typed : {true, false}) {
    instruct *ir = stmt("VMOV", typed ? std::vector<simd_suffix>{F32} : std::vector<simd_suffix>{},
                        {reg(OP_SREG, 0), reg(OP_SREG, 1)}, IF_FLT_IMM | IF_FLT64_IMM | IF_COND);
    ASSERT_TRUE(simd_to_vfp_rewrite(ir));
    EXPECT_STREQ(row_name(ir), "FCPYS");
    EXPECT_EQ(ir->ia_flags, IF_COND);
  }
  instruct *ir = stmt("VMOV", {F64}, {reg(OP_DREG, 0), reg(OP_DREG, 1)}, IF_FLT_IMM | IF_FLT64_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCPYD");
  EXPECT_EQ(ir->ia_flags, 0u);

  ir = stmt("VMOV", {F32}, {reg(OP_SREG, 0), fcon(const_one)}, IF_FLT_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCONSTS");
  EXPECT_EQ(ir->ia_flags, IF_FLT_IMM);  // the constant is read as a float
  ir = stmt("VMOV", {F64}, {reg(OP_DREG, 0), icon(2)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCONSTD");
  EXPECT_NE(ia_op(ir, 1), nullptr);
}

TEST_F(SimdVfpRewrite, CompareWithRegisterOrZero) {
  instruct *ir = stmt("VCMPE", {F32}, {reg(OP_SREG, 0), reg(OP_SREG, 1)}, IF_FLT_IMM | IF_FLT64_IMM);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCMPES");
  EXPECT_EQ(ir->ia_flags, IF_FLT64_IMM);  // only the float flag goes
  ASSERT_NE(ia_op(ir, 1), nullptr);

  ir = stmt("VCMP", {F64}, {reg(OP_DREG, 3), icon(0)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCMPZD");
  EXPECT_EQ(ia_op(ir, 0)->op_reg, 3);
  EXPECT_EQ(ia_op(ir, 1), nullptr);

  ir = stmt("VCMPE", {F32}, {reg(OP_SREG, 0), fcon(neg_zero)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCMPEZS");
  EXPECT_EQ(ia_op(ir, 1), nullptr);
  EXPECT_EQ(messages(), "");

  // Any other constant still takes the row, with the message, and is dropped.
  ir = stmt("VCMP", {F32}, {reg(OP_SREG, 0), fcon(one_half)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FCMPZS");
  EXPECT_EQ(ia_op(ir, 1), nullptr);
  ir = stmt("VCMP", {F32}, {reg(OP_SREG, 0), icon(1)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  const std::string m = messages();
  EXPECT_NE(m.find("[E0004]"), std::string::npos) << m;
  EXPECT_EQ(num_errors, 2u);
  EXPECT_NE(m.find("Immediate value must be #0.0"), std::string::npos) << m;
}

TEST_F(SimdVfpRewrite, Conversions) {
  struct Case {
    const char *name;
    simd_suffix a, b;
    uint16_t k0, k1;
    const char *vfp;
  } cases[] = {
      {"VCVT", F64, F32, OP_DREG, OP_SREG, "FCVTDS"},  {"VCVT", F32, F64, OP_SREG, OP_DREG, "FCVTSD"},
      {"VCVT", F32, U32, OP_SREG, OP_SREG, "FUITOS"},  {"VCVT", F64, S32, OP_DREG, OP_SREG, "FSITOD"},
      {"VCVT", S32, F64, OP_SREG, OP_DREG, "FTOSIZD"}, {"VCVTR", S32, F64, OP_SREG, OP_DREG, "FTOSID"},
      {"VCVT", U32, F32, OP_SREG, OP_SREG, "FTOUIZS"}, {"VCVTR", U32, F32, OP_SREG, OP_SREG, "FTOUIS"},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.vfp);
    instruct *ir = stmt(c.name, {c.a, c.b}, {reg(c.k0, 0), reg(c.k1, 1)});
    ASSERT_TRUE(simd_to_vfp_rewrite(ir));
    EXPECT_STREQ(row_name(ir), c.vfp);
  }
}

TEST_F(SimdVfpRewrite, FixedPointDropsTheRepeatedRegister) {
  instruct *ir = stmt("VCVT", {F32, S16}, {reg(OP_SREG, 4), reg(OP_SREG, 4), icon(8)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FSHTOS");
  ASSERT_NE(ia_op(ir, 1), nullptr);
  EXPECT_EQ(ia_op(ir, 1)->kind, OP_ICON);
  EXPECT_EQ(ia_op(ir, 2), nullptr);
  EXPECT_EQ(messages(), "");

  ir = stmt("VCVT", {U32, F64}, {reg(OP_DREG, 1), reg(OP_DREG, 2), icon(16)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FTOULD");
  EXPECT_EQ(ia_op(ir, 1)->kind, OP_ICON);
  EXPECT_NE(messages().find("Illegal operands, must be the same register"), std::string::npos);
}

TEST_F(SimdVfpRewrite, CoreAndSystemTransfers) {
  instruct *ir = stmt("VMOV", {}, {reg(OP_SREG, 5), reg(OP_REGISTER, 3)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMSR");
  ir = stmt("VMOV", {}, {reg(OP_REGISTER, 3), reg(OP_SREG, 5)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMRS");
  ir = stmt("VMRS", {}, {reg(OP_APSRF, 0), reg(OP_VFPSYS, 1)}, IF_COND);
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMRX");
  ir = stmt("VMSR", {}, {reg(OP_VFPSYS, 8), reg(OP_REGISTER, 0)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMXR");
  // A suffix on a transfer is no VFP row: the NEON encoder reports it.
  ir = stmt("VMRS", {F32}, {reg(OP_REGISTER, 0), reg(OP_VFPSYS, 1)});
  EXPECT_FALSE(simd_to_vfp_rewrite(ir));
  EXPECT_EQ(messages(), "");
}

TEST_F(SimdVfpRewrite, TwoSingleRegistersBecomeOneList) {
  instruct *ir = stmt("VMOV", {}, {reg(OP_REGISTER, 0), reg(OP_REGISTER, 1), reg(OP_SREG, 6), reg(OP_SREG, 7)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMRRS");
  operand *list = ia_op(ir, 2);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->kind, OP_REGLIST);
  EXPECT_EQ(list->value.v_val, xi_from_uint(0xC0));
  EXPECT_EQ(list->op_reg, 6);
  EXPECT_EQ(list->op_reg2, 7);
  EXPECT_EQ(ia_op(ir, 3), nullptr);
  EXPECT_EQ(messages(), "");

  ir = stmt("VMOV", {}, {reg(OP_SREG, 31), reg(OP_SREG, 30), reg(OP_REGISTER, 2), reg(OP_REGISTER, 4)});
  ASSERT_TRUE(simd_to_vfp_rewrite(ir));
  EXPECT_STREQ(row_name(ir), "FMSRR");
  list = ia_op(ir, 0);
  EXPECT_EQ(list->kind, OP_REGLIST);
  EXPECT_EQ(list->value.v_val, xi_from_uint(0xC0000000u));
  EXPECT_EQ(ia_op(ir, 1)->op_reg, 2);
  EXPECT_EQ(ia_op(ir, 2)->op_reg, 4);
  EXPECT_EQ(ia_op(ir, 3), nullptr);
  EXPECT_NE(messages().find("[E0004]"), std::string::npos);
  EXPECT_NE(messages().find("Illegal SIMD operands"), std::string::npos);
}

}  // namespace
