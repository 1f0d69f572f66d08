// Lines, copied files, the search path and the dependency file.
#include <cstring>

#include "driver/pipeline.h"
#include "lexer_fixture.h"
#include "source/ophash.h"

using namespace lex_test;

namespace {

// One word read from the source, with where it came from.
struct Word {
  std::string text;
  char letter;
  int32_t line;
  bool operator==(const Word &) const = default;
};

class CopyTest : public LexerTest {
 protected:
  void SetUp() override {
    LexerTest::SetUp();
    if (!findop(".COPY")) init_ophash();
  }

  // Runs .copy and .include lines through GD_copy, and collects the other
  // identifiers that start a statement.
  std::vector<Word> read_all() {
    std::vector<Word> words;
    for (int guard = 0; guard < 10000; ++guard) {
      token *t = next_token();
      if (t->kind == TK_EOL) {
        if (endfile) break;
        continue;
      }
      if (t->kind != TK_IDENT) {
        LEX_skip_to_eol();
        continue;
      }
      lookup_opcode();
      if (curtk->kind == IR_DIRECTIVE) {
        const dir_oprec *row = curtk->value.op->dir();
        linebuf *line = curline;
        LEX_getfname();
        instruct ir{};
        ir.kind = IR_DIRECTIVE;
        ir.record = row;
        ir.line = line;
        operand op{};
        op.kind = OP_SCON;
        op.value.v_str = strdup(curtk->value.sval);
        ir.oprnds[0] = &op;
        next_token();
        skip_to_expected_eol(line);
        GD_copy(&ir);
        free(op.value.v_str);
        continue;
      }
      words.push_back({curtk->value.sval, f_lchar, f_lnum});
      LEX_skip_to_eol();
    }
    return words;
  }
};

TEST_F(LexerTest, LineEndsAreNormalisedAndCtrlZDropped) {
  source("a\r\nb\rc\x1a\n\x1a" "d");
  std::vector<std::string> lines;
  while (char *l = LEX_readln()) {
    lines.emplace_back(l);
    free(l);
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"a\n", "b\n", "c\n", "d\n"}));
  EXPECT_EQ(endfile, 1);
  EXPECT_EQ(inbuf_len, 0u);
}

TEST_F(LexerTest, LinesOfAnyLengthAndZeroLines) {
  std::string long_line(100000, 'x');
  source(long_line + "\n" + std::string(1, '\0') + "skipped\nlast");
  const uint32_t uid = inbuf_uid;
  char *l = LEX_readln();
  ASSERT_NE(l, nullptr);
  EXPECT_EQ(std::strlen(l), 100001u);
  free(l);
  l = LEX_readln();
  ASSERT_NE(l, nullptr);
  EXPECT_STREQ(l, "last\n");
  free(l);
  EXPECT_EQ(inbuf_uid, uid + 3);
  EXPECT_EQ(LEX_readln(), nullptr);
}

TEST_F(LexerTest, QueuedLinesCarryTheirPlace) {
  source("one\ntwo\n");
  LST_getln();
  LST_getln();
  ASSERT_NE(curlst, nullptr);
  linebuf *first = curlst->first;
  ASSERT_NE(first, nullptr);
  ASSERT_NE(first->next, nullptr);
  EXPECT_STREQ(first->text, "one\n");
  EXPECT_EQ(first->text, first->source_text);
  EXPECT_EQ(first->line_number, 1u);
  EXPECT_EQ(first->next->line_number, 2u);
  EXPECT_EQ(first->copy_letter, ' ');
  EXPECT_STREQ(first->file, "main.asm");
  EXPECT_EQ(first->flags, 31);
  EXPECT_EQ(first->length, 4u);
  LST_getln();
  EXPECT_EQ(curline, nullptr);
  EXPECT_EQ(endfile, 1);
}

TEST_F(CopyTest, NestedCopiesGetLettersAndReturn) {
  write("a.inc", " .copy \"b.inc\"\na1\n");
  write("b.inc", "b1\nb2");
  write("c.inc", "c1\n");
  source("m1\n .copy a.inc\nm2\n .include c.inc\nm3\n");
  const std::vector<Word> expect = {
      {"m1", ' ', 1}, {"b1", 'B', 1}, {"b2", 'B', 2}, {"a1", 'A', 2},
      {"m2", ' ', 3}, {"c1", 'C', 1}, {"m3", ' ', 5}};
  EXPECT_EQ(read_all(), expect);
  EXPECT_EQ(num_errors, 0u);
  EXPECT_EQ(copytop, -1);
  EXPECT_EQ(include_point, -1);
}

TEST_F(CopyTest, IncludeHidesItsLinesAndRestoresTheListingBit) {
  write("c.inc", "c1\n");
  source(" .include c.inc\nm\n");
  LST_control |= LST_LIST_ON;
  next_token();
  lookup_opcode();
  ASSERT_EQ(curtk->kind, IR_DIRECTIVE);
  const dir_oprec *row = curtk->value.op->dir();
  instruct ir{};
  ir.record = row;
  ir.line = curline;
  operand op{};
  op.value.v_str = strdup("c.inc");
  ir.oprnds[0] = &op;
  GD_copy(&ir);
  free(op.value.v_str);
  EXPECT_EQ(copytop, 0);
  EXPECT_EQ(include_point, 0);
  EXPECT_EQ(LST_control & LST_LIST_ON, 0u);
  EXPECT_STREQ(next_token()->value.sval, "c1");
  EXPECT_EQ(curline->flags, 30);
  next_token();
  EXPECT_STREQ(next_token()->value.sval, "m");
  EXPECT_EQ(curline->flags, 31);
  EXPECT_EQ(include_point, -1);
  EXPECT_NE(LST_control & LST_LIST_ON, 0u);
}

TEST_F(CopyTest, CopyLimitStopsTheThirtyThirdFile) {
  write("self.inc", " .copy self.inc\nword\n");
  source(" .copy self.inc\nlast\n");
  std::vector<Word> words = read_all();
  ASSERT_EQ(words.size(), 33u);  // 32 copies go on, then the main source
  EXPECT_EQ(words[0], (Word{"word", '+', 2}));
  EXPECT_EQ(words[31], (Word{"word", 'A', 2}));
  EXPECT_EQ(words[32], (Word{"last", ' ', 2}));
  EXPECT_EQ(num_errors, 1u);
}

TEST_F(CopyTest, MissingFileAndLoops) {
  source(" .copy none.inc\nnext\n");
  EXPECT_EQ(read_all(), (std::vector<Word>{{"next", ' ', 2}}));
  EXPECT_EQ(num_errors, 1u);
}

TEST_F(CopyTest, SearchPathOrder) {
  ASSERT_EQ(system(("mkdir -p '" + dir + "/d1' '" + dir + "/d2' '" + dir + "/sub'").c_str()), 0);
  write("d2/x.inc", "d2\n");
  write("d1/y.inc", "d1\n");
  write("d2/y.inc", "no\n");
  write("sub/z.inc", "sub\n");
  paths = {"", dir + "/d1", dir + "/d2"};
  FHM_FILE *f = search_dirs("x.inc", "rb");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(std::string(env_ptr), dir + "/d2/");
  fhm_close(f);
  f = search_dirs("y.inc", "rb");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(std::string(env_ptr), dir + "/d1/");
  fhm_close(f);
  // A name with a directory is tried as it is first.
  const std::string full = dir + "/sub/z.inc";
  f = search_dirs(full.c_str(), "rb");
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(std::string(env_ptr), dir + "/sub/");
  fhm_close(f);
  EXPECT_EQ(search_dirs("", "rb"), nullptr);
  EXPECT_EQ(search_dirs("none.inc", "rb"), nullptr);
  EXPECT_STREQ(env_ptr, "");
}

TEST_F(CopyTest, CopiedFileBecomesSlotZero) {
  ASSERT_EQ(system(("mkdir -p '" + dir + "/inc'").c_str()), 0);
  write("inc/outer.inc", " .copy inner.inc\n");
  write("inc/inner.inc", "inner\n");
  write("inner.inc", "wrong\n");
  source(" .copy outer.inc\n");
  paths.push_back(dir + "/inc");
  EXPECT_EQ(read_all(), (std::vector<Word>{{"inner", 'B', 1}}));
  EXPECT_EQ(paths[0], dir + "/");
}

TEST(ExtractPaths, PrefixedNamesWinAndEntriesAreTrimmed) {
  auto collect = [](const char *name) {
    std::vector<std::string> out;
    extract_paths(name, [&](const char *d) { out.emplace_back(d); });
    return out;
  };
  unsetenv("ZQ_ARM_ZQT_DIR");
  unsetenv("KRV616_ZQT_DIR");
  setenv("ZQT_DIR", "plain", 1);
  EXPECT_EQ(collect("ZQT_DIR"), (std::vector<std::string>{"plain"}));
  setenv("KRV616_ZQT_DIR", " k1 ;; k2;", 1);
  EXPECT_EQ(collect("ZQT_DIR"), (std::vector<std::string>{"k1", "k2"}));
  setenv("ZQ_ARM_ZQT_DIR", "", 1);
  EXPECT_EQ(collect("ZQT_DIR"), (std::vector<std::string>{}));
  setenv("ZQ_ARM_ZQT_DIR", "\t/a b/ ; /c", 1);
  EXPECT_EQ(collect("ZQT_DIR"), (std::vector<std::string>{"/a b/", "/c"}));
  unsetenv("ZQ_ARM_ZQT_DIR");
  unsetenv("KRV616_ZQT_DIR");
  unsetenv("ZQT_DIR");
  EXPECT_EQ(collect("ZQT_DIR"), (std::vector<std::string>{}));
}

TEST_F(CopyTest, CommandLineIncludesComeFirstInBothPasses) {
  write("a.inc", "a1\n");
  write("b.inc", "b1\n");
  char a[] = "a.inc", b[] = "b.inc";
  cmd_line_includes[0] = {a, 0};
  cmd_line_includes[1] = {b, 1};
  cmd_line_includes_cnt = 2;
  source("m1\n");
  cmd_line_includes_cnt = 2;
  cmdline_include_init();
  char *made = LEX_readln();
  ASSERT_NE(made, nullptr);
  EXPECT_STREQ(made, "\t.copy\t\"a.inc\" ; .copy from the command line\n");
  EXPECT_EQ(f_lnum, -1);
  free(made);
  made = LEX_readln();
  EXPECT_STREQ(made, "\t.include\t\"b.inc\" ; .include from the command line\n");
  free(made);
  made = LEX_readln();
  EXPECT_STREQ(made, "m1\n");
  free(made);

  for (int pass = 1; pass <= 2; ++pass) {
    SCOPED_TRACE(pass);
    finish();
    ASSY_SRC = fhm_open((dir + "/main.asm").c_str(), "rb");
    copych = 'A';
    f_lnum = 0;
    endfile = 0;
    pass1 = pass == 1;
    pass2 = pass == 2;
    cmdline_include_init();
    const std::vector<Word> expect = {{"a1", 'A', 1}, {"b1", 'B', 1}, {"m1", ' ', 1}};
    EXPECT_EQ(read_all(), expect);
    EXPECT_EQ(num_errors, 0u);
  }
  cmd_line_includes_cnt = 0;
}

TEST_F(CopyTest, DependencyLines) {
  write("a.inc", " .copy b.inc\n");
  write("b.inc", "b\n");
  std::strcpy(assy_obj_name, "m.obj");
  for (bool includes_only : {false, true}) {
    SCOPED_TRACE(includes_only);
    delete global_opts;
    global_opts = new option_obj(true);
    global_opts->setopt(OPT_ASM_DEPENDENCY);
    if (includes_only) global_opts->setopt(OPT_ASM_INCLUDES);
    dependency_file = std::tmpfile();
    ASSERT_NE(dependency_file, nullptr);
    source(" .copy a.inc\n");
    read_all();
    std::rewind(dependency_file);
    char buf[4096] = {};
    const size_t n = std::fread(buf, 1, sizeof buf - 1, dependency_file);
    std::fclose(dependency_file);
    dependency_file = nullptr;
    const std::string got(buf, n);
    const std::string expect = includes_only ? dir + "/a.inc\n"
                                             : "m.obj: " + dir + "/a.inc\nm.obj: " + dir + "/b.inc\n";
    EXPECT_EQ(got, expect);
  }
  assy_obj_name[0] = '\0';
}

}  // namespace
