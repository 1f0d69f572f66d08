// The pipeline fixture: a temporary source file read by the real lexer.
#include "pipeline_fixture.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "support/fhm.h"

namespace {

std::string squeeze(const std::string &s) {
  std::string out;
  for (char c : s) {
    const bool blank = std::isspace(static_cast<unsigned char>(c));
    if (blank && (out.empty() || out.back() == ' ')) continue;
    out += blank ? ' ' : c;
  }
  return out;
}

void drop_tokens() {
  while (availtkn) {
    token *t = availtkn;
    availtkn = t->next;
    t->next = nullptr;
    LEX_droptkn(t);
  }
  LEX_droptkn(curtk);
  curtk = nullptr;
}

}  // namespace

int32_t int_of(const operand *op) {
  int32_t v = 0;
  XI_xtoi(op->value.v_val.b, &v);
  return v;
}

void PipelineTest::SetUp() {
  delete global_opts;
  global_opts = new option_obj(true);
  SYM_init();
  init_ophash();
  num_errors = num_warnings = 0;
  isize_list.clear();
  isize_idx = 0;
}

void PipelineTest::TearDown() {
  screen();
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  ASSY_SRC = nullptr;
  if (!path_.empty()) unlink(path_.c_str());
  SYM_init();
}

void PipelineTest::source(const std::string &text, bool first_pass) {
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  if (path_.empty()) {
    char tmpl[] = "/tmp/zq_pipe_XXXXXX";
    const int fd = mkstemp(tmpl);
    close(fd);
    path_ = tmpl;
  }
  FILE *f = fopen(path_.c_str(), "wb");
  fwrite(text.data(), 1, text.size(), f);
  fclose(f);
  strcpy(assy_src_name, path_.c_str());
  ASSY_SRC = fhm_open(path_.c_str(), "rb");
  f_name = assy_src_name;
  f_lnum = 0;
  f_lchar = ' ';
  copytop = -1;
  endfile = endcard = 0;
  pass1 = first_pass ? 1 : 0;
  pass2 = first_pass ? 0 : 1;
  LEX_reset();
  if (!capturing_) {
    ::testing::internal::CaptureStderr();
    capturing_ = true;
  }
}

void PipelineTest::directive_line(const std::string &text) {
  source(text + "\n");
  next_token();
  lookup_opcode();
  ASSERT_EQ(curtk->kind, IR_DIRECTIVE) << text;
}

std::string PipelineTest::screen() {
  if (!capturing_) return "";
  capturing_ = false;
  return ::testing::internal::GetCapturedStderr();
}

bool PipelineTest::shown(const std::string &screen, const char *id, const char *text) {
  const std::string flat = squeeze(screen);
  const std::string want = std::string("[") + id + "] " + text;
  return flat.find(want) != std::string::npos;
}
