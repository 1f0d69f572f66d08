#pragma once
// Software floating value: six base-65536 digits, a power-of-two exponent, a sign.
#include <cstdint>

struct simul_fval {
  uint16_t mant[6];
  int32_t exponent;
  uint32_t sign;
};
static_assert(sizeof(simul_fval) == 20);
