// The target's part in finishing the object: file header fields, the
// exception index sections, symbol values and linkage, and the statistics at
// the end of the listing.
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "directives/sections.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/symbols.h"
#include "ofe/elf_defs.h"
#include "ofe/elf_file.h"
#include "ofe/elf_section.h"
#include "ofe/elf_symbol.h"
#include "ofe/object_file.h"
#include "ofe/of_machine.h"
#include "target/arm/glue_pending.h"
#include "target/arm/trg.h"

namespace {

constexpr const char EXIDX_PREFIX[] = ".ARM.exidx";
// ZQ-COFF instruction set field of the file header.
constexpr unsigned ZQCOFF_ISA_V4 = 1;
constexpr unsigned ZQCOFF_ISA_V5E = 4;
constexpr unsigned ZQCOFF_ISA_V6 = 6;
// EABI versions for objects meant to be mixed with another tool chain's, and for all others.
constexpr unsigned char EABI_VERSION_COMPAT = 4;
constexpr unsigned char EABI_VERSION = 5;

bool eabi_compat_given() {
  if (!opt_on(OPT_EABI_COMPAT)) return false;
  const long v = global_opts->getnumarg(OPT_EABI_COMPAT, 0);
  return v == 10 || v == 11;
}

OFE::ARM_MACHINE_DB *arm_db() { return ofile ? dynamic_cast<OFE::ARM_MACHINE_DB *>(ofile->machine_db()) : nullptr; }

void set_coff_header() {
  if (arm_eabi())
    set_zqcoff_fh_arm9abi();
  else
    set_zqcoff_fh_zqabi();
  const uint32_t arch = arm_arch();
  set_zqcoff_fh_isa(arch == ARCH_V5E ? ZQCOFF_ISA_V5E : arch_v6_or_higher(arch) ? ZQCOFF_ISA_V6 : ZQCOFF_ISA_V4);
  set_zqcoff_fh_dmode(!opt_on(OPT_DISABLE_DUAL_STATE) || arch_v5e_or_higher(arch));
}

// Percentage of part in whole, by integer division.
unsigned long percent(int64_t part, int64_t whole) {
  return whole > 0 ? static_cast<unsigned long>(part * 100 / whole) : 0;
}

void listing_printf(const char *fmt, ...) __attribute__((format(printf, 1, 2)));
void listing_printf(const char *fmt, ...) {
  char text[256];
  va_list ap;
  va_start(ap, fmt);
  std::vsnprintf(text, sizeof text, fmt, ap);
  va_end(ap);
  myfputs(text, ASSY_LST);
}

}  // namespace

void TRG_set_fhdr() {
  if (object_format() == 1) {
    set_coff_header();
  } else if (object_format() == 2 && arm_eabi()) {
    if (OFE::ARM_MACHINE_DB *db = arm_db()) db->set_eabi_version(eabi_compat_given() ? EABI_VERSION_COMPAT : EABI_VERSION);
  }
}

void TRG_finalize_sections() {
  if (object_format() != 2 || !arm_eabi()) return;
  for (section_record *s = seglist; s; s = s->scn_next) {
    if (std::strncmp(s->name(), EXIDX_PREFIX, sizeof EXIDX_PREFIX - 1) != 0) continue;
    auto *elf = dynamic_cast<OFE::ELF_SECTION *>(s->scn_object);
    if (!elf) continue;
    if (const OFE::ELF_SPECIAL_SECTION *row = elf->elf_table()->special_section(s->name())) {
      elf->set_sh_type(row->sh_type);
      // Membership of a COMDAT group, given just before, stays.
      elf->set_sh_flags(row->sh_flags | (elf->sh_flags() & OFE::SHF_GROUP));
    }
    const section_record *target = s->scn_exidx_target;
    elf->set_sh_link_order(target && target->scn_object ? target->scn_object->id() : 0);
  }
}

void TRG_finalize_symbols() {
  adjust_thumb_symbol_values();
  if (object_format() != 2 || !arm_eabi()) return;
  for (int h = 0; h <= NAME_BUCKETS; ++h) {
    for (symbol_record *s = names[h]; s; s = s->sym_next) {
      if (!s->sym_object || !(s->sym_flags & SYMF_VERSIONED)) continue;
      const symbol_record *target = s->sym_value.v_symbol;
      if (target && target != s && SYM_is_global(target))
        SYM_set_extern_linkage_elf(target, static_cast<OFE::ELF_SYMBOL *>(s->sym_object));
    }
  }
}

void TRG_end_process() {
  if (!arch_t2_capable(arm_arch()) || cur_state != 2 || !opt_on(OPT_ASM_LISTING) || !ASSY_LST) return;
  const int64_t t2 = num_thumb2_keep + num_thumb2_conv;
  if (t2 <= 0) return;
  listing_printf("%s", "\n--------------------------\n");
  listing_printf("%s", "Thumb2 Statistics");
  listing_printf("%s", "\n--------------------------\n");
  listing_printf("Number of Thumb2 ins converted to Thumb = %ld (%lu%%)\n", static_cast<long>(num_thumb2_conv),
                 percent(num_thumb2_conv, t2));
  listing_printf("Number of Thumb ins in input = %ld (%lu%%)\n", static_cast<long>(num_orig_thumb),
                 percent(num_orig_thumb, num_orig_thumb + t2));
  listing_printf("Number of Thumb2 ins encoded as Thumb2 = %ld (%lu%%)\n", static_cast<long>(num_thumb2_keep),
                 percent(num_thumb2_keep, t2));
  listing_printf("Number of Thumb2 ins converted to 2 OPND Thumb = %ld\n\n", static_cast<long>(num_2opnd_conv));
}
