#pragma once
// Instruction statements read from a source line through the real lexer, the
// opcode lookup and TRG_parse, with the messages that reach the screen.
#include <gtest/gtest.h>

#include <string>

#include "target/arm/instr.h"

class ParseTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The architecture, the code state (0 ARM, 1 Thumb, 2 Thumb-2) and the
  // syntax (unified or old); no open IT block.
  static void target(const char *arch, uint32_t state, bool ual = true);
  // Parses the statement of `line` in pass 2; it stays until the next call.
  instruct *parse(const std::string &line);
  // The messages since the last parse, blanks squeezed.
  std::string screen();
  std::string row() const { return ir_ ? ia_row(ir_)->name : ""; }
  int operands() const;
  // Operand n in one line: kind, op_reg, op_reg2 (when it differs), shift,
  // =value, [lane], '-' for op_neg, then '!' '^' or the field mask "m9".
  std::string describe(int n) const;

  instruct *ir_ = nullptr;
  std::string path_, screen_;
  bool capturing_ = false;
};
