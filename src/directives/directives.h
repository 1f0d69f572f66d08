#pragma once
// Handlers of the section, data and symbol directives.
#include <cstdint>

struct instruct;

// ---- Section directives ----------------------------------------------------
void DP_align(instruct *ir);      // .align
void DP_space(instruct *ir);      // .space, .bes
void DP_sect(instruct *ir);       // .sect
void DP_bss(instruct *ir);        // .bss
void DP_usect(instruct *ir);      // .usect
void DP_common(instruct *ir);     // .common
void DP_opt_sect(instruct *ir);   // .clink, .retain, .retainrefs
void DP_comdat(instruct *ir);     // .comdat
void DP_bound(instruct *ir);      // .bound
void DP_noinit(instruct *ir);     // .noinit
void DP_group(instruct *ir);      // .group
void DP_gmember(instruct *ir);    // .gmember
void DP_map(instruct *ir);        // .map

void GD_align(instruct *ir);
void GD_space(instruct *ir);      // .space and .bes
void GD_text(instruct *ir);
void GD_data(instruct *ir);
void GD_sect(instruct *ir);
void GD_bss(instruct *ir);
void GD_usect(instruct *ir);
void GD_common(instruct *ir);
void GD_link_type(instruct *ir);  // .clink, .retain
void GD_retainrefs(instruct *ir);
void GD_comdat(instruct *ir);
void GD_bound(instruct *ir);
void GD_noinit(instruct *ir);
void GD_group(instruct *ir);
void GD_gmember(instruct *ir);
void GD_endgroup(instruct *ir);
void GD_newblock(instruct *ir);
void GD_map(instruct *ir);
void GD_clearmap(instruct *ir);

// End of pass 1, ELF only: group members learn their group.
void COMGRP_process();

// ---- Data directives --------------------------------------------------------
// DP_icons<8>, DP_icons<16> and DP_icons<32> are the generic readers of pipeline.h.
void DP_field(instruct *ir);      // .field, .bits
void DP_float(instruct *ir);      // .float, .double, .ldouble

void GD1_byte(instruct *ir);      // .byte, .ubyte, .char, .uchar, .string
void GD2_byte(instruct *ir);
void GD_cstring(instruct *ir);
void GD_half(instruct *ir);       // .half, .uhalf, .short, .ushort
void GD_word(instruct *ir);       // .word, .uword, .int, .uint
void GD_long(instruct *ir);       // .long, .ulong
void GD_vinstr(instruct *ir);
void GD1_stream(instruct *ir);
void GD2_stream(instruct *ir);
void GD_encode(instruct *ir);
void GD_field(instruct *ir);
void GD_bits(instruct *ir);
void GD_float(instruct *ir);
void GD_double(instruct *ir);
void GD_ldouble(instruct *ir);

// ---- Symbol directives -------------------------------------------------------
void DP_global(instruct *ir);     // .global, .def, .ref, .system, .export, .import, .weak,
                                  // .tls, .protected, .hidden (and .armfunc, .thumbfunc)
void DP_equ(instruct *ir);        // .equ, .set
void DP_symalias(instruct *ir);
void DP_label(instruct *ir);
void DP_elfsym(instruct *ir);
void DP_setsect(instruct *ir);
void DP_setsym(instruct *ir);
void DP_symdepend(instruct *ir);
void DP_symver(instruct *ir);
void DP_symmetainfo(instruct *ir);  // .symmetainfo, .sym_meta_info

void GD1_global(instruct *ir);
void GD2_global(instruct *ir);
void GD_equ(instruct *ir);
void GD_symalias(instruct *ir);
void GD1_label(instruct *ir);
void GD2_label(instruct *ir);
void GD_elfsym(instruct *ir);
void GD_setsect(instruct *ir);
void GD_setsym(instruct *ir);
void GD_symdepend(instruct *ir);
void GD_symver(instruct *ir);
void GD_symmetainfo(instruct *ir);

// SYMF_VIS value of a visibility directive's name: ".IMPORT" 1, ".EXPORT" 2,
// ".PROTECTED" 3, ".HIDDEN" 4; 0 for any other name and in a COFF object.
uint32_t string_to_sym_visibility(const char *name);
// The directive name of a SYMF_VIS value, "UNKNOWN" for others.
const char *sym_visibility_to_string(uint32_t vis);
