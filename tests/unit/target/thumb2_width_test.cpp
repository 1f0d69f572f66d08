// The Thumb-2 width decisions on parsed statements: which 32-bit rows may
// take a 16-bit form, the folds that need no trial, the lengths that wait
// for jump expansion, and a trial that fails without a trace.
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "parse_fixture.h"
#include "target/arm/glue_pending.h"
#include "target/arm/thumb2_hooks.h"
#include "support/fhm.h"
#include "target/arm/trg.h"

namespace {

class Width : public ParseTest {
 protected:
  // Thumb-2 on v7-A; `it` opens a block of one instruction under EQ.
  instruct *thumb2(const char *line, bool it = false) {
    target("7A8", 2);
    if (it) {
      std::strcpy(cur_it_string, "T");
      cur_it_cc = COND_EQ;
    }
    instruct *ir = parse(line);
    // Only the undefined label may draw a message.
    if (!std::strstr(line, "lab")) {
      EXPECT_EQ(screen(), "") << line;
    }
    return ir;
  }
  std::string shapes() const {
    std::string s;
    for (int i = 0; i < operands(); ++i) s += (i ? " | " : "") + describe(i);
    return s;
  }
};

struct decision {
  const char *line;
  bool it;
  bool ok;
  const char *row;   // the row afterwards
};

TEST_F(Width, FlagRulesDecideWhichDataProcessingMayNarrow) {
  const decision cases[] = {
      // Without S outside a block the 16-bit form would set flags: only the
      // forms that set none (high-register ADD, MOV as CPY, SP arithmetic)
      // and the compares may go.
      {"add r0, r0, r1", false, true, "ADD"},
      {"add r0, r1, r0", false, true, "ADD"},
      {"add r0, r1, r2", false, false, "ADD"},
      {"add r0, r1, #4", false, false, "ADD"},
      {"add r0, sp, #4", false, true, "ADD"},
      {"add sp, sp, #8", false, true, "ADD"},
      {"sub sp, sp, #8", false, true, "SUB"},
      {"sub r0, r0, #1", false, false, "SUB"},
      {"cmp r0, #1", false, true, "CMP"},
      {"cmn r0, r1", false, true, "CMN"},
      {"tst r0, r1", false, true, "TST"},
      {"and r0, r0, r1", false, false, "AND"},
      {"mul r0, r0, r1", false, false, "MUL"},
      {"lsl r0, r1, r2", false, false, "LSL"},
      {"mov r0, r1", false, true, "CPY"},
      {"mov r0, #1", false, false, "MOV"},
      {"mov r0, r1, lsl #2", false, false, "MOV"},
      // Inside a block the 16-bit forms set no flags.
      {"andeq r0, r0, r1", true, true, "AND"},
      {"moveq r0, #1", true, true, "MOV"},
      {"andseq r0, r0, r1", true, false, "AND"},
      // With S: MOV, ADD and SUB only of low registers.
      {"movs r0, #1", false, true, "MOV"},
      {"movs r0, r8", false, false, "MOV"},
      {"adds r0, r0, r1", false, true, "ADD"},
      {"adds r8, r8, r1", false, false, "ADD"},
      {"adds r0, r1, r9", false, false, "ADD"},
      {"adds r0, r1, #1", false, true, "ADD"},
      {"ands r0, r0, r1", false, true, "AND"},
      {"ands r8, r8, r1", false, true, "AND"},
      // Not data processing: left to the trial.
      {"ldr r0, [r1]", false, true, "LDR"},
  };
  for (const decision &c : cases) {
    instruct *ir = thumb2(c.line, c.it);
    ASSERT_NE(ir, nullptr) << c.line;
    EXPECT_EQ(ok_to_convert_to_thumb(ir), c.ok) << c.line;
    EXPECT_EQ(row(), c.row) << c.line;
  }
}

TEST_F(Width, LabelDependentLengthsAndTheirKinds) {
  struct variable {
    const char *line;
    bool variable;
    JUMP_LIST_TYPE kind;
  };
  const variable cases[] = {
      {"ldr r0, lab", true, JUMP_LOAD_ADDR}, {"adr r7, lab", true, JUMP_LOAD_ADDR},
      {"ldr r8, lab", false, JUMP_LABEL},    {"adr sp, lab", false, JUMP_LABEL},
      {"ldrb r0, lab", false, JUMP_LABEL},   {"ldr r0, [r1]", false, JUMP_LABEL},
      {"b lab", true, JUMP_UNCOND},          {"beq lab", true, JUMP_COND},
      {"b.w lab", false, JUMP_LABEL},        {"bl lab", false, JUMP_LABEL},
      {"ldr.w r0, lab", false, JUMP_LABEL},
  };
  for (const variable &c : cases) {
    instruct *ir = thumb2(c.line);
    JUMP_LIST_TYPE kind = JUMP_LABEL;
    EXPECT_EQ(variable_length_t2_ins(ir, &kind), c.variable) << c.line;
    EXPECT_EQ(kind, c.kind) << c.line;
  }
}

TEST_F(Width, LengthsByClass) {
  struct length_case {
    const char *arch;
    uint32_t state;
    const char *line;
    uint32_t bytes;
  };
  const length_case cases[] = {
      {"7A8", 2, "add r0, r1, r2", 4},   {"7A8", 2, "itt eq", 2},      {"7A8", 2, "cbz r0, lab", 2},
      {"7A8", 2, "cdp p1, 2, c3, c4, c5, 6", 4}, {"7A8", 2, "udf.n #1", 2}, {"7A8", 2, "udf #1", 4},
      {"7A8", 2, "bl lab", 4},           {"7A8", 2, "adds.n r0, r1, r2", 2},
      {"4", 1, "bl lab", 4},             {"4", 1, "bx r1", 2},         {"4", 1, "add r0, r1", 2},
      {"7A8", 0, "add r0, r1, r2", 4},
  };
  for (const length_case &c : cases) {
    target(c.arch, c.state);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(TRG_get_instlen(ir_), c.bytes) << c.line;
  }
}

// Pass 1 pushes a first length for each label-dependent statement; pass 2
// pops exactly those, in order, and sets the slot for the length read.
TEST_F(Width, BothPassesAgreeOnWhatGoesThroughTheLengthStream) {
  struct stream_case {
    const char *arch;
    uint32_t state;
    const char *line;
    bool pushes;
    uint32_t length;        // pass 2: the length jump expansion decided
    uint32_t pass2_slot;
  };
  const stream_case cases[] = {
      {"7A8", 2, "beq lab", true, 4, STATE_THUMB2},   {"7A8", 2, "b lab", true, 2, STATE_THUMB16},
      {"7A8", 2, "ldr r0, lab", true, 2, STATE_THUMB16}, {"7A8", 2, "adr r1, lab", true, 4, STATE_THUMB2},
      {"7A8", 2, "ldr r8, lab", false, 4, STATE_THUMB2}, {"7A8", 2, "bl lab", false, 4, STATE_THUMB2},
      {"7A8", 2, "b.w lab", false, 4, STATE_THUMB2},    {"7A8", 2, "beq.n lab", true, 2, STATE_THUMB16},
      {"4", 1, "beq lab", true, 4, STATE_THUMB16},      {"4", 1, "b lab", false, 2, STATE_THUMB16},
      {"4", 1, "bl lab", false, 4, STATE_THUMB16},      {"4", 1, "br lab", true, 6, STATE_THUMB16},
      {"4", 1, "bteq lab, 3", true, 4, STATE_THUMB16},  {"4", 1, "bq lab", true, 2, STATE_THUMB16},
      {"4", 1, "bx r0", false, 2, STATE_THUMB16},
  };
  for (const stream_case &c : cases) {
    target(c.arch, c.state);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    isize_list.clear();
    isize_idx = 0;
    pass1 = 1;
    pass2 = 0;
    TRG_encode(ir_);
    pass1 = 0;
    pass2 = 1;
    ASSERT_EQ(isize_list.size(), c.pushes ? 1u : 0u) << c.line;
    if (c.pushes) {
      EXPECT_EQ(isize_list[0], 2u) << c.line;
      EXPECT_EQ(instlen, 2u) << c.line;
      isize_list[0] = c.length;
    }
    target(c.arch, c.state);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(TRG_get_instlen(ir_), c.length) << c.line;
    EXPECT_EQ(isize_idx, c.pushes ? 1u : 0u) << c.line;
    EXPECT_EQ(encode_state, c.pass2_slot) << c.line;
  }
  isize_list.clear();
  isize_idx = 0;
}

// Whatever the trial did to the statement is undone when it fails, and
// nothing reaches the screen or the error count.
TEST_F(Width, FailedTrialLeavesNoTrace) {
  const char *lines[] = {"adds r0, r1, #300", "ands r0, r0, r8", "eors r0, r9, r0", "movs r0, #0x1200"};
  for (const char *line : lines) {
    instruct *ir = thumb2(line);
    const std::string before = shapes();
    const uint32_t flags = ir->ia_flags, slot = encode_state, errors = num_errors, warnings = num_warnings;
    const void *record = ir->record;
    instlen = 4;
    EXPECT_FALSE(conv_32t2_to_16t(ir)) << line;
    EXPECT_EQ(shapes(), before) << line;
    EXPECT_EQ(ir->ia_flags, flags) << line;
    EXPECT_EQ(ir->record, record) << line;
    EXPECT_EQ(encode_state, slot) << line;
    EXPECT_EQ(instlen, 4u) << line;
    EXPECT_EQ(num_errors, errors) << line;
    EXPECT_EQ(num_warnings, warnings) << line;
    EXPECT_EQ(output_error, 1) << line;
    EXPECT_EQ(suppress_output, 0) << line;
    EXPECT_EQ(screen(), "") << line;
  }
}

TEST_F(Width, TrialCountsWarningsEvenWhenWarningsAreOff) {
  global_opts->setopt(OPT_NO_WARNINGS);
  const uint32_t warnings = num_warnings;
  errors_or_warn = 0;
  warn(nullptr, "W0002", "seen by the trial");
  EXPECT_EQ(errors_or_warn, 0u);
  output_error = 0;
  warn(nullptr, "W0002", "seen by the trial");
  output_error = 1;
  EXPECT_EQ(errors_or_warn, 1u);
  EXPECT_EQ(num_warnings, warnings);
}

}  // namespace

namespace {

// With a listing, each Thumb-2 statement of pass 2 gets a mark in place of
// its newline; the statistics count the kept lines and the 16-bit ones whose
// text holds ".W" (in any case).
TEST_F(Width, ListingMarksAndCounters) {
  struct mark {
    const char *line;
    const char *tail;
  };
  const mark cases[] = {
      {"add r0, r1, r2", " ; [KEEP 32-BIT INS]\n"},
      {"add.w r0, r1, r2", " ; [KEEP 32-BIT INS]\n"},
      {"it eq", " ; [ORIG 16-BIT INS]\n"},
      {"adds.n r0, r1, r2", " ; [ORIG 16-BIT INS]\n"},
      {"adds.n r0, r1, r2 ; was .W", " ; [CONV 16-BIT INS]\n"},
      {"it eq ; IT.w", " ; [CONV 16-BIT INS]\n"},
  };
  global_opts->setopt(OPT_ASM_LISTING);
  ASSY_LST = fhm_open("/dev/null", "w");
  ASSERT_NE(ASSY_LST, nullptr);
  const int64_t keep = num_thumb2_keep, conv = num_thumb2_conv;
  for (const mark &c : cases) {
    instruct *ir = thumb2(c.line);
    update_thumb2_lst(ir);
    const std::string text = ir->line->text;
    EXPECT_EQ(text, std::string("        ") + c.line + c.tail);
    // The source line itself stays as it was read.
    EXPECT_EQ(std::string(ir->line->source_text), std::string("        ") + c.line + "\n");
  }
  EXPECT_EQ(num_thumb2_keep - keep, 2);
  EXPECT_EQ(num_thumb2_conv - conv, 2);
  // Neither a trial nor pass 1 marks or counts.
  instruct *ir = thumb2("add r0, r1, r2");
  output_error = 0;
  update_thumb2_lst(ir);
  output_error = 1;
  pass1 = 1;
  update_thumb2_lst(ir);
  pass1 = 0;
  EXPECT_EQ(std::string(ir->line->text), "        add r0, r1, r2\n");
  EXPECT_EQ(num_thumb2_keep - keep, 2);
  fhm_close(ASSY_LST);
  ASSY_LST = nullptr;
}

}  // namespace

namespace {

// The whole choice in pass 2, with the real 16-bit encoders as the trial:
// whether the statement narrows, and the form it is left in for its real
// encoding (folds and the two-operand retry keep their form).
TEST_F(Width, ChoiceInPassTwo) {
  struct choice {
    const char *line;
    bool it;
    bool narrow;
    const char *row;
    const char *after;   // null: the operands as parsed
    bool two_operand;    // the retry's form was kept
  };
  const choice cases[] = {
      {"andeq r0, r0, r1", true, true, "AND", "REG r0 =0 | REG r1 =1", true},
      {"andseq r0, r0, r1", true, false, "AND", nullptr, false},
      {"orreq r0, r1, r0", true, true, "ORR", "REG r0 =0 | REG r1 =1", true},
      {"addeq r0, r1, r2", true, true, "ADD", nullptr, false},
      {"addeq r0, r1, #300", true, false, "ADD", nullptr, false},
      {"addeq r8, r8, r1", true, true, "ADD", "REG r8 =8 | REG r1 =1", false},
      {"moveq r0, r1", true, true, "MOV", nullptr, false},
      {"lsleq r0, r1, #2", true, true, "LSL", "REG r0 =0 | REG r1 =1 | ICON r0 =2", false},
      {"ands r0, r1, r0", false, true, "AND", "REG r0 =0 | REG r1 =1", true},
      {"bics r0, r1, r0", false, false, "BIC", nullptr, false},
      {"mov r0, r1", false, true, "CPY", nullptr, false},
      {"mov r8, r9", false, true, "CPY", nullptr, false},
      {"movs r0, #300", false, false, "MOV", nullptr, false},
      {"adds r0, r0, #200", false, true, "ADD", "REG r0 =0 | ICON r0 =200", true},
      {"ldr r0, [r1, #2]", false, false, "LDR", nullptr, false},
      {"cmp r8, r1", false, true, "CMP", nullptr, false},
      {"add r0, r1, r0", false, true, "ADD", "REG r0 =0 | REG r1 =1", false},
      {"add sp, sp, r1", false, true, "ADD", "REG r13 =13 | REG r1 =1", false},
      {"lsrs r7, r6, #32", false, true, "LSR", "REG r7 =7 | REG r6 =6 | ICON r0 =32", false},
      {"lsls r8, r1, #2", false, false, "MOV", nullptr, false},
      {"lsl r0, r1, #2", false, false, "MOV", nullptr, false},
      {"lslseq r0, r1, #2", true, false, "MOV", nullptr, false},
  };
  for (const choice &c : cases) {
    instruct *ir = thumb2(c.line, c.it);
    const std::string before = shapes();
    const int64_t two = num_2opnd_conv;
    instlen = TRG_get_instlen(ir);
    EXPECT_EQ(instlen, 4u) << c.line;
    EXPECT_EQ(conv_32t2_to_16t(ir), c.narrow) << c.line;
    EXPECT_EQ(instlen, c.narrow ? 2u : 4u) << c.line;
    EXPECT_EQ(row(), c.row) << c.line;
    EXPECT_EQ(shapes(), c.after ? c.after : before) << c.line;
    EXPECT_EQ(num_2opnd_conv - two, c.two_operand ? 1 : 0) << c.line;
    EXPECT_EQ(screen(), "") << c.line;
  }
  // Pass 1 needs no more than the length: a fold leaves the statement alone.
  instruct *ir = thumb2("add r0, r0, r1");
  pass1 = 1;
  EXPECT_TRUE(conv_32t2_to_16t(ir));
  pass1 = 0;
  EXPECT_EQ(operands(), 3);
}

}  // namespace
