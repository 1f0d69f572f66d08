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

  // Runs the .copy or .include `row` of `line` on the file `name`.
  static void copy(const dir_oprec *row, linebuf *line, const char *name) {
    instruct ir{};
    ir.kind = IR_DIRECTIVE;
    ir.record = row;
    ir.line = line;
    operand op{};
    op.kind = OP_SCON;
    op.value.v_str = strdup(name);
    ir.oprnds[0] = &op;
    GD_copy(&ir);
    free(op.value.v_str);
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
        const std::string name = LEX_getfname()->value.sval;
        next_token();
        skip_to_expected_eol(line);
        copy(row, line, name.c_str());
        continue;
      }
      words.push_back({curtk->value.sval, f_lchar, f_lnum});
      LEX_skip_to_eol();
    }
    return words;
  }
};

TEST_F(LexerTest, LineEndsCtrlZLongLinesAndZeroLines) {
  const std::string long_line(100000, 'x');
  source("a\r\nb\rc\x1a\n\x1a" "d\n" + long_line + "\n" + std::string(1, '\0') + "skipped\nlast");
  const uint32_t uid = inbuf_uid;
  std::vector<std::string> lines;
  while (char *l = LEX_readln()) {
    lines.emplace_back(l);
    free(l);
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"a\n", "b\n", "c\n", "d\n", long_line + "\n", "last\n"}));
  EXPECT_EQ(inbuf_uid, uid + 7);  // the line with a zero byte is read and dropped
  EXPECT_EQ(endfile, 1);
  EXPECT_EQ(inbuf_len, 0u);
}

TEST_F(CopyTest, NestedCopiesGetLettersAndReturn) {
  write("a.inc", " .copy \"b.inc\"\na1\n");
  write("b.inc", "k1\nk2");
  write("c.inc", "c1\n");
  source("m1\n .copy a.inc\nm2\n .include c.inc\nm3\n");
  const std::vector<Word> expect = {
      {"m1", ' ', 1}, {"k1", 'B', 1}, {"k2", 'B', 2}, {"a1", 'A', 2},
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
  copy(curtk->value.op->dir(), curline, "c.inc");
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

TEST_F(CopyTest, MissingFileAndCopyLimit) {
  write("self.inc", " .copy self.inc\nword\n");
  source(" .copy none.inc\n .copy self.inc\nlast\n");
  std::vector<Word> words = read_all();
  ASSERT_EQ(words.size(), 33u);  // 32 copies go on, then the main source
  EXPECT_EQ(words[0], (Word{"word", '+', 2}));
  EXPECT_EQ(words[31], (Word{"word", 'A', 2}));
  EXPECT_EQ(words[32], (Word{"last", ' ', 3}));
  EXPECT_EQ(num_errors, 2u);
}

TEST_F(CopyTest, SearchPathOrder) {
  ASSERT_EQ(system(("mkdir -p '" + dir + "/d1' '" + dir + "/d2' '" + dir + "/sub'").c_str()), 0);
  write("d2/x.inc", "d2\n");
  write("d1/y.inc", "d1\n");
  write("d2/y.inc", "no\n");
  write("sub/z.inc", "sub\n");
  paths = {"", dir + "/d1", dir + "/d2"};
  // A name with a directory is tried as it is first.
  const std::pair<std::string, std::string> rows[] = {
      {"x.inc", "/d2/"}, {"y.inc", "/d1/"}, {dir + "/sub/z.inc", "/sub/"}};
  for (const auto &[name, found] : rows) {
    FHM_FILE *f = search_dirs(name.c_str(), "rb");
    ASSERT_NE(f, nullptr) << name;
    EXPECT_EQ(std::string(env_ptr), dir + found);
    fhm_close(f);
  }
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
  write("b.inc", "k1\n");
  char a[] = "a.inc", b[] = "b.inc";
  cmd_line_includes[0] = {a, 0};
  cmd_line_includes[1] = {b, 1};
  cmd_line_includes_cnt = 2;
  source("m1\n");
  pass1 = 1;  // pass 1 keeps the count for pass 2
  pass2 = 0;
  cmd_line_includes_cnt = 2;
  cmdline_include_init();
  for (const char *line : {"\t.copy\t\"a.inc\" ; .copy from the command line\n",
                           "\t.include\t\"b.inc\" ; .include from the command line\n", "m1\n"}) {
    char *made = LEX_readln();
    ASSERT_NE(made, nullptr);
    EXPECT_STREQ(made, line);
    if (line[0] == '\t') {
      EXPECT_EQ(f_lnum, -1);
    }
    free(made);
  }
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
    const std::vector<Word> expect = {{"a1", 'A', 1}, {"k1", 'B', 1}, {"m1", ' ', 1}};
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
    pass1 = 1;  // only pass 1 writes dependencies
    pass2 = 0;
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
