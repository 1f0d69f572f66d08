// Object assembly: no object after errors, the end state of sections, COMDAT
// groups, and engine errors turned into messages.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "debug/object_build.h"
#include "debug/object_build_sections.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/diag_engines.h"
#include "driver/driver.h"
#include "expr/symbols.h"
#include "ofe/elf_defs.h"
#include "ofe/elf_section.h"
#include "ofe/object_file.h"
#include "ofe/of_group.h"
#include "ofe/of_symbol.h"
#include "glue_fixture.h"

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

}  // namespace

TEST_F(GlueTest, ErrorsLeaveAnExistingObjectUntouched) {
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

TEST_F(GlueTest, SectionsTakeTheirFinalShape) {
  start_pass2();
  SCN_queue(SCN_KIND_BSS, ".bss");
  SCN_space(16 * 8);
  SCN_queue(SCN_KIND_SECT, "code");
  curseg->scn_has_code = 1;
  SCN_queue(SCN_KIND_DATA, ".data");
  finish();
  for (section_record *s = seglist; s; s = s->scn_next) BLD_finish_section(s);

  const OFE::OF_SECTION *bss = SCN_query(".bss")->scn_object;
  EXPECT_EQ(bss->size(), 16u);
  EXPECT_FALSE(bss->initialized());
  const auto *code = dynamic_cast<OFE::ELF_SECTION *>(SCN_query("code")->scn_object);
  EXPECT_TRUE(code->exec());
  EXPECT_EQ(code->sh_flags() & OFE::SHF_WRITE, 0u);
  EXPECT_FALSE(SCN_query(".data")->scn_object->exec());
}

TEST_F(GlueTest, ComdatGroupGetsMembersAndSignature) {
  SCN_queue(SCN_KIND_SECT, ".text.f");
  section_record *member = curseg;
  SCN_queue(SCN_KIND_SECT, ".data.f");
  section_record *second = curseg;
  section_record *g = make_group("f", {".data.f", ".text.f"});
  OFE::OF_SYMBOL *signature = object_symbol("f");

  BLD_group_section(g);
  OFE::OF_GROUP_TABLE *table = g->scn_object->group_api();
  ASSERT_NE(table, nullptr);
  EXPECT_TRUE(table->comdat_flag());
  ASSERT_EQ(table->member_count(), 2u);
  EXPECT_EQ(table->member(0), member->scn_object);  // the newest name first
  EXPECT_EQ(table->member(1), second->scn_object);
  EXPECT_EQ(table->symbol(), signature);
  EXPECT_EQ(g->scn_group_members, nullptr);
}

TEST_F(GlueTest, GroupFaultsAreInternalErrors) {
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

TEST_F(GlueTest, GroupMembersLearnTheirGroup) {
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

TEST_F(GlueTest, EngineErrorsBecomeMessages) {
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
