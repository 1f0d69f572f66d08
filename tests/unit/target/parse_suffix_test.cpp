// Mnemonic words split into row, condition, letters and addressing mode,
// in both suffix orders.
#include "parse_fixture.h"

#include "target/arm/parse.h"

namespace {

using Suffix = ParseTest;

TEST_F(Suffix, ConditionBeforeOrAfterTheLetters) {
  const struct {
    const char *line;
    const char *row;
    uint8_t cond;
    uint32_t flags;
  } cases[] = {
      {"addeqs r0, r1, #4", "ADD", COND_EQ, IF_S | IF_COND},
      {"ADDSEQ r0, r1, #4", "ADD", COND_EQ, IF_S | IF_COND},
      {"ldreqb r0, [r1]", "LDR", COND_EQ, IF_B | IF_COND},
      {"ldrbeq r0, [r1]", "LDR", COND_EQ, IF_B | IF_COND},
      {"ldreqsh r0, [r1]", "LDR", COND_EQ, IF_SX | IF_H | IF_COND},
      {"ldrsheq r0, [r1]", "LDR", COND_EQ, IF_SX | IF_H | IF_COND},
      {"ldrsb r0, [r1]", "LDR", COND_AL, IF_SX | IF_B},
      {"ldrhi r0, [r1]", "LDR", COND_HI, IF_COND},   // not LDRH with a stray I
      {"ldrh r0, [r1]", "LDR", COND_AL, IF_H},        // no LDRH row in ARM state
      {"movshi r0, r1", "MOV", COND_HI, IF_S | IF_COND},
      {"movhis r0, r1", "MOV", COND_HI, IF_S | IF_COND},
      {"strd r0, r1, [r2]", "STR", COND_AL, IF_D},
      {"strdeq r0, r1, [r2]", "STR", COND_EQ, IF_D | IF_COND},
      {"ldrbt r0, [r1], #1", "LDR", COND_AL, IF_B | IF_T},
      {"ldmdb r0, {r1}", "LDM", COND_AL, AM_DB << 4},     // D before B is no doubleword
      {"ldmiaeq r0, {r1}", "LDM", COND_EQ, IF_COND | AM_IA << 4},
      {"ldmeqia r0, {r1}", "LDM", COND_EQ, IF_COND | AM_IA << 4},
      {"stmfd sp!, {r1}", "STM", COND_AL, AM_FD << 4},
      {"ldceql p1, c2, [r0]", "LDC", COND_EQ, IF_COND | IF_L},
      {"movslt r0, r1", "MOV", COND_LT, IF_S | IF_COND},  // L before T is a condition
      {"smlalbb r0, r1, r2, r3", "SMLALBB", COND_AL, 0},
      {"mulnv r0, r1, r2", "MUL", COND_NV, IF_COND},
      {"addhs r0, r1, r2", "ADD", COND_CS, IF_COND},
      {"addlo r0, r1, r2", "ADD", COND_CC, IF_COND},
  };
  for (const auto &c : cases) {
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(row(), c.row) << c.line;
    EXPECT_EQ(ir_->ia_cond, c.cond) << c.line;
    EXPECT_EQ(ir_->ia_flags, c.flags) << c.line;
    EXPECT_EQ(encode_state, 0u) << c.line;
  }
  EXPECT_EQ(screen().find("[W0004]"), std::string::npos) << screen();
}

TEST_F(Suffix, OldSyntaxWantsTheConditionFirst) {
  target("4", 1, false);  // .state16
  ASSERT_NE(parse("addeqs r0, r1"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_EQ);
  EXPECT_FALSE(shown("W0004", "Invalid instruction modifier(s) ignored"));
  ASSERT_NE(parse("movseq r0, #1"), nullptr);
  EXPECT_EQ(ir_->ia_cond, COND_AL);  // dropped
  EXPECT_EQ(ir_->ia_flags, IF_S);
  EXPECT_TRUE(shown("W0004", "Invalid instruction modifier(s) ignored"));
  ASSERT_NE(parse("addqq r0, r1"), nullptr);
  EXPECT_TRUE(shown("W0004", "Invalid instruction modifier(s) ignored"));
}

TEST_F(Suffix, BranchLinkAndExchange) {
  target("5e", 0);
  const struct {
    const char *line;
    uint8_t cond;
    uint32_t flags;
  } cases[] = {
      {"ble 0", COND_LE, IF_COND},  {"bls 0", COND_LS, IF_COND}, {"blo 0", COND_CC, IF_COND},
      {"blt 0", COND_LT, IF_COND},  {"bl 0", COND_AL, IF_LINK},  {"blle 0", COND_LE, IF_LINK | IF_COND},
      {"bleq 0", COND_EQ, IF_LINK | IF_COND}, {"blx r0", COND_AL, IF_LINK | IF_X},
      {"blxne r0", COND_NE, IF_LINK | IF_X | IF_COND}, {"bxeq lr", COND_EQ, IF_COND},
  };
  for (const auto &c : cases) {
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(ir_->ia_cond, c.cond) << c.line;
    EXPECT_EQ(ir_->ia_flags, c.flags) << c.line;
  }
  EXPECT_EQ(screen().find("[W0004]"), std::string::npos) << screen();

  target("4", 0);  // no BLX below v5E: the X is left over
  ASSERT_NE(parse("blx r0"), nullptr);
  EXPECT_EQ(ir_->ia_flags & (IF_LINK | IF_X), 0u);
  EXPECT_TRUE(shown("W0004", "Invalid instruction modifier(s) ignored"));
}

TEST_F(Suffix, SecureAndTestTargetLetters) {
  target("8M33", 2);
  ASSERT_NE(parse("bxns lr"), nullptr);
  EXPECT_EQ(row(), "BX");
  EXPECT_EQ(ir_->ia_flags, IF_NS);
  ASSERT_NE(parse("blxns r0"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_LINK | IF_X | IF_NS);
  ASSERT_NE(parse("ttat r0, r1"), nullptr);
  EXPECT_EQ(row(), "TT");
  EXPECT_EQ(ir_->ia_flags, IF_TT_A | IF_TT_T);
  ASSERT_NE(parse("ttt r0, r1"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_TT_T);
  EXPECT_EQ(screen().find("[W0004]"), std::string::npos) << screen();
}

TEST_F(Suffix, ParallelPrefixesAndAddExtendSpellings) {
  target("6", 0);
  ASSERT_NE(parse("uqadd16ne r0, r1, r2"), nullptr);
  EXPECT_EQ(row(), "ADD16");
  EXPECT_STREQ(ir_->ia_prefix, "UQ");
  EXPECT_EQ(ir_->ia_cond, COND_NE);
  ASSERT_NE(parse("sasx r0, r1, r2"), nullptr);
  EXPECT_EQ(row(), "ADDSUBX");
  EXPECT_STREQ(ir_->ia_prefix, "S");
  ASSERT_NE(parse("shsaxeq r0, r1, r2"), nullptr);
  EXPECT_EQ(row(), "SUBADDX");
  EXPECT_STREQ(ir_->ia_prefix, "SH");
  EXPECT_EQ(ir_->ia_cond, COND_EQ);
  ASSERT_NE(parse("add16 r0, r1, r2"), nullptr);  // no prefix: the encoder's message
  EXPECT_STREQ(ir_->ia_prefix, "");
  ASSERT_NE(parse("sadd8to16 r0, r1, r2"), nullptr);
  EXPECT_EQ(ir_->ia_flags, IF_SZEA);
  EXPECT_STREQ(ir_->ia_prefix, "");
  target("7A8", 0);  // only v6 knows the add-extend spellings
  ASSERT_NE(parse("sxtab r0, r1, r2"), nullptr);
  EXPECT_EQ(ir_->ia_flags, 0u);

  EXPECT_TRUE(mext_paddsub_instruction("QSUB8"));
  EXPECT_FALSE(mext_paddsub_instruction("UADD8TO32"));
  size_t at = 0;
  EXPECT_TRUE(mext_paddsub_instruction("uhsubaddx", &at));
  EXPECT_EQ(at, 2u);
  ual_mode = 0;
  EXPECT_FALSE(mext_paddsub_instruction("QASX"));
  target("5e", 0);
  EXPECT_FALSE(mext_paddsub_instruction("QADD16"));
  target("6", 0);
  EXPECT_TRUE(mext_szea_add_instruction("uadd16to32"));
  EXPECT_FALSE(mext_szea_add_instruction("UADD16TO3"));
}

TEST_F(Suffix, UnknownWordsAndRowsOfOtherStates) {
  EXPECT_EQ(parse("frobnicate r0"), nullptr);
  EXPECT_TRUE(shown("E0002", "Illegal mnemonic specified"));
  EXPECT_EQ(parse("it eq"), nullptr);  // IT exists in Thumb-2 only
  EXPECT_EQ(parse("cbz r0, 0"), nullptr);
}

TEST_F(Suffix, UnifiedNamesInArmState) {
  ASSERT_NE(parse("lsls r0, r1, #2"), nullptr);
  EXPECT_EQ(row(), "MOV");
  EXPECT_EQ(ir_->ia_flags, IF_S);
  ASSERT_NE(parse("svceq 0"), nullptr);
  EXPECT_EQ(row(), "SWI");
  EXPECT_EQ(ir_->ia_cond, COND_EQ);
  ASSERT_NE(parse("popne {r0}"), nullptr);
  EXPECT_EQ(row(), "LDM");
  EXPECT_EQ(ir_->ia_cond, COND_NE);
  EXPECT_EQ(ir_->ia_flags, IF_COND | AM_FD << 4);
  EXPECT_EQ(screen().find("W0005"), std::string::npos);
  target("7A8", 2);
  ASSERT_NE(parse("swi 1"), nullptr);
  EXPECT_TRUE(shown("W0005", "Non-UAL opcode used in UAL mode"));
}

}  // namespace
