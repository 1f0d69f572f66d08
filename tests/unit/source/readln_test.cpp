// The physical reader: zero bytes, line ends across evictions, and which files
// may be source text at all.
#include <sys/stat.h>

#include <cerrno>

#include "lexer_fixture.h"
#include "source/input_files.h"

using namespace lex_test;

namespace {

TEST_F(LexerTest, ZeroByteStaysInItsLineForTheLexer) {
  source(std::string("ab\0cd\nx\n", 8));
  get_token();
  ASSERT_EQ(curtk->kind, TK_IDENT);
  EXPECT_EQ(inbuf_len, 6u);  // the whole line, with its line feed
  next_token();
  EXPECT_EQ(curtk->kind, TK_EOL);  // the rest is dropped, not joined to "x"
  EXPECT_TRUE(has_message(messages(), "E0000", "Unrecognized special character"));
  next_token();
  ASSERT_EQ(curtk->kind, TK_IDENT);
  EXPECT_STREQ(curtk->value.sval, "x");
}

TEST_F(LexerTest, EvictionBetweenLinesKeepsTheLineEnds) {
  // A lone CR looks one byte ahead; the byte given back must survive a close
  // and reopen of the handle.
  source("a\rb\r\nc\r\rd");
  std::vector<std::string> lines;
  while (char *l = LEX_readln()) {
    lines.emplace_back(l);
    free(l);
    ASSERT_EQ(ASSY_SRC->evict(), 0);
  }
  EXPECT_EQ(lines, (std::vector<std::string>{"a\n", "b\n", "c\n", "\n", "d\n"}));
  EXPECT_GE(ASSY_SRC->reopen_count(), 4);
}

TEST_F(LexerTest, OnlyRegularFilesAreSourceText) {
  const std::string sub = dir + "/sub";
  const std::string fifo = dir + "/fifo";
  ASSERT_EQ(mkdir(sub.c_str(), 0700), 0);
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  const std::string file = write("f.inc", "x\n");

  // A FIFO without a writer must not block the look.
  for (const std::string &path : {sub, fifo, std::string("/dev/zero"), dir + "/none"})
    EXPECT_EQ(SRC_open_copy(path.c_str()), nullptr) << path;
  FHM_FILE *f = SRC_open_copy(file.c_str());
  ASSERT_NE(f, nullptr);
  fhm_close(f);

  const char *why = nullptr;
  EXPECT_EQ(SRC_open_main(sub.c_str(), &why), nullptr);
  EXPECT_STREQ(why, std::strerror(EISDIR));
  EXPECT_EQ(SRC_open_main("/dev/zero", &why), nullptr);
  EXPECT_STREQ(why, "Not a regular file");
}

TEST(FileHandles, AdoptedStreamIsNeverEvicted) {
  FILE *stream = std::tmpfile();
  ASSERT_NE(stream, nullptr);
  std::fputs("kept", stream);
  FHM_FILE *adopted = fhm_adopt(stream, "(spool)", "rb");
  ASSERT_NE(adopted, nullptr);
  EXPECT_TRUE(adopted->is_persistent());
  std::vector<FHM_FILE *> others;
  for (int i = 0; i < FILE_HANDLE_MANAGER::MAX_OPEN_FILES + 2; ++i)
    if (FHM_FILE *o = fhm_open("/dev/null", "rb")) others.push_back(o);
  EXPECT_TRUE(adopted->is_open());
  ASSERT_TRUE(SRC_rewind(adopted));
  char buf[8] = {};
  EXPECT_EQ(std::fread(buf, 1, 4, adopted->fp()), 4u);
  EXPECT_STREQ(buf, "kept");
  for (FHM_FILE *o : others) fhm_close(o);
  fhm_close(adopted);
}

}  // namespace
