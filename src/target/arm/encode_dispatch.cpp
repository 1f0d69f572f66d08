// Which encoder serves which ic_id: one row per id of the class list.
#include <array>

#include "target/arm/encoders.h"

namespace {

struct encoder_row {
  unsigned ic_id;
  class_encoder encode;
};

constexpr encoder_row encoder_rows[] = {
    {1, encode_branch},   {2, encode_dp},       {3, encode_clz},      {4, encode_psr},
    {5, encode_mul},      {6, encode_mull},     {7, encode_ldr_str},  {8, encode_ldm},
    {9, encode_swp},      {10, encode_swi},     {11, encode_bkpt},    {12, encode_cdp},
    {13, encode_cdp_xfer}, {14, encode_cpr_xfer}, {15, encode_adr},   {16, encode_pld},
    {17, encode_fixpt},   {18, encode_smul},    {19, encode_vfp},     {20, encode_vfp},
    {21, encode_vfp},     {22, encode_vfp},     {23, encode_vfp},     {24, encode_nop},
    {25, encode_cret},    {29, encode_bitfield}, {30, encode_clrex},  {31, encode_synch},
    {33, encode_setend},  {34, encode_rev},     {35, encode_addsub},  {36, encode_wsat},
    {37, encode_hsat},    {38, encode_sel},     {39, encode_extend},  {40, encode_v6_mul},
    {41, encode_v6_mull}, {42, encode_usad},    {43, encode_pack},    {44, encode_pack},
    {45, encode_v6_mull}, {46, encode_mull},    {47, encode_cps},     {48, encode_cps},
    {49, encode_vfp},     {50, encode_vfp},
    {101, encode_t_add},  {102, encode_t_alu},  {103, encode_t_cmp},  {104, encode_t_mov},
    {105, encode_t_b},    {106, encode_t_lsb},  {107, encode_t_lsh},  {108, encode_t_lss},
    {109, encode_t_lsw},  {110, encode_t_mls},  {111, encode_t_swi},  {112, encode_t_sub},
    {113, encode_t_nop},  {114, encode_t_br},   {115, encode_t_adr},  {116, encode_t_br},
    {117, encode_t_br},   {118, encode_t_b},    {119, encode_t_mext}, {120, encode_t_cpy},
    {121, encode_t_cps},  {122, encode_t_dp},
    {123, encode_t2_dp},  {124, encode_t2_dpw}, {125, encode_movw_movt}, {126, encode_t2_mov_imm},
    {127, encode_t2_dp_reg}, {128, encode_t2_shift}, {129, encode_t2_extend}, {130, encode_t2_ldr_str},
    {131, encode_t2_ldm}, {132, encode_t2_branch}, {133, encode_t2_adr}, {134, encode_t2_mul},
    {135, encode_t2_branch}, {136, encode_t2_it}, {137, encode_t2_czb}, {138, encode_t2_div},
    {139, encode_t2_rev}, {140, encode_t2_table}, {141, encode_t2_bxj}, {142, encode_t2_prefetch},
    {143, encode_rfe},    {144, encode_srs},    {145, encode_smi},    {146, encode_hint},
    {147, encode_hint},   {148, encode_sg},     {149, encode_tt},
    {223, encode_ldrex},  {224, encode_ldrexd}, {225, encode_strex},  {226, encode_strexd},
    {217, encode_t2_cps}, {227, encode_udf},
};

constexpr unsigned MAX_IC_ID = 227;

constexpr std::array<class_encoder, MAX_IC_ID + 1> make_table() {
  std::array<class_encoder, MAX_IC_ID + 1> table{};
  for (class_encoder &e : table) e = encode_simd_ins;
  for (const encoder_row &row : encoder_rows) table[row.ic_id] = row.encode;
  return table;
}

constexpr std::array<class_encoder, MAX_IC_ID + 1> encoder_table = make_table();

}  // namespace

class_encoder class_encoder_for(unsigned ic_id) {
  return ic_id <= MAX_IC_ID ? encoder_table[ic_id] : encode_simd_ins;
}
