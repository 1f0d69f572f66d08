#pragma once
// What the target glue calls in subsystems of later steps; the interim
// bodies are in pending_glue.cpp and give way when their subsystem lands.
#include <cstdint>

#include "expr/reloc.h"
#include "target/arm/arch.h"

struct IOR_STRUCT;
struct value_record;
namespace OFE { class OF_RELOC_TYPE; }

// ---- Target state ------------------------------------------------------------------

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

// ---- Relocation types ---------------------------------------------------------------------

// The object format's relocation type for a generic type number (0x300 and
// up: R_ARM_PC24 is 0x300), or null when the format has none.
const OFE::OF_RELOC_TYPE *ARM_reloc_type(uint32_t generic);
