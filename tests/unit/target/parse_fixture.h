#pragma once
// Instruction statements read from source text through the real lexer, the
// opcode lookup and TRG_parse, with the messages that reach the screen.
#include <gtest/gtest.h>

#include <string>

#include "driver/records.h"
#include "target/arm/instr.h"

class ParseTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Selects the architecture and the code state (0 ARM, 1 Thumb, 2 Thumb-2)
  // with unified syntax, or old syntax when `ual` is false.
  void target(const char *arch, uint32_t state, bool ual = true);
  // Parses the first statement of `line` (in pass 2); the statement stays
  // until the next call. Null when the parser refused it.
  instruct *parse(const std::string &line);
  // What reached the screen since the last call, blanks squeezed.
  std::string screen();
  // The statement's messages: the screen holds the id with the text.
  bool shown(const char *id, const char *text);
  // The row name of the statement.
  std::string row() const;
  // Operand n.
  const operand *op(int n) const;
  int operands() const;

  instruct *ir_ = nullptr;
  std::string path_;
  std::string screen_;
  bool capturing_ = false;
};

// The low 32 bits of an operand's integer.
int32_t value_of(const operand *op);
