// The forms that the parser rewrites (shifts as statements, CPY, two
// operands for three, 16-bit folds and flag rule, the Thumb-2 register
// form), the IT block checks, and the state both passes start from.
#include "parse_fixture.h"

#include <cstring>

#include "target/arm/trg.h"

namespace {

using Forms = ParseTest;

struct form_case {
  const char *arch;
  uint32_t state;
  bool ual;
  const char *line;
  const char *row;
  uint32_t slot;
  const char *shapes;             // the operands' describe(), joined by " | "
  const char *message = nullptr;  // "[id] text" that the line must give; else none
};

const form_case forms[] = {
    // Shifts written as statements.
    {"7A8", 2, true, "lsls r0, r1, #2", "MOV", 3, "REG r0 =0 | SHI r1 LSL =2"},
    {"7A8", 2, true, "asr r0, #3", "MOV", 3, "REG r0 =0 | SHI r0 ASR =3"},
    {"7A8", 2, true, "lsr r0, r1, r2", "LSR", 2, "REG r0 =0 | REG r1 =1 | REG r2 =2"},
    {"7A8", 2, true, "lsl r0, #1, r2", "LSL", 2, "REG r0 =0 | ICON r0 =1 | REG r2 =2"},
    {"7A8", 2, true, "mov r0, r1, ror r2", "ROR", 2, "REG r0 =0 | REG r1 =1 | REG r2 =2"},
    {"7A8", 2, true, "rrx r0, r1", "MOV", 3, "REG r0 =0 | SHI r1 RRX =0"},
    {"7A8", 2, true, "rrx r0", "MOV", 3, "REG r0 =0", "[E0003] Insufficient number of operands"},
    {"7A8", 2, true, "rrx r0, #1", "MOV", 2, "REG r0 =0 | ICON r0 =1", "[E0003] Invalid operand"},
    {"7A8", 0, true, "lsl r0, r1, r2", "MOV", 0, "REG r0 =0 | SHR r1 LSL =2"},
    {"7A8", 0, true, "lsl r0, #1, r2", "MOV", 0, "REG r0 =0 | ICON r0 =1 | REG r2 =2", "[E0003] Invalid operand"},
    // Two operands for three, the register form, PUSH and POP.
    {"7A8", 2, true, "add r0, r1", "ADD", 3, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"7A8", 2, true, "add r0, r1, #4", "ADD", 2, "REG r0 =0 | REG r1 =1 | ICON r0 =4"},
    {"7A8", 2, true, "mul r0, r1", "MUL", 2, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"7A8", 2, true, "mov r0, r1", "MOV", 3, "REG r0 =0 | REG r1 =1"},
    {"7A8", 2, true, "push {r0, lr}", "PUSH", 2, "LIST r0 r14 =16385"},
    {"7A8", 0, true, "push {r0, lr}", "STM", 0, "REG r13 =13 ! | LIST r0 r14 =16385"},
    // Unified Thumb below Thumb-2: CPY, the folds, the flag rule.
    {"6", 1, true, "mov r0, r1", "CPY", 1, "REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "movs r0, r1", "MOV", 1, "REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "ands r0, r0, r1", "AND", 1, "REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "ands r0, r1, r0", "AND", 1, "REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "bics r0, r1, r0", "BIC", 1, "REG r0 =0 | REG r1 =1 | REG r0 =0"},
    {"6", 1, true, "adds r0, r0, #1", "ADD", 1, "REG r0 =0 | ICON r0 =1"},
    {"6", 1, true, "subs r0, r0, r1", "SUB", 1, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "adds r0, r0, r1", "ADD", 1, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "adds r0, r1", "ADD", 1, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "lsls r0, r0, #1", "LSL", 1, "REG r0 =0 | REG r0 =0 | ICON r0 =1"},
    {"6", 1, true, "cmn r0, r1", "CMN", 1, "REG r0 =0 | REG r1 =1"},
    {"6", 1, true, "mov r8, #1", "MOV", 1, "REG r8 =8 | ICON r0 =1"},
    {"6", 1, true, "add r0, r0, #1", "ADD", 1, "REG r0 =0 | ICON r0 =1", "[E0002] Instruction must set status"},
    {"6", 1, true, "add r0, r1", "ADD", 1, "REG r0 =0 | REG r1 =1", "[E0002] Instruction must set status"},
    {"7A8", 2, true, "neg r0, r1", "NEG", 1, "REG r0 =0 | REG r1 =1", "[E0002] Instruction must set status"},
    {"7A8", 2, true, "add.n r0, r1", "ADD", 1, "REG r0 =0 | REG r1 =1"},
    // Old syntax: ADD Rd, Rm of low registers has three operands; MOV stays.
    {"4", 1, false, "add r0, r1", "ADD", 1, "REG r0 =0 | REG r0 =0 | REG r1 =1"},
    {"4", 1, false, "add r0, r8", "ADD", 1, "REG r0 =0 | REG r8 =8"},
    {"4", 1, false, "mov r0, r1", "MOV", 1, "REG r0 =0 | REG r1 =1"},
};

TEST_F(Forms, Rewrites) {
  for (const form_case &c : forms) {
    target(c.arch, c.state, c.ual);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(row(), c.row) << c.line;
    EXPECT_EQ(encode_state, c.slot) << c.line;
    std::string shapes;
    for (int i = 0; i < operands(); ++i) shapes += (i ? " | " : "") + describe(i);
    EXPECT_EQ(shapes, c.shapes) << c.line;
    if (c.message) EXPECT_NE(screen().find(c.message), std::string::npos) << c.line << ": " << screen();
    else EXPECT_EQ(screen(), "") << c.line;
  }
}

TEST_F(Forms, ItBlock) {
  target("7A8", 2);
  parse("itte ne");
  EXPECT_EQ(cur_it_cc, COND_NE);
  EXPECT_STREQ(cur_it_string, "ITTE");
  const struct {
    const char *line;
    const char *message;
  } block[] = {
      {"addne r0, r0, #1", nullptr},
      {"add r0, r0, #1", "[W0004] Missing condition code inside of IT block"},
      {"movne r0, #1", "[W0004] Incorrect condition code inside of IT block"},  // E wants EQ
      {"addeq r0, r0, #1", "[E0002] Condition codes not allowed outside of IT blocks in Thumb."},
      {"beq 0", nullptr},
  };
  for (const auto &b : block) {
    // What TRG_encode does after each statement.
    std::memmove(cur_it_string, cur_it_string + (cur_it_string[0] ? 1 : 0), std::strlen(cur_it_string));
    const bool inside = cur_it_string[0] != '\0';
    parse(b.line);
    if (b.message) EXPECT_NE(screen().find(b.message), std::string::npos) << b.line << ": " << screen();
    else EXPECT_EQ(screen(), "") << b.line;
    EXPECT_EQ((ir_->ia_flags & IF_COND) == 0, inside || ir_->ia_cond == COND_AL) << b.line;
  }

  std::strcpy(cur_it_string, "T");
  cur_it_cc = COND_EQ;
  parse("negseq r0, r1");  // 16 bits cannot set the flags inside the block
  EXPECT_NE(screen().find("[E0002] Instruction cannot set status inside IT"), std::string::npos);
  std::strcpy(cur_it_string, "T");
  parse("negeq r0, r1");
  EXPECT_EQ(screen(), "");

  target("7A8", 2, false);  // old syntax: no checks here
  std::strcpy(cur_it_string, "T");
  parse("addne r0, r0, #1");
  EXPECT_EQ(ir_->ia_flags, IF_COND);
  EXPECT_EQ(screen(), "");
}

TEST_F(Forms, PassesStartAlike) {
  ual_mode = 1;
  TRG_initialize_pass1();
  ual_mode = 0;                      // a .state16 at the end of the source
  std::strcpy(cur_it_string, "TT");  // and an IT block that it leaves open
  TRG_reset();
  EXPECT_EQ(ual_mode, 1);
  EXPECT_STREQ(cur_it_string, "");
}

}  // namespace
