#pragma once
// Handlers of the structure, union, enumeration and tag directives.
struct instruct;

void DP_struct(instruct *ir);   // .struct, .cstruct
void DP_union(instruct *ir);    // .union, .cunion
void DP_tag(instruct *ir);      // .tag
void GD_struct(instruct *ir);
void GD_union(instruct *ir);
void GD_tag(instruct *ir);
void GD_access(instruct *ir);
void GD_endstruct(instruct *ir);  // .endstruct outside a definition
void GD_endunion(instruct *ir);   // .endunion outside a definition
void GD_enum(instruct *ir);
void GD_endenum(instruct *ir);    // .emember and .endenum outside an enumeration
