// Start-up: options, name tables, the date of the run, and the command line.
#include <algorithm>
#include <cstring>
#include <ctime>

#include "debug/dwarf_directives.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/options.h"
#include "expr/fval.h"
#include "expr/symbols.h"
#include "source/ophash.h"
#include "target/arm/trg.h"

void add_run_search_path(const char *dir) {
  if (dir && *dir) run_search_paths.emplace_back(dir);
}

std::string run_directory(const char *argv0) {
  if (!argv0) return "";
  const std::string name = argv0;
  const size_t sep = name.find_last_of("/\\");
  if (sep == std::string::npos) return "";
  std::string dir = name.substr(0, sep + 1);
  // Cut trailing separators, but keep a lone root and the one behind a drive colon.
  while (dir.size() > 1 && (dir.back() == '/' || dir.back() == '\\') && dir[dir.size() - 2] != ':')
    dir.pop_back();
  return dir;
}

void mygetdate() {
  sys_time = time(nullptr);
  const struct tm *tm = localtime(&sys_time);
  const char *text = tm ? asctime(tm) : nullptr;
  if (!text) text = "\n";
  strncpy(sys_date, text, sizeof sys_date - 1);
  sys_date[sizeof sys_date - 1] = '\0';
}

void hash_init() {
  std::fill(std::begin(ophash), std::end(ophash), nullptr);
  std::fill(std::begin(names), std::end(names), nullptr);
  std::fill(std::begin(tagnames), std::end(tagnames), nullptr);
}

void initialize() {
  option_obj::executable_name = execname ? execname : "<toolname>";
  option_obj::next_arg = next_argument;
  global_opts = new option_obj(true);

  math_init();
  hash_init();
  init_ophash();

  init_keywords(trg_keywords);
  init_predefs(dwarf_predefs);
  init_predefs(trg_ucpredefs);
  init_predefs(trg_lcpredefs);

  TRG_initialize();
  mygetdate();
  get_files();
  TRG_init_regsyms();
  LOCLBL_init();
}
