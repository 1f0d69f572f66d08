// The two passes over the source, and what comes before, between and after them.
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstdio>
#include <cstring>

#include "debug/coff_debug.h"
#include "debug/dwarf_directives.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "driver/pipeline.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "listing/lst_directives.h"
#include "listing/xref.h"
#include "source/conditional.h"
#include "source/copy.h"
#include "source/input_files.h"
#include "source/lexer.h"
#include "source/macro.h"
#include "source/subsym.h"
#include "support/fhm.h"
#include "target/arm/trg.h"


namespace {

void open_sections_of_a_pass() {
  SCN_queue(SCN_KIND_CODE, ".text");
  if (object_format() == 1) {
    SCN_queue(SCN_KIND_DATA, ".data");
    SCN_queue(SCN_KIND_BSS, ".bss");
  }
}

void drop_pushed_tokens() {
  while (availtkn) {
    token *tk = availtkn;
    availtkn = tk->next;
    tk->next = nullptr;
    LEX_droptkn(tk);
  }
  LEX_droptkn(curtk);
  curtk = nullptr;
}

// Pass 2 starts at the first line of the main source, even when pass 1 ended
// inside a copied file.
void return_to_main_source() {
  if (copytop < 0) return;
  FHM_FILE *main_source = copystk[0].source;
  for (int i = copytop; i >= 1; --i)
    if (copystk[i].source && copystk[i].source != main_source) fhm_close(copystk[i].source);
  if (ASSY_SRC && ASSY_SRC != main_source) fhm_close(ASSY_SRC);
  ASSY_SRC = main_source;
}

void rewind_source() {
  return_to_main_source();
  if (ASSY_SRC && !SRC_rewind(ASSY_SRC)) SRC_fail(assy_src_name, errno);
  inbuf = nullptr;
  inbuf_len = 0;
  ch = ' ';
  chtyp = CH_EOL;
  chpos = -1;

  copytop = -1;
  copych = 'A';
  f_name = assy_src_name;
  f_lchar = ' ';
  f_lnum = 0;
  f_temp_del = 0;
}

void reset_listing() {
  LST_pagenum = 0;
  LST_linesprinted = 32768;
  LST_title[0] = '\0';
  LST_control = opt_on(OPT_ASM_LISTING) ? 0xB800 : 0xB000;
}

void enter_predefined_tables() {
  init_predefs(dwarf_predefs);
  init_predefs(trg_ucpredefs);
  if (!opt_on(OPT_SYMS_IGNORE_CASE)) init_predefs(trg_lcpredefs);
}

// A --define value that strtol with automatic radix reads completely.
bool numeric_define(const std::string &text, long *value) {
  if (text.empty()) return false;
  const char c = text[0];
  if (!(c >= '0' && c <= '9') && c != '-' && c != '+') return false;
  errno = 0;
  char *end = nullptr;
  *value = strtol(text.c_str(), &end, 0);
  return errno != ERANGE && end && *end == '\0';
}

}  // namespace

unsigned object_format_chosen = 0;

unsigned object_format() { return ofile ? object_format_chosen : 0; }

void set_predefs() {
  for (const std::string &entry : predefs) {
    size_t cut = entry.find('=');
    if (cut == std::string::npos) cut = entry.find(':');
    const std::string name = entry.substr(0, cut);
    const std::string value = cut == std::string::npos ? std::string() : entry.substr(cut + 1);
    long number = 0;
    if (value.empty())
      SYM_set_predef(name, 1, false);
    else if (numeric_define(value, &number))
      SYM_set_predef(name, number, value[0] == '-');
    else
      SUBSYM_define_predef(name, value);
  }
  SYM_set_predef("__ZQ_ASSEMBLER_VERSION__",
                 version_major() * 1000000L + version_minor() * 1000L + version_patch(), false);
  TRG_version_predefs();
}

void prepare_pass1() {
  pass1 = 1;
  pass2 = 0;
  endcard = 0;
  remark_reset_directives();
  curpc = 0;
  TRG_version_check();
  set_predefs();
  cmdline_include_init();
  TRG_initialize_pass1();
  if (!macro_file[0]) {
    char name[FN_BUFSIZE] = {};
    fn_tmpnam(name, nullptr, nullptr);
    const size_t n = std::min(strlen(name), sizeof macro_file - 1);  // the name is at most 256 characters
    memcpy(macro_file, name, n);
    macro_file[n] = '\0';
  }
  MAC_open();
  open_sections_of_a_pass();
  dw_init();
  SCN_queue(SCN_KIND_CODE, ".text");
  f_name = assy_src_name;
  subsym_expand = 1;
}

void process_source() {
  while (!endfile) {
    if (endcard) break;
    instruct *ir = IR_build();
    IR_process(ir);
    IR_drop(ir);
  }
}

void prepare_pass2() {
  if (LBL_current) LBL_define();
  LST_dump();

  pass1 = 0;
  pass2 = 1;
  remark_reset_directives();
  LST_clear();
  endcard = 0;
  SYM_reset();
  TRG_initialize_pass2();
  curpc = 0;

  rewind_source();
  reset_listing();
  curr_lex_level = curr_func_id = last_func_id = 0;
  isize_idx = 0;

  endfile = 0;
  endcard = 0;
  drop_pushed_tokens();

  MAC_lvl = -1;
  CBLK_lvl = -1;
  CLOOP_lvl = -1;

  // Whatever is still wrong is found and reported again in this pass.
  num_errors = 0;
  num_warnings = 0;

  mac_loclbl_cnt = 0;
  file_loclbl_cnt = 0;
  LBL_max_count = 0;
  paths[0] = name_directory(assy_src_name);

  SUBSYM_clear_all();
  set_predefs();
  TRG_init_regsyms();
  enter_predefined_tables();

  SCN_reset();
  TRG_reset();
  cmdline_include_init();
  MAC_clear();
  MAC_open();

  if (!DBD_file_seen) SYM_add_file(assy_src_name);
  SCN_queue(SCN_KIND_CODE, ".text");
  subsym_expand = 1;
}

void end_processing() {
  if (orig_src_name[0]) SYM_update_file(assy_src_name, orig_src_name);
  if (LBL_current) LBL_define();
  LST_dump();

  if (MAC_lvl >= 0 || CBLK_lvl >= 0) warn(nullptr, "W0004", "Open block(s) at EOF");

  SCN_flush();
  TRG_end_process();
  pass1 = 0;
  pass2 = 0;
  SYM_checkdefs();
  ew_summary();

  if (opt_on(OPT_CROSS_REFERENCE)) printxref();

  if (ASSY_LST) {
    LST_close();
    ASSY_LST = nullptr;
  }
  if (ASSY_PRF) {
    OUT_finish(out_kind::profile, ASSY_PRF);
    ASSY_PRF = nullptr;
  }
  MAC_close();
  if (opt_on(OPT_ASM_DEPENDENCY) && dependency_file) {
    OUT_finish(out_kind::dependency);
    dependency_file = nullptr;
  }
  if (pbc_output_file) {
    OUT_finish(out_kind::pbc);
    pbc_output_file = nullptr;
  }
}
