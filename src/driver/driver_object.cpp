// The one object file of the run, made after the command line is read.
#include <cstdlib>
#include <strings.h>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/driver_run.h"
#include "driver/options.h"
#include "ofe/elf_file.h"
#include "ofe/elf_symbol.h"
#include "ofe/object_file.h"

// until diag.h declares the engine handlers

namespace {

constexpr unsigned char STV_HIDDEN_VISIBILITY = 2;

bool coff_requested() {
  const char *fmt = global_opts->getstrarg(OPT_OBJECT_FORMAT, 0);
  return fmt && strcasecmp(fmt, "coff") == 0;
}

// The COFF-only debug options have no meaning for ELF; all are reported.
void refuse_coff_debug_options() {
  bool refused = false;
  if (opt_on(OPT_CDEBUG_ASM_DATA)) {
    error_user(nullptr, "E9999", "--cdebug_asm_data cannot be used when generating ELF object files");
    refused = true;
  }
  if (opt_on(OPT_SYMDEBUG_COFF)) {
    error_user(nullptr, "E9999", "--symdebug:coff cannot be used when generating ELF object files");
    refused = true;
  }
  if (opt_on(OPT_SYMDEBUG_PROFILE_COFF)) {
    error_user(nullptr, "E9999",
               "--symdebug:profile_coff cannot be used when generating ELF object files");
    refused = true;
  }
  if (refused) exit(1);
}

}  // namespace

void make_ofile() {
  const bool coff = coff_requested();
  if (!coff) refuse_coff_debug_options();

  ofile = coff ? OFE::OBJECT_FILE::new_OBJECT_FILE(OFE::OFF_ZQCOFF, OFE::OFV_COFF2, OFE::OFC_32,
                                                   OFE::OFM_ARM, nullptr, assy_obj_name)
               : OFE::OBJECT_FILE::new_OBJECT_FILE(OFE::OFF_ELF, OFE::OFV_ELF1, OFE::OFC_32,
                                                   OFE::OFM_ARM, nullptr, assy_obj_name);
  if (!ofile) {
    error_user(nullptr, "E1000", "Cannot create the %s object file %s", coff ? "ZQ-COFF" : "ELF",
               assy_obj_name);
    exit(1);
  }
  object_format_chosen = coff ? 1 : 2;
  ofile->set_machine_endian(big_endian_code ? OFE::OFE_BIG : OFE::OFE_LITTLE);
  ofile->set_producer(tool_name(), version_major(), version_minor(), version_patch());
  ofile->set_error_handler(ofile_error_handler);
  if (!coff) {
    if (OFE::ELF_FILE *elf = ofile->elf_api())
      elf->elf_symbol_table()->set_default_visibility(STV_HIDDEN_VISIBILITY);
  }
}

void destroy_ofile() {
  delete ofile;
  ofile = nullptr;
  object_format_chosen = 0;
}
