// The parser fixture: one source line in a temporary file, read by the lexer.
#include "parse_fixture.h"

#include <cctype>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/pipeline.h"
#include "expr/int128.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "support/fhm.h"
#include "target/arm/arch.h"
#include "target/arm/trg.h"

namespace {

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

int32_t value_of(const operand *op) { return op->value.v_val.to_i32(); }

void ParseTest::SetUp() {
  delete global_opts;
  global_opts = new option_obj(true);
  SYM_init();
  if (!findop(".COPY")) init_ophash();
  init_predefs(trg_ucpredefs);
  init_predefs(trg_lcpredefs);
  TRG_init_regsyms();
  num_errors = num_warnings = 0;
  target("7A8", 0);
}

void ParseTest::TearDown() {
  if (ir_) IR_free(ir_);
  ir_ = nullptr;
  screen();
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  ASSY_SRC = nullptr;
  if (!path_.empty()) unlink(path_.c_str());
  SYM_init();
  arm_arch_types.set(nullptr);
  cur_state = def_state = 0;
  encode_state = 0;
  ual_mode = 1;
  cur_it_string[0] = '\0';
}

void ParseTest::target(const char *arch, uint32_t state, bool ual) {
  arm_arch_types.set(arch);
  cur_state = def_state = state;
  ual_mode = ual ? 1 : 0;
  cur_it_string[0] = '\0';
  cur_it_cc = COND_AL;
}

instruct *ParseTest::parse(const std::string &line) {
  if (ir_) IR_free(ir_);
  ir_ = nullptr;
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  if (path_.empty()) {
    char tmpl[] = "/tmp/zq_parse_XXXXXX";
    close(mkstemp(tmpl));
    path_ = tmpl;
  }
  FILE *f = fopen(path_.c_str(), "wb");
  const std::string text = "        " + line + "\n";
  fwrite(text.data(), 1, text.size(), f);
  fclose(f);
  strcpy(assy_src_name, path_.c_str());
  ASSY_SRC = fhm_open(path_.c_str(), "rb");
  f_name = assy_src_name;
  f_lnum = 0;
  f_lchar = ' ';
  copytop = -1;
  endfile = endcard = 0;
  pass1 = 0;
  pass2 = 1;
  LEX_reset();
  if (!capturing_) {
    ::testing::internal::CaptureStderr();
    capturing_ = true;
  }
  next_token();
  lookup_opcode();
  ir_ = TRG_parse();
  EXPECT_TRUE(curtk && curtk->kind == TK_EOL) << line << ": the statement must end at its line end";
  return ir_;
}

std::string ParseTest::screen() {
  if (capturing_) {
    capturing_ = false;
    const std::string raw = ::testing::internal::GetCapturedStderr();
    std::string out;
    for (char c : raw) {
      const bool blank = std::isspace(static_cast<unsigned char>(c));
      if (blank && (out.empty() || out.back() == ' ')) continue;
      out += blank ? ' ' : c;
    }
    screen_ = out;
  }
  return screen_;
}

bool ParseTest::shown(const char *id, const char *text) {
  const std::string want = std::string("[") + id + "] " + text;
  return screen().find(want) != std::string::npos;
}

std::string ParseTest::row() const { return ir_ ? ia_row(ir_)->name : ""; }

const operand *ParseTest::op(int n) const { return ir_ ? ia_op(ir_, n) : nullptr; }

int ParseTest::operands() const {
  int n = 0;
  while (ir_ && n < IR_MAX_SLOTS && ir_->oprnds[n]) ++n;
  return n;
}
