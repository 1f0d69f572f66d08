#pragma once
// The instruction tables: mnemonic rows, classes, data-type rules, register
// rows and name translations, with the counts the tables must have.
#include <cstddef>
#include <cstdint>

#include "expr/symbols.h"
#include "target/arm/opcodes.h"

constexpr size_t MNEMONIC_ROW_COUNT = 472;
constexpr size_t INST_CLASS_COUNT = 239;
constexpr size_t SIMD_TYPE_RULE_COUNT = 47;
constexpr size_t REGISTER_ROW_COUNT = 152;
constexpr size_t UAL_ROW_COUNT = 26;

// Every class and every rule once, in table order (for walks and checks).
extern const inst_class *const trg_classes[INST_CLASS_COUNT];
extern const simd_type_rule *const simd_type_rules[SIMD_TYPE_RULE_COUNT];

// Register classes: the operand kind a register symbol gives.
enum : uint8_t {
  REG_CORE = 0, REG_SINGLE = 1, REG_VFP_SYSTEM = 3, REG_COPROC = 4, REG_PSR_FIELDS = 5,
  REG_PSR = 6, REG_DOUBLE = 7, REG_QUAD = 8, REG_M_SYSTEM = 9, REG_APSR_FLAGS = 10,
};

struct reg_init {
  const char *name;
  uint32_t value;
  uint8_t reg_class;
};

// Ending in a row with a null name.
extern const reg_init trg_ucregs[REGISTER_ROW_COUNT + 1];
extern const reg_init trg_lcregs[REGISTER_ROW_COUNT + 1];

struct ual_name_translation {
  const char *ual_name;
  const char *old_name;   // null: the name is not unified syntax in this state
  uint32_t state;
};
extern const ual_name_translation ual_to_old_mnemonics[UAL_ROW_COUNT + 1];
