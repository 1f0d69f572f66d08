#pragma once
// Target state that the command line sets before the architecture may be
// known; TRG_get_version corrects it when the architecture comes later.

// --code_state and --thumb_state: 16 selects Thumb (Thumb-2 where the
// architecture has it), anything else ARM; sets cur_state and def_state.
void TRG_set_code_state(long bits);
// --ual: unified syntax on.
void TRG_set_ual_mode();
