// Object assembly: what needs the whole file to be known is handed to ofile
// in a fixed order, and the file is written.
#include "debug/object_build.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "debug/object_build_pending.h"
#include "debug/object_build_sections.h"
#include "directives/sections.h"
#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "driver/output_files.h"
#include "expr/symbols.h"
#include "ofe/object_file.h"
#include "target/arm/trg.h"

namespace {

// --section_sizes value that asks for the summary.
constexpr long SECTION_SIZES_ON = 1;

bool dwarf_requested() { return opt_on(OPT_SYMDEBUG_DWARF) || opt_on(OPT_SYMDEBUG_SKELETAL); }

void print_section_sizes() {
  if (!opt_on(OPT_SECTION_SIZES) || global_opts->getnumarg(OPT_SECTION_SIZES, 0) != SECTION_SIZES_ON) return;
  unsigned code = 0, constdata = 0, data = 0;
  ofile->get_summary_section_sizes(code, constdata, data);
  if (!code && !constdata && !data) return;
  const char *name = ofile->name();
  std::printf("FILE: %s\n", name && *name ? name : "(unknown file)");
  if (code) std::printf("CODE  size (bytes): %u\n", code);
  if (constdata) std::printf("CONST size (bytes): %u\n", constdata);
  if (data) std::printf("DATA  size (bytes): %u\n", data);
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace

void BLD_object() {
  if (num_errors) {
    std::fflush(stdout);
    std::fputs("\nErrors in Source - Assembler Aborted\n", stderr);
    std::exit(1);
  }
  if (opt_on(OPT_ABSOLUTE_LISTING) || opt_on(OPT_PREPROCESS) || !ofile) return;

  // Symbols first: sections, mapping symbols, globals, aliases; then what refers to them.
  SCN_def_snames();
  TRG_dump_mapping_syms();
  SYM_add_globs();
  SYM_add_aliases();
  if (object_format() == 1) CSYM_patch();
  RELOC_fixup();
  BA_gen_build_attributes();
  TRG_set_fhdr();
  for (section_record *s = seglist; s; s = s->scn_next) BLD_finish_section(s);
  TRG_finalize_sections();
  SYM_add_metainfo();
  TRG_finalize_symbols();
  // DWARF refers to the final sections and symbols, so it comes last.
  if (dwarf_requested()) dw_write();

  // The file is written beside its target and put in place when the run ends well.
  if (!OUT_create(out_kind::object) || ofile->save_obj(assy_obj_name, OUT_path(out_kind::object)) < 0) {
    const int err = errno;
    if (err)
      OUT_failed(out_kind::object, err);
    else
      error_user(nullptr, "E1000", "Failed to write object file : %s", assy_obj_name);
    std::exit(1);
  }
  // The engine reports what it could not represent (a truncated offset, say)
  // and still writes the file: a flawed object must not pass for a good one.
  if (num_errors) OUT_discard(out_kind::object);
  print_section_sizes();
}
