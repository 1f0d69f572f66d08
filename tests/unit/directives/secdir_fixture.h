#pragma once
// The section fixture with its object known to the driver as ELF, as
// make_ofile leaves it, and what the directive and glue tests look at:
// object section flags and symbols.
#include <cstdint>

#include "directives/sections.h"
#include "driver/driver_run.h"
#include "expr/symbols.h"
#include "ofe/elf_section.h"
#include "sections_fixture.h"

class SecdirTest : public SectionsTest {
 protected:
  void SetUp() override {
    SectionsTest::SetUp();
    object_format_chosen = 2;
  }
  void TearDown() override {
    object_format_chosen = 0;
    SectionsTest::TearDown();
  }

  static OFE::ELF_SECTION *elf(const char *name) {
    const section_record *s = SCN_query(name);
    return s ? dynamic_cast<OFE::ELF_SECTION *>(s->scn_object) : nullptr;
  }
  static uint64_t sh_flags(const char *name) { return elf(name) ? elf(name)->sh_flags() : ~0ull; }
  static uint32_t zq_flags(const char *name) { return elf(name) ? elf(name)->zq_sh_flags() : ~0u; }
  // The low 32 bits of a symbol's value; ~0 for a symbol that doesn't exist.
  static uint32_t value_of(const char *name) {
    const symbol_record *s = SYM_query(name);
    return s ? s->sym_value.v_val.to_u32() : ~0u;
  }
};
