#pragma once
// The selected architecture and its tests.
#include <cstdint>

enum : uint32_t {
  ARCH_NONE = 0, ARCH_V4 = 1, ARCH_V5E = 2, ARCH_V6 = 3, ARCH_V6M0 = 4, ARCH_V7A8 = 5,
  ARCH_V7M3 = 6, ARCH_V7M4 = 7, ARCH_V7R4 = 8, ARCH_V7R5 = 9, ARCH_V8M33 = 10,
};

constexpr bool arch_v5e_or_higher(uint32_t arch) { return arch >= ARCH_V5E && arch <= ARCH_V8M33; }
constexpr bool arch_v6_or_higher(uint32_t arch) { return arch >= ARCH_V6 && arch <= ARCH_V8M33; }
constexpr bool arch_v7_or_higher(uint32_t arch) { return arch >= ARCH_V7A8 && arch <= ARCH_V8M33; }
constexpr bool arch_v7(uint32_t arch) { return arch >= ARCH_V7A8 && arch <= ARCH_V7R5; }
// Only here does the Thumb-2 state exist (on V6M0 with few 32-bit instructions).
constexpr bool arch_t2_capable(uint32_t arch) { return arch_v7_or_higher(arch) || arch == ARCH_V6M0; }
constexpr bool arch_cortex_m(uint32_t arch) {
  return arch == ARCH_V8M33 || arch == ARCH_V7M3 || arch == ARCH_V7M4 || arch == ARCH_V6M0;
}

struct ARM_ARCH_TYPES {
  uint32_t value = ARCH_NONE;

  bool is_v5e_or_higher() const { return arch_v5e_or_higher(value); }
  bool is_v6_or_higher() const { return arch_v6_or_higher(value); }
  bool is_v7_or_higher() const { return arch_v7_or_higher(value); }
  bool is_v7() const { return arch_v7(value); }
  bool is_t2_capable() const { return arch_t2_capable(value); }
  bool is_cortex_m() const { return arch_cortex_m(value); }

  // By version text, without regard to case: null gives ARCH_NONE, an unknown
  // text leaves the value as it was.
  void set(const char *text);
  // By number: 1 to 10 are taken, anything else gives ARCH_NONE.
  void set(unsigned number) { value = number >= ARCH_V4 && number <= ARCH_V8M33 ? number : ARCH_NONE; }
};

extern ARM_ARCH_TYPES arm_arch_types;

inline uint32_t arm_arch() { return arm_arch_types.value; }
