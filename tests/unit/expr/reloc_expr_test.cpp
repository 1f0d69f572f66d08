// Relocation expressions and the rules of relocation emission that no
// object shows: the postfix programs, which symbol a value names, the store
// operation of a field and the range a field accepts.
#include <cstdlib>
#include <string>

#include "expr/reloc.h"
#include "expr_fixture.h"
#include "ofe/object_file.h"

namespace {

class RelocExprTest : public ExprTest {
 protected:
  void SetUp() override {
    ExprTest::SetUp();
    ofile = OFE::OBJECT_FILE::new_OBJECT_FILE(OFE::OFF_ELF, OFE::OFV_ELF1, OFE::OFC_32, OFE::OFM_ARM, nullptr,
                                              "reloc_test.obj");
    ASSERT_NE(ofile, nullptr);
  }
  void TearDown() override {
    delete ofile;
    ofile = nullptr;
    ExprTest::TearDown();
  }

  // The program as "OFRE_PUSH ext, OFRE_PUSHUK 2, OFRE_MPY".
  static std::string program(const value_record *v) {
    std::string s;
    for (unsigned i = 0; i < v->v_rel_count; ++i) {
      const relrec &r = v->v_rel[i];
      if (!s.empty()) s += ", ";
      s += r.rr_type ? r.rr_type->template_name() : "?";
      if (r.rr_symbol) s += " " + r.rr_symbol->sym_name;
      if (r.rr_type && r.rr_type->is_const()) s += " " + std::to_string(static_cast<int32_t>(r.rr_value.k));
    }
    return s;
  }
};

TEST_F(RelocExprTest, UnfoldedTreesBecomePostfixPrograms) {
  label("lab1", scn_a, 0x10);
  label("lab3", scn_b, 0x30);
  SYM_find("ext");
  struct prog_case {
    const char *text;
    const char *program;
  };
  const prog_case cases[] = {
      {"ext * 2", "OFRE_PUSH ext, OFRE_PUSHUK 2, OFRE_MPY"},
      {"lab1 - lab3", "OFRE_PUSH lab1, OFRE_PUSH lab3, OFRE_SUB"},
      {"(ext & 0xff) | 1", "OFRE_PUSH ext, OFRE_PUSHUK 255, OFRE_AND, OFRE_PUSHUK 1, OFRE_OR"},
      {"ext / -4", "OFRE_PUSH ext, OFRE_PUSHSK -4, OFRE_DIV"},
      {"~ext", "OFRE_PUSH ext, OFRE_NOTB"},
  };
  for (const prog_case &c : cases) {
    value_record *v = eval(c.text);
    EXPECT_EQ(program(v), c.program) << c.text;
    EXPECT_TRUE(is_relocatable(v)) << c.text;
    EXPECT_EQ(v->v_val, INT128{}) << c.text;
    EXPECT_EQ(out, "") << c.text;
    E_freeval(v);
  }
}

TEST_F(RelocExprTest, LabelsNameThemselvesAndSectionOffsetsTheSection) {
  symbol_record *lab = label("lab1", scn_a, 0x10);
  symbol_record own{};
  scn_a->scn_symbol = &own;
  value_record v{};
  v.v_type = VT_LABEL;
  v.v_section = scn_a;
  v.v_symbol = lab;
  EXPECT_FALSE(RELOC_is_scnrel(&v));
  lab->sym_flags &= ~(SYMF_REFERENCED | SYMF_REF_THIS_PASS);
  EXPECT_EQ(RELOC_symbol(&v), lab);
  EXPECT_NE(lab->sym_flags & SYMF_REF_THIS_PASS, 0u);

  v.v_type = VT_SCNREL;
  EXPECT_TRUE(RELOC_is_scnrel(&v));
  EXPECT_EQ(RELOC_symbol(&v), &own);
  v.v_type = VT_LDLABEL;
  EXPECT_FALSE(RELOC_is_scnrel(&v));
  v.v_type = VT_ICON;
  EXPECT_EQ(RELOC_symbol(&v), nullptr);
  scn_a->scn_symbol = nullptr;
}

TEST_F(RelocExprTest, StoreOperationsAndFieldRanges) {
  auto store_of = [](uint32_t id) { return reloc_signedness(ofile->reloc_type(id))->template_id(); };
  for (uint32_t id : {OFE::OFR_ARM_PC24, OFE::OFR_PCRLONG, OFE::OFR_ARM_THM_CALL, OFE::OFR_ARM_THM_JUMP19})
    EXPECT_EQ(store_of(id), OFE::OFRE_SSTFLD) << id;
  for (uint32_t id : {OFE::OFR_RELLONG, OFE::OFR_RELWORD, OFE::OFR_ARM_MOVW_ABS_NC, OFE::OFR_ARM_PREL31})
    EXPECT_EQ(store_of(id), OFE::OFRE_XSTFLD) << id;

  EXPECT_TRUE(RELOC_offset_fits(123456, 0, OFE::OFRE_SSTFLD));
  EXPECT_TRUE(RELOC_offset_fits(-128, 8, OFE::OFRE_SSTFLD));
  EXPECT_TRUE(RELOC_offset_fits(127, 8, OFE::OFRE_SSTFLD));
  EXPECT_FALSE(RELOC_offset_fits(-129, 8, OFE::OFRE_SSTFLD));
  EXPECT_FALSE(RELOC_offset_fits(128, 8, OFE::OFRE_SSTFLD));
  EXPECT_TRUE(RELOC_offset_fits(255, 8, OFE::OFRE_USTFLD));
  EXPECT_FALSE(RELOC_offset_fits(256, 8, OFE::OFRE_USTFLD));
  EXPECT_FALSE(RELOC_offset_fits(-1, 8, OFE::OFRE_USTFLD));
  EXPECT_TRUE(RELOC_offset_fits(-128, 8, OFE::OFRE_XSTFLD));
  EXPECT_TRUE(RELOC_offset_fits(255, 8, OFE::OFRE_XSTFLD));
  EXPECT_FALSE(RELOC_offset_fits(-129, 8, OFE::OFRE_XSTFLD));
  EXPECT_FALSE(RELOC_offset_fits(256, 8, OFE::OFRE_XSTFLD));
}

TEST_F(RelocExprTest, ProgramsGrowByTenAndOperationsHaveTypesInElf) {
  value_record v{};
  relrec r{};
  r.rr_type = const_cast<OFE::OF_RELOC_TYPE *>(RELOC_op_type(OFE::OFRE_DUP));
  ASSERT_NE(r.rr_type, nullptr);
  EXPECT_EQ(r.rr_type->number(), 0u);  // ELF has no number for it
  for (unsigned i = 0; i < 11; ++i) E_rel_cat(&v, r);
  EXPECT_EQ(v.v_rel_count, 11);
  EXPECT_EQ(v.v_rel_cap, 20);
  std::free(v.v_rel);
  // A type that the format has comes from its table.
  EXPECT_EQ(RELOC_op_type(OFE::OFR_RELLONG)->number(), 2u);
}

}  // namespace
