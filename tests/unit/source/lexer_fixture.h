#pragma once
// A source file in a temporary directory, read through the lexer as the
// passes read it.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>
#include <unistd.h>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "support/fhm.h"

namespace lex_test {

inline char main_name[] = "main.asm";

class LexerTest : public ::testing::Test {
 protected:
  std::string dir;

  void SetUp() override {
    char tmpl[] = "/tmp/zqlexXXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    dir = tmpl;
    reset_state();
  }

  void TearDown() override {
    finish();
    delete global_opts;
    global_opts = nullptr;
    std::string cmd = "rm -rf '" + dir + "'";
    ASSERT_EQ(std::system(cmd.c_str()), 0);
  }

  static void reset_state() {
    // No command-line includes; in pass 1, so that none is kept for pass 2.
    pass1 = 1;
    cmd_line_includes_cnt = 0;
    cmdline_include_init();
    // Pass 2: only there are messages built and attached to their lines.
    pass1 = 0;
    pass2 = 1;
    endfile = 0;
    num_errors = 0;
    num_warnings = 0;
    copytop = -1;
    copych = 'A';
    include_point = -1;
    f_name = main_name;
    f_lchar = ' ';
    f_lnum = 0;
    f_temp_del = 0;
    paths.assign(1, "");
    LST_control = 0xB000;
    LEX_reset();
  }

  // Closes what is open and frees the queue and the tokens.
  void finish() {
    while (pop_copy()) {}
    if (ASSY_SRC) fhm_close(ASSY_SRC);
    ASSY_SRC = nullptr;
    while (availtkn) {
      token *t = availtkn;
      availtkn = t->next;
      LEX_droptkn(t);
    }
    LEX_droptkn(curtk);
    curtk = nullptr;
    LST_clear();
    LEX_reset();
  }

  std::string write(const std::string &name, const std::string &text) {
    std::string path = dir + "/" + name;
    FILE *f = std::fopen(path.c_str(), "wb");
    EXPECT_NE(f, nullptr);
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    return path;
  }

  // Makes `text` the main source.
  void source(const std::string &text) {
    finish();
    reset_state();
    paths.assign(1, dir + "/");  // the directory of the main source
    ASSY_SRC = fhm_open(write("main.asm", text).c_str(), "rb");
    ASSERT_NE(ASSY_SRC, nullptr);
  }

  // The tokens of the first line of `text`, up to and including TK_EOL; the
  // caller drops them with drop().
  std::vector<token *> line_tokens(const std::string &text) {
    source(text + "\n");
    std::vector<token *> out;
    for (;;) {
      token *t = get_a_token();
      out.push_back(t);
      if (t->kind == TK_EOL) break;
    }
    return out;
  }

  static void drop(std::vector<token *> &tks) {
    for (token *t : tks) LEX_droptkn(t);
    tks.clear();
  }

  // The messages attached to the lines still queued.
  static std::vector<std::string> messages() {
    std::vector<std::string> out;
    for (lst_group *g = curlst; g; g = g->next)
      for (linebuf *l = g->first; l; l = l->next)
        for (char *m : l->messages)
          if (m) out.push_back(m);
    return out;
  }
};

inline ::testing::AssertionResult has_message(const std::vector<std::string> &msgs, const std::string &id,
                                              const std::string &text) {
  for (const std::string &m : msgs)
    if (m.find("[" + id + "]") != std::string::npos && m.find(text) != std::string::npos)
      return ::testing::AssertionSuccess();
  auto r = ::testing::AssertionFailure() << "no [" << id << "] " << text << " among:";
  for (const std::string &m : msgs) r << "\n  " << m;
  return r;
}

inline uint64_t low64(const INT128 &v) {
  uint64_t r = 0;
  for (int i = 8; i < 16; ++i) r = (r << 8) | v.b[i];
  return r;
}

}  // namespace lex_test
