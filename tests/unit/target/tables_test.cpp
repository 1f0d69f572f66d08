// The instruction tables against the rules they must keep, and the lookup
// of a name per encoding state.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>

#include "expr/value.h"
#include "source/ophash.h"
#include "target/arm/classes.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

template <typename Row>
size_t rows_of(const Row *table) {
  size_t n = 0;
  while (table[n].name) ++n;
  return n;
}

size_t ual_rows() {
  size_t n = 0;
  while (ual_to_old_mnemonics[n].ual_name) ++n;
  return n;
}

TEST(Tables, CountsAndReferences) {
  EXPECT_EQ(rows_of(trg_mnemonics), MNEMONIC_ROW_COUNT);
  EXPECT_EQ(rows_of(trg_ucregs), REGISTER_ROW_COUNT);
  EXPECT_EQ(rows_of(trg_lcregs), REGISTER_ROW_COUNT);
  EXPECT_EQ(rows_of(trg_ucpredefs), 16u);
  EXPECT_EQ(rows_of(trg_lcpredefs), 16u);
  EXPECT_EQ(ual_rows(), UAL_ROW_COUNT);

  // Every class is used by some row, and each row's classes are known ones.
  std::set<const inst_class *> classes(trg_classes, trg_classes + INST_CLASS_COUNT);
  EXPECT_EQ(classes.size(), INST_CLASS_COUNT);
  std::set<const inst_class *> used;
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row) {
    bool any = false;
    for (const mnemonic_slot &slot : row->slot) {
      if (!slot.cls) continue;
      any = true;
      EXPECT_TRUE(classes.count(slot.cls)) << row->name;
      used.insert(slot.cls);
    }
    EXPECT_TRUE(any) << row->name << " exists in no state";
  }
  for (const inst_class *cls : trg_classes) EXPECT_TRUE(used.count(cls)) << cls->name << " is used by no row";

  // Every rule is used by a class; the classes with a rule are the suffix-taking ones.
  std::set<const simd_type_rule *> rules(simd_type_rules, simd_type_rules + SIMD_TYPE_RULE_COUNT);
  EXPECT_EQ(rules.size(), SIMD_TYPE_RULE_COUNT);
  std::set<const simd_type_rule *> used_rules;
  for (const inst_class *cls : trg_classes) {
    EXPECT_LE(cls->ic_min_ops, cls->ic_max_ops) << cls->name;
    if (!cls->ic_rule) {
      EXPECT_NE(std::strncmp(cls->name, "simd_", 5), 0) << cls->name;
      continue;
    }
    EXPECT_TRUE(rules.count(cls->ic_rule)) << cls->name;
    used_rules.insert(cls->ic_rule);
  }
  std::set<const simd_type_rule *> unused;
  for (const simd_type_rule *rule : simd_type_rules)
    if (!used_rules.count(rule)) unused.insert(rule);
  // The class list names no class for five of the rules; they stay in the
  // table so that the rows can be checked against the list.
  std::set<std::string> unused_names;
  for (const simd_type_rule *rule : unused) unused_names.insert(rule->name);
  EXPECT_EQ(unused_names, (std::set<std::string>{"simd_T_3regs_imm", "simd_Td_Tnm_FSU_81632", "simd_Td_Tm_3",
                                                  "simd_Td_Tnm_vaba", "simd_Tdm_4"}));
}

TEST(Tables, NoNameHasTwoRowsForOneState) {
  std::map<std::string, int> seen[4];
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row) {
    for (int s = 0; s < 4; ++s) {
      if (row->slot[s].cls) {
        EXPECT_EQ(++seen[s][row->name], 1) << row->name << " in state " << s;
      }
    }
    for (const char *c = row->name; *c; ++c) EXPECT_FALSE(*c >= 'a' && *c <= 'z') << row->name;
  }
}

TEST(Tables, RowsThatTheEncodersRelyOn) {
  std::map<std::string, const mnemonic_row *> by_name;
  for (const mnemonic_row *row = trg_mnemonics; row->name; ++row) by_name[row->name] = row;
  const mnemonic_row *b = by_name.at("B");
  EXPECT_EQ(b->slot[0].opcode, 0x0A000000u);
  EXPECT_EQ(b->slot[0].cls, &arm_b);
  EXPECT_EQ(b->slot[1].cls, &t_b);
  EXPECT_EQ(b->slot[2].opcode, 0xF0000000u);
  const mnemonic_row *add = by_name.at("ADD");
  EXPECT_EQ(add->slot[0].opcode, 0x800000u);
  EXPECT_EQ(add->slot[1].cls, &t_add);
  EXPECT_EQ(add->slot[2].opcode, 0xF1000000u);
  EXPECT_EQ(add->slot[3].opcode, 0xEB000000u);
  EXPECT_EQ(add->slot[3].cls, &t2_dp_6);
  const mnemonic_row *udf = by_name.at("UDF");
  EXPECT_EQ(udf->slot[0].opcode, 0xE7F000F0u);
  EXPECT_EQ(udf->slot[1].opcode, 0xDE00u);
  EXPECT_EQ(udf->slot[2].opcode, 0xF7F0A000u);
  EXPECT_EQ(by_name.at("MOVW")->slot[0].cls, &t2_dp_4);
  EXPECT_EQ(by_name.at("CZB")->slot[2].opcode, 0xB100u);
  EXPECT_EQ(by_name.at("VMOV")->slot[0].opcode, 0u);
  EXPECT_EQ(by_name.count("BL"), 0u);
  EXPECT_EQ(by_name.count("LDRB") ? by_name.at("LDRB")->slot[0].cls : nullptr, nullptr);

  EXPECT_EQ(arm_vfp_bdp4.ic_allowed, 0x18400800u);
  EXPECT_EQ(simd_vcmp.ic_rule, &simd_Tdnm_F_32_64);
  EXPECT_EQ(simd_Tdnm_F_32_64.slot[0].types, 0x9u);
  EXPECT_EQ(simd_Tdnm_F_32_64.slot[0].sizes, 0x18u);
  EXPECT_EQ(simd_Tdnm_F_32_64.slot[1].types, 0x1u);  // unwritten slots admit only an absent suffix
  EXPECT_EQ(simd_Tn_vmov.slot[1].sizes, 0x1Cu);
}

TEST(Tables, RegisterRows) {
  std::map<std::string, const reg_init *> regs;
  for (size_t i = 0; i < REGISTER_ROW_COUNT; ++i) {
    const reg_init &uc = trg_ucregs[i];
    const reg_init &lc = trg_lcregs[i];
    EXPECT_TRUE(regs.emplace(uc.name, &uc).second) << uc.name;
    std::string lower(uc.name);
    for (char &c : lower) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    EXPECT_EQ(lower, lc.name);
    EXPECT_EQ(uc.value, lc.value) << uc.name;
    EXPECT_EQ(uc.reg_class, lc.reg_class) << uc.name;
  }
  const struct { const char *name; uint32_t value; uint8_t cls; } expect[] = {
      {"R0", 0, REG_CORE}, {"R15", 15, REG_CORE}, {"A4", 3, REG_CORE}, {"V1", 4, REG_CORE},
      {"V8", 11, REG_CORE}, {"V9", 12, REG_CORE}, {"AP", 7, REG_CORE}, {"IP", 12, REG_CORE},
      {"SP", 13, REG_CORE}, {"LR", 14, REG_CORE}, {"PC", 15, REG_CORE}, {"S31", 31, REG_SINGLE},
      {"D31", 31, REG_DOUBLE}, {"Q15", 15, REG_QUAD}, {"FPSID", 0, REG_VFP_SYSTEM},
      {"FPSCR", 1, REG_VFP_SYSTEM}, {"FPEXC", 8, REG_VFP_SYSTEM}, {"C0", 16, REG_COPROC},
      {"C15", 31, REG_COPROC}, {"CPSR", 0x100, REG_PSR}, {"APSR", 0x300, REG_PSR},
      {"SPSR_", 0x201, REG_PSR_FIELDS}, {"APSR_", 0x301, REG_APSR_FLAGS}, {"IAPSR", 1, REG_M_SYSTEM},
      {"IPSR", 5, REG_M_SYSTEM}, {"MSP", 8, REG_M_SYSTEM}, {"PRIMASK", 0x10, REG_M_SYSTEM},
      {"CONTROL", 0x14, REG_M_SYSTEM},
  };
  for (const auto &e : expect) {
    ASSERT_TRUE(regs.count(e.name)) << e.name;
    EXPECT_EQ(regs[e.name]->value, e.value) << e.name;
    EXPECT_EQ(regs[e.name]->reg_class, e.cls) << e.name;
  }
  for (const sym_init *p = trg_ucpredefs; p->name; ++p) EXPECT_EQ(p->type, static_cast<uint32_t>(VT_COPRID));
  EXPECT_EQ(trg_lcpredefs[15].value, 15u);
  EXPECT_STREQ(trg_lcpredefs[15].name, "p15");
}

TEST(Tables, LookupGoesOnToTheRowOfTheState) {
  if (!findop(".COPY")) init_ophash();
  const uint32_t saved = encode_state;
  const struct { const char *name; bool in_state[4]; } rows[] = {
      {"RSC", {true, false, false, false}},  {"NEG", {false, true, false, false}},
      {"IT", {false, false, true, false}},   {"ORN", {false, false, true, true}},
      {"and", {true, true, true, true}},     {"VADD", {true, false, true, false}},
      {"CPY", {true, true, false, false}},   {"SG", {false, false, true, false}},
  };
  for (const auto &r : rows) {
    for (uint32_t s = 0; s < 4; ++s) {
      encode_state = s;
      const ophashtbl *e = findop(r.name);
      EXPECT_EQ(e != nullptr, r.in_state[s]) << r.name << " in state " << s;
      if (e) {
        ASSERT_EQ(e->kind, static_cast<uint32_t>(OPTYPE_MNEMONIC));
        EXPECT_NE(e->mnemonic()->slot[s].cls, nullptr);
      }
    }
  }
  encode_state = saved;
}

}  // namespace
