// Mnemonic words split into row, slot, condition, letters, addressing mode
// and prefix, in both suffix orders and in every state.
#include "parse_fixture.h"

#include "target/arm/parse.h"

namespace {

using Suffix = ParseTest;

constexpr uint32_t C = IF_COND;
constexpr uint32_t am(uint32_t mode) { return mode << 4; }

struct statement_case {
  const char *arch;
  uint32_t state;
  bool ual;
  const char *line;
  const char *row;
  uint32_t slot;
  uint8_t cond;
  uint32_t flags;
  const char *message = nullptr;  // "[id] text" that the line must give; else none
  const char *prefix = "";
};

const statement_case statements[] = {
    // Condition before or after the letters; ARM rows without letters.
    {"7A8", 0, true, "addeqs r0, r1, #4", "ADD", 0, COND_EQ, IF_S | C},
    {"7A8", 0, true, "ADDSEQ r0, r1, #4", "ADD", 0, COND_EQ, IF_S | C},
    {"7A8", 0, true, "ldreqb r0, [r1]", "LDR", 0, COND_EQ, IF_B | C},
    {"7A8", 0, true, "ldrbeq r0, [r1]", "LDR", 0, COND_EQ, IF_B | C},
    {"7A8", 0, true, "ldreqsh r0, [r1]", "LDR", 0, COND_EQ, IF_SX | IF_H | C},
    {"7A8", 0, true, "ldrsheq r0, [r1]", "LDR", 0, COND_EQ, IF_SX | IF_H | C},
    {"7A8", 0, true, "ldrsb r0, [r1]", "LDR", 0, COND_AL, IF_SX | IF_B},
    {"7A8", 0, true, "ldrhi r0, [r1]", "LDR", 0, COND_HI, C},
    {"7A8", 0, true, "ldrh r0, [r1]", "LDR", 0, COND_AL, IF_H},
    {"7A8", 0, true, "movshi r0, r1", "MOV", 0, COND_HI, IF_S | C},
    {"7A8", 0, true, "movhis r0, r1", "MOV", 0, COND_HI, IF_S | C},
    {"7A8", 0, true, "movslt r0, r1", "MOV", 0, COND_LT, IF_S | C},
    {"7A8", 0, true, "strd r0, r1, [r2]", "STR", 0, COND_AL, IF_D},
    {"7A8", 0, true, "strdeq r0, r1, [r2]", "STR", 0, COND_EQ, IF_D | C},
    {"7A8", 0, true, "ldrbt r0, [r1], #1", "LDR", 0, COND_AL, IF_B | IF_T},
    {"7A8", 0, true, "ldmdb r0, {r1}", "LDM", 0, COND_AL, am(AM_DB)},
    {"7A8", 0, true, "ldmiaeq r0, {r1}", "LDM", 0, COND_EQ, C | am(AM_IA)},
    {"7A8", 0, true, "ldmeqia r0, {r1}", "LDM", 0, COND_EQ, C | am(AM_IA)},
    {"7A8", 0, true, "ldceql p1, c2, [r0]", "LDC", 0, COND_EQ, C | IF_L},
    {"7A8", 0, true, "smlalbb r0, r1, r2, r3", "SMLALBB", 0, COND_AL, 0},
    {"7A8", 0, true, "mulnv r0, r1, r2", "MUL", 0, COND_NV, C},
    {"7A8", 0, true, "addlo r0, r1, r2", "ADD", 0, COND_CC, C},
    {"7A8", 0, true, "addqq r0, r1, r2", "ADD", 0, COND_AL, 0, "[W0004] Invalid instruction modifier(s) ignored"},
    // Unified names in ARM state.
    {"7A8", 0, true, "lsls r0, r1, #2", "MOV", 0, COND_AL, IF_S},
    {"7A8", 0, true, "svceq 0", "SWI", 0, COND_EQ, C},
    {"7A8", 0, true, "popne {r0}", "LDM", 0, COND_NE, C | am(AM_FD)},
    // Old syntax: the condition comes first.
    {"4", 1, false, "addeqs r0, r1", "ADD", 1, COND_EQ, IF_S | C},
    {"4", 1, false, "movseq r0, #1", "MOV", 1, COND_AL, IF_S, "[W0004] Invalid instruction modifier(s) ignored"},
    // Branches: link, exchange, and the conditions that begin with L.
    {"5e", 0, true, "ble 0", "B", 0, COND_LE, C},
    {"5e", 0, true, "bls 0", "B", 0, COND_LS, C},
    {"5e", 0, true, "blo 0", "B", 0, COND_CC, C},
    {"5e", 0, true, "bl 0", "B", 0, COND_AL, IF_LINK},
    {"5e", 0, true, "blle 0", "B", 0, COND_LE, IF_LINK | C},
    {"5e", 0, true, "bleq 0", "B", 0, COND_EQ, IF_LINK | C},
    {"5e", 0, true, "blx r0", "B", 0, COND_AL, IF_LINK | IF_X},
    {"5e", 0, true, "blxne r0", "B", 0, COND_NE, IF_LINK | IF_X | C},
    {"5e", 0, true, "bxeq lr", "BX", 0, COND_EQ, C},
    {"4", 0, true, "blx r0", "B", 0, COND_AL, IF_L, "[W0004] Invalid instruction modifier(s) ignored"},
    {"8M33", 2, true, "bxns lr", "BX", 1, COND_AL, IF_NS},
    {"8M33", 2, true, "blxns r0", "B", 2, COND_AL, IF_LINK | IF_X | IF_NS},
    {"8M33", 2, true, "ttat r0, r1", "TT", 2, COND_AL, IF_TT_A | IF_TT_T},
    {"8M33", 2, true, "ttt r0, r1", "TT", 2, COND_AL, IF_TT_T},
    // Parallel add/subtract prefixes, the add-extend spellings of v6.
    {"6", 0, true, "uqadd16ne r0, r1, r2", "ADD16", 0, COND_NE, C, nullptr, "UQ"},
    {"6", 0, true, "sasx r0, r1, r2", "ADDSUBX", 0, COND_AL, 0, nullptr, "S"},
    {"6", 0, true, "shsaxeq r0, r1, r2", "SUBADDX", 0, COND_EQ, C, nullptr, "SH"},
    {"6", 0, true, "add16 r0, r1, r2", "ADD16", 0, COND_AL, 0},
    {"6", 0, true, "sadd8to16 r0, r1, r2", "SADD8TO16", 0, COND_AL, IF_SZEA},
    {"7A8", 0, true, "sxtab r0, r1, r2", "SXTAB", 0, COND_AL, 0},
    // Slots in the Thumb states.
    {"7A8", 2, true, "adds r0, r1, #1", "ADD", 2, COND_AL, IF_S},
    {"7A8", 2, true, "negs r0, r1", "NEG", 1, COND_AL, 0},
    {"7A8", 2, true, "ldrh r0, [r1]", "LDRH", 2, COND_AL, 0},
    {"7A8", 2, true, "cbz r0, 0", "CZB", 2, COND_EQ, C},
    {"7A8", 2, true, "cbnz r0, 0", "CZB", 2, COND_NE, C},
    {"7A8", 2, true, "czbeq r0, 0", "CZB", 2, COND_EQ, C, "[W0005] Non-UAL opcode used in UAL mode"},
    {"7A8", 2, true, "swi 1", "SWI", 1, COND_AL, 0, "[W0005] Non-UAL opcode used in UAL mode"},
    {"7A8", 2, false, "add r0, r1, #1", "ADD", 1, COND_AL, 0},
    {"6M0", 2, true, "adds r0, r1, #1", "ADD", 1, COND_AL, 0},
    // Width qualifiers.
    {"7A8", 2, true, "adds.w r0, r1, r2", "ADD", 3, COND_AL, IF_S | IF_WIDE},
    {"7A8", 2, true, "add.N r0, r1", "ADD", 1, COND_AL, 0},
    {"7A8", 2, true, "cbz.n r0, 0", "CZB", 2, COND_EQ, C},
    {"7A8", 2, true, "blx.n r0", "B", 1, COND_AL, IF_LINK | IF_X},
    {"7A8", 2, true, "bl.n 0", "B", 2, COND_AL, IF_LINK, "[E0800] Instruction does not have narrow encoding"},
    {"7A8", 2, true, "orn.n r0, r1, r2", "ORN", 3, COND_AL, 0, "[E0800] Instruction does not have narrow encoding"},
    {"7A8", 2, false, "add.w r0, r1, #1", "ADD", 2, COND_AL, IF_WIDE},
    {"7A8", 2, false, "neg.w r0, r1", "NEG", 1, COND_AL, IF_WIDE, "[E0002] Instruction doesn't have thumb2 encoding."},
    {"7A8", 2, false, "addeq.w r0, r1, #1", "ADD", 2, COND_EQ, IF_WIDE | C,
     "[E0002] Condition codes not allowed in thumb2 state encoding."},
    {"7A8", 0, true, "add.w r0, r1, r2", "ADD", 0, COND_AL, 0, "[E0003] Unexpected trailing operand(s)"},
    // IT and SETEND.
    {"7A8", 2, true, "itte ne", "IT", 2, COND_NE, 0x12},
    {"7A8", 2, true, "itx Gt", "IT", 2, COND_GT, 0, "[E0003] Invalid modifier in If-Then (IT) instruction"},
    {"7A8", 2, true, "it", "IT", 2, COND_NV, 0, "[E0003] Empty or Invalid condition code"},
    {"6", 0, true, "setend be", "SETEND", 0, COND_AL, IF_BE},
    {"6", 0, true, "SETEND LE", "SETEND", 0, COND_AL, IF_LE},
    {"6", 0, true, "setend middle", "SETEND", 0, COND_AL, 0, "[E0003] Invalid operand. Must be BE or LE."},
};

TEST_F(Suffix, Statements) {
  for (const statement_case &c : statements) {
    target(c.arch, c.state, c.ual);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(row(), c.row) << c.line;
    EXPECT_EQ(encode_state, c.slot) << c.line;
    EXPECT_EQ(ir_->ia_cond, c.cond) << c.line;
    EXPECT_EQ(ir_->ia_flags, c.flags) << c.line;
    EXPECT_STREQ(ir_->ia_prefix, c.prefix) << c.line;
    if (c.message) EXPECT_NE(screen().find(c.message), std::string::npos) << c.line << ": " << screen();
    else EXPECT_EQ(screen(), "") << c.line;
  }
}

TEST_F(Suffix, WordsThatAreNoStatementOfTheState) {
  for (const char *line : {"frobnicate r0", "it eq", "cbz r0, 0"}) {
    EXPECT_EQ(parse(line), nullptr) << line;
    EXPECT_NE(screen().find("[E0002] Illegal mnemonic specified"), std::string::npos) << line;
  }
}

TEST_F(Suffix, ParallelAndAddExtendNames) {
  target("6", 0);
  size_t at = 0;
  EXPECT_TRUE(mext_paddsub_instruction("uhsubaddx", &at));
  EXPECT_EQ(at, 2u);
  EXPECT_FALSE(mext_paddsub_instruction("UADD8TO32"));
  EXPECT_TRUE(mext_paddsub_instruction("QASX"));
  ual_mode = 0;
  EXPECT_FALSE(mext_paddsub_instruction("QASX"));
  EXPECT_TRUE(mext_szea_add_instruction("uadd16to32"));
  EXPECT_FALSE(mext_szea_add_instruction("UADD16TO3"));
  target("5e", 0);
  EXPECT_FALSE(mext_paddsub_instruction("QADD16"));
  target("7A8", 0);
  EXPECT_FALSE(mext_szea_add_instruction("SADD8TO16"));
}

}  // namespace
