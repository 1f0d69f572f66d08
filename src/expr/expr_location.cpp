// `$`: the current address, relative to the current section.
#include "directives/sections.h"
#include "expr/expr_internal.h"

bool E_location(value_record *v) {
  v->v_val = xi_from_uint(SCN_address());
  v->v_bits = static_cast<uint16_t>(v->v_val.size());
  if (curseg && curseg->scn_kind == SCN_KIND_ABS) return false;
  v->v_type = VT_SCNREL;
  v->v_section = curseg;
  return true;
}
