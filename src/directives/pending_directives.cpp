// Interim piece of the section directives that object assembly makes real.

#include "directives/directives.h"

// Without COMGRP_process no member learns its group: nothing to do until
// the object assembly step brings it.
[[gnu::weak]] void COMGRP_process() {}
