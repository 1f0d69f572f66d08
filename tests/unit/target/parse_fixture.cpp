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
  while (token *t = availtkn) {
    availtkn = t->next;
    t->next = nullptr;
    LEX_droptkn(t);
  }
  LEX_droptkn(curtk);
  curtk = nullptr;
}

void release(instruct *&ir) {
  if (ir) IR_free(ir);
  ir = nullptr;
}

}  // namespace

void ParseTest::SetUp() {
  delete global_opts;
  global_opts = new option_obj(true);
  SYM_init();
  if (!findop(".COPY")) init_ophash();
  init_predefs(trg_ucpredefs);
  init_predefs(trg_lcpredefs);
  TRG_init_regsyms();
  target("7A8", 0);
}

void ParseTest::TearDown() {
  release(ir_);
  screen();
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  ASSY_SRC = nullptr;
  if (!path_.empty()) unlink(path_.c_str());
  SYM_init();
  target(nullptr, 0);
  encode_state = 0;
}

void ParseTest::target(const char *arch, uint32_t state, bool ual) {
  arm_arch_types.set(arch);
  cur_state = def_state = state;
  ual_mode = ual ? 1 : 0;
  cur_it_string[0] = '\0';
  cur_it_cc = COND_AL;
}

instruct *ParseTest::parse(const std::string &line) {
  release(ir_);
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  if (path_.empty()) {
    char tmpl[] = "/tmp/zq_parse_XXXXXX";
    close(mkstemp(tmpl));
    path_ = tmpl;
  }
  const std::string text = "        " + line + "\n";
  FILE *f = fopen(path_.c_str(), "wb");
  fwrite(text.data(), 1, text.size(), f);
  fclose(f);
  strcpy(assy_src_name, path_.c_str());
  ASSY_SRC = fhm_open(path_.c_str(), "rb");
  f_name = assy_src_name;
  f_lnum = 0;
  copytop = -1;
  endfile = endcard = 0;
  pass1 = 0;
  pass2 = 1;
  LEX_reset();
  screen();
  ::testing::internal::CaptureStderr();
  capturing_ = true;
  next_token();
  lookup_opcode();
  ir_ = TRG_parse();
  EXPECT_TRUE(curtk && curtk->kind == TK_EOL) << line << ": the statement must end at its line end";
  return ir_;
}

std::string ParseTest::screen() {
  if (!capturing_) return screen_;
  capturing_ = false;
  screen_.clear();
  for (char c : ::testing::internal::GetCapturedStderr()) {
    const bool blank = std::isspace(static_cast<unsigned char>(c));
    if (!blank || (!screen_.empty() && screen_.back() != ' ')) screen_ += blank ? ' ' : c;
  }
  return screen_;
}

int ParseTest::operands() const {
  int n = 0;
  while (ir_ && n < IR_MAX_SLOTS && ir_->oprnds[n]) ++n;
  return n;
}

std::string ParseTest::describe(int n) const {
  const operand *op = ir_ ? ia_op(ir_, n) : nullptr;
  if (!op) return "none";
  static const std::pair<uint16_t, const char *> kinds[] = {
      {OP_NONE, "NONE"},    {OP_CPREG, "CPREG"},    {OP_REGLIST, "LIST"},  {OP_SHIFTREGR, "SHR"},
      {OP_SHIFTREGI, "SHI"}, {OP_PSR, "PSR"},       {OP_PSRF, "PSRF"},     {OP_CPID, "CPID"},
      {OP_INDIRECT, "IND"}, {OP_INDPREE, "PREE"},   {OP_INDPRES, "PRES"},  {OP_INDPOSTE, "POSTE"},
      {OP_INDPOSTS, "POSTS"}, {OP_INDOPT, "OPT"},   {OP_SREG, "SREG"},     {OP_VFPSYS, "VFPSYS"},
      {OP_DREG, "DREG"},    {OP_QREG, "QREG"},      {OP_DLIST, "DLIST"},   {OP_QLIST, "QLIST"},
      {OP_CPSFLAGS, "CPS"}, {OP_MSYSREG, "MSYS"},   {OP_APSRF, "APSRF"},   {OP_ICON, "ICON"},
      {OP_FCON, "FCON"},    {OP_SYMBOL, "SYM"},     {OP_REGISTER, "REG"},
  };
  static const char *shifts[] = {"LSL", "LSR", "ASR", "ROR", "RRX"};
  std::string s = "?";
  for (const auto &k : kinds)
    if (k.first == op->kind) s = k.second;
  s += " r" + std::to_string(op->op_reg);
  if (op->op_reg2 != op->op_reg) s += " r" + std::to_string(op->op_reg2);
  if (op->op_shift < 5) s += std::string(" ") + shifts[op->op_shift];
  if (op->kind == OP_CPSFLAGS) s += std::string(" ") + op->value.v_str;
  else s += " =" + std::to_string(op->value.v_val.to_i32());
  if (op->op_lane != -2) s += " [" + std::to_string(op->op_lane) + "]";
  if (op->op_neg) s += " -";
  if (op->kind == OP_PSRF || op->kind == OP_APSRF) {
    s += " m" + std::to_string(op->op_mods);
  } else {
    if (op->op_mods & MOD_WRITEBACK) s += " !";
    if (op->op_mods & MOD_CARET) s += " ^";
  }
  return s;
}
