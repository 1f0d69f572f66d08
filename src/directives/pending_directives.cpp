// Interim handlers of the section, data and symbol directives; the sections and
// data step and the section and symbol directives step make them real.

#include "directives/directives.h"
#include "driver/pending.h"

[[gnu::weak]] void DP_align(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_space(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_sect(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_bss(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_usect(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_common(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_opt_sect(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_comdat(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_bound(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_noinit(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_group(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_gmember(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_map(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_global(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_equ(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_symalias(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_label(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_elfsym(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_setsect(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_setsym(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_symdepend(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_symver(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void DP_symmetainfo(instruct *ir) { DIR_pass_over_operands(ir); }
[[gnu::weak]] void GD_align(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_space(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_text(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_data(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_sect(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_bss(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_usect(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_common(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_link_type(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_retainrefs(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_comdat(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_bound(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_noinit(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_group(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_gmember(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_endgroup(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_newblock(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_map(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_clearmap(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD1_global(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD2_global(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_equ(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_symalias(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD1_label(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD2_label(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_elfsym(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_setsect(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_setsym(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_symdepend(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_symver(instruct *ir) { DIR_not_supported(ir); }
[[gnu::weak]] void GD_symmetainfo(instruct *ir) { DIR_not_supported(ir); }

// Without .group no section belongs to a group: nothing to do.
[[gnu::weak]] void COMGRP_process() {}
