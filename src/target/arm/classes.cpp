// The encoding classes and the data-type rules, one row per line in the order
// of the instruction set's tables. A rule slot of {1, 0} admits only an absent
// suffix.
#include "target/arm/classes.h"
#include "target/arm/tables.h"

// ---- Data-type rules: {types, sizes} for suffix positions 1 to 3 --------------
const simd_type_rule simd_empty{"simd_empty", {{0x1, 0x0}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_SU_81632{"simd_Tdnm_SU_81632", {{0x60, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_81632{"simd_Tdnm_81632", {{0x2, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_S_1632{"simd_Tdnm_S_1632", {{0x20, 0xC}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_F_32{"simd_Tdnm_F_32", {{0x8, 0x8}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_F_32_64{"simd_Tdnm_F_32_64", {{0x9, 0x18}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_SU_8163264{"simd_Tdnm_SU_8163264", {{0x60, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdnm_FSU_81632{"simd_Tdnm_FSU_81632", {{0x68, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tnm_FSU_81632{"simd_Td_Tnm_FSU_81632", {{0x2, 0xE}, {0x68, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tnm_IF_81632{"simd_Td_Tnm_IF_81632", {{0x2, 0xE}, {0xC, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tnm_I_8163264{"simd_Td_Tnm_I_8163264", {{0x4, 0xE}, {0x4, 0x1C}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_Tm_ISU_8163264{"simd_Tdm_Tm_ISU_8163264", {{0x64, 0x1E}, {0x65, 0x1F}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_Tm_ISUF_8163264{"simd_Tdm_Tm_ISUF_8163264", {{0x6C, 0x1E}, {0x65, 0x1F}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_Tm_SU_8163264{"simd_Tdm_Tm_SU_8163264", {{0x60, 0x1E}, {0x61, 0x1E}, {0x1, 0x0}}};
const simd_type_rule simd_Td_8163264{"simd_Td_8163264", {{0x2, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tn_Tm_8163264{"simd_Td_Tn_Tm_8163264", {{0x6C, 0x1E}, {0x65, 0x1E}, {0x61, 0xE}}};
const simd_type_rule simd_Tn_vmov{"simd_Tn_vmov", {{0x6F, 0x1E}, {0x5, 0x1C}, {0x1, 0x0}}};
const simd_type_rule simd_Tn_vmvn{"simd_Tn_vmvn", {{0xF, 0x1C}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_T_3regs_imm{"simd_T_3regs_imm", {{0x7, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_vbic_vorr{"simd_vbic_vorr", {{0x8C, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_T_vmul{"simd_T_vmul", {{0x7C, 0x1E}, {0x71, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_1{"simd_Td_Tm_1", {{0xC, 0x1E}, {0x61, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_2{"simd_Td_Tm_2", {{0x60, 0x1E}, {0x61, 0x1C}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_3{"simd_Td_Tm_3", {{0x68, 0x8}, {0x68, 0x8}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_4{"simd_Td_Tm_4", {{0x4, 0x1C}, {0x60, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_5{"simd_Td_Tm_5", {{0x2, 0xE}, {0x28, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_6{"simd_Td_Tm_6", {{0x4, 0x1C}, {0x4, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tm_7{"simd_Td_Tm_7", {{0x68, 0x1C}, {0x68, 0x1C}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_1{"simd_Tdm_1", {{0x20, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_2{"simd_Tdm_2", {{0x4, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_3{"simd_Tdm_3", {{0x2, 0x2}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_4{"simd_Tdm_4", {{0x28, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_5{"simd_Tdm_5", {{0x2, 0x6}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_6{"simd_Tdm_6", {{0x48, 0x8}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_7{"simd_Tdm_7", {{0x2, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_vqdmlal{"simd_vqdmlal", {{0x20, 0x1C}, {0x21, 0xC}, {0x1, 0x0}}};
const simd_type_rule simd_Td_Tnm_vaba{"simd_Td_Tnm_vaba", {{0x64, 0x1E}, {0x61, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_8{"simd_Tdm_8", {{0x28, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_9{"simd_Tdm_9", {{0x3, 0x18}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_dt_ISU_163264{"simd_dt_ISU_163264", {{0x64, 0x1C}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_dt_I_163264{"simd_dt_I_163264", {{0x4, 0x1C}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_Tdm_E_I8163264{"simd_Tdm_E_I8163264", {{0xD, 0x1E}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_ignore{"simd_ignore", {{0x80, 0x0}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_vceq{"simd_vceq", {{0xE, 0xE}, {0xD, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_vcge{"simd_vcge", {{0x6A, 0xE}, {0x69, 0xE}, {0x1, 0x0}}};
const simd_type_rule simd_vpadd{"simd_vpadd", {{0x6C, 0xE}, {0x1, 0x0}, {0x1, 0x0}}};
const simd_type_rule simd_hp{"simd_hp", {{0x8, 0xC}, {0x8, 0xC}, {0x1, 0x0}}};

// ---- Encoding classes: name, ic_id, ic_shape, ic_min_ops, ic_max_ops, ic_allowed, ic_rule
const inst_class arm_b{"arm_b", 1, 0x5, 1, 1, 0x2C00, nullptr};
const inst_class arm_bx{"arm_bx", 1, 0x1, 1, 1, 0x800, nullptr};
const inst_class arm_dp{"arm_dp", 2, 0x10, 2, 2, 0x900, nullptr};
const inst_class arm_dp_2{"arm_dp_2", 2, 0x8, 2, 2, 0x900, nullptr};
const inst_class arm_dp_3{"arm_dp_3", 2, 0x20, 3, 3, 0x900, nullptr};
const inst_class arm_dp_4{"arm_dp_4", 34, 0x80, 2, 2, 0x800, nullptr};
const inst_class arm_clz{"arm_clz", 3, 0x80, 2, 2, 0x800, nullptr};
const inst_class arm_psr_1{"arm_psr_1", 4, 0x200, 2, 2, 0x800, nullptr};
const inst_class arm_psr_2{"arm_psr_2", 4, 0x1C00, 2, 2, 0x800, nullptr};
const inst_class arm_mul_1{"arm_mul_1", 5, 0x2000, 3, 3, 0x900, nullptr};
const inst_class arm_mul_2{"arm_mul_2", 5, 0x8000, 4, 4, 0x900, nullptr};
const inst_class arm_mla{"arm_mla", 6, 0x4000, 4, 4, 0x900, nullptr};
const inst_class arm_ldr{"arm_ldr", 7, 0x10000, 2, 3, 0x1A07, nullptr};
const inst_class arm_str{"arm_str", 7, 0x10000, 2, 3, 0x1A03, nullptr};
const inst_class arm_bd{"arm_bd", 8, 0x40000, 2, 2, 0x8F0, nullptr};
const inst_class arm_swp{"arm_swp", 9, 0x4000, 3, 3, 0x801, nullptr};
const inst_class arm_swi{"arm_swi", 10, 0x4, 1, 1, 0x800, nullptr};
const inst_class arm_smi{"arm_smi", 145, 0x4, 1, 1, 0x800, nullptr};
const inst_class arm_swbp{"arm_swbp", 11, 0x4, 1, 1, 0x0, nullptr};
const inst_class arm_cdp1{"arm_cdp1", 12, 0x80000, 5, 6, 0x800, nullptr};
const inst_class arm_cdp2{"arm_cdp2", 12, 0x80000, 5, 6, 0x0, nullptr};
const inst_class arm_cdp_xfer1{"arm_cdp_xfer1", 13, 0x100000, 3, 3, 0x808, nullptr};
const inst_class arm_cdp_xfer2{"arm_cdp_xfer2", 13, 0x100000, 3, 3, 0x8, nullptr};
const inst_class arm_cpr_xfer1{"arm_cpr_xfer1", 14, 0x200000, 5, 6, 0x800, nullptr};
const inst_class arm_cpr_xfer2{"arm_cpr_xfer2", 14, 0x200000, 5, 6, 0x0, nullptr};
const inst_class arm_cps_f1{"arm_cps_f1", 47, 0x4, 1, 1, 0x0, nullptr};
const inst_class arm_cps_f2{"arm_cps_f2", 48, 0x4, 1, 2, 0x0, nullptr};
const inst_class arm_pld{"arm_pld", 16, 0x10000, 1, 1, 0x0, nullptr};
const inst_class arm_fixpt{"arm_fixpt", 17, 0x4000, 3, 3, 0x800, nullptr};
const inst_class arm_smla{"arm_smla", 5, 0x8000, 4, 4, 0x800, nullptr};
const inst_class arm_smlal{"arm_smlal", 6, 0x4000, 4, 4, 0x800, nullptr};
const inst_class arm_smul{"arm_smul", 18, 0x2000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_bdp1{"arm_vfp_bdp1", 19, 0x3000000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_bdp2{"arm_vfp_bdp2", 19, 0x6000000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_bdp3{"arm_vfp_bdp3", 19, 0x800000, 2, 2, 0x8400800, nullptr};
const inst_class arm_vfp_bdp4{"arm_vfp_bdp4", 19, 0xC00000, 2, 2, 0x18400800, nullptr};
const inst_class arm_vfp_udp1{"arm_vfp_udp1", 20, 0x2000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp2{"arm_vfp_udp2", 20, 0x5000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp3{"arm_vfp_udp3", 20, 0x1000000, 1, 1, 0x800, nullptr};
const inst_class arm_vfp_udp4{"arm_vfp_udp4", 20, 0x4000000, 1, 1, 0x800, nullptr};
const inst_class arm_vfp_udp5{"arm_vfp_udp5", 20, 0x8000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp6{"arm_vfp_udp6", 20, 0x7000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp7{"arm_vfp_udp7", 20, 0x2000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp8{"arm_vfp_udp8", 20, 0x8000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp9{"arm_vfp_udp9", 20, 0x2000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp10{"arm_vfp_udp10", 20, 0x7000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_udp1116{"arm_vfp_udp1116", 20, 0x800000, 2, 2, 0x400800, nullptr};
const inst_class arm_vfp_udp1132{"arm_vfp_udp1132", 20, 0x800000, 2, 2, 0x440800, nullptr};
const inst_class arm_vfp_udp1216{"arm_vfp_udp1216", 20, 0xC00000, 2, 2, 0x400800, nullptr};
const inst_class arm_vfp_udp1232{"arm_vfp_udp1232", 20, 0xC00000, 2, 2, 0x440800, nullptr};
const inst_class arm_vfp_ldst{"arm_vfp_ldst", 21, 0x1F000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_ldst2{"arm_vfp_ldst2", 22, 0x30000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_ldst3{"arm_vfp_ldst3", 22, 0x30000000, 2, 2, 0x880, nullptr};
const inst_class arm_vfp_ldst4{"arm_vfp_ldst4", 22, 0x30000000, 2, 2, 0x40800, nullptr};
const inst_class arm_vfp_rxfr1{"arm_vfp_rxfr1", 23, 0xA000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr2{"arm_vfp_rxfr2", 23, 0x9000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr3{"arm_vfp_rxfr3", 23, 0xC000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr4{"arm_vfp_rxfr4", 23, 0xB000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr5{"arm_vfp_rxfr5", 23, 0xD000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr6{"arm_vfp_rxfr6", 23, 0xE000000, 2, 2, 0x800, nullptr};
const inst_class arm_vfp_rxfr7{"arm_vfp_rxfr7", 23, 0x40000000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_rxfr8{"arm_vfp_rxfr8", 23, 0x50000000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_rxfr9{"arm_vfp_rxfr9", 23, 0x60000000, 3, 3, 0x800, nullptr};
const inst_class arm_vfp_rxfr10{"arm_vfp_rxfr10", 23, 0x70000000, 3, 3, 0x800, nullptr};
const inst_class arm_v6_addsub{"arm_v6_addsub", 35, 0x4000, 3, 3, 0x800, nullptr};
const inst_class arm_v6_hwpk1{"arm_v6_hwpk1", 43, 0x20, 3, 3, 0x800, nullptr};
const inst_class arm_v6_hwpk2{"arm_v6_hwpk2", 44, 0x20, 3, 3, 0x800, nullptr};
const inst_class arm_v6_wsat{"arm_v6_wsat", 36, 0x1008, 3, 3, 0x800, nullptr};
const inst_class arm_v6_hsat{"arm_v6_hsat", 37, 0x1080, 3, 3, 0x800, nullptr};
const inst_class arm_v6_sel{"arm_v6_sel", 38, 0x4000, 3, 3, 0x800, nullptr};
const inst_class arm_v6_szea1{"arm_v6_szea1", 39, 0x20, 3, 3, 0x4800, nullptr};
const inst_class arm_v6_szea2{"arm_v6_szea2", 39, 0x8, 2, 2, 0x800, nullptr};
const inst_class arm_v6_sml{"arm_v6_sml", 40, 0x8000, 4, 4, 0x800, nullptr};
const inst_class arm_v6_smu{"arm_v6_smu", 40, 0x4000, 3, 3, 0x800, nullptr};
const inst_class arm_v6_smlal{"arm_v6_smlal", 45, 0x8000, 4, 4, 0x800, nullptr};
const inst_class arm_v6_umaal{"arm_v6_umaal", 41, 0x8000, 4, 4, 0x800, nullptr};
const inst_class arm_v6_usad8{"arm_v6_usad8", 42, 0x4000, 3, 3, 0x800, nullptr};
const inst_class arm_v6_usada8{"arm_v6_usada8", 42, 0x8000, 4, 4, 0x800, nullptr};
const inst_class arm_adr{"arm_adr", 15, 0x10000, 2, 2, 0x900, nullptr};
const inst_class arm_nop{"arm_nop", 24, 0x0, 0, 0, 0x800, nullptr};
const inst_class arm_cret{"arm_cret", 25, 0x4, 1, 1, 0xC00, nullptr};
const inst_class arm_bitfield1{"arm_bitfield1", 29, 0x1000000, 4, 4, 0x800, nullptr};
const inst_class arm_bitfield2{"arm_bitfield2", 29, 0x2000000, 3, 3, 0x800, nullptr};
const inst_class arm_clrex{"arm_clrex", 30, 0x0, 0, 0, 0x0, nullptr};
const inst_class arm_synch{"arm_synch", 31, 0x0, 0, 0, 0x0, nullptr};
const inst_class arm_ldrex{"arm_ldrex", 223, 0x8, 2, 2, 0x800, nullptr};
const inst_class arm_ldrexd{"arm_ldrexd", 224, 0x20, 3, 3, 0x800, nullptr};
const inst_class arm_strex{"arm_strex", 225, 0x8000000, 3, 3, 0x800, nullptr};
const inst_class arm_strexd{"arm_strexd", 226, 0x4000000, 4, 4, 0x800, nullptr};
const inst_class arm_setend{"arm_setend", 33, 0x0, 0, 0, 0x30000, nullptr};
const inst_class arm_rfe{"arm_rfe", 143, 0x1, 1, 1, 0xF0, nullptr};
const inst_class arm_srs{"arm_srs", 144, 0x4, 1, 2, 0xF0, nullptr};
const inst_class arm_hint{"arm_hint", 146, 0x0, 0, 0, 0x800, nullptr};
const inst_class arm_udf{"arm_udf", 227, 0x4, 1, 1, 0x0, nullptr};
const inst_class t_add{"t_add", 101, 0x40, 2, 3, 0x80000, nullptr};
const inst_class t_alu1{"t_alu1", 102, 0x100, 2, 2, 0x0, nullptr};
const inst_class t_alu2{"t_alu2", 102, 0x100, 2, 3, 0x0, nullptr};
const inst_class t_alu3{"t_alu3", 102, 0x100, 2, 2, 0x80000, nullptr};
const inst_class t_rsb{"t_rsb", 102, 0x100, 3, 3, 0x0, nullptr};
const inst_class t_cmp{"t_cmp", 103, 0x100, 2, 2, 0x0, nullptr};
const inst_class t_mov{"t_mov", 104, 0x100, 2, 2, 0x0, nullptr};
const inst_class t_cpy{"t_cpy", 120, 0x100, 2, 2, 0x0, nullptr};
const inst_class t_b{"t_b", 105, 0x6, 1, 1, 0x20002C00, nullptr};
const inst_class t_bq{"t_bq", 118, 0x4, 1, 2, 0xC00, nullptr};
const inst_class t_bx{"t_bx", 105, 0x2, 1, 1, 0x20000000, nullptr};
const inst_class t_cps{"t_cps", 121, 0x4, 1, 1, 0x0, nullptr};
const inst_class t_lsb{"t_lsb", 106, 0x4020, 2, 2, 0x0, nullptr};
const inst_class t_lsh{"t_lsh", 107, 0x4020, 2, 2, 0x0, nullptr};
const inst_class t_lss{"t_lss", 108, 0x4000, 2, 2, 0x0, nullptr};
const inst_class t_lsw{"t_lsw", 109, 0x4020, 2, 2, 0x0, nullptr};
const inst_class t_mls1{"t_mls1", 110, 0x20000, 1, 1, 0x0, nullptr};
const inst_class t_mls2{"t_mls2", 110, 0x40000, 2, 2, 0x0, nullptr};
const inst_class t_swi{"t_swi", 111, 0x4, 1, 1, 0x0, nullptr};
const inst_class t_sub{"t_sub", 112, 0x40, 2, 3, 0x0, nullptr};
const inst_class t_nop{"t_nop", 113, 0x0, 0, 0, 0x0, nullptr};
const inst_class t_br{"t_br", 114, 0x4, 1, 1, 0x800, nullptr};
const inst_class t_bt{"t_bt", 117, 0x4, 1, 2, 0x800, nullptr};
const inst_class t_adr{"t_adr", 115, 0x10000, 2, 2, 0x0, nullptr};
const inst_class t_cret{"t_cret", 116, 0x4, 1, 1, 0xC00, nullptr};
const inst_class t_mext{"t_mext", 119, 0x80, 2, 2, 0x0, nullptr};
const inst_class t_dp{"t_dp", 122, 0x80, 2, 2, 0x0, nullptr};
const inst_class t_hint{"t_hint", 147, 0x0, 0, 0, 0x0, nullptr};
const inst_class t_udf{"t_udf", 227, 0x4, 1, 1, 0x0, nullptr};
const inst_class t2_dp{"t2_dp", 123, 0x400000, 3, 3, 0x100, nullptr};
const inst_class t2_dp_2{"t2_dp_2", 123, 0x800000, 2, 2, 0x100, nullptr};
const inst_class t2_dp_3{"t2_dp_3", 124, 0x40, 3, 3, 0x0, nullptr};
const inst_class t2_dp_4{"t2_dp_4", 125, 0x8, 2, 2, 0x800, nullptr};
const inst_class t2_dp_5{"t2_dp_5", 126, 0xC00000, 2, 2, 0x100, nullptr};
const inst_class t2_dp_6{"t2_dp_6", 127, 0x40, 3, 3, 0x100, nullptr};
const inst_class t2_dp_7{"t2_dp_7", 127, 0x10, 2, 2, 0x100, nullptr};
const inst_class t2_dp_8{"t2_dp_8", 127, 0x40, 2, 2, 0x100, nullptr};
const inst_class t2_dp_9{"t2_dp_9", 127, 0x8, 2, 2, 0x100, nullptr};
const inst_class t2_dp10{"t2_dp10", 139, 0x80, 2, 2, 0x0, nullptr};
const inst_class t2_shift{"t2_shift", 128, 0x2000, 3, 3, 0x100, nullptr};
const inst_class t2_szea1{"t2_szea1", 129, 0x40, 3, 3, 0x0, nullptr};
const inst_class t2_szea2{"t2_szea2", 129, 0x8, 2, 2, 0x0, nullptr};
const inst_class t2_mul1{"t2_mul1", 134, 0x2000, 3, 3, 0x0, nullptr};
const inst_class t2_mul2{"t2_mul2", 134, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_ldr_str{"t2_ldr_str", 130, 0x40, 2, 3, 0x200, nullptr};
const inst_class t2_ldrd_strd{"t2_ldrd_strd", 130, 0x40, 3, 3, 0x1200, nullptr};
const inst_class t2_ldr_t{"t2_ldr_t", 130, 0x40, 2, 3, 0x8000, nullptr};
const inst_class t2_lsm{"t2_lsm", 131, 0x8, 2, 2, 0x0, nullptr};
const inst_class t2_push_pop{"t2_push_pop", 131, 0x20000, 1, 1, 0x0, nullptr};
const inst_class t2_b{"t2_b", 132, 0x6, 1, 1, 0x20000C00, nullptr};
const inst_class t2_cret{"t2_cret", 135, 0x6, 1, 1, 0x800, nullptr};
const inst_class t2_bxj{"t2_bxj", 141, 0x1, 1, 1, 0x0, nullptr};
const inst_class t2_it{"t2_it", 136, 0x4, 0, 0, 0x0, nullptr};
const inst_class t2_czb{"t2_czb", 137, 0x10000, 2, 2, 0x800, nullptr};
const inst_class t2_clz{"t2_clz", 3, 0x80, 2, 2, 0x0, nullptr};
const inst_class t2_cps{"t2_cps", 217, 0x4, 1, 2, 0x0, nullptr};
const inst_class t2_mrs{"t2_mrs", 4, 0x200, 2, 2, 0x0, nullptr};
const inst_class t2_msr{"t2_msr", 4, 0xC00, 2, 2, 0x0, nullptr};
const inst_class t2_mla{"t2_mla", 46, 0x4000, 4, 4, 0x0, nullptr};
const inst_class t2_fixpt{"t2_fixpt", 17, 0x4000, 3, 3, 0x0, nullptr};
const inst_class t2_smlal{"t2_smlal", 6, 0x4000, 4, 4, 0x0, nullptr};
const inst_class t2_smla{"t2_smla", 5, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_v6_addsub{"t2_v6_addsub", 35, 0x4000, 3, 3, 0x0, nullptr};
const inst_class t2_v6_hwpk1{"t2_v6_hwpk1", 43, 0x20, 3, 3, 0x0, nullptr};
const inst_class t2_v6_hwpk2{"t2_v6_hwpk2", 44, 0x20, 3, 3, 0x0, nullptr};
const inst_class t2_v6_wsat{"t2_v6_wsat", 36, 0x1008, 3, 3, 0x0, nullptr};
const inst_class t2_v6_hsat{"t2_v6_hsat", 37, 0x1080, 3, 3, 0x0, nullptr};
const inst_class t2_v6_sml{"t2_v6_sml", 40, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_v6_smu{"t2_v6_smu", 40, 0x4000, 3, 3, 0x0, nullptr};
const inst_class t2_v6_smlal{"t2_v6_smlal", 45, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_v6_umaal{"t2_v6_umaal", 41, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_v6_usad8{"t2_v6_usad8", 42, 0x4000, 3, 3, 0x0, nullptr};
const inst_class t2_v6_usada8{"t2_v6_usada8", 42, 0x8000, 4, 4, 0x0, nullptr};
const inst_class t2_div{"t2_div", 138, 0x4000, 3, 3, 0x0, nullptr};
const inst_class t2_adr{"t2_adr", 133, 0x10000, 2, 2, 0x0, nullptr};
const inst_class t2_ldrex{"t2_ldrex", 223, 0x8, 2, 2, 0x0, nullptr};
const inst_class t2_ldrexd{"t2_ldrexd", 224, 0x20, 3, 3, 0x0, nullptr};
const inst_class t2_strex{"t2_strex", 225, 0x8000000, 3, 3, 0x0, nullptr};
const inst_class t2_strexd{"t2_strexd", 226, 0x4000000, 4, 4, 0x0, nullptr};
const inst_class t2_table{"t2_table", 140, 0x1, 1, 1, 0x0, nullptr};
const inst_class t2_bitfield1{"t2_bitfield1", 29, 0x1000000, 4, 4, 0x0, nullptr};
const inst_class t2_bitfield2{"t2_bitfield2", 29, 0x2000000, 3, 3, 0x0, nullptr};
const inst_class t2_prefetch{"t2_prefetch", 142, 0x4, 1, 1, 0x0, nullptr};
const inst_class t2_nop{"t2_nop", 24, 0x0, 0, 0, 0x0, nullptr};
const inst_class t2_rfe{"t2_rfe", 143, 0x1, 1, 1, 0x0, nullptr};
const inst_class t2_vfp_vfma{"t2_vfp_vfma", 49, 0x3000000, 3, 3, 0x0, &simd_Tdnm_F_32};
const inst_class t2_vfp_hp{"t2_vfp_hp", 50, 0x2000000, 2, 2, 0x0, &simd_hp};
const inst_class t2_sg{"t2_sg", 148, 0x0, 0, 0, 0x0, nullptr};
const inst_class t2_tt{"t2_tt", 149, 0x100, 2, 2, 0xC0000000, nullptr};
const inst_class t2_udf{"t2_udf", 227, 0x4, 1, 1, 0x0, nullptr};
const inst_class simd_dp0{"simd_dp0", 201, 0x80000000, 3, 3, 0x0, &simd_empty};
const inst_class simd_dp01{"simd_dp01", 220, 0x80000000, 2, 3, 0x18000000, &simd_Tdm_E_I8163264};
const inst_class simd_dp1{"simd_dp1", 201, 0x80000000, 3, 3, 0x0, &simd_Tdnm_SU_81632};
const inst_class simd_dp2{"simd_dp2", 201, 0x80000000, 3, 3, 0x0, &simd_Tdnm_SU_8163264};
const inst_class simd_dp3{"simd_dp3", 221, 0x80000000, 3, 3, 0x0, &simd_vcge};
const inst_class simd_dp4l{"simd_dp4l", 203, 0x80000000, 3, 3, 0x1000000, &simd_Tdm_Tm_ISU_8163264};
const inst_class simd_dp4n{"simd_dp4n", 203, 0x80000000, 3, 3, 0x2000000, &simd_Tdm_Tm_ISU_8163264};
const inst_class simd_dp5{"simd_dp5", 204, 0x80000000, 3, 3, 0x0, &simd_Tdm_Tm_SU_8163264};
const inst_class simd_dp6{"simd_dp6", 202, 0x80000000, 3, 3, 0x0, &simd_Tdnm_FSU_81632};
const inst_class simd_dp7{"simd_dp7", 202, 0x80000000, 3, 3, 0x1000000, &simd_Tdm_Tm_ISUF_8163264};
const inst_class simd_dp8{"simd_dp8", 202, 0x80000000, 3, 3, 0x5000000, &simd_Td_Tn_Tm_8163264};
const inst_class simd_dp9{"simd_dp9", 201, 0x80000000, 3, 3, 0x0, &simd_Tdnm_81632};
const inst_class simd_dp10{"simd_dp10", 221, 0x80000000, 3, 3, 0x0, &simd_vceq};
const inst_class simd_dp11{"simd_dp11", 205, 0x80000000, 2, 3, 0x18000000, &simd_vbic_vorr};
const inst_class simd_dp12{"simd_dp12", 202, 0x80000000, 2, 3, 0x0, &simd_Td_Tm_1};
const inst_class simd_dp12a{"simd_dp12a", 202, 0x80000000, 2, 3, 0x1000000, &simd_vpadd};
const inst_class simd_dp13{"simd_dp13", 203, 0x80000000, 3, 3, 0x2000000, &simd_Td_Tm_2};
const inst_class simd_dp14{"simd_dp14", 203, 0x80000000, 3, 3, 0x0, &simd_Tdnm_SU_8163264};
const inst_class simd_dp15{"simd_dp15", 203, 0x80000000, 3, 3, 0x0, &simd_Td_8163264};
const inst_class simd_dp16{"simd_dp16", 203, 0x80000000, 2, 3, 0x0, &simd_Td_Tm_7};
const inst_class simd_dp17{"simd_dp17", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_1};
const inst_class simd_dp18{"simd_dp18", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_2};
const inst_class simd_dp19{"simd_dp19", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_3};
const inst_class simd_dp20{"simd_dp20", 207, 0x80000000, 2, 2, 0x0, &simd_empty};
const inst_class simd_dp21{"simd_dp21", 207, 0x80000000, 2, 2, 0x0, &simd_Td_Tm_4};
const inst_class simd_dp22{"simd_dp22", 207, 0x80000000, 2, 2, 0x0, &simd_Td_Tm_5};
const inst_class simd_dp23{"simd_dp23", 207, 0x80000000, 2, 2, 0x0, &simd_Td_Tnm_IF_81632};
const inst_class simd_dp24{"simd_dp24", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_8};
const inst_class simd_dp25{"simd_dp25", 207, 0x80000000, 2, 2, 0x0, &simd_Tdnm_81632};
const inst_class simd_dp26{"simd_dp26", 207, 0x80000000, 2, 2, 0x2000000, &simd_Td_Tm_2};
const inst_class simd_dp27{"simd_dp27", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_5};
const inst_class simd_dp28{"simd_dp28", 207, 0x80000000, 2, 2, 0x0, &simd_Td_Tm_6};
const inst_class simd_dp29{"simd_dp29", 207, 0x80000000, 2, 2, 0x0, &simd_Tdm_6};
const inst_class simd_dp30{"simd_dp30", 208, 0x80000000, 3, 3, 0x0, &simd_Tdm_3};
const inst_class simd_dp31{"simd_dp31", 202, 0x80000000, 3, 3, 0x0, &simd_Tdnm_F_32};
const inst_class simd_dp32{"simd_dp32", 202, 0x80000000, 3, 3, 0x0, &simd_Td_Tnm_I_8163264};
const inst_class simd_dp33{"simd_dp33", 202, 0x80000000, 3, 3, 0x0, &simd_dt_I_163264};
const inst_class simd_dp34{"simd_dp34", 201, 0x80000000, 3, 3, 0x0, &simd_ignore};
const inst_class simd_dp35{"simd_dp35", 207, 0x80000000, 2, 2, 0x0, &simd_Tdnm_SU_81632};
const inst_class simd_dp36{"simd_dp36", 202, 0x80000000, 3, 3, 0x0, &simd_dt_ISU_163264};
const inst_class simd_vmul{"simd_vmul", 206, 0x80000000, 3, 3, 0x1000000, &simd_T_vmul};
const inst_class simd_vqdmul{"simd_vqdmul", 206, 0x80000000, 3, 3, 0x1000000, &simd_vqdmlal};
const inst_class simd_vqdmlh{"simd_vqdmlh", 209, 0x80000000, 3, 3, 0x0, &simd_Tdnm_S_1632};
const inst_class simd_ls0{"simd_ls0", 210, 0x80000000, 1, 2, 0x800, &simd_Tdm_9};
const inst_class simd_ls1{"simd_ls1", 211, 0x80000000, 2, 2, 0x0, &simd_Td_8163264};
const inst_class simd_ls2{"simd_ls2", 212, 0x80000000, 2, 2, 0x0, &simd_Td_8163264};
const inst_class simd_ls3{"simd_ls3", 213, 0x80000000, 2, 2, 0x0, &simd_Td_8163264};
const inst_class simd_ls4{"simd_ls4", 214, 0x80000000, 2, 2, 0x0, &simd_Td_8163264};
const inst_class simd_ls5{"simd_ls5", 215, 0x80000000, 2, 2, 0x800, &simd_Tdm_9};
const inst_class simd_vmov{"simd_vmov", 216, 0x80000000, 2, 3, 0x1B000800, &simd_Tn_vmov};
const inst_class simd_vmvn{"simd_vmvn", 216, 0x80000000, 2, 3, 0x18000000, &simd_Tn_vmvn};
const inst_class simd_vext{"simd_vext", 218, 0x80000000, 4, 4, 0x0, &simd_Tdm_7};
const inst_class simd_vac{"simd_vac", 219, 0x80000000, 3, 3, 0x0, &simd_Tdnm_F_32};
const inst_class simd_vcmp{"simd_vcmp", 222, 0x80000000, 2, 3, 0x8000800, &simd_Tdnm_F_32_64};
const inst_class simd_illegal{"simd_illegal", 222, 0x80000000, 0, 4, 0x0, &simd_Tdnm_F_32_64};

const simd_type_rule *const simd_type_rules[SIMD_TYPE_RULE_COUNT] = {
    &simd_empty,
    &simd_Tdnm_SU_81632,
    &simd_Tdnm_81632,
    &simd_Tdnm_S_1632,
    &simd_Tdnm_F_32,
    &simd_Tdnm_F_32_64,
    &simd_Tdnm_SU_8163264,
    &simd_Tdnm_FSU_81632,
    &simd_Td_Tnm_FSU_81632,
    &simd_Td_Tnm_IF_81632,
    &simd_Td_Tnm_I_8163264,
    &simd_Tdm_Tm_ISU_8163264,
    &simd_Tdm_Tm_ISUF_8163264,
    &simd_Tdm_Tm_SU_8163264,
    &simd_Td_8163264,
    &simd_Td_Tn_Tm_8163264,
    &simd_Tn_vmov,
    &simd_Tn_vmvn,
    &simd_T_3regs_imm,
    &simd_vbic_vorr,
    &simd_T_vmul,
    &simd_Td_Tm_1,
    &simd_Td_Tm_2,
    &simd_Td_Tm_3,
    &simd_Td_Tm_4,
    &simd_Td_Tm_5,
    &simd_Td_Tm_6,
    &simd_Td_Tm_7,
    &simd_Tdm_1,
    &simd_Tdm_2,
    &simd_Tdm_3,
    &simd_Tdm_4,
    &simd_Tdm_5,
    &simd_Tdm_6,
    &simd_Tdm_7,
    &simd_vqdmlal,
    &simd_Td_Tnm_vaba,
    &simd_Tdm_8,
    &simd_Tdm_9,
    &simd_dt_ISU_163264,
    &simd_dt_I_163264,
    &simd_Tdm_E_I8163264,
    &simd_ignore,
    &simd_vceq,
    &simd_vcge,
    &simd_vpadd,
    &simd_hp,
};

const inst_class *const trg_classes[INST_CLASS_COUNT] = {
    &arm_b,
    &arm_bx,
    &arm_dp,
    &arm_dp_2,
    &arm_dp_3,
    &arm_dp_4,
    &arm_clz,
    &arm_psr_1,
    &arm_psr_2,
    &arm_mul_1,
    &arm_mul_2,
    &arm_mla,
    &arm_ldr,
    &arm_str,
    &arm_bd,
    &arm_swp,
    &arm_swi,
    &arm_smi,
    &arm_swbp,
    &arm_cdp1,
    &arm_cdp2,
    &arm_cdp_xfer1,
    &arm_cdp_xfer2,
    &arm_cpr_xfer1,
    &arm_cpr_xfer2,
    &arm_cps_f1,
    &arm_cps_f2,
    &arm_pld,
    &arm_fixpt,
    &arm_smla,
    &arm_smlal,
    &arm_smul,
    &arm_vfp_bdp1,
    &arm_vfp_bdp2,
    &arm_vfp_bdp3,
    &arm_vfp_bdp4,
    &arm_vfp_udp1,
    &arm_vfp_udp2,
    &arm_vfp_udp3,
    &arm_vfp_udp4,
    &arm_vfp_udp5,
    &arm_vfp_udp6,
    &arm_vfp_udp7,
    &arm_vfp_udp8,
    &arm_vfp_udp9,
    &arm_vfp_udp10,
    &arm_vfp_udp1116,
    &arm_vfp_udp1132,
    &arm_vfp_udp1216,
    &arm_vfp_udp1232,
    &arm_vfp_ldst,
    &arm_vfp_ldst2,
    &arm_vfp_ldst3,
    &arm_vfp_ldst4,
    &arm_vfp_rxfr1,
    &arm_vfp_rxfr2,
    &arm_vfp_rxfr3,
    &arm_vfp_rxfr4,
    &arm_vfp_rxfr5,
    &arm_vfp_rxfr6,
    &arm_vfp_rxfr7,
    &arm_vfp_rxfr8,
    &arm_vfp_rxfr9,
    &arm_vfp_rxfr10,
    &arm_v6_addsub,
    &arm_v6_hwpk1,
    &arm_v6_hwpk2,
    &arm_v6_wsat,
    &arm_v6_hsat,
    &arm_v6_sel,
    &arm_v6_szea1,
    &arm_v6_szea2,
    &arm_v6_sml,
    &arm_v6_smu,
    &arm_v6_smlal,
    &arm_v6_umaal,
    &arm_v6_usad8,
    &arm_v6_usada8,
    &arm_adr,
    &arm_nop,
    &arm_cret,
    &arm_bitfield1,
    &arm_bitfield2,
    &arm_clrex,
    &arm_synch,
    &arm_ldrex,
    &arm_ldrexd,
    &arm_strex,
    &arm_strexd,
    &arm_setend,
    &arm_rfe,
    &arm_srs,
    &arm_hint,
    &arm_udf,
    &t_add,
    &t_alu1,
    &t_alu2,
    &t_alu3,
    &t_rsb,
    &t_cmp,
    &t_mov,
    &t_cpy,
    &t_b,
    &t_bq,
    &t_bx,
    &t_cps,
    &t_lsb,
    &t_lsh,
    &t_lss,
    &t_lsw,
    &t_mls1,
    &t_mls2,
    &t_swi,
    &t_sub,
    &t_nop,
    &t_br,
    &t_bt,
    &t_adr,
    &t_cret,
    &t_mext,
    &t_dp,
    &t_hint,
    &t_udf,
    &t2_dp,
    &t2_dp_2,
    &t2_dp_3,
    &t2_dp_4,
    &t2_dp_5,
    &t2_dp_6,
    &t2_dp_7,
    &t2_dp_8,
    &t2_dp_9,
    &t2_dp10,
    &t2_shift,
    &t2_szea1,
    &t2_szea2,
    &t2_mul1,
    &t2_mul2,
    &t2_ldr_str,
    &t2_ldrd_strd,
    &t2_ldr_t,
    &t2_lsm,
    &t2_push_pop,
    &t2_b,
    &t2_cret,
    &t2_bxj,
    &t2_it,
    &t2_czb,
    &t2_clz,
    &t2_cps,
    &t2_mrs,
    &t2_msr,
    &t2_mla,
    &t2_fixpt,
    &t2_smlal,
    &t2_smla,
    &t2_v6_addsub,
    &t2_v6_hwpk1,
    &t2_v6_hwpk2,
    &t2_v6_wsat,
    &t2_v6_hsat,
    &t2_v6_sml,
    &t2_v6_smu,
    &t2_v6_smlal,
    &t2_v6_umaal,
    &t2_v6_usad8,
    &t2_v6_usada8,
    &t2_div,
    &t2_adr,
    &t2_ldrex,
    &t2_ldrexd,
    &t2_strex,
    &t2_strexd,
    &t2_table,
    &t2_bitfield1,
    &t2_bitfield2,
    &t2_prefetch,
    &t2_nop,
    &t2_rfe,
    &t2_vfp_vfma,
    &t2_vfp_hp,
    &t2_sg,
    &t2_tt,
    &t2_udf,
    &simd_dp0,
    &simd_dp01,
    &simd_dp1,
    &simd_dp2,
    &simd_dp3,
    &simd_dp4l,
    &simd_dp4n,
    &simd_dp5,
    &simd_dp6,
    &simd_dp7,
    &simd_dp8,
    &simd_dp9,
    &simd_dp10,
    &simd_dp11,
    &simd_dp12,
    &simd_dp12a,
    &simd_dp13,
    &simd_dp14,
    &simd_dp15,
    &simd_dp16,
    &simd_dp17,
    &simd_dp18,
    &simd_dp19,
    &simd_dp20,
    &simd_dp21,
    &simd_dp22,
    &simd_dp23,
    &simd_dp24,
    &simd_dp25,
    &simd_dp26,
    &simd_dp27,
    &simd_dp28,
    &simd_dp29,
    &simd_dp30,
    &simd_dp31,
    &simd_dp32,
    &simd_dp33,
    &simd_dp34,
    &simd_dp35,
    &simd_dp36,
    &simd_vmul,
    &simd_vqdmul,
    &simd_vqdmlh,
    &simd_ls0,
    &simd_ls1,
    &simd_ls2,
    &simd_ls3,
    &simd_ls4,
    &simd_ls5,
    &simd_vmov,
    &simd_vmvn,
    &simd_vext,
    &simd_vac,
    &simd_vcmp,
    &simd_illegal,
};
