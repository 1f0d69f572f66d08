// `$`: the current address, relative to the current section.
#include "expr/expr_internal.h"

bool E_location(value_record *v) {
  v->v_val = xi_from_uint(E_section_address());
  v->v_bits = static_cast<uint16_t>(v->v_val.size());
  if (curseg && E_section_is_abs()) return false;
  v->v_type = VT_SCNREL;
  v->v_section = curseg;
  return true;
}
