#pragma once
// A fresh ELF object, section list and options for each test, with two ways
// in: the section manager's calls directly, or source text run through both
// passes of the real pipeline.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "directives/sections.h"

class SectionsTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // What prepare_pass1 and prepare_pass2 do to the sections, and a pass flip.
  static void start_pass1();
  static void start_pass2();
  static void finish();                 // SCN_flush at the end of pass 2

  // The contents of a section written so far.
  static std::vector<uint8_t> bytes(const char *name);
  static std::vector<uint8_t> bytes_of(const section_record *s);

  // Runs `text` through pass 1 and pass 2 and flushes the sections; returns
  // what reached the screen in pass 2.
  std::string assemble(const std::string &text);
  // The id appears with the text (blanks squeezed) on the screen.
  static bool shown(const std::string &screen, const char *id, const char *text);

  std::string path_;
};

std::string hex(const std::vector<uint8_t> &v);
