// The unified floating-point names with the VFP rows they stand for, one row
// per line, in the order of the VFP rows of the mnemonic table. A row matches
// a statement when its operand kinds are those of the statement and each
// suffix lies in the row's types and sizes (an absent suffix matches a slot
// of size 0); the first match of a name wins.
#include "driver/records.h"
#include "target/arm/simd_vfp.h"

namespace {

constexpr simd_type_slot ABSENT{SIMD_T_ABSENT, 0};
constexpr simd_type_slot F32{SIMD_T_F, SIMD_SZ_32};
constexpr simd_type_slot F64{SIMD_T_F, SIMD_SZ_64};
constexpr simd_type_slot S16{SIMD_T_S, SIMD_SZ_16};
constexpr simd_type_slot U16{SIMD_T_U, SIMD_SZ_16};
constexpr simd_type_slot S32{SIMD_T_S, SIMD_SZ_32};
constexpr simd_type_slot U32{SIMD_T_U, SIMD_SZ_32};

}  // namespace

const simd_name_translation simd_to_vfp_mnemonics[SIMD_VFP_ROW_COUNT + 1] = {
    {"VMLA", "FMACS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VMLS", "FNMACS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VNMLS", "FMSCS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VNMLA", "FNMSCS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VMUL", "FMULS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VNMUL", "FNMULS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VADD", "FADDS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VSUB", "FSUBS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VDIV", "FDIVS", {OP_SREG, OP_SREG, OP_SREG, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VMLA", "FMACD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VMLS", "FNMACD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VNMLS", "FMSCD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VNMLA", "FNMSCD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VMUL", "FMULD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VNMUL", "FNMULD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VADD", "FADDD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VSUB", "FSUBD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VDIV", "FDIVD", {OP_DREG, OP_DREG, OP_DREG, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FCONSTS", {OP_SREG, OP_FCON, 0, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FCONSTS", {OP_SREG, OP_ICON, 0, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FCONSTD", {OP_DREG, OP_FCON, 0, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FCONSTD", {OP_DREG, OP_ICON, 0, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FCPYS", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_copy},
    {"VMOV", "FCPYS", {OP_SREG, OP_SREG, 0, 0}, {ABSENT, ABSENT, ABSENT}, simd_vfp_fix_copy},
    {"VABS", "FABSS", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VNEG", "FNEGS", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VSQRT", "FSQRTS", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, nullptr},
    {"VCMP", "FCMPS", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPES", {OP_SREG, OP_SREG, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VMOV", "FCPYD", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_copy},
    {"VABS", "FABSD", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VNEG", "FNEGD", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VSQRT", "FSQRTD", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, nullptr},
    {"VCMP", "FCMPD", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPED", {OP_DREG, OP_DREG, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMP", "FCMPZS", {OP_SREG, OP_ICON, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMP", "FCMPZS", {OP_SREG, OP_FCON, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPEZS", {OP_SREG, OP_ICON, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPEZS", {OP_SREG, OP_FCON, 0, 0}, {F32, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMP", "FCMPZD", {OP_DREG, OP_ICON, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMP", "FCMPZD", {OP_DREG, OP_FCON, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPEZD", {OP_DREG, OP_ICON, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCMPE", "FCMPEZD", {OP_DREG, OP_FCON, 0, 0}, {F64, ABSENT, ABSENT}, simd_vfp_fix_compare},
    {"VCVT", "FCVTDS", {OP_DREG, OP_SREG, 0, 0}, {F64, F32, ABSENT}, nullptr},
    {"VCVT", "FCVTSD", {OP_SREG, OP_DREG, 0, 0}, {F32, F64, ABSENT}, nullptr},
    {"VCVT", "FUITOS", {OP_SREG, OP_SREG, 0, 0}, {F32, U32, ABSENT}, nullptr},
    {"VCVT", "FSITOS", {OP_SREG, OP_SREG, 0, 0}, {F32, S32, ABSENT}, nullptr},
    {"VCVT", "FUITOD", {OP_DREG, OP_SREG, 0, 0}, {F64, U32, ABSENT}, nullptr},
    {"VCVT", "FSITOD", {OP_DREG, OP_SREG, 0, 0}, {F64, S32, ABSENT}, nullptr},
    {"VCVTR", "FTOUIS", {OP_SREG, OP_SREG, 0, 0}, {U32, F32, ABSENT}, nullptr},
    {"VCVT", "FTOUIZS", {OP_SREG, OP_SREG, 0, 0}, {U32, F32, ABSENT}, nullptr},
    {"VCVTR", "FTOSIS", {OP_SREG, OP_SREG, 0, 0}, {S32, F32, ABSENT}, nullptr},
    {"VCVT", "FTOSIZS", {OP_SREG, OP_SREG, 0, 0}, {S32, F32, ABSENT}, nullptr},
    {"VCVTR", "FTOUID", {OP_SREG, OP_DREG, 0, 0}, {U32, F64, ABSENT}, nullptr},
    {"VCVT", "FTOUIZD", {OP_SREG, OP_DREG, 0, 0}, {U32, F64, ABSENT}, nullptr},
    {"VCVTR", "FTOSID", {OP_SREG, OP_DREG, 0, 0}, {S32, F64, ABSENT}, nullptr},
    {"VCVT", "FTOSIZD", {OP_SREG, OP_DREG, 0, 0}, {S32, F64, ABSENT}, nullptr},
    {"VCVT", "FSHTOS", {OP_SREG, OP_SREG, OP_ICON, 0}, {F32, S16, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FUHTOS", {OP_SREG, OP_SREG, OP_ICON, 0}, {F32, U16, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOSHS", {OP_SREG, OP_SREG, OP_ICON, 0}, {S16, F32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOUHS", {OP_SREG, OP_SREG, OP_ICON, 0}, {U16, F32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FSHTOD", {OP_DREG, OP_DREG, OP_ICON, 0}, {F64, S16, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FUHTOD", {OP_DREG, OP_DREG, OP_ICON, 0}, {F64, U16, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOSHD", {OP_DREG, OP_DREG, OP_ICON, 0}, {S16, F64, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOUHD", {OP_DREG, OP_DREG, OP_ICON, 0}, {U16, F64, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FSLTOS", {OP_SREG, OP_SREG, OP_ICON, 0}, {F32, S32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FULTOS", {OP_SREG, OP_SREG, OP_ICON, 0}, {F32, U32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOSLS", {OP_SREG, OP_SREG, OP_ICON, 0}, {S32, F32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOULS", {OP_SREG, OP_SREG, OP_ICON, 0}, {U32, F32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FSLTOD", {OP_DREG, OP_DREG, OP_ICON, 0}, {F64, S32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FULTOD", {OP_DREG, OP_DREG, OP_ICON, 0}, {F64, U32, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOSLD", {OP_DREG, OP_DREG, OP_ICON, 0}, {S32, F64, ABSENT}, simd_vfp_fix_fixed_point},
    {"VCVT", "FTOULD", {OP_DREG, OP_DREG, OP_ICON, 0}, {U32, F64, ABSENT}, simd_vfp_fix_fixed_point},
    {"VMOV", "FMSR", {OP_SREG, OP_REGISTER, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FMRS", {OP_REGISTER, OP_SREG, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
    {"VMSR", "FMXR", {OP_VFPSYS, OP_REGISTER, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
    {"VMRS", "FMRX", {OP_REGISTER, OP_VFPSYS, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
    {"VMRS", "FMRX", {OP_APSRF, OP_VFPSYS, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
    {"VMOV", "FMRRS", {OP_REGISTER, OP_REGISTER, OP_SREG, OP_SREG}, {ABSENT, ABSENT, ABSENT}, simd_vfp_fix_reg_pair},
    {"VMOV", "FMSRR", {OP_SREG, OP_SREG, OP_REGISTER, OP_REGISTER}, {ABSENT, ABSENT, ABSENT}, simd_vfp_fix_reg_pair},
    {nullptr, nullptr, {0, 0, 0, 0}, {ABSENT, ABSENT, ABSENT}, nullptr},
};
