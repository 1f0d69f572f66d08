/* Multiplies against C's arithmetic. */
#include "check.h"

uint32_t mul_mul(uint32_t, uint32_t);
uint32_t mul_mul_rs(uint32_t, uint32_t);
uint32_t mul_mla(uint32_t, uint32_t, uint32_t);
uint32_t mul_muls_nz(uint32_t, uint32_t);
uint64_t mul_umull(uint32_t, uint32_t);
uint64_t mul_smull(uint32_t, uint32_t);
uint64_t mul_umlal(uint32_t, uint32_t, uint32_t, uint32_t);
uint64_t mul_smlal(uint32_t, uint32_t, uint32_t, uint32_t);
uint32_t mul_umulls_nz(uint32_t, uint32_t);
uint32_t mul_smlals_nz(uint32_t, uint32_t, uint32_t, uint32_t);

static uint32_t nz32(uint32_t r) { return (r & 0x80000000u) | (uint32_t)(r == 0) << 30; }
static uint32_t nz64(uint64_t r) { return (uint32_t)(r >> 32 & 0x80000000u) | (uint32_t)(r == 0) << 30; }

int main(void) {
  char what[96];
  for (unsigned i = 0; i < CHECK_NVALUES; ++i)
    for (unsigned j = 0; j < CHECK_NVALUES; ++j) {
      const uint32_t a = check_values[i], b = check_values[j];
      const uint32_t lo = check_values[(i + j) % CHECK_NVALUES], hi = check_values[(i * 3 + j) % CHECK_NVALUES];
      const uint64_t acc = (uint64_t)hi << 32 | lo;
      const int64_t sprod = (int64_t)(int32_t)a * (int32_t)b;
      snprintf(what, sizeof what, "mul(0x%x, 0x%x)", a, b);
      check32(what, mul_mul(a, b), a * b);
      snprintf(what, sizeof what, "mul_rs(0x%x, 0x%x)", a, b);
      check32(what, mul_mul_rs(a, b), a * b);
      snprintf(what, sizeof what, "mla(0x%x, 0x%x, 0x%x)", a, b, lo);
      check32(what, mul_mla(a, b, lo), a * b + lo);
      snprintf(what, sizeof what, "muls_nz(0x%x, 0x%x)", a, b);
      check32(what, mul_muls_nz(a, b), nz32(a * b));
      snprintf(what, sizeof what, "umull(0x%x, 0x%x)", a, b);
      check64(what, mul_umull(a, b), (uint64_t)a * b);
      snprintf(what, sizeof what, "smull(0x%x, 0x%x)", a, b);
      check64(what, mul_smull(a, b), (uint64_t)sprod);
      snprintf(what, sizeof what, "umlal(0x%x, 0x%x, 0x%x, 0x%x)", a, b, lo, hi);
      check64(what, mul_umlal(a, b, lo, hi), (uint64_t)a * b + acc);
      snprintf(what, sizeof what, "smlal(0x%x, 0x%x, 0x%x, 0x%x)", a, b, lo, hi);
      check64(what, mul_smlal(a, b, lo, hi), (uint64_t)sprod + acc);
      snprintf(what, sizeof what, "umulls_nz(0x%x, 0x%x)", a, b);
      check32(what, mul_umulls_nz(a, b), nz64((uint64_t)a * b));
      snprintf(what, sizeof what, "smlals_nz(0x%x, 0x%x, 0x%x, 0x%x)", a, b, lo, hi);
      check32(what, mul_smlals_nz(a, b, lo, hi), nz64((uint64_t)sprod + acc));
    }
  return check_done("mul");
}
