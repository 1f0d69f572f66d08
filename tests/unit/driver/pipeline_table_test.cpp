// The directive tables.
#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <string>

#include "driver/directive_ids.h"
#include "driver/pipeline.h"

namespace {

int rows(const dir_oprec *t) {
  int n = 0;
  while (t[n].name) ++n;
  return n;
}

}  // namespace

TEST(PipelineTable, RowsAreComplete) {
  ASSERT_EQ(rows(gen_direct), 154);
  ASSERT_EQ(rows(trg_direct), 6);
  std::set<std::string> seen;
  for (const dir_oprec *t : {gen_direct, trg_direct}) {
    for (int i = 0; t[i].name; ++i) {
      const std::string name = t[i].name;
      SCOPED_TRACE(name);
      EXPECT_TRUE(seen.insert(name).second) << "twice";
      ASSERT_GE(name.size(), 2u);
      EXPECT_EQ(name[0], '.');
      for (char c : name) EXPECT_FALSE(islower(static_cast<unsigned char>(c)));
      EXPECT_NE(t[i].parse, nullptr);
      EXPECT_NE(t[i].pass1, nullptr);
      EXPECT_NE(t[i].pass2, nullptr);
      EXPECT_GT(t[i].id, 0);
    }
  }
}

TEST(PipelineTable, KnownRows) {
  std::map<std::string, const dir_oprec *> by_name;
  for (const dir_oprec *t : {gen_direct, trg_direct})
    for (int i = 0; t[i].name; ++i) by_name[t[i].name] = &t[i];

  struct Case {
    const char *name;
    int id;
    dir_handler parse, pass1, pass2;  // null: not checked
  } cases[] = {
      {".END", DIR_END, DP_no_oprnds, GD_end, GD_end},
      {".COMPILER_OPTS", DIR_COMPILER_OPTS, DP_compiler_opts, donothing, donothing},
      {".COMPILER_OPTS_SOURCE", DIR_COMPILER_OPTS, DP_compiler_opts, donothing, donothing},
      {".TEMPLATE", DIR_TEMPLATE, DP_template, GD_template, GD_template},
      {".BYTE", 20, DP_icons<8>, nullptr, nullptr},
      {".CHAR", 20, DP_icons<8>, nullptr, nullptr},
      {".UCHAR", 21, DP_icons<8>, nullptr, nullptr},
      {".STRING", 16, DP_icons<8>, nullptr, nullptr},
      {".CSTRING", 16, DP_icons<8>, nullptr, nullptr},
      {".SHORT", 22, DP_icons<16>, nullptr, nullptr},
      {".USHORT", 23, DP_icons<16>, nullptr, nullptr},
      {".VINSTR", 24, DP_icons<32>, nullptr, nullptr},
      {".INT", 24, DP_icons<32>, nullptr, nullptr},
      {".ULONG", 27, DP_icons<32>, nullptr, nullptr},
      {".STREAM", 18, DP_icons<32>, nullptr, nullptr},
      {".ENCODE", 17, DP_icons<32>, nullptr, nullptr},
      {".TEXT", 4, DP_no_oprnds, nullptr, nullptr},
      {".ALIGN", 1, nullptr, nullptr, nullptr},
      {".COMDAT", 129, nullptr, nullptr, nullptr},
      {".IF", 37, nullptr, nullptr, nullptr},
      {".LOOP", 41, nullptr, nullptr, nullptr},
      {".ENDLOOP", 43, DP_no_oprnds, nullptr, nullptr},
      {".MACRO", 73, nullptr, nullptr, nullptr},
      {".ENDM", 74, DP_no_oprnds, nullptr, nullptr},
      {".ASG", 77, nullptr, nullptr, nullptr},
      {".DEFINE", 85, nullptr, nullptr, nullptr},
      {".EVAL", 79, nullptr, nullptr, nullptr},
      {".EMSG", 80, nullptr, donothing, nullptr},
      {".GLOBAL", 34, nullptr, nullptr, nullptr},
      {".HIDDEN", 34, nullptr, nullptr, nullptr},
      {".SYM_META_INFO", 154, nullptr, nullptr, nullptr},
      {".CDECLS", 33, nullptr, nullptr, nullptr},
      {".TAG", 109, nullptr, nullptr, nullptr},
      {".CUNION", 113, nullptr, nullptr, nullptr},
      {".ENDSTRUCT", 112, DP_no_oprnds, nullptr, nullptr},
      {".TITLE", 93, nullptr, donothing, nullptr},
      {".SSNOLIST", 108, DP_no_oprnds, donothing, nullptr},
      {".DWTAG", DIR_DWTAG, nullptr, donothing, donothing},
      {".DWMACINFO", DIR_DWMACINFO, nullptr, donothing, donothing},
      {".ASMFUNC", DIR_ASMFUNC, nullptr, donothing, donothing},
      {".BATTR", DIR_BATTR, nullptr, donothing, donothing},
      {".RELOC", DIR_RELOC, nullptr, donothing, donothing},
      {".EOS", DIR_EOS, DP_no_oprnds, nullptr, nullptr},
      {".STATE16", DIR_STATE16, DP_no_oprnds, nullptr, nullptr},
      {".ARM", DIR_ARM, DP_no_oprnds, nullptr, nullptr},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name);
    auto it = by_name.find(c.name);
    ASSERT_NE(it, by_name.end());
    const dir_oprec *row = it->second;
    EXPECT_EQ(row->id, c.id);
    if (c.parse) {
      EXPECT_EQ(row->parse, c.parse);
    }
    if (c.pass1) {
      EXPECT_EQ(row->pass1, c.pass1);
    }
    if (c.pass2) {
      EXPECT_EQ(row->pass2, c.pass2);
    }
  }
}

TEST(PipelineTable, RowsOfOneIdShareTheirHandlers) {
  // The listing and message directives act only in pass 2; directives that
  // share an id share their parse handler.
  std::map<int, const dir_oprec *> first;
  for (int i = 0; gen_direct[i].name; ++i) {
    const dir_oprec &r = gen_direct[i];
    if (r.id >= DIR_TITLE && r.id <= DIR_SSNOLIST) {
      EXPECT_EQ(r.pass1, donothing) << r.name;
    }
    auto [it, fresh] = first.emplace(r.id, &r);
    if (!fresh) {
      EXPECT_EQ(it->second->parse, r.parse) << r.name;
    }
  }
}
