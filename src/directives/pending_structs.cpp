// Interim handlers of the structure directives; the structures step makes them real.

#include "directives/struct_directives.h"
#include "driver/pending.h"

void DP_struct(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_union(instruct *ir) { DIR_pass_over_operands(ir); }
void DP_tag(instruct *ir) { DIR_pass_over_operands(ir); }
void GD_struct(instruct *ir) { DIR_not_supported(ir); }
void GD_union(instruct *ir) { DIR_not_supported(ir); }
void GD_tag(instruct *ir) { DIR_not_supported(ir); }
void GD_access(instruct *ir) { DIR_not_supported(ir); }
void GD_endstruct(instruct *ir) { DIR_not_supported(ir); }
void GD_endunion(instruct *ir) { DIR_not_supported(ir); }
void GD_enum(instruct *ir) { DIR_not_supported(ir); }
void GD_endenum(instruct *ir) { DIR_not_supported(ir); }
