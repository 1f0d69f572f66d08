#pragma once
// What the section and symbol directives call in subsystems of later steps;
// the interim bodies are in pending_secdir.cpp and go when their subsystem
// lands.
#include <cstdint>
#include <string>

namespace DWE {
class DW_DIE;
}
namespace OFE {
class OF_SECTION;
}

// ---- Structures -------------------------------------------------------------------

// `counter` raised to a multiple of `alignment` (bytes; 0 and 1 leave it).
uint32_t SU_align(uint32_t counter, uint32_t alignment);

// A row of the type names a data directive's `type` operand may give.
struct dir_type_row {
  const char *name;
  uint16_t type;   // COFF basic type
};
// By exact name, or by code when the name is null.
const dir_type_row *get_type(const char *name, int code);
// Bits of the type; 65535 for a type the table doesn't size.
uint32_t get_dir_size(const dir_type_row *row);

// ---- Register substitution (.map) -----------------------------------------------------

class SUBREGSYMTBL {
 public:
  // 0 when `value` names no register: nothing is stored.
  int SUBREGSYM_insert(std::string name, std::string value);
  void SUBREGSYM_clear();
};
extern SUBREGSYMTBL subregsymtbl;

// ---- Assembly-source debug ----------------------------------------------------------------

// The tag of an open assembly function's debug entry.
unsigned short DBD_asmfunc_tag(const DWE::DW_DIE *die);

// ---- ZQ-COFF writer ------------------------------------------------------------------------

// Sets bits in a ZQ-COFF section header's flags.
void zqcoff_set_scn_flags(OFE::OF_SECTION *section, uint32_t flags);
