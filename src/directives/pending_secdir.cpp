// Interim bodies of what the section and symbol directives call in later
// steps. Each goes when the real one lands: two definitions don't link.
#include <cstring>

#include "directives/secdir_pending.h"
#include "driver/diag.h"
#include "expr/symbols.h"
#include "source/lexer.h"

// The structures step makes it real; the rounding is all it does.
uint32_t SU_align(uint32_t counter, uint32_t alignment) {
  if (alignment < 2) return counter;
  const uint32_t rest = counter % alignment;
  return rest ? counter + (alignment - rest) : counter;
}

// The structures and COFF debug steps make these real; the table is theirs.
namespace {
struct sized_type {
  dir_type_row row;
  uint32_t bits;
};
constexpr sized_type dir_types[] = {
    {{"SCHAR", 1}, 8},   {{"CHAR", 2}, 8},     {{"SHORT", 3}, 16},   {{"INT", 4}, 32},
    {{"LONG", 5}, 32},   {{"FLOAT", 6}, 32},   {{"DOUBLE", 7}, 64},  {{"TSTRUCT", 8}, 0},
    {{"LDOUBLE", 11}, 64}, {{"UCHAR", 12}, 8}, {{"USHORT", 13}, 16}, {{"UINT", 14}, 32},
    {{"ULONG", 15}, 32},  {{nullptr, 0}, 0},
};
}  // namespace

const dir_type_row *get_type(const char *name, int code) {
  for (const sized_type *t = dir_types; t->row.name; ++t) {
    if (name ? std::strcmp(name, t->row.name) == 0 : t->row.type == code) return &t->row;
  }
  return nullptr;
}

uint32_t get_dir_size(const dir_type_row *row) {
  for (const sized_type *t = dir_types; t->row.name; ++t)
    if (&t->row == row) return t->bits;
  return 65535;
}

// The substitution symbols step makes register substitution real. Until
// then a name that isn't a register can be refused as the table would; a
// real substitution can't be honoured, and says so.
SUBREGSYMTBL subregsymtbl;

int SUBREGSYMTBL::SUBREGSYM_insert(std::string name, std::string value) {
  const symbol_record *reg = SYM_query(value);
  if (!reg || reg->sym_value.v_type != VT_REG) return 0;
  error(curline, "E9999", ".map substitution of %s is not supported yet", name.c_str());
  return 1;
}

// Nothing was stored, so there is nothing to clear.
void SUBREGSYMTBL::SUBREGSYM_clear() {}

// Assembly-source debug makes it real; until then no function is ever open.
unsigned short DBD_asmfunc_tag(const DWE::DW_DIE *) { return 0; }

// The COFF writer makes it real; no ZQ-COFF object can be made before it.
void zqcoff_set_scn_flags(OFE::OF_SECTION *, uint32_t) {
  error_internal(1, curline, "ZQ-COFF section flags without the COFF writer");
}
