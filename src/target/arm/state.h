#pragma once
// Target state: the code state, its fill patterns, and the command-line
// setters that run before the architecture may be known.
#include <cstdint>

// Set when the next emitted field starts a new mapping-symbol run.
extern uint8_t signal_state_change;
// Longest branch chain that jump expansion builds (--max_branch_chain).
extern int32_t max_branch_chain_length;

// Alignment fill words: ARM state (0x01A00000, a nop without its condition)
// and Thumb (two `mov r8, r8`).
constexpr uint32_t ARM_FILL = 0x01A00000u;
constexpr uint32_t THUMB_FILL = 0x46C046C0u;
constexpr uint32_t ARM_fill_pattern(uint32_t state) { return state == 0 ? ARM_FILL : THUMB_FILL; }

// --code_state and --thumb_state: 16 selects Thumb (Thumb-2 where the
// architecture has it), anything else ARM; sets cur_state and def_state.
void TRG_set_code_state(long bits);
// --ual: unified syntax on.
void TRG_set_ual_mode();

// Reports "Illegal Cortex-M instruction/directive" on a Cortex-M architecture.
void error_if_cortex_m(struct linebuf *line);
