#pragma once
// Source text read through the real lexer, with the messages that reach the
// screen captured.
#include <gtest/gtest.h>

#include <string>

#include "driver/pipeline.h"

class PipelineTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Makes `text` the source and starts reading it in pass 2 (or pass 1).
  void source(const std::string &text, bool first_pass = false);
  // Reads the first line's directive token: curtk is then the directive name.
  void directive_line(const std::string &text);
  // What reached the screen since the last call.
  std::string screen();
  // The id appears with the text (wrapped text counts as one line).
  static bool shown(const std::string &screen, const char *id, const char *text);

  std::string path_;
  bool capturing_ = false;
};

// The low 32 bits of an operand's integer.
int32_t int_of(const operand *op);
