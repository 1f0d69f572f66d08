// Thumb statements: slot choice, IT blocks and their checks, width
// qualifiers, and the unified forms that become other rows or operands.
#include "parse_fixture.h"

#include <cstring>

#include "target/arm/classes.h"
#include "target/arm/trg.h"

namespace {

using Thumb = ParseTest;

// What TRG_encode does to the block after each statement.
void step_it_block() {
  if (cur_it_string[0]) std::memmove(cur_it_string, cur_it_string + 1, std::strlen(cur_it_string));
}

TEST_F(Thumb, SlotChoice) {
  target("7A8", 2);
  ASSERT_NE(parse("adds r0, r1, #1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB2);
  ASSERT_NE(parse("negs r0, r1"), nullptr);  // no 32-bit row: the 16-bit slot
  EXPECT_EQ(encode_state, STATE_THUMB16);
  ASSERT_NE(parse("sdiv r0, r1, r2"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB2);
  ASSERT_NE(parse("ldrh r0, [r1]"), nullptr);  // a row of its own in Thumb
  EXPECT_EQ(row(), "LDRH");
  EXPECT_EQ(ir_->ia_flags, 0u);
  std::strcpy(cur_it_string, "T");
  cur_it_cc = COND_HI;
  ASSERT_NE(parse("ldrhi r0, [r1]"), nullptr);  // but LDR with HI here too
  EXPECT_EQ(row(), "LDR");
  EXPECT_EQ(ir_->ia_cond, COND_HI);
  cur_it_string[0] = '\0';
  target("6M0", 2);  // the 16-bit slot first
  ASSERT_NE(parse("adds r0, r1, #1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB16);
  target("7A8", 2, false);
  ASSERT_NE(parse("add r0, r1, #1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB16);
  target("7A8", 2);
  ASSERT_NE(parse("cbz r0, 0"), nullptr);
  EXPECT_EQ(row(), "CZB");
  EXPECT_EQ(ir_->ia_cond, COND_EQ);
  EXPECT_EQ(screen(), "");  // CBZ carries its condition outside IT blocks
  ASSERT_NE(parse("cbnz r0, 0"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_NE);
  ASSERT_NE(parse("czbeq r0, 0"), nullptr);
  EXPECT_TRUE(shown("W0005", "Non-UAL opcode used in UAL mode"));
}

TEST_F(Thumb, ItBlocks) {
  target("7A8", 2);
  ASSERT_NE(parse("itte ne"), nullptr);
  EXPECT_EQ(row(), "IT");
  EXPECT_EQ(ir_->ia_flags, 0x12u);  // T then E, the first letter highest
  EXPECT_EQ(ir_->ia_cond, COND_NE);
  EXPECT_EQ(cur_it_cc, COND_NE);
  EXPECT_STREQ(cur_it_string, "ITTE");
  step_it_block();

  ASSERT_NE(parse("addne r0, r0, #1"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_NE);
  EXPECT_EQ(ir_->ia_flags & IF_COND, 0u);  // no condition is encoded in the block
  step_it_block();
  ASSERT_NE(parse("add r0, r0, #1"), nullptr);
  EXPECT_TRUE(shown("W0004", "Missing condition code inside of IT block"));
  step_it_block();
  ASSERT_NE(parse("movne r0, #1"), nullptr);  // the E slot wants EQ
  EXPECT_TRUE(shown("W0004", "Incorrect condition code inside of IT block"));
  step_it_block();
  EXPECT_STREQ(cur_it_string, "");

  ASSERT_NE(parse("addeq r0, r0, #1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Condition codes not allowed outside of IT blocks in Thumb."));
  ASSERT_NE(parse("beq 0"), nullptr);
  EXPECT_EQ(screen(), "");

  ASSERT_NE(parse("it"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_NV);
  EXPECT_TRUE(shown("E0003", "Empty or Invalid condition code"));
  EXPECT_STREQ(cur_it_string, "IT");
  cur_it_string[0] = '\0';
  ASSERT_NE(parse("itx Gt"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_GT);
  EXPECT_TRUE(shown("E0003", "Invalid modifier in If-Then (IT) instruction"));
  cur_it_string[0] = '\0';
  ASSERT_NE(parse("it ge, lt"), nullptr);
  EXPECT_TRUE(shown("E0003", "Unexpected trailing operand(s)"));
  cur_it_string[0] = '\0';

  target("7A8", 2, false);  // old syntax: no checks here
  std::strcpy(cur_it_string, "T");
  cur_it_cc = COND_EQ;
  ASSERT_NE(parse("addne r0, r0, #1"), nullptr);
  EXPECT_EQ(ir_->ia_flags & IF_COND, IF_COND);
  EXPECT_EQ(screen(), "");
}

TEST_F(Thumb, Setend) {
  target("6", 0);
  ASSERT_NE(parse("setend be"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_BE);
  ASSERT_NE(parse("SETEND LE"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_LE);
  EXPECT_EQ(operands(), 0);
  ASSERT_NE(parse("setend middle"), nullptr);
  EXPECT_TRUE(shown("E0003", "Invalid operand. Must be BE or LE."));
}

TEST_F(Thumb, WidthQualifiers) {
  target("7A8", 2);
  ASSERT_NE(parse("adds.w r0, r1, r2"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_S | IF_WIDE);
  ASSERT_NE(parse("add.N r0, r1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB16);
  ASSERT_NE(parse("cbz.n r0, 0"), nullptr);  // a 16-bit opcode in the Thumb-2 slot stays
  EXPECT_EQ(encode_state, STATE_THUMB2);
  ASSERT_NE(parse("blx.n r0"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB16);
  EXPECT_EQ(screen(), "");
  ASSERT_NE(parse("bl.n 0"), nullptr);
  EXPECT_TRUE(shown("E0800", "Instruction does not have narrow encoding"));
  ASSERT_NE(parse("orn.n r0, r1, r2"), nullptr);
  EXPECT_TRUE(shown("E0800", "Instruction does not have narrow encoding"));

  target("7A8", 2, false);  // old syntax in Thumb-2: .W picks the 32-bit slot
  ASSERT_NE(parse("add.w r0, r1, #1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB2);
  EXPECT_EQ(ir_->ia_flags, IF_WIDE);
  ASSERT_NE(parse("neg.w r0, r1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Instruction doesn't have thumb2 encoding."));
  ASSERT_NE(parse("addeq.w r0, r1, #1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Condition codes not allowed in thumb2 state encoding."));
  ASSERT_NE(parse("add.n r0, r1"), nullptr);  // no .N in old syntax
  EXPECT_TRUE(shown("E0003", "Unexpected trailing operand(s)"));

  target("7A8", 0);  // no qualifiers in ARM state
  ASSERT_NE(parse("add.w r0, r1, r2"), nullptr);
  EXPECT_EQ(ir_->ia_flags & IF_WIDE, 0u);
}

TEST_F(Thumb, ShiftStatements) {
  target("7A8", 2);
  ASSERT_NE(parse("lsls r0, r1, #2"), nullptr);
  EXPECT_EQ(row(), "MOV");
  EXPECT_EQ(encode_state, STATE_THUMB2_REG);  // a register operand: the second form
  ASSERT_EQ(operands(), 2);
  EXPECT_EQ(op(1)->kind, OP_SHIFTREGI);
  EXPECT_EQ(op(1)->op_shift, SHIFT_LSL);
  EXPECT_EQ(value_of(op(1)), 2);
  ASSERT_NE(parse("asr r0, #3"), nullptr);  // two operands: the first twice
  EXPECT_EQ(op(1)->op_reg, 0);
  EXPECT_EQ(op(1)->op_shift, SHIFT_ASR);
  ASSERT_NE(parse("lsr r0, r1, r2"), nullptr);  // no MOV with a register shift here
  EXPECT_EQ(row(), "LSR");
  EXPECT_EQ(ia_class(ir_), &t2_shift);
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("mov r0, r1, ror r2"), nullptr);
  EXPECT_EQ(row(), "ROR");
  ASSERT_EQ(operands(), 3);
  EXPECT_EQ(op(1)->kind, OP_REGISTER);
  EXPECT_EQ(op(1)->op_reg, 1);
  EXPECT_EQ(op(2)->kind, OP_REGISTER);
  EXPECT_EQ(op(2)->op_reg, 2);
  ASSERT_NE(parse("rrx r0, r1"), nullptr);
  EXPECT_EQ(op(1)->kind, OP_SHIFTREGI);
  EXPECT_EQ(op(1)->op_shift, SHIFT_RRX);
  EXPECT_EQ(screen(), "");
  ASSERT_NE(parse("rrx r0"), nullptr);
  EXPECT_TRUE(shown("E0003", "Insufficient number of operands"));
  ASSERT_NE(parse("rrx r0, #1"), nullptr);
  EXPECT_TRUE(shown("E0003", "Invalid operand"));
  ASSERT_NE(parse("lsl r0, #1, r2"), nullptr);  // the shift's own row judges it
  EXPECT_EQ(row(), "LSL");

  target("7A8", 0);  // ARM state keeps the MOV with a register shift
  ASSERT_NE(parse("lsl r0, #1, r2"), nullptr);
  EXPECT_TRUE(shown("E0003", "Invalid operand"));
  ASSERT_NE(parse("lsl r0, r1, r2"), nullptr);
  EXPECT_EQ(row(), "MOV");
  ASSERT_EQ(operands(), 2);
  EXPECT_EQ(op(1)->kind, OP_SHIFTREGR);
  EXPECT_EQ(op(1)->op_shift, SHIFT_LSL);
  EXPECT_EQ(value_of(op(1)), 2);
}

TEST_F(Thumb, UnifiedOperandForms) {
  target("7A8", 2);
  ASSERT_NE(parse("add r0, r1"), nullptr);  // two operands for three
  ASSERT_EQ(operands(), 3);
  EXPECT_EQ(op(1)->op_reg, 0);
  EXPECT_EQ(op(2)->op_reg, 1);
  EXPECT_EQ(encode_state, STATE_THUMB2_REG);
  ASSERT_NE(parse("add r0, r1, #4"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB2);
  ASSERT_NE(parse("mul r0, r1"), nullptr);
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("mov r0, r1"), nullptr);
  EXPECT_EQ(encode_state, STATE_THUMB2_REG);
  ASSERT_NE(parse("push {r0, lr}"), nullptr);  // a Thumb row of its own
  EXPECT_EQ(row(), "PUSH");
  EXPECT_EQ(operands(), 1);

  target("6", 1);  // unified Thumb without Thumb-2
  ASSERT_NE(parse("mov r0, r1"), nullptr);
  EXPECT_EQ(row(), "CPY");
  ASSERT_NE(parse("movs r0, r1"), nullptr);
  EXPECT_EQ(row(), "MOV");
  ASSERT_NE(parse("ands r0, r0, r1"), nullptr);
  ASSERT_EQ(operands(), 2);
  EXPECT_EQ(op(1)->op_reg, 1);
  ASSERT_NE(parse("ands r0, r1, r0"), nullptr);  // AND commutes
  ASSERT_EQ(operands(), 2);
  EXPECT_EQ(op(1)->op_reg, 1);
  ASSERT_NE(parse("bics r0, r1, r0"), nullptr);  // BIC does not
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("adds r0, r0, #1"), nullptr);
  EXPECT_EQ(operands(), 2);
  ASSERT_NE(parse("subs r0, r0, r1"), nullptr);
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("adds r0, r0, r1"), nullptr);
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("adds r0, r1"), nullptr);  // ADDS Rd, Rm is ADDS Rd, Rd, Rm
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("lsls r0, r0, #1"), nullptr);
  EXPECT_EQ(operands(), 3);
  EXPECT_EQ(screen(), "");

  target("4", 1, false);  // old syntax: ADD Rd, Rm of low registers has three
  ASSERT_NE(parse("add r0, r1"), nullptr);
  EXPECT_EQ(operands(), 3);
  ASSERT_NE(parse("add r0, r8"), nullptr);
  EXPECT_EQ(operands(), 2);
  ASSERT_NE(parse("mov r0, r1"), nullptr);
  EXPECT_EQ(row(), "MOV");
}

TEST_F(Thumb, FlagRuleOfSixteenBitForms) {
  target("6", 1);
  ASSERT_NE(parse("add r0, r0, #1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Instruction must set status"));
  ASSERT_NE(parse("adds r0, #1"), nullptr);
  EXPECT_EQ(ir_->ia_flags & IF_S, 0u);  // the encoding sets them anyway
  ASSERT_NE(parse("cmn r0, r1"), nullptr);
  ASSERT_NE(parse("tst r0, r1"), nullptr);
  ASSERT_NE(parse("add r0, r8"), nullptr);
  ASSERT_NE(parse("mov r8, #1"), nullptr);
  EXPECT_EQ(screen(), "");
  ASSERT_NE(parse("add r0, r1"), nullptr);  // two low registers set flags below Thumb-2
  EXPECT_TRUE(shown("E0002", "Instruction must set status"));

  target("7A8", 2);
  ASSERT_NE(parse("neg r0, r1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Instruction must set status"));
  ASSERT_NE(parse("add.n r0, r1"), nullptr);  // the high-register form
  EXPECT_EQ(screen(), "");
  std::strcpy(cur_it_string, "T");
  cur_it_cc = COND_EQ;
  ASSERT_NE(parse("negseq r0, r1"), nullptr);
  EXPECT_TRUE(shown("E0002", "Instruction cannot set status inside IT"));
  std::strcpy(cur_it_string, "T");
  ASSERT_NE(parse("negeq r0, r1"), nullptr);
  EXPECT_EQ(screen(), "");
}

TEST_F(Thumb, PassesReadTheSameSyntax) {
  ual_mode = 1;
  TRG_initialize_pass1();
  ual_mode = 0;  // a .state16 at the end of the source
  std::strcpy(cur_it_string, "TT");  // and an IT block that it leaves open
  TRG_reset();
  EXPECT_EQ(ual_mode, 1);
  EXPECT_STREQ(cur_it_string, "");
}

}  // namespace
