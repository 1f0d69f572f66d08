// The copy stack: .copy and .include, and the return to the copying file.
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/symbols.h"
#include "listing/listing.h"
#include "source/conditional.h"
#include "source/copy.h"
#include "source/lexer.h"
#include "source/macro.h"
#include "support/fhm.h"
#include "support/memory.h"

char *f_name = nullptr;
int32_t f_lnum = 0;
char f_lchar = ' ';
uint16_t f_temp_del = 0;
char copych = 'A';
int16_t copytop = -1;
int16_t include_point = -1;
copy_entry copystk[COPY_MAX];

namespace {

// In pass 1 a dependency file names each copied file: the directory where it
// was found joined with its base name.
void write_dependency(const char *name) {
  if (!pass1 || !dependency_file) return;
  if (!opt_on(OPT_ASM_DEPENDENCY) && !opt_on(OPT_ASM_INCLUDES)) return;
  const bool includes_only = opt_on(OPT_ASM_INCLUDES);
  if (includes_only && copytop != 0) return;
  const char *base = fn_basename(name);
  char *path = fn_build(nullptr, env_ptr ? env_ptr : "", base ? base : name, "");
  if (includes_only) std::fprintf(dependency_file, "%s\n", path);
  else std::fprintf(dependency_file, "%s: %s\n", assy_obj_name, path);
  std::free(path);
}

}  // namespace

void push_copy() {
  LOCLBL_flush();
  if (copytop + 1 >= COPY_MAX) {
    error_internal(1, curline, "copy stack overflow");
    return;
  }
  copy_entry &e = copystk[++copytop];
  e.source = ASSY_SRC;
  e.f_name = f_name;
  e.path0 = paths.empty() ? std::string() : paths[0];
  e.f_lnum = f_lnum;
  e.list_on = (LST_control & LST_LIST_ON) != 0;
  e.f_lchar = f_lchar;
  e.f_temp_del = f_temp_del;
}

unsigned short pop_copy() {
  if (copytop < 0) return 0;
  LOCLBL_flush();
  if (ASSY_SRC) fhm_close(ASSY_SRC);
  if (f_temp_del && pass2 && f_name && std::remove(f_name) != 0)
    std::fprintf(stderr, "WARNING: Fail to delete temp file %s : %s\n", f_name, std::strerror(errno));
  std::free(f_name);
  if (include_point >= 0 && copytop <= include_point) include_point = -1;

  copy_entry &e = copystk[copytop--];
  ASSY_SRC = e.source;
  f_name = e.f_name;
  if (paths.empty()) paths.emplace_back();
  paths[0] = e.path0;
  f_lnum = e.f_lnum;
  if (e.list_on) LST_control |= LST_LIST_ON;
  f_lchar = e.f_lchar;
  f_temp_del = e.f_temp_del;
  e = copy_entry{};
  return 1;
}

void GD_copy(instruct *ir) {
  if (CLOOP_lvl >= 0 || MAC_lvl >= 0) {
    error(ir->line, "E0900", "Can't include a file inside a loop or macro");
    return;
  }
  if (copytop >= COPY_MAX - 1) {
    error(ir->line, "E1300", "Copy limit has been reached");
    return;
  }
  const operand *op = ir->oprnds[0];
  if (!op || !op->value.v_str) return;  // the parse handler has reported
  const char *name = op->value.v_str;
  FHM_FILE *file = search_dirs(name, "rb");
  if (!file) {
    // A file named on the command line has no line of the source to show.
    if (!cmdline_include_current()) error(ir->line, "E1000", "Include/Copy file not found or opened");
    else if (pass2) error_user(nullptr, "E1000", "Include/Copy file not found or opened");
    return;
  }

  if (LBL_current) LBL_define();
  LST_dump();
  LEX_reset();
  push_copy();

  ASSY_SRC = file;
  f_lnum = 0;
  f_temp_del = 0;
  f_lchar = copych < '[' ? copych++ : '+';
  if (paths.empty()) paths.emplace_back();
  paths[0] = env_ptr ? env_ptr : "";
  f_name = safestrdup(name);

  const bool include = ir->dir() && std::strcmp(ir->dir()->name, ".INCLUDE") == 0;
  if (include || opt_on(OPT_PREPROCESS)) {
    include_point = copytop;
    LST_control &= ~LST_LIST_ON;
  }
  write_dependency(name);
}
