#pragma once
// The class encoders, by family. encode_krv616_ins picks one by the ic_id of
// the statement's class (class_encoder_for); each writes its fields into the
// base word already in the statement.
#include "target/arm/instr.h"

using class_encoder = void (*)(instruct *);

// The encoder of an ic_id; encode_simd_ins for ids that have none of their own.
class_encoder class_encoder_for(unsigned ic_id);

// Branches and addresses (enc_branch.cpp).
void encode_branch(instruct *ir);      // 1
void encode_cret(instruct *ir);        // 25
void encode_adr(instruct *ir);         // 15

// Data processing (enc_dp.cpp).
void encode_dp(instruct *ir);          // 2
void encode_clz(instruct *ir);         // 3
// MOVW and MOVT in ARM state and Thumb-2 (class t2_dp_4); also run for a MOV
// whose immediate has no rotated form.
void encode_movw_movt(instruct *ir);   // 125

// Multiplies and saturating arithmetic (enc_mul.cpp).
void encode_mul(instruct *ir);         // 5
void encode_mull(instruct *ir);        // 6, 46
void encode_fixpt(instruct *ir);       // 17
void encode_smul(instruct *ir);        // 18

// v6 media and bit fields (enc_media.cpp).
void encode_bitfield(instruct *ir);    // 29
void encode_rev(instruct *ir);         // 34
void encode_addsub(instruct *ir);      // 35
void encode_wsat(instruct *ir);        // 36
void encode_hsat(instruct *ir);        // 37
void encode_sel(instruct *ir);         // 38
void encode_extend(instruct *ir);      // 39
void encode_v6_mul(instruct *ir);      // 40
void encode_v6_mull(instruct *ir);     // 41, 45
void encode_usad(instruct *ir);        // 42
void encode_pack(instruct *ir);        // 43, 44

// Loads and stores (enc_ldst.cpp).
void encode_ldr_str(instruct *ir);     // 7
void encode_ldm(instruct *ir);         // 8
void encode_swp(instruct *ir);         // 9
void encode_pld(instruct *ir);         // 16
void encode_ldrex(instruct *ir);       // 223
void encode_ldrexd(instruct *ir);      // 224
void encode_strex(instruct *ir);       // 225
void encode_strexd(instruct *ir);      // 226

// Coprocessors (enc_coproc.cpp).
void encode_cdp(instruct *ir);         // 12
void encode_cdp_xfer(instruct *ir);    // 13
void encode_cpr_xfer(instruct *ir);    // 14

// Status registers, exceptions, hints and system (enc_system.cpp).
void encode_psr(instruct *ir);         // 4
void encode_swi(instruct *ir);         // 10
void encode_bkpt(instruct *ir);        // 11
void encode_nop(instruct *ir);         // 24
void encode_clrex(instruct *ir);       // 30
void encode_synch(instruct *ir);       // 31
void encode_setend(instruct *ir);      // 33
void encode_cps(instruct *ir);         // 47, 48
void encode_rfe(instruct *ir);         // 143
void encode_srs(instruct *ir);         // 144
void encode_smi(instruct *ir);         // 145
void encode_hint(instruct *ir);        // 146, 147
void encode_sg(instruct *ir);          // 148
void encode_tt(instruct *ir);          // 149
void encode_udf(instruct *ir);         // 227

// Families of later steps: VFP (19 to 23, 49, 50), Thumb-16 (101 to 122),
// Thumb-2 (123 to 142), NEON and the rest.
void encode_vfp(instruct *ir);
void encode_thumb16(instruct *ir);
void encode_thumb2(instruct *ir);
void encode_simd_ins(instruct *ir);
