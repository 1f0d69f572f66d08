// Thumb-2 modified constants at the edges of their forms: a value one bit
// outside a pattern, a rotation of 7 or 32, or a wrap-around must not pass, and
// each form must give its own i:imm3:imm8 field.
#include <gtest/gtest.h>

#include "target/arm/enc_t2_dp.h"

namespace {

TEST(ModifiedConstant, FormsAndTheirNeighbours) {
  struct value_case {
    uint32_t v;
    bool ok;
  };
  const value_case cases[] = {
      {0, true},           {0xFF, true},        {0x100, true},       {0x101, false},
      {0x1FE, true},       {0x1FF, false},      {0x00AB00AB, true},  {0x00AB00AA, false},
      {0xAB00AB00, true},  {0xAB00AA00, false}, {0xABABABAB, true},  {0xABABABAA, false},
      {0x00010001, true},  {0x01000100, true},  {0x01010101, true},  {0x01010100, false},
      {0x80000000, true},  {0xFF000000, true},  {0x7F800000, true},  {0xFF800000, false},
      // A byte may not wrap around bit 31.
      {0xC0000001, false}, {0xFF0000FF, false}, {0xFFFFFFFF, true},  {0xFFFFFFFE, false},
  };
  for (const value_case &c : cases) EXPECT_EQ(is_modified_constant(c.v), c.ok) << std::hex << c.v;
}

TEST(ModifiedConstant, RotatedFormTakesRotationsEightToThirtyOne) {
  uint32_t byte = 0;
  uint32_t rotation = 0;
  ASSERT_TRUE(is_const_representable_in_mod_const(0x80000000, &byte, &rotation));
  EXPECT_EQ(byte, 0x80u);
  EXPECT_EQ(rotation, 8u);
  ASSERT_TRUE(is_const_representable_in_mod_const(0x100, &byte, &rotation));
  EXPECT_EQ(byte, 0x80u);
  EXPECT_EQ(rotation, 31u);
  ASSERT_TRUE(is_const_representable_in_mod_const(0x1FE, &byte, &rotation));
  EXPECT_EQ(byte, 0xFFu);
  EXPECT_EQ(rotation, 31u);
  // A plain byte is no rotation: it would need 0 (or 32).
  EXPECT_FALSE(is_const_representable_in_mod_const(0xFF, &byte, &rotation));
  EXPECT_FALSE(is_const_representable_in_mod_const(0x80, &byte, &rotation));
  EXPECT_FALSE(is_const_representable_in_mod_const(0, &byte, &rotation));
  EXPECT_FALSE(is_const_representable_in_mod_const(0x00AB00AB, &byte, &rotation));
}

TEST(ModifiedConstant, FieldOfEachForm) {
  EXPECT_EQ(t2_modified_constant_field(0), 0x000u);
  EXPECT_EQ(t2_modified_constant_field(0xAB), 0x0ABu);
  EXPECT_EQ(t2_modified_constant_field(0x00AB00AB), 0x1ABu);
  EXPECT_EQ(t2_modified_constant_field(0xAB00AB00), 0x2ABu);
  EXPECT_EQ(t2_modified_constant_field(0xABABABAB), 0x3ABu);
  EXPECT_EQ(t2_modified_constant_field(0xFFFFFFFF), 0x3FFu);
  // Rotated: the rotation in the top five bits, the byte without its top bit.
  EXPECT_EQ(t2_modified_constant_field(0x80000000), 0x400u);
  EXPECT_EQ(t2_modified_constant_field(0xFF000000), 0x47Fu);
  EXPECT_EQ(t2_modified_constant_field(0x100), 0xF80u);
  EXPECT_EQ(t2_modified_constant_field(0x1FE), 0xFFFu);
  EXPECT_EQ(t2_modified_constant_field(0x3FC00), 0xB7Fu);
}

}  // namespace
