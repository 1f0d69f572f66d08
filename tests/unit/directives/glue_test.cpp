// The object glue: object assembly, engine errors turned into messages,
// and the target hooks (float word order, relocation types and adjustments,
// exception index sections, the EABI version of the file header).
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "debug/object_build.h"
#include "debug/object_build_sections.h"
#include "driver/diag.h"
#include "driver/diag_engines.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/records.h"
#include "expr/fval.h"
#include "expr/reloc.h"
#include "ofe/elf_file.h"
#include "ofe/object_file.h"
#include "ofe/of_group.h"
#include "ofe/of_reloc_type.h"
#include "ofe/of_symbol.h"
#include "secdir_fixture.h"
#include "target/arm/trg.h"

namespace {

std::string read_all(const std::string &path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

// A COMDAT group section named `name` with the given member names, newest first.
section_record *make_group(const char *name, std::initializer_list<const char *> members, uint32_t kind = 1) {
  SCN_queue(SCN_KIND_GROUP, name);
  section_record *g = curseg;
  dynamic_cast<OFE::ELF_SECTION *>(g->scn_object)->set_sh_type(OFE::SHT_GROUP);
  g->scn_group_kind = kind;
  for (const char *m : members) g->scn_group_members = new scn_group_member{strdup(m), g->scn_group_members};
  return g;
}

// A user symbol of that name that is already in the object.
OFE::OF_SYMBOL *object_symbol(const char *name) {
  symbol_record *sym = SYM_find(name);
  sym->sym_object = ofile->symbol_table()->new_symbol();
  sym->sym_object->set_name(name);
  sym->sym_object->set_type(OFE::OFY_OBJECT);
  return sym->sym_object;
}

// Elements of relocation programs, named by their templates' ids.
OFE::OF_RELOC_TYPE re_push("RE_PUSH", 0, OFE::OFRE_PUSH, nullptr);
OFE::OF_RELOC_TYPE re_pushpc("RE_PUSHPC", 0, OFE::OFRE_PUSHPC, nullptr);
OFE::OF_RELOC_TYPE re_pushuk("RE_PUSHUK", 0, OFE::OFRE_PUSHUK, nullptr);
OFE::OF_RELOC_TYPE re_sub("RE_SUB", 0, OFE::OFRE_SUB, nullptr);
OFE::OF_RELOC_TYPE re_add("RE_ADD", 0, OFE::OFRE_ADD, nullptr);

}  // namespace

TEST_F(SecdirTest, ErrorsLeaveAnExistingObjectUntouched) {
  char path[] = "/tmp/zq_glue_objXXXXXX";
  const int fd = mkstemp(path);
  ASSERT_GE(fd, 0);
  ASSERT_EQ(write(fd, "old", 3), 3);
  close(fd);
  std::strcpy(assy_obj_name, path);
  num_errors = 1;
  EXPECT_EXIT(BLD_object(), ::testing::ExitedWithCode(1), "\nErrors in Source - Assembler Aborted\n");
  EXPECT_EQ(read_all(path), "old");
  unlink(path);
  num_errors = 0;
}

TEST_F(SecdirTest, GroupFaultsAreInternalErrors) {
  struct row {
    const char *member;
    uint32_t kind;
    bool signature;
    const char *message;
  };
  const row rows[] = {
      {"nosuch", 1, true, "Section nosuch missing while processing group g"},
      {".text", 2, true, "Section g, invalid group kind 2"},
      {".text", 1, false, "Cannot find symbol corresponding to section g"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    section_record *g = make_group("g", {r.member}, r.kind);
    if (r.signature) object_symbol("g");
    screen_line_width = 400;  // the temporary file's name must not wrap the text
    EXPECT_EXIT(BLD_group_section(g), ::testing::ExitedWithCode(1), r.message) << r.message;
  }
}

TEST_F(SecdirTest, GroupMembersLearnTheirGroup) {
  SCN_queue(SCN_KIND_SECT, ".text.f");
  section_record *member = curseg;
  make_group("f", {".text.f", "never_defined"});
  SCN_queue(SCN_KIND_SECT, ".text.g");
  section_record *other = curseg;
  make_group("g", {".text.g"}, 2);  // not a COMDAT group

  COMGRP_process();
  ASSERT_NE(member->scn_group_name, nullptr);
  EXPECT_STREQ(member->scn_group_name, "f");
  EXPECT_EQ(other->scn_group_name, nullptr);
}

TEST_F(SecdirTest, EngineErrorsBecomeMessages) {
  struct row {
    OFE::OF_ERROR_CODE code;
    const char *text;
    const char *id;      // null: no counted message
    const char *shown;   // what the screen must hold
    uint32_t errors, warnings;
  };
  const row rows[] = {
      {OFE::OFERR_WARNING, "odd", "W1500", "warning: odd", 0, 1},
      {OFE::OFERR_ILLEGAL_OP, "bad call", "E1500", "illegal operation: bad call", 1, 0},
      // An undescribed error is the engine's own fault.
      {OFE::OFERR_FILE_ACCESS, "", nullptr, "no description available", 0, 0},
      {OFE::OFERR_INTERNAL, "broken", nullptr, "broken", 0, 0},
      {OFE::OFERR_DEVELOPMENT, "note", nullptr, "", 0, 0},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    start_pass2();
    ofile->set_error_handler(ofile_error_handler);
    ::testing::internal::CaptureStderr();
    ofile->set_error(r.code, "%s", r.text);
    const std::string screen = ::testing::internal::GetCapturedStderr();
    if (r.id) {
      EXPECT_TRUE(shown(screen, r.id, r.shown)) << screen;
    } else if (*r.shown) {
      EXPECT_NE(screen.find(r.shown), std::string::npos) << screen;
    } else {
      EXPECT_EQ(screen, "");
    }
    EXPECT_EQ(num_errors, r.errors) << r.text;
    EXPECT_EQ(num_warnings, r.warnings) << r.text;
    EXPECT_EQ(ofile->error_code(), OFE::OFERR_NONE) << "the pending error is cleared";
  }

  // Without a pending description the code counts as internal.
  num_errors = 0;
  ::testing::internal::CaptureStderr();
  ofile_error_handler(ofile, OFE::OFERR_FILE_ACCESS, "stray");
  const std::string screen = ::testing::internal::GetCapturedStderr();
  EXPECT_NE(screen.find("INTERNAL ERROR"), std::string::npos) << screen;
  EXPECT_EQ(num_errors, 0u);
}

TEST_F(SecdirTest, FloatWordsFollowFloatUnitAndByteOrder) {
  struct row {
    long float_unit;  // 0: option not given
    bool big;
    short size;
    const char *bytes;
  };
  // High word 0x3FF00000, low word 0x00000001.
  const row rows[] = {
      {0, false, 1, "01 00 00 00 00 00 F0 3F"},  {21, false, 1, "01 00 00 00 00 00 F0 3F"},
      {17, false, 1, "01 00 00 00 00 00 F0 3F"}, {16, false, 1, "01 00 00 00 00 00 F0 3F"},
      // A unit outside the VFP family keeps the high word first.
      {20, false, 1, "00 00 F0 3F 01 00 00 00"}, {0, true, 1, "3F F0 00 00 00 00 00 01"},
      {18, true, 1, "3F F0 00 00 00 00 00 01"},  {0, false, 0, "00 00 F0 3F"}, {0, true, 0, "3F F0 00 00"},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    if (r.float_unit) global_opts->setopt(OPT_FLOAT_SUPPORT, r.float_unit);
    big_endian_code = big_endian_data = r.big;
    start_pass2();
    SCN_queue(SCN_KIND_DATA, ".data");
    trg_fval value{{0x3FF00000u, 0x00000001u}};
    instruct ir{};
    TRG_emit_flt(&ir, &value, r.size);
    finish();
    EXPECT_EQ(hex(bytes(".data")), r.bytes) << "unit " << r.float_unit << " big " << r.big << " size " << r.size;
  }
}

TEST_F(SecdirTest, FloatOfAnotherSizeEndsTheRun) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  trg_fval value{{0, 0}};
  instruct ir{};
  EXPECT_EXIT(TRG_emit_flt(&ir, &value, 2), ::testing::ExitedWithCode(1), "");
}

TEST_F(SecdirTest, BuiltInFunctionRelocationTypes) {
  struct row {
    long eabi_compat;  // 0: option not given
    const char *name;
    int type;
  };
  const row rows[] = {
      {0, "$$INIT_ENTRY", OFE::OFR_ARM_TARGET1},   {10, "$$INIT_ENTRY", OFE::OFR_PCRLONG},
      {11, "$$INIT_ENTRY", OFE::OFR_ARM_TARGET1},  {0, "$$EXTAB_LP", OFE::OFR_ARM_PREL31},
      {0, "$$EXIDX_FUNC", OFE::OFR_ARM_PREL31},    {0, "$$EXIDX_EXTAB", OFE::OFR_ARM_PREL31},
      {10, "$$EXTAB_RTTI", OFE::OFR_ARM_TARGET2},  {0, "$$BITS", 0},
      {0, nullptr, 0},
  };
  for (const row &r : rows) {
    TearDown();
    SetUp();
    if (r.eabi_compat) global_opts->setopt(OPT_EABI_COMPAT, r.eabi_compat);
    EXPECT_EQ(TRG_bif_rtype(r.name), r.type) << (r.name ? r.name : "null") << " compat " << r.eabi_compat;
  }
}

TEST_F(SecdirTest, SymbolMinusPcBecomesPcRelative) {
  start_pass2();
  SCN_queue(SCN_KIND_DATA, ".data");
  symbol_record *lab = SYM_find("lab");
  lab->sym_value.v_type = VT_LABEL;
  lab->sym_value.v_val = xi_from_uint(0x20);
  lab->sym_value.v_section = curseg;
  lab->sym_value.v_flags = VF_ADDRESS;
  lab->sym_value.v_bits = 7;

  value_record v{};
  v.v_type = VT_LABEL;
  v.v_val = xi_from_uint(0x1C);
  v.v_rel = static_cast<relrec *>(std::calloc(3, sizeof(relrec)));
  v.v_rel_count = v.v_rel_cap = 3;
  v.v_rel[0].rr_type = &re_push;
  v.v_rel[0].rr_symbol = lab;
  v.v_rel[1].rr_type = &re_pushpc;
  v.v_rel[2].rr_type = &re_sub;

  const OFE::OF_RELOC_TYPE *type = ofile->reloc_type(OFE::OFR_RELLONG);
  short field_size = 0;
  TRG_reloc_preprocess(&v, 0x1C, &type, &field_size);
  ASSERT_NE(type, nullptr);
  EXPECT_EQ(type->template_id(), OFE::OFR_PCRLONG);
  EXPECT_EQ(type->number(), 3u);  // R_ARM_REL32
  EXPECT_EQ(field_size, 32);
  EXPECT_EQ(v.v_type, VT_LABEL);
  EXPECT_EQ(v.v_symbol, lab);
  EXPECT_EQ(v.v_section, curseg);
  EXPECT_EQ(v.v_val.to_u32(), 0x20u);
  EXPECT_EQ(v.v_flags, VF_ADDRESS);
  EXPECT_EQ(v.v_bits, 7);
  EXPECT_EQ(v.v_rel, nullptr);
  EXPECT_EQ(v.v_rel_count, 0);

  // "s + 4" is another program and stays as it is.
  v.v_rel = static_cast<relrec *>(std::calloc(3, sizeof(relrec)));
  v.v_rel_count = v.v_rel_cap = 3;
  v.v_rel[0].rr_type = &re_push;
  v.v_rel[0].rr_symbol = lab;
  v.v_rel[1].rr_type = &re_pushuk;
  v.v_rel[2].rr_type = &re_add;
  type = ofile->reloc_type(OFE::OFR_RELLONG);
  TRG_reloc_preprocess(&v, 0, &type, &field_size);
  EXPECT_EQ(type->template_id(), OFE::OFR_RELLONG);
  EXPECT_EQ(v.v_rel_count, 3);
  std::free(v.v_rel);
}

TEST_F(SecdirTest, RelocationAddends) {
  value_record v{};
  v.v_val = xi_from_uint(0x12345678);
  EXPECT_EQ(TRG_reloc_disp(&v, ofile->reloc_type(OFE::OFR_ARM_MOVT_ABS)), 0x12345678u);
  EXPECT_EQ(TRG_reloc_disp(&v, ofile->reloc_type(OFE::OFR_ARM_THM_MOVT_ABS)), 0x12345678u);
  EXPECT_EQ(TRG_reloc_disp(&v, ofile->reloc_type(OFE::OFR_RELLONG)), 0u);
  v.v_type = VT_LABEL;
  EXPECT_TRUE(TRG_reloc_requires_sym_rel(&v));
  v.v_type = VT_SCNREL;
  EXPECT_FALSE(TRG_reloc_requires_sym_rel(&v));
}

TEST_F(SecdirTest, ExceptionIndexSectionsUnderEabi) {
  for (bool eabi : {false, true}) {
    TearDown();
    SetUp();
    if (eabi) global_opts->setopt(OPT_ABI, 1L);
    SCN_queue(SCN_KIND_SECT, ".ARM.exidx.text");
    section_record *exidx = curseg;
    SCN_queue(SCN_KIND_SECT, ".ARM.exidx.other");
    section_record *unbound = curseg;
    exidx->scn_exidx_target = SCN_query(".text");
    TRG_finalize_sections();
    auto *e = dynamic_cast<OFE::ELF_SECTION *>(exidx->scn_object);
    auto *u = dynamic_cast<OFE::ELF_SECTION *>(unbound->scn_object);
    ASSERT_TRUE(e && u);
    if (eabi) {
      EXPECT_EQ(e->sh_type(), 0x70000001u);
      EXPECT_EQ(e->sh_flags(), 0x82u);
      EXPECT_EQ(e->sh_link(), SCN_query(".text")->scn_object->id());
      // No described section: no link, and so no link order.
      EXPECT_EQ(u->sh_type(), 0x70000001u);
      EXPECT_EQ(u->sh_flags(), 0x2u);
      EXPECT_EQ(u->sh_link(), 0u);
    } else {
      EXPECT_EQ(e->sh_type(), OFE::SHT_PROGBITS);
      EXPECT_EQ(e->sh_link(), 0u);
    }
  }
}

TEST_F(SecdirTest, EabiVersionInTheFileHeader) {
  struct row {
    bool eabi;
    long compat;  // 0: option not given
    uint32_t version;
  };
  const row rows[] = {{false, 0, 5}, {false, 10, 5}, {true, 0, 5}, {true, 10, 4}, {true, 11, 4}};
  for (const row &r : rows) {
    TearDown();
    SetUp();
    if (r.eabi) global_opts->setopt(OPT_ABI, 1L);
    if (r.compat) global_opts->setopt(OPT_EABI_COMPAT, r.compat);
    TRG_set_fhdr();
    EXPECT_EQ(ofile->elf_api()->e_flags() >> 24, r.version) << "eabi " << r.eabi << " compat " << r.compat;
  }
}

TEST_F(SecdirTest, TrialEncodingsHoldOutputAndMessagesBack) {
  EXPECT_TRUE(TRG_IOR_write());
  errors_or_warn = 0;
  EXPECT_TRUE(TRG_error());
  EXPECT_TRUE(TRG_warn());
  EXPECT_EQ(errors_or_warn, 0u);
  output_error = 0;
  EXPECT_FALSE(TRG_error());
  EXPECT_FALSE(TRG_warn());
  output_error = 1;
  EXPECT_EQ(errors_or_warn, 2u);
}

TEST_F(SecdirTest, VersionedNamesTakeTheLinkageOfTheirSymbol) {
  for (bool eabi : {false, true}) {
    TearDown();
    SetUp();
    if (eabi) global_opts->setopt(OPT_ABI, 1L);
    symbol_record *target = SYM_find("f");
    target->sym_storage = SYM_STOR_GLOBAL;
    target->sym_flags |= SYMF_WEAK;
    SYM_set_vis(target, SYM_VIS_EXPORT);
    symbol_record *versioned = SYM_find("f@V1");
    versioned->sym_flags |= SYMF_VERSIONED;
    versioned->sym_value.v_symbol = target;
    versioned->sym_object = ofile->symbol_table()->new_symbol();
    versioned->sym_object->set_binding(OFE::OFB_LOCAL);
    TRG_finalize_symbols();
    auto *es = versioned->sym_object->elf_api();
    ASSERT_NE(es, nullptr);
    EXPECT_EQ(es->binding(), eabi ? OFE::OFB_WEAK : OFE::OFB_LOCAL) << "eabi " << eabi;
    if (eabi) {
      EXPECT_EQ(es->visibility(), 0) << "exported: default visibility";
    }
  }
}
