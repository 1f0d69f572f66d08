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

// Thumb 16-bit (enc_t16_*.cpp).
void encode_t_add(instruct *ir);       // 101
void encode_t_alu(instruct *ir);       // 102
void encode_t_cmp(instruct *ir);       // 103
void encode_t_mov(instruct *ir);       // 104
void encode_t_b(instruct *ir);         // 105, 118
void encode_t_lsb(instruct *ir);       // 106
void encode_t_lsh(instruct *ir);       // 107
void encode_t_lss(instruct *ir);       // 108
void encode_t_lsw(instruct *ir);       // 109
void encode_t_mls(instruct *ir);       // 110
void encode_t_swi(instruct *ir);       // 111
void encode_t_sub(instruct *ir);       // 112
void encode_t_nop(instruct *ir);       // 113
void encode_t_br(instruct *ir);        // 114, 116, 117
void encode_t_adr(instruct *ir);       // 115
void encode_t_mext(instruct *ir);      // 119
void encode_t_cpy(instruct *ir);       // 120
void encode_t_cps(instruct *ir);       // 121
void encode_t_dp(instruct *ir);        // 122

// Thumb-2 data processing and multiplies (enc_t2_dp*.cpp).
void encode_t2_dp(instruct *ir);       // 123
void encode_t2_dpw(instruct *ir);      // 124
void encode_t2_mov_imm(instruct *ir);  // 126
void encode_t2_dp_reg(instruct *ir);   // 127
void encode_t2_shift(instruct *ir);    // 128
void encode_t2_extend(instruct *ir);   // 129
void encode_t2_mul(instruct *ir);      // 134
void encode_t2_div(instruct *ir);      // 138
void encode_t2_rev(instruct *ir);      // 139

// Thumb-2 loads, stores and system (enc_t2_ldst*.cpp).
void encode_t2_ldr_str(instruct *ir);  // 130
void encode_t2_ldm(instruct *ir);      // 131
void encode_t2_table(instruct *ir);    // 140
void encode_t2_prefetch(instruct *ir); // 142
void encode_t2_cps(instruct *ir);      // 217

// Thumb-2 branches, IT and ADR (enc_t2_branch*.cpp).
void encode_t2_branch(instruct *ir);   // 132, 135
void encode_t2_adr(instruct *ir);      // 133
void encode_t2_it(instruct *ir);       // 136
void encode_t2_czb(instruct *ir);      // 137
void encode_t2_bxj(instruct *ir);      // 141

// Families of later steps: VFP (19 to 23, 49, 50), NEON and the rest.
void encode_vfp(instruct *ir);
void encode_simd_ins(instruct *ir);
