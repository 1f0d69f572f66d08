// Interim target-state setters; the target state module makes them real.
#include "target/arm/pending_state.h"

#include <cstdlib>

#include "driver/diag.h"

// ARM state is where every run starts, so only a Thumb request needs the
// real module; refuse it rather than assemble Thumb source as ARM.
[[gnu::weak]] void TRG_set_code_state(long bits)
{
    if (bits != 16) return;
    error_user(nullptr, "E9999", "Thumb code state is not available in this build");
    exit(1);
}

// Unified syntax is already on at program start.
[[gnu::weak]] void TRG_set_ual_mode() {}
