// The IT mask from the letter groups the parser leaves in ia_flags: one bit
// per letter from bit 3 down (the condition's low bit for T, its inverse for
// E), then the closing 1.
#include <gtest/gtest.h>

#include <string>

#include "driver/records.h"
#include "target/arm/instr.h"
#include "target/arm/t2_branch.h"

namespace {

instruct it_statement(const std::string &letters, uint8_t cond) {
  instruct ir{};
  for (char c : letters) ir.ia_flags = (ir.ia_flags << 4) | (c == 'T' ? 1u : 2u);
  ir.ia_cond = cond;
  return ir;
}

TEST(ItMask, LettersAndConditionParity) {
  const struct {
    const char *letters;
    uint8_t cond;
    uint32_t mask;
  } cases[] = {
      {"", COND_EQ, 0x8},    {"", COND_NE, 0x8},    {"T", COND_EQ, 0x4},    {"T", COND_NE, 0xC},
      {"E", COND_EQ, 0xC},   {"E", COND_NE, 0x4},   {"TE", COND_EQ, 0x6},   {"TE", COND_GT, 0x6},
      {"ET", COND_LE, 0x6},  {"EE", COND_NE, 0x2},  {"TTT", COND_EQ, 0x1},  {"TTT", COND_NE, 0xF},
      {"EEE", COND_EQ, 0xF}, {"TET", COND_CS, 0x5}, {"ETE", COND_MI, 0xB},  {"ETE", COND_PL, 0x5},
  };
  for (const auto &c : cases) {
    const instruct ir = it_statement(c.letters, c.cond);
    EXPECT_EQ(thumb2_get_ifte_mask(&ir), c.mask) << "IT" << c.letters << " cond " << int(c.cond);
    EXPECT_EQ(it_letter_count(&ir), std::string(c.letters).size());
  }
}

TEST(ItMask, LettersBeyondThreeAreNotInTheMask) {
  const instruct four = it_statement("TETE", COND_EQ);
  const instruct three = it_statement("TET", COND_EQ);
  EXPECT_EQ(it_letter_count(&four), 4u);
  EXPECT_EQ(thumb2_get_ifte_mask(&four), thumb2_get_ifte_mask(&three));
}

}  // namespace
