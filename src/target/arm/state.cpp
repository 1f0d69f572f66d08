// Target state variables and the command-line setters of the state.
#include "target/arm/state.h"

#include <cstdint>

#include "target/arm/glue_pending.h"
#include "target/arm/opcodes.h"
#include "target/arm/trg.h"

uint32_t cur_state = 0;
uint32_t def_state = 0;
uint32_t encode_state = 0;
uint8_t ual_mode = 1;

// The architecture may come later on the command line; TRG_get_version then
// moves the pair between Thumb and Thumb-2.
void TRG_set_code_state(long bits)
{
    cur_state = def_state = bits != 16 ? 0 : arch_t2_capable(arm_arch()) ? 2 : 1;
}

void TRG_set_ual_mode() { ual_mode = 1; }
