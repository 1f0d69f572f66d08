// IR_build and the generic parse handlers on whole lines.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "driver/diag.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "pipeline_fixture.h"
#include "source/lexer.h"
#include "source/ophash.h"

namespace {

using StatementTest = PipelineTest;

std::vector<int32_t> slot_ints(const instruct *ir, int slot) {
  std::vector<int32_t> v;
  for (const operand *op = ir->oprnds[slot]; op; op = op->next) v.push_back(int_of(op));
  return v;
}

std::vector<std::string> pending_labels() {
  std::vector<std::string> v;
  for (const pending_label *l = LBL_current; l; l = l->next) v.push_back(l->name);
  return v;
}

}  // namespace

TEST_F(StatementTest, LabelsWaitForTheirStatement) {
  source("first\n\n; comment\nsecond:\n  .word 1\n");
  EXPECT_EQ(IR_build(), nullptr);  // "first" alone
  IR_drop(nullptr);
  EXPECT_EQ(IR_build(), nullptr);  // "second:" alone
  IR_drop(nullptr);
  EXPECT_EQ(pending_labels(), (std::vector<std::string>{"second", "first"}));
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(ir->kind, IR_DIRECTIVE);
  EXPECT_STREQ(ir->dir()->name, ".WORD");
  IR_drop(ir);
  EXPECT_EQ(IR_build(), nullptr);
  EXPECT_TRUE(endfile);
  EXPECT_EQ(screen(), "");
  LBL_free();
}

TEST_F(StatementTest, ColonBehindTheLabel) {
  source("a: .word 1\nb : .word 2\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(pending_labels(), (std::vector<std::string>{"a"}));
  EXPECT_FALSE(ir->line->flags & LNF_LABEL);  // a statement follows the label
  IR_drop(ir);
  LBL_free();
  // With a blank the colon starts the statement, which is no mnemonic.
  EXPECT_EQ(IR_build(), nullptr);
  IR_drop(nullptr);
  EXPECT_TRUE(shown(screen(), "E0002", "Illegal mnemonic specified"));
  LBL_free();
}

TEST_F(StatementTest, OnlyLabelsAndCommentsInTheFirstColumn) {
  source("5 .word 7\n5\n");
  instruct *ir = IR_build();
  // The line goes on as if it were indented: 5 is no mnemonic.
  EXPECT_EQ(ir, nullptr);
  IR_drop(ir);
  EXPECT_EQ(IR_build(), nullptr);  // alone on its line: nothing more
  IR_drop(nullptr);
  const std::string out = screen();
  EXPECT_TRUE(shown(out, "E0003", "Only labels and comments may begin in the first column."));
  EXPECT_EQ(num_errors, 3u) << out;  // twice the first-column error, once the mnemonic
}

TEST_F(StatementTest, IndentedNameIsAnOperation) {
  source("  name:\n");
  EXPECT_EQ(IR_build(), nullptr);
  IR_drop(nullptr);
  EXPECT_TRUE(shown(screen(), "E0002", "Illegal mnemonic specified"));
  EXPECT_EQ(LBL_current, nullptr);
}

TEST_F(StatementTest, DataOperandsAndEmptyOnes) {
  source("  .word 1,,2\n  .byte 1 2, 3\n  .half\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(slot_ints(ir, 0), (std::vector<int32_t>{1, 2}));
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(slot_ints(ir, 0), (std::vector<int32_t>{1, 3}));
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(ir->oprnds[0], nullptr);
  IR_drop(ir);
  const std::string out = screen();
  EXPECT_TRUE(shown(out, "E0005", "Operand missing"));
  EXPECT_TRUE(shown(out, "E0000", "Commas must separate directive elements"));
  EXPECT_EQ(num_errors, 2u) << out;  // a directive without operands does nothing
}

TEST_F(StatementTest, NoOperandsExpected) {
  source("  .text junk here\n  .data\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(curtk->kind, TK_EOL);
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_STREQ(ir->dir()->name, ".DATA");
  IR_drop(ir);
  const std::string out = screen();
  EXPECT_TRUE(shown(out, "W0000", "No operands expected. Operands ignored"));
  EXPECT_EQ(num_warnings, 1u);
  EXPECT_EQ(num_errors, 0u);
}

TEST_F(StatementTest, FileNames) {
  source("  .copy \"a b.inc\"\n  .include x.inc\n  .copy a.inc b\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  ASSERT_NE(ir->oprnds[0], nullptr);
  EXPECT_STREQ(ir->oprnds[0]->value.v_str, "a b.inc");
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  ASSERT_NE(ir->oprnds[0], nullptr);
  EXPECT_STREQ(ir->oprnds[0]->value.v_str, "x.inc");
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  IR_drop(ir);
  EXPECT_TRUE(shown(screen(), "E0003", "Unexpected trailing operand(s)"));
  EXPECT_EQ(num_errors, 1u);
}

TEST_F(StatementTest, CompilerOptionsAreNotRead) {
  source("  .COMPILER_OPTS --x \"open ; $$ ' @\n  .word 5\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_STREQ(ir->dir()->name, ".COMPILER_OPTS");
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(slot_ints(ir, 0), (std::vector<int32_t>{5}));
  IR_drop(ir);
  EXPECT_EQ(screen(), "");
}

TEST_F(StatementTest, TemplateOperands) {
  source("  .template 5, \"ab\"\n  .template 5\n  .template 5, \"ab\", 3\n");
  instruct *ir = IR_build();
  ASSERT_NE(ir, nullptr);
  ASSERT_NE(ir->oprnds[0], nullptr);
  ASSERT_NE(ir->oprnds[1], nullptr);
  EXPECT_EQ(int_of(ir->oprnds[0]), 5);
  EXPECT_STREQ(ir->oprnds[1]->value.v_str, "ab");
  IR_drop(ir);
  ir = IR_build();
  ASSERT_NE(ir, nullptr);
  EXPECT_EQ(ir->oprnds[1], nullptr);
  IR_drop(ir);
  ir = IR_build();
  IR_drop(ir);
  const std::string out = screen();
  EXPECT_TRUE(shown(out, "E0005", "Operand missing"));
  EXPECT_TRUE(shown(out, "E0003", "Unexpected trailing operand(s)"));
}

TEST_F(StatementTest, GetlineSkipsToTheNextLine) {
  source("  .word 1, 2\n\n\n  .byte 3\n");
  next_token();
  ASSERT_EQ(IR_getline(), 1);
  lookup_opcode();
  ASSERT_EQ(curtk->kind, IR_DIRECTIVE);
  EXPECT_STREQ(curtk->value.op->dir()->name, ".BYTE");
  EXPECT_EQ(IR_getline(), 0);
}

TEST_F(StatementTest, SkipComma) {
  source("  .word 1, 2 3\n");
  next_token();
  next_token();
  next_token();  // at the comma
  DIR_skip_comma(nullptr);
  EXPECT_EQ(curtk->kind, TK_ICON);
  next_token();
  DIR_skip_comma(nullptr);  // "3" is no comma: nothing is consumed
  EXPECT_EQ(curtk->kind, TK_ICON);
  EXPECT_TRUE(shown(screen(), "W0000", "Comma expected after operand"));
}
