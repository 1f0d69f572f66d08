// The fixture of the section manager and data directive tests.
#include "sections_fixture.h"

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
#include "ofe/object_file.h"
#include "ofe/of_section.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/ophash.h"
#include "support/fhm.h"
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

void free_sections() {
  while (seglist) {
    section_record *s = seglist;
    seglist = s->scn_next;
    delete s->scn_symbol;
    delete s;
  }
  curseg = nullptr;
}

void open_source(const std::string &path) {
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  std::strcpy(assy_src_name, path.c_str());
  ASSY_SRC = fhm_open(path.c_str(), "rb");
  f_name = assy_src_name;
  f_lnum = 0;
  f_lchar = ' ';
  copytop = -1;
  endfile = endcard = 0;
  LEX_reset();
}

void run_pass() {
  while (!endfile && !endcard) {
    instruct *ir = IR_build();
    IR_process(ir);
    IR_drop(ir);
  }
  if (LBL_current) LBL_define();
  LST_clear();
}

std::string squeeze(const std::string &s) {
  std::string out;
  for (char c : s) {
    const bool blank = std::isspace(static_cast<unsigned char>(c));
    if (blank && (out.empty() || out.back() == ' ')) continue;
    out += blank ? ' ' : c;
  }
  return out;
}

}  // namespace

std::string hex(const std::vector<uint8_t> &v) {
  std::string out;
  char buf[4];
  for (uint8_t b : v) {
    std::snprintf(buf, sizeof buf, "%02X", b);
    if (!out.empty()) out += ' ';
    out += buf;
  }
  return out;
}

void SectionsTest::SetUp() {
  delete global_opts;
  global_opts = new option_obj(true);
  SYM_init();
  init_ophash();
  ofile = OFE::OBJECT_FILE::new_OBJECT_FILE(OFE::OFF_ELF, OFE::OFV_ELF1, OFE::OFC_32, OFE::OFM_ARM, nullptr,
                                            "test.obj");
  free_sections();
  scn_address_set.clear();
  big_endian_code = big_endian_data = 0;
  cur_state = 0;
  num_errors = num_warnings = 0;
  isize_list.clear();
  isize_idx = 0;
  LST_control = 0;
  start_pass1();
}

void SectionsTest::TearDown() {
  drop_tokens();
  LST_clear();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  ASSY_SRC = nullptr;
  if (!path_.empty()) unlink(path_.c_str());
  free_sections();
  SYM_init();
  delete ofile;
  ofile = nullptr;
  pass1 = 1;
  pass2 = 0;
}

void SectionsTest::start_pass1() {
  pass1 = 1;
  pass2 = 0;
  curpc = 0;
  SCN_queue(SCN_KIND_CODE, ".text");
}

void SectionsTest::start_pass2() {
  if (LBL_current) LBL_define();
  pass1 = 0;
  pass2 = 1;
  curpc = 0;
  isize_idx = 0;
  num_errors = num_warnings = 0;
  SYM_reset();
  SCN_reset();
  SCN_queue(SCN_KIND_CODE, ".text");
}

void SectionsTest::finish() { SCN_flush(); }

std::vector<uint8_t> SectionsTest::bytes_of(const section_record *s) {
  const DATA_MAP &map = s->scn_object->raw_data_nocheck();
  const uint8_t *p = map.data();
  return p ? std::vector<uint8_t>(p, p + map.size()) : std::vector<uint8_t>{};
}

std::vector<uint8_t> SectionsTest::bytes(const char *name) {
  const section_record *s = SCN_query(name);
  return s ? bytes_of(s) : std::vector<uint8_t>{};
}

std::string SectionsTest::assemble(const std::string &text) {
  if (path_.empty()) {
    char tmpl[] = "/tmp/zq_sections_XXXXXX";
    const int fd = mkstemp(tmpl);
    close(fd);
    path_ = tmpl;
  }
  FILE *f = std::fopen(path_.c_str(), "wb");
  std::fwrite(text.data(), 1, text.size(), f);
  std::fclose(f);

  ::testing::internal::CaptureStderr();
  open_source(path_);
  run_pass();
  std::string pass1_screen = ::testing::internal::GetCapturedStderr();
  ::testing::internal::CaptureStderr();
  start_pass2();
  open_source(path_);
  run_pass();
  finish();
  return ::testing::internal::GetCapturedStderr();
}

bool SectionsTest::shown(const std::string &screen, const char *id, const char *text) {
  return squeeze(screen).find(std::string("[") + id + "] " + text) != std::string::npos;
}
