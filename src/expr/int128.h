#pragma once
// 128-bit two's-complement integer kept as 16 bytes, most significant first.
// It stays a trivial type: tokens and values hold it inside unions.
#include <cstdint>

struct INT128 {
  uint8_t b[16];
};
static_assert(sizeof(INT128) == 16);
