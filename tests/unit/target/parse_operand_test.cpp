// Operand shapes: registers and their shifts, immediates, expressions,
// status registers, coprocessor names, addresses and register lists.
#include "parse_fixture.h"

#include "target/arm/opcodes.h"
#include "target/arm/tables.h"

namespace {

using Operands = ParseTest;

TEST_F(Operands, RegistersAndShifts) {
  ASSERT_NE(parse("add r0, r1, r2, lsl #3"), nullptr);
  ASSERT_EQ(operands(), 3);
  EXPECT_EQ(op(0)->kind, OP_REGISTER);
  EXPECT_EQ(op(1)->op_reg, 1);
  EXPECT_EQ(op(2)->kind, OP_SHIFTREGI);
  EXPECT_EQ(op(2)->op_reg, 2);
  EXPECT_EQ(op(2)->op_reg2, 2);
  EXPECT_EQ(op(2)->op_shift, SHIFT_LSL);
  EXPECT_EQ(value_of(op(2)), 3);

  ASSERT_NE(parse("mov r0, r1, ASR r12"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_SHIFTREGR);
  EXPECT_EQ(op(1)->op_shift, SHIFT_ASR);
  EXPECT_EQ(value_of(op(1)), 12);

  ASSERT_NE(parse("mov r0, r1, rrx"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_SHIFTREGI);
  EXPECT_EQ(op(1)->op_shift, SHIFT_RRX);

  ASSERT_NE(parse("mov r0, r1, ror #0"), nullptr);  // any shift by 0 is LSL #0
  EXPECT_EQ(op(1)->op_shift, SHIFT_LSL);
  ASSERT_NE(parse("mov r0, r1, asl #31"), nullptr);
  EXPECT_EQ(op(1)->op_shift, SHIFT_LSL);
  EXPECT_EQ(value_of(op(1)), 31);

  // A word behind the comma that is no shift name is the next operand.
  ASSERT_NE(parse("mla r0, r1, r2, r3"), nullptr);
  EXPECT_EQ(operands(), 4);
  EXPECT_EQ(op(3)->kind, OP_REGISTER);
  EXPECT_EQ(op(3)->op_reg, 3);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("mov r0, r1, lsl pc"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0004", "R15 (PC) cannot specify register shift amount"));
  ASSERT_NE(parse("mov r0, r1, lsl s2"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0004", "Illegal operands for a shifted register"));
}

TEST_F(Operands, RegisterClassesGiveTheirKinds) {
  const struct {
    const char *text;
    uint16_t kind;
    uint8_t reg;
  } cases[] = {
      {"r15", OP_REGISTER, 15}, {"SP", OP_REGISTER, 13}, {"v8", OP_REGISTER, 11}, {"s31", OP_SREG, 31},
      {"d17", OP_DREG, 17},     {"q15", OP_QREG, 15},    {"fpexc", OP_VFPSYS, 8}, {"c7", OP_CPREG, 7},
      {"p15", OP_CPID, 15},     {"cpsr", OP_PSR, 0},     {"primask", OP_MSYSREG, 0x10},
  };
  for (const auto &c : cases) {
    ASSERT_NE(parse(std::string("bx ") + c.text), nullptr) << c.text;
    ASSERT_EQ(operands(), 1) << c.text;
    EXPECT_EQ(op(0)->kind, c.kind) << c.text;
    EXPECT_EQ(op(0)->op_reg, c.reg) << c.text;
    EXPECT_EQ(op(0)->op_lane, -2) << c.text;
  }
  ASSERT_NE(parse("vmov r0, d3[1]"), nullptr);
  EXPECT_EQ(op(1)->op_lane, 1);
  ASSERT_NE(parse("vmov r0, d3[]"), nullptr);
  EXPECT_EQ(op(1)->op_lane, -1);
  ASSERT_NE(parse("vmov r0, q3[]"), nullptr);
  EXPECT_EQ(op(1)->op_lane, -1);
  EXPECT_EQ(screen(), "");
  ASSERT_NE(parse("vmov r0, q3[1]"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0003", "Invalid register indexing. Must be one of Dd[x], Dd[], Qd[]"));
}

TEST_F(Operands, Immediates) {
  ASSERT_NE(parse("mov r0, #-1"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_ICON);
  EXPECT_EQ(value_of(op(1)), -1);
  ASSERT_NE(parse("mov r0, #R3"), nullptr);  // a register's number
  EXPECT_EQ(op(1)->kind, OP_ICON);
  EXPECT_EQ(value_of(op(1)), 3);
  ASSERT_NE(parse("mov r0, #p14"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_ICON);
  EXPECT_EQ(value_of(op(1)), 14);
  ASSERT_NE(parse("mov r0, #(2+3)*4"), nullptr);
  EXPECT_EQ(value_of(op(1)), 20);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("mov r0, #nowhere"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0001", "Undefined symbol"));
  ASSERT_NE(parse("mov r0, #cpsr"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0004", "Expression must evaluate to an absolute constant"));
  ASSERT_NE(parse("mov r0, #1.5"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  ASSERT_NE(parse("add r0, , r1"), nullptr);  // a missing operand keeps its place
  ASSERT_EQ(operands(), 3);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_EQ(op(2)->kind, OP_REGISTER);
  EXPECT_TRUE(shown("E0005", "Operand missing"));
}

TEST_F(Operands, ExpressionsAndSymbols) {
  ASSERT_NE(parse("b 0x100"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_SYMBOL);
  EXPECT_EQ(value_of(op(0)), 0x100);
  ASSERT_NE(parse("b somewhere"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_SYMBOL);
  EXPECT_TRUE(shown("E0001", "Undefined symbol"));
  ASSERT_NE(parse("b 1.5"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0001", "Illegal symbol"));
  ASSERT_NE(parse("mov r0 r1"), nullptr);
  EXPECT_TRUE(shown("E0003", "Unexpected trailing operand(s)"));
}

TEST_F(Operands, StatusRegisterFields) {
  ASSERT_NE(parse("msr CPSR_fc, r0"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_PSRF);
  EXPECT_EQ(op(0)->op_mods, 9);
  EXPECT_EQ(value_of(op(0)), 0x101);
  ASSERT_NE(parse("msr spsr_sx, r0"), nullptr);
  EXPECT_EQ(op(0)->op_mods, 6);
  EXPECT_EQ(value_of(op(0)), 0x201);
  ASSERT_NE(parse("msr APSR_nzcvqg, r0"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_APSRF);
  EXPECT_EQ(op(0)->op_mods, 63);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("msr cpsr_all, r0"), nullptr);
  EXPECT_EQ(op(0)->op_mods, 9);
  EXPECT_TRUE(shown("W0000", "Deprecated use of PSR; use \"cf\" instead of \"all\""));
  ASSERT_NE(parse("msr cpsr_flg, r0"), nullptr);
  EXPECT_EQ(op(0)->op_mods, 8);
  EXPECT_TRUE(shown("W0000", "Deprecated use of PSR; use \"f\" instead of \"flg\""));
  ASSERT_NE(parse("msr cpsr_fk, r0"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0004", "Illegal PSR field specifier: 'k'"));

  target("7A8", 2);
  ASSERT_NE(parse("msr cpsr_all, r0"), nullptr);
  EXPECT_TRUE(shown("E0004", "Deprecated use of PSR; use \"cf\" instead of \"all\""));
  target("7M3", 2);  // Cortex-M: no deprecation, letters unchecked
  ASSERT_NE(parse("msr cpsr_all, r0"), nullptr);
  ASSERT_NE(parse("msr cpsr_fk, r0"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_PSRF);
  EXPECT_EQ(op(0)->op_mods, 8);
  EXPECT_EQ(screen(), "");
}

TEST_F(Operands, Addresses) {
  ASSERT_NE(parse("ldr r0, [r1]"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDIRECT);
  EXPECT_EQ(op(1)->op_reg, 1);
  ASSERT_NE(parse("ldr r0, [r1, #-4]!"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPREE);
  EXPECT_EQ(value_of(op(1)), -4);
  EXPECT_EQ(op(1)->op_mods, MOD_WRITEBACK);
  ASSERT_NE(parse("ldr r0, [r1, -r2, lsl #2]!"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPRES);
  EXPECT_EQ(op(1)->op_reg, 1);
  EXPECT_EQ(op(1)->op_reg2, 2);
  EXPECT_EQ(op(1)->op_neg, 1);
  EXPECT_EQ(op(1)->op_shift, SHIFT_LSL);
  EXPECT_EQ(value_of(op(1)), 2);
  ASSERT_NE(parse("ldr r0, [r1, +r2]"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPRES);
  EXPECT_EQ(op(1)->op_neg, 0);
  EXPECT_EQ(op(1)->op_shift, SHIFT_NONE);
  ASSERT_NE(parse("ldr r0, [r1], #4"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPOSTE);
  EXPECT_EQ(value_of(op(1)), 4);
  ASSERT_NE(parse("ldr r0, [r1], r2, asr #32"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPOSTS);
  EXPECT_EQ(op(1)->op_shift, SHIFT_ASR);
  EXPECT_EQ(value_of(op(1)), 32);
  ASSERT_NE(parse("ldc p1, c2, [r1], {5}"), nullptr);
  EXPECT_EQ(op(2)->kind, OP_INDOPT);
  EXPECT_EQ(value_of(op(2)), 5);
  cur_suffixes.align = 0;
  ASSERT_NE(parse("vld1 {d0}, [r1@64], r2"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPOSTS);
  EXPECT_EQ(cur_suffixes.align, 4u);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("ldr r0, [r1"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDIRECT);
  EXPECT_TRUE(shown("W0000", "Missing right bracket, one assumed"));
  ASSERT_NE(parse("ldr r0, [r1, #4"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_INDPREE);
  EXPECT_TRUE(shown("W0000", "Missing right bracket, one assumed"));
  ASSERT_NE(parse("ldc p1, c2, [r1], {5"), nullptr);
  EXPECT_TRUE(shown("W0000", "Missing right brace, one assumed"));

  const struct {
    const char *line;
    const char *id;
    const char *text;
  } bad[] = {
      {"ldr r0, [s1]", "E0003", "Invalid base register"},
      {"ldr r0, [r1, 4]", "E0003", "Invalid shift register"},
      {"ldr r0, [r1, pc]", "E0004", "Register offset (Rm) cannot be R15 (PC)"},
      {"ldr r0, [r1, r2, lsl r3]", "E0004", "Shift amount cannot be specified with a register"},
      {"vld1 {d0}, [r1@48]", "E0002", "Illegal Alignment"},
  };
  for (const auto &b : bad) {
    ASSERT_NE(parse(b.line), nullptr) << b.line;
    EXPECT_TRUE(shown(b.id, b.text)) << b.line << "\n" << screen();
  }
  // A failed address leaves the line behind it alone.
  ASSERT_NE(parse("ldr r0, [s1, #4], r2"), nullptr);
  EXPECT_EQ(operands(), 2);
  EXPECT_EQ(op(1)->kind, OP_NONE);
  EXPECT_EQ(screen().find("E0003] Unexpected"), std::string::npos);
}

TEST_F(Operands, RegisterLists) {
  ASSERT_NE(parse("ldmfd sp!, {r0-r3, lr}^"), nullptr);
  EXPECT_EQ(op(0)->op_mods, MOD_WRITEBACK);
  EXPECT_EQ(op(1)->kind, OP_REGLIST);
  EXPECT_EQ(op(1)->op_reg, 0);
  EXPECT_EQ(op(1)->op_reg2, 14);
  EXPECT_EQ(value_of(op(1)), 0x400F);
  EXPECT_EQ(op(1)->op_mods, MOD_CARET);
  ASSERT_NE(parse("vpush {d8-d15}"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_DLIST);
  EXPECT_EQ(static_cast<uint32_t>(value_of(op(0))), 0xFF00u);
  ASSERT_NE(parse("vld1 {q1, q2}, [r0]"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_QLIST);
  EXPECT_EQ(op(0)->op_reg2, 2);
  ASSERT_NE(parse("vld1 {d0[2], d1[2]}, [r0]"), nullptr);
  EXPECT_EQ(op(0)->op_lane, 2);
  ASSERT_NE(parse("vld1 {d0[]-d1[]}, [r0]"), nullptr);
  EXPECT_EQ(op(0)->op_lane, -1);
  ASSERT_NE(parse("fldmias r0, {s1-s3}"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_REGLIST);
  EXPECT_EQ(value_of(op(1)), 0xE);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("ldm r0, {}"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_REGLIST);
  EXPECT_TRUE(shown("W0000", "Register list is empty"));
  const struct {
    const char *line;
    const char *text;
  } bad[] = {
      {"ldm r0, {r3-r0}", "Invalid register range"},
      {"ldm r0, {r0, s1}", "Invalid register"},
      {"ldm r0, {r0, nothing}", "Invalid register"},
      {"ldm r0, {r0 r1}", "Invalid register list"},
      {"ldm r0, {r0, r1", "Invalid register list"},
  };
  for (const auto &b : bad) {
    ASSERT_NE(parse(b.line), nullptr) << b.line;
    EXPECT_EQ(op(1)->kind, OP_NONE) << b.line;
    EXPECT_TRUE(shown("E0003", b.text)) << b.line << "\n" << screen();
  }
}

TEST_F(Operands, CpsFlags) {
  target("6", 0);
  ASSERT_NE(parse("cpsie aif, #16"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_CPSFLAGS);
  EXPECT_STREQ(op(0)->value.v_str, "aif");
  EXPECT_EQ(op(1)->kind, OP_ICON);
  ASSERT_NE(parse("cps #16"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_ICON);
  EXPECT_EQ(screen(), "");
  ASSERT_NE(parse("cpsid a_1"), nullptr);
  EXPECT_EQ(op(0)->kind, OP_NONE);
  EXPECT_TRUE(shown("E0003", "Operand must be a CPS flag concatenation."));
}

}  // namespace
