#pragma once
// The target's own directives (trg_direct) and .battr.
struct instruct;

void TD_thumb_state(instruct *ir);   // .state16
void TD_t_ual_state(instruct *ir);   // .thumb
void TD_arm_state(instruct *ir);     // .state32, .arm
void TD_thumb_func(instruct *ir);    // .thumbfunc
void TD_arm_func(instruct *ir);      // .armfunc

// .battr does its work while it is parsed; both pass handlers are donothing.
void DP_battr(instruct *ir);
