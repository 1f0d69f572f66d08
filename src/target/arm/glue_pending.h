#pragma once
// What the target glue calls in subsystems of later steps; the interim
// bodies are in pending_glue.cpp and give way when their subsystem lands.
#include <cstdint>

struct IOR_STRUCT;
struct value_record;
namespace OFE { class OF_RELOC_TYPE; }

// ---- Relocation emission ---------------------------------------------------------

// Records one relocation for `value` at the current position of the current
// section. `ior` may be null; `pc` is the place's address for PC-relative
// COFF types (0 for data); `ior_offset` is the bit offset in the record for
// the listing mark; `field_offset` is the field's bit position. On return
// v_val holds what goes into the field.
void RELOC_emit(IOR_STRUCT *ior, value_record *value, uint32_t pc, const OFE::OF_RELOC_TYPE *type,
                short field_size, unsigned ior_offset, unsigned field_offset);

// ---- Target state ------------------------------------------------------------------

// The selected architecture: the value of arm_arch_types, one of ARCH_*.
enum : uint32_t {
  ARCH_NONE = 0, ARCH_V4 = 1, ARCH_V5E = 2, ARCH_V6 = 3, ARCH_V6M0 = 4, ARCH_V7A8 = 5,
  ARCH_V7M3 = 6, ARCH_V7M4 = 7, ARCH_V7R4 = 8, ARCH_V7R5 = 9, ARCH_V8M33 = 10,
};
uint32_t arm_arch();

constexpr bool arch_v5e_or_higher(uint32_t arch) { return arch >= ARCH_V5E && arch <= ARCH_V8M33; }
constexpr bool arch_v6_or_higher(uint32_t arch) { return arch >= ARCH_V6 && arch <= ARCH_V8M33; }
constexpr bool arch_v7_or_higher(uint32_t arch) { return arch >= ARCH_V7A8 && arch <= ARCH_V8M33; }
constexpr bool arch_t2_capable(uint32_t arch) { return arch_v7_or_higher(arch) || arch == ARCH_V6M0; }

// Values of --float_support.
enum : long {
  FLOAT_FPV4SPD16 = 16, FLOAT_VFPV2 = 17, FLOAT_VFPV3 = 18, FLOAT_VFPV3D16 = 19, FLOAT_NONE = 21,
};

// ---- Thumb-2 trial encodings and statistics -------------------------------------------

// Set while a trial encoding runs: the output record takes no bits.
extern uint8_t suppress_output;

// Counted in pass 2 when a listing is made.
extern int64_t num_thumb2_keep;
extern int64_t num_thumb2_conv;
extern int64_t num_orig_thumb;
extern int64_t num_2opnd_conv;

// ---- Machine database -------------------------------------------------------------------

// ELF with an EABI version: Thumb function symbols get bit 0 set.
void adjust_thumb_symbol_values();
// ZQ-COFF file header bits.
void set_zqcoff_fh_isa(unsigned isa);
void set_zqcoff_fh_arm9abi();
void set_zqcoff_fh_zqabi();
void set_zqcoff_fh_dmode(bool dual_mode);
