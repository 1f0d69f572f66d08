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

// Reports "Illegal Cortex-M instruction/directive" on a Cortex-M architecture.
void error_if_cortex_m(struct linebuf *line);

// The float unit as --float_support gives it (FLOAT_* of glue_pending.h); an
// unset option is the default, FLOAT_NONE.
long arm_float_support();
// --neon was given.
bool arm_neon();
