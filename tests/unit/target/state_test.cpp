// Architecture selection, the code state it corrects, and the translations
// of the opcode lookup.
#include <gtest/gtest.h>

#include "target/arm/arch.h"
#include "target/arm/opcodes.h"
#include "target/arm/state.h"
#include "target/arm/trg.h"

namespace {

class TargetState : public ::testing::Test {
 protected:
  void SetUp() override { reset(); }
  void TearDown() override { reset(); }
  static void reset() {
    arm_arch_types.set(nullptr);
    cur_state = def_state = 0;
    ual_mode = 1;
  }
};

TEST_F(TargetState, ArchitectureTextsNumbersAndTests) {
  const char *texts[] = {"4", "5e", "6", "6M0", "7A8", "7M3", "7M4", "7R4", "7R5", "8M33"};
  for (uint32_t i = 0; i < 10; ++i) {
    arm_arch_types.set(texts[i]);
    EXPECT_EQ(arm_arch(), i + 1) << texts[i];
  }
  arm_arch_types.set("7m4");  // without regard to case
  EXPECT_EQ(arm_arch(), ARCH_V7M4);
  arm_arch_types.set("9");    // unknown: unchanged
  EXPECT_EQ(arm_arch(), ARCH_V7M4);
  arm_arch_types.set(nullptr);
  EXPECT_EQ(arm_arch(), ARCH_NONE);
  arm_arch_types.set(10u);
  EXPECT_EQ(arm_arch(), ARCH_V8M33);
  arm_arch_types.set(11u);
  EXPECT_EQ(arm_arch(), ARCH_NONE);

  // V6M0 is v6 but not v7, yet has the Thumb-2 state; V8M33 is no v7.
  arm_arch_types.set("6M0");
  EXPECT_TRUE(arm_arch_types.is_v6_or_higher());
  EXPECT_FALSE(arm_arch_types.is_v7_or_higher());
  EXPECT_TRUE(arm_arch_types.is_t2_capable());
  EXPECT_TRUE(arm_arch_types.is_cortex_m());
  arm_arch_types.set("8M33");
  EXPECT_TRUE(arm_arch_types.is_v7_or_higher());
  EXPECT_FALSE(arm_arch_types.is_v7());
  arm_arch_types.set("7R5");
  EXPECT_TRUE(arm_arch_types.is_v7());
  EXPECT_FALSE(arm_arch_types.is_cortex_m());
  arm_arch_types.set("5e");
  EXPECT_TRUE(arm_arch_types.is_v5e_or_higher());
  EXPECT_FALSE(arm_arch_types.is_v6_or_higher());
  EXPECT_FALSE(arm_arch_types.is_t2_capable());
}

TEST_F(TargetState, LaterArchitectureCorrectsTheCodeState) {
  TRG_set_code_state(16);  // -mt before any architecture: plain Thumb
  EXPECT_EQ(cur_state, 1u);
  EXPECT_EQ(TRG_get_version("7M3"), static_cast<int>(ARCH_V7M3));
  EXPECT_EQ(cur_state, 2u);
  EXPECT_EQ(def_state, 2u);
  EXPECT_EQ(TRG_get_version("4"), static_cast<int>(ARCH_V4));
  EXPECT_EQ(cur_state, 1u);
  EXPECT_EQ(def_state, 1u);

  TRG_set_code_state(32);
  EXPECT_EQ(TRG_get_version("7A8"), static_cast<int>(ARCH_V7A8));
  EXPECT_EQ(cur_state, 0u);
  TRG_set_code_state(16);
  EXPECT_EQ(cur_state, 2u);

  cur_state = 1;
  TRG_reset();
  EXPECT_EQ(cur_state, 2u);
  EXPECT_EQ(signal_state_change, 1u);
  signal_state_change = 0;
}

TEST_F(TargetState, FillPatterns) {
  EXPECT_EQ(TRG_fill_pattern(0), 0x01A00000u);
  EXPECT_EQ(TRG_fill_pattern(1), 0x46C046C0u);
  EXPECT_EQ(TRG_fill_pattern(2), 0x46C046C0u);
}

TEST_F(TargetState, UnifiedNamesAndParallelPrefixes) {
  EXPECT_EQ(ual_translate_name("LSLS"), "MOVS");   // ARM state
  EXPECT_EQ(ual_translate_name("popeq"), "LDMFDeq");
  EXPECT_EQ(ual_translate_name("CBZ"), "CBZ");     // only in Thumb-2
  EXPECT_EQ(ual_translate_name("SVC"), "SWI");
  cur_state = 2;
  EXPECT_EQ(ual_translate_name("CBNZ"), "CZBNE");
  EXPECT_EQ(ual_translate_name("CBZ"), "CZBEQ");
  EXPECT_EQ(ual_translate_name("PUSH"), "PUSH");   // a Thumb-2 row of its own
  EXPECT_EQ(ual_translate_name("SASX"), "SASX");   // the prefix is split off first
  EXPECT_EQ(ual_translate_name("ASX"), "ADDSUBX");

  int n = -1;
  EXPECT_FALSE(has_mext_prefix("SADD16", &n));     // no architecture: not v6
  arm_arch_types.set("6");
  EXPECT_TRUE(has_mext_prefix("SADD16", &n));
  EXPECT_EQ(n, 1);
  EXPECT_TRUE(has_mext_prefix("uqsub8ne", &n));
  EXPECT_EQ(n, 2);
  EXPECT_TRUE(has_mext_prefix("SHASX", &n));
  EXPECT_EQ(n, 2);
  EXPECT_FALSE(has_mext_prefix("SADD16TO32", &n));
  EXPECT_FALSE(has_mext_prefix("XADD16", &n));
  EXPECT_FALSE(has_mext_prefix("ADD16", &n));
  ual_mode = 0;
  EXPECT_FALSE(has_mext_prefix("SASX", &n));
}

}  // namespace
