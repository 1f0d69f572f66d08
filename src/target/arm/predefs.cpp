// Register symbols and the predefined symbols that tell a source what the
// command line selected.
#include <cstdio>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/options.h"
#include "expr/expr.h"
#include "expr/symbols.h"
#include "expr/value.h"
#include "ofe/of_symbol.h"
#include "target/arm/arch.h"
#include "target/arm/glue_pending.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

constexpr long ABI_EABI = 1;
constexpr long EABI_COMPAT_LIBRARY = 10;
constexpr long NO_EMBEDDED_CONSTANTS = 12;

void enter_registers(const reg_init *rows) {
  for (const reg_init *r = rows; r->name; ++r) {
    symbol_record *sym = SYM_find(r->name, true);
    value_record v;
    E_clrval(&v);
    v.v_type = VT_REG;
    v.v_val = xi_from_uint(r->value);
    v.v_bits = r->reg_class;  // a register's width field holds its class
    v.v_symbol = sym;
    SYM_define(sym, &v);
  }
}

long option_value(option_id id) { return opt_on(id) ? global_opts->getnumarg(id, 0) : -1; }

// A symbol that begins with a point has a lower-case twin unless symbols
// are read without regard to case.
void predef(const char *name, bool value) {
  SYM_set_predef(name, value ? 1 : 0, false);
  if (name[0] != '.' || opt_on(OPT_SYMS_IGNORE_CASE)) return;
  std::string lower(name);
  for (char &c : lower) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
  SYM_set_predef(lower, value ? 1 : 0, false);
}

void predef2(const char *name1, const char *name2, bool value) {
  predef(name1, value);
  predef(name2, value);
}

const char *isa_text(uint32_t arch) {
  const bool thumb = def_state == 1;
  switch (arch) {
    case ARCH_V4: return thumb ? "$THUMB_ISAv1" : "$ARM_ISAv4";
    case ARCH_V5E: return thumb ? "$THUMB_ISAv2" : "$ARM_ISAv5";
    case ARCH_V6: return thumb ? "$THUMB_ISAv3$ARM_ISAv6" : "$ARM_ISAv6";
    default:
      if (arch_cortex_m(arch)) return "$THUMB_ISAv4";
      return thumb ? "$THUMB_ISAv4$ARM_ISAv7" : "$ARM_ISAv7";
  }
}

const char *float_text(long fp) {
  switch (fp) {
    case FLOAT_VFPV2: return "$VFPv2";
    case FLOAT_VFPV3: return "$VFPv3";
    case FLOAT_FPV4SPD16: return "$VFPv4";
    case FLOAT_VFPV3D16: return "";
    default: return "$PE";
  }
}

void invent_library_request(const char *name) {
  symbol_record *sym = SYM_find(name, false);
  if (sym->sym_object) return;
  sym->sym_storage |= 2;
  if (OFE::OF_SYMBOL *object = SYM_invent(sym, 0, nullptr, 1, 2)) object->set_type(OFE::OFY_FUNCTION);
}

// ELF with the EABI, pass 2: the symbols by which a linker picks its libraries.
void library_request_symbols() {
  const uint32_t arch = arm_arch();
  if (option_value(OPT_EABI_COMPAT) == EABI_COMPAT_LIBRARY) {
    const char *format = arch == ARCH_V4 || arch == ARCH_V7M3
        ? "BuildAttributes$%s$M$P%s%s$IEEE1$IW$USESV6$~STKCKD$USESV7$~SHL$OSPACE$EBA8$UX$REQ8$PRES8$EABIv2"
        : "BuildAttributes$%s$M$E$P%s%s$IEEE1$IW$USESV6$~STKCKD$USESV7$~SHL$OSPACE$EBA8$UX$REQ8$PRES8$EABIv2";
    const char *alignment = arch == ARCH_V5E ? "$A:L22$X:L11$S22" : "$A:L22UL41UL21$X:L11$S22US41US21";
    char name[512];
    snprintf(name, sizeof name, format, isa_text(arch), float_text(option_value(OPT_FLOAT_SUPPORT)), alignment);
    symbol_record *sym = SYM_find(name, false);
    if (!sym->sym_object) SYM_invent(sym, 0, nullptr, 3, 2);
  }
  invent_library_request("Lib$$Request$$armlib");
  invent_library_request("Lib$$Request$$cpplib");
}

}  // namespace

void TRG_init_regsyms() {
  enter_registers(trg_ucregs);
  if (!opt_on(OPT_SYMS_IGNORE_CASE)) enter_registers(trg_lcregs);
}

void TRG_version_predefs() {
  const uint32_t arch = arm_arch();
  const long fp = option_value(OPT_FLOAT_SUPPORT);
  const bool vfp = fp == FLOAT_VFPV2 || fp == FLOAT_VFPV3 || fp == FLOAT_VFPV3D16 || fp == FLOAT_FPV4SPD16;
  const bool little_double = !big_endian_code && (vfp || fp == FLOAT_NONE);

  predef2(".KRV616", ".ZQ_ARM", true);
  predef2(".KRV616_16BIS", ".ZQ_ARM_16BIS", def_state == 1 || def_state == 2);
  predef2(".KRV616_T2IS", ".ZQ_ARM_T2IS", def_state == 2);
  predef2(".KRV616_32BIS", ".ZQ_ARM_32BIS", def_state == 0);
  predef2(".KRV616_LITTLE", ".ZQ_ARM_LITTLE", !big_endian_code);
  predef2(".KRV616_BIG", ".ZQ_ARM_BIG", big_endian_code);
  predef2(".KRV616_LITTLE_DOUBLE", ".ZQ_ARM_LITTLE_DOUBLE", little_double);
  predef2(".KRV616_BIG_DOUBLE", ".ZQ_ARM_BIG_DOUBLE", !little_double);
  predef("__ZQ_VFPV2_SUPPORT__", fp == FLOAT_VFPV2);
  predef("__ZQ_VFPV3_SUPPORT__", fp == FLOAT_VFPV3);
  predef("__ZQ_VFPV3D16_SUPPORT__", fp == FLOAT_VFPV3D16);
  predef("__ZQ_FPV4SPD16_SUPPORT__", fp == FLOAT_FPV4SPD16);
  predef("__ZQ_VFP_SUPPORT__", vfp);
  predef("__ZQ_ARM7ABI_ASSEMBLER", false);
  predef("__ZQ_ARM9ABI_ASSEMBLER", false);
  predef("__ZQ_EABI_ASSEMBLER", option_value(OPT_ABI) == ABI_EABI);
  predef("__ZQ_NEON_SUPPORT__", opt_on(OPT_NEON));
  predef2("__ZQ_KRV616_V4__", "__ZQ_ARM_V4__", arch == ARCH_V4);
  predef2("__ZQ_KRV616_V5E__", "__ZQ_ARM_V5E__", arch == ARCH_V5E);
  predef2("__ZQ_KRV616_V6__", "__ZQ_ARM_V6__", arch == ARCH_V6);
  predef2("__ZQ_KRV616_V7__", "__ZQ_ARM_V7__", arch_v7(arch));
  predef2("__ZQ_KRV616_V7M__", "__ZQ_ARM_V7M__", arch == ARCH_V7M3 || arch == ARCH_V7M4);
  predef2("__ZQ_KRV616_V8M__", "__ZQ_ARM_V8M__", arch == ARCH_V8M33);
  predef("__ZQ_ARM_CORTEX_M__", arch_cortex_m(arch));
  predef2("__ZQ_KRV616_V7M3__", "__ZQ_ARM_V7M3__", arch == ARCH_V7M3);
  predef2("__ZQ_KRV616_V7M4__", "__ZQ_ARM_V7M4__", arch == ARCH_V7M4);
  predef("__ZQ_ARM_V6M0__", arch == ARCH_V6M0);
  predef2("__ZQ_KRV616_V7A8__", "__ZQ_ARM_V7A8__", arch == ARCH_V7A8);
  predef2("__ZQ_KRV616_V7R4__", "__ZQ_ARM_V7R4__", arch == ARCH_V7R4 || arch == ARCH_V7R5);
  predef2("__ZQ_KRV616_V7R5__", "__ZQ_ARM_V7R5__", arch == ARCH_V7R5);
  predef2("__ZQ_KRV616_V8M33__", "__ZQ_ARM_V8M33__", arch == ARCH_V8M33);
  predef("__ZQ_CMSE__", arch == ARCH_V8M33 && opt_on(OPT_CMSE));
  predef("__ZQ_AVOID_EMBEDDED_CONSTANTS", option_value(OPT_EMBEDDED_CONSTANTS) == NO_EMBEDDED_CONSTANTS);

  if (pass2 && object_format() == 2 && arm_eabi()) library_request_symbols();
}
