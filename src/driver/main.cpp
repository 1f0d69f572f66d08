// The assembler's main sequence: start-up, pass 1, jump expansion, pass 2,
// end processing and object building.
#include <cstdio>
#include <cxxabi.h>
#include <exception>
#include <memory>
#include <new>
#include <typeinfo>

#include "debug/object_build.h"
#include "debug/dwarf_directives.h"
#include "directives/directives.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "expr/symbols.h"
#include "support/memory.h"
#include "target/arm/trg.h"

namespace {

int run(int argc, char **argv) {
  prepare_heap();
  signal_init();
  sys_argc = static_cast<int16_t>(argc);
  sys_argv = argv;
  execname = argc > 0 ? argv[0] : nullptr;

  const std::string dir = run_directory(execname);
  if (!dir.empty()) add_run_search_path(dir.c_str());

  initialize();
  make_ofile();

  prepare_pass1();
  process_source();

  if (object_format() == 2) COMGRP_process();
  LOCLBL_flush();
  if (LBL_current) LBL_define();
  reintroduce_branch_chains();
  expand_jumps();

  prepare_pass2();
  process_source();
  end_processing();

  if (!opt_on(OPT_ASM_DEPENDENCY) && !opt_on(OPT_PBC_OUTPUT)) BLD_object();

  dw_cleanup();
  destroy_ofile();

  if (num_errors == 0 && OUT_commit_all()) return 0;
  OUT_discard_all();
  // A failed run leaves no dependency file, not even an older one.
  if (opt_on(OPT_ASM_DEPENDENCY) && dependency_filename) OUT_remove_target(out_kind::dependency);
  return 1;
}

std::string demangled(const char *name) {
  int status = 0;
  std::unique_ptr<char, void (*)(void *)> text(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                               std::free);
  return status == 0 && text ? text.get() : name;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return run(argc, argv);
  } catch (const std::bad_alloc &) {
    out_of_memory();  // a container could not grow: the same end as safemalloc's
  } catch (const std::exception &e) {
    fprintf(stderr, "Unhandled exception of type %s: %s\n\n", demangled(typeid(e).name()).c_str(),
            e.what());
  } catch (...) {
    fprintf(stderr, "Unhandled exception not derived from std::exception\n\n");
  }
  fputs(support_notice(), stderr);
  return 1;
}
