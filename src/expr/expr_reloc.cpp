// What the expression engine needs to know of relocatable values.
#include "expr/reloc.h"

#include "directives/sections.h"

bool RELOC_const_scnrel_offset(const value_record *value) {
  if (!is_relocatable(value) || !value->v_section || value->v_type == VT_UNDEFSYM ||
      value->v_rel || value->v_bif)
    return false;
  return value->v_type != VT_LABEL || !SCN_iscomdat(value->v_section);
}
