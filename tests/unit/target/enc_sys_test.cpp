// Branch, address, status register and system encoders, on statements built
// by hand as the parser leaves them: the word, and the messages of the line.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <deque>
#include <initializer_list>
#include <string>

#include "driver/diag.h"
#include "driver/driver.h"
#include "driver/records.h"
#include "expr/symbols.h"
#include "target/arm/arch.h"
#include "target/arm/encode.h"
#include "target/arm/instr.h"
#include "target/arm/opcodes.h"
#include "target/arm/tables.h"
#include "target/arm/trg.h"

namespace {

class SysEncoderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    saved_pass1_ = pass1;
    saved_pass2_ = pass2;
    pass1 = 0;
    pass2 = 1;
    num_errors = num_warnings = 0;
    cur_it_string[0] = 0;
    arch("7A8");
    // The lines' message slots are what the tests read; the screen copy is noise.
    ::testing::internal::CaptureStderr();
  }
  void TearDown() override {
    ::testing::internal::GetCapturedStderr();
    clear_messages();
    arm_arch_types.set(nullptr);
    cur_state = encode_state = 0;
    cur_it_string[0] = 0;
    pass1 = saved_pass1_;
    pass2 = saved_pass2_;
  }

  static void arch(const char *text) { arm_arch_types.set(text); }
  // ARM state, or the Thumb-2 slot (2) or the Thumb-16 slot (1) of a Thumb-2 source.
  static void state(uint32_t s) {
    encode_state = s;
    cur_state = s == STATE_ARM ? STATE_ARM : STATE_THUMB2;
  }

  operand *op(uint16_t kind, int64_t value = 0) {
    operand &o = ops_.emplace_back();
    o.kind = kind;
    o.value.v_type = VT_ICON;
    o.value.v_val = xi_from_i64(value);
    o.op_lane = -2;
    o.op_shift = SHIFT_NONE;
    return &o;
  }
  operand *reg(uint8_t n, uint16_t mods = 0) {
    operand *o = op(OP_REGISTER, n);
    o->op_reg = n;
    o->op_mods = mods;
    return o;
  }
  operand *imm(int64_t v) { return op(OP_ICON, v); }
  // PSR kinds: the register symbol's value, and the field letters' mask.
  operand *psr(uint16_t kind, uint32_t value, uint16_t mask = 0) {
    operand *o = op(kind, value);
    o->op_reg = static_cast<uint8_t>(value);
    o->op_mods = mask;
    return o;
  }
  operand *cps_flags(const char *text) {
    operand *o = op(OP_CPSFLAGS);
    texts_.emplace_back(text);
    o->value.v_str = texts_.back().data();
    return o;
  }

  // Encodes the row `name` with the operands; the word as it goes to memory
  // order-free (Thumb-2 halves back in place), or only the low half in Thumb-16.
  uint32_t encode(const char *name, std::initializer_list<operand *> operands, uint32_t flags = 0,
                  uint8_t cond = COND_AL) {
    clear_messages();
    const mnemonic_row *row = trg_mnemonics;
    while (row->name && std::strcmp(row->name, name) != 0) ++row;
    EXPECT_NE(row->name, nullptr) << name;
    instruct ir{};
    ir.kind = IR_MNEMONIC;
    ir.record = row;
    ir.line = &line_;
    ir.ia_cond = cond;
    ir.ia_flags = flags | (cond != COND_AL ? uint32_t{IF_COND} : 0u);
    int i = 0;
    for (operand *o : operands) ir.oprnds[i++] = o;
    instlen = encode_state == STATE_THUMB16 ? 2 : 4;
    encode_krv616_ins(&ir);
    const uint32_t w = ENC_word(&ir);
    return encode_state == STATE_ARM ? w : (w << 16) | (w >> 16);
  }

  // The messages of the last statement, joined; "" when none.
  std::string messages() const {
    std::string all;
    for (char *m : line_.messages)
      if (m) all += std::string(m) + "\n";
    return all;
  }
  bool said(const char *id, const char *text) const {
    const std::string all = messages();
    return all.find(id) != std::string::npos && all.find(text) != std::string::npos;
  }
  void clear_messages() {
    for (char *&m : line_.messages) {
      std::free(m);
      m = nullptr;
    }
  }

  int16_t saved_pass1_ = 0, saved_pass2_ = 0;
  linebuf line_{};
  std::deque<operand> ops_;
  std::deque<std::string> texts_;
};

TEST_F(SysEncoderTest, BranchesByOffsetAndRegister) {
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, 8)}), 0xEA000002u);
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, -16)}, IF_LINK), 0xEBFFFFFCu);
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, 0)}, 0, COND_LT), 0xBA000000u);
  // BLX with a number: halfword scaling, no condition field.
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, 6)}, IF_LINK | IF_X), 0xFA000003u);
  EXPECT_EQ(encode("B", {reg(1)}, IF_LINK | IF_X), 0xE12FFF31u);
  EXPECT_EQ(encode("BX", {reg(14)}, 0, COND_EQ), 0x012FFF1Eu);
  EXPECT_EQ(encode("BXJ", {reg(2)}), 0xE12FFF22u);
  EXPECT_EQ(messages(), "");
  EXPECT_EQ(encode("CRET", {op(OP_SYMBOL, 4)}), 0xEA000001u);

  // The field's limits, its alignment, and the operand kinds of each row.
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, 0x1FFFFFC)}), 0xEA7FFFFFu);
  encode("B", {op(OP_SYMBOL, 0x2000000)});
  EXPECT_TRUE(said("E0200", "Offset out of range, must be [-33554432,33554431]"));
  encode("B", {op(OP_SYMBOL, 6)});
  EXPECT_TRUE(said("E0200", "Destination must be on a 4 byte boundary"));
  encode("B", {reg(0)}, IF_LINK);
  EXPECT_TRUE(said("E0004", "Operand must be a label"));
  encode("CRET", {reg(0)});
  EXPECT_TRUE(said("E0004", "Operand must be a label"));
  encode("BX", {op(OP_SYMBOL, 8)});
  EXPECT_TRUE(said("E0004", "Operand must be a register"));
}

TEST_F(SysEncoderTest, CallToThumbCodeOfThisFileBecomesBlx) {
  symbol_record thumb_fn{};
  thumb_fn.sym_state = 2;
  thumb_fn.sym_storage = SYM_STOR_GLOBAL;
  operand *target = op(OP_SYMBOL, 0x102);
  target->value.v_symbol = &thumb_fn;
  // Offset 0x102: word part 0x40, halfword bit at 24.
  EXPECT_EQ(encode("B", {target}, IF_LINK), 0xFB000040u);
  // Conditional, an external symbol, or below v5E: a plain BL.
  EXPECT_EQ(encode("B", {op(OP_SYMBOL, 0x100)}, IF_LINK, COND_NE), 0x1B000040u);
  thumb_fn.sym_storage = SYM_STOR_EXTERN;
  target = op(OP_SYMBOL, 0x100);
  target->value.v_symbol = &thumb_fn;
  EXPECT_EQ(encode("B", {target}, IF_LINK), 0xEB000040u);
  thumb_fn.sym_storage = SYM_STOR_LOCAL;
  arch("4");
  target = op(OP_SYMBOL, 0x100);  // the encoder leaves the field's value in the operand
  target->value.v_symbol = &thumb_fn;
  EXPECT_EQ(encode("B", {target}, IF_LINK), 0xEB000040u);
}

TEST_F(SysEncoderTest, AdrIsAddOrSubOfPc) {
  EXPECT_EQ(encode("ADR", {reg(0), imm(0x100)}), 0xE28F0C01u);
  EXPECT_EQ(encode("ADR", {reg(1), imm(-8)}), 0xE24F1008u);
  EXPECT_EQ(encode("ADR", {reg(2), imm(0)}), 0xE28F2000u);
  EXPECT_EQ(messages(), "");
  encode("ADR", {reg(3), imm(0x101)});
  EXPECT_TRUE(said("E0200", "Offset out of range"));
}

TEST_F(SysEncoderTest, StatusRegistersInArmState) {
  EXPECT_EQ(encode("MRS", {reg(0), psr(OP_PSR, 0x100)}), 0xE10F0000u);
  EXPECT_EQ(encode("MRS", {reg(1), psr(OP_PSR, 0x200)}), 0xE14F1000u);
  EXPECT_EQ(encode("MSR", {psr(OP_PSRF, 0x101, 1), reg(0)}), 0xE121F000u);
  EXPECT_EQ(encode("MSR", {psr(OP_PSRF, 0x201, 9), reg(2)}), 0xE169F002u);
  EXPECT_EQ(encode("MSR", {psr(OP_PSRF, 0x101, 8), imm(0xF0000000)}), 0xE328F20Fu);
  EXPECT_EQ(encode("MSR", {psr(OP_PSRF, 0x201, 2), imm(0x100)}), 0xE362FC01u);
  EXPECT_EQ(encode("MSR", {psr(OP_APSRF, 0x301, 32), reg(3)}), 0xE124F003u);
  EXPECT_EQ(encode("MSR", {psr(OP_APSRF, 0x301, 63), reg(3)}), 0xE12CF003u);
  EXPECT_EQ(encode("MSR", {psr(OP_APSRF, 0x301, 31), reg(3)}, 0, COND_EQ), 0x0128F003u);
  EXPECT_EQ(messages(), "");

  // A PSR without fields takes a mask, with a warning.
  EXPECT_EQ(encode("MSR", {psr(OP_PSR, 0x100), reg(1)}), 0xE129F001u);
  EXPECT_TRUE(said("W0000", "Deprecated use of PSR; flag bits not specified, \"cf\" assumed"));
  EXPECT_EQ(encode("MSR", {psr(OP_PSR, 0x300), reg(1)}), 0xE128F001u);
  EXPECT_TRUE(said("W0000", "\"nzcvq\" assumed"));

  encode("MSR", {psr(OP_APSRF, 0x301, 3), reg(3)});
  EXPECT_TRUE(said("E0004", "Illegal APSR field bit mask"));
  encode("MRS", {reg(0), psr(OP_PSRF, 0x101, 1)});
  EXPECT_TRUE(said("E0004", "Invalid Operand, cannot use processor status register flags"));
  encode("MRS", {reg(0), reg(1)});
  EXPECT_TRUE(said("E0004", "Illegal operand."));
  encode("MRS", {reg(0), psr(OP_MSYSREG, 0x8)});
  EXPECT_TRUE(said("E0004", "Status register unsupported by this architecture."));
  encode("MSR", {psr(OP_PSR, 0x100), imm(1)});
  EXPECT_TRUE(said("E0004", "Immediate value can be transferred to PSR flag bits only"));
  encode("MSR", {psr(OP_PSRF, 0x101, 8), imm(0x101)});
  EXPECT_TRUE(said("E0004", "Immediate not representable as a rotated 8 bit immediate"));
  EXPECT_EQ(encode("MRS", {reg(15), psr(OP_PSR, 0x100)}), 0xE10FF000u);
  EXPECT_TRUE(said("W0000", "R15 should not be used as a destination operand"));
  encode("MSR", {psr(OP_PSRF, 0x101, 1), reg(15)});
  EXPECT_TRUE(said("W0000", "R15 should not be used as an operand"));
}

TEST_F(SysEncoderTest, StatusRegistersInThumb2) {
  state(STATE_THUMB2);
  EXPECT_EQ(encode("MRS", {reg(3), psr(OP_PSR, 0x200)}), 0xF3FF8300u);
  EXPECT_EQ(encode("MSR", {psr(OP_PSRF, 0x201, 9), reg(4)}), 0xF3948900u);
  encode("MSR", {psr(OP_PSR, 0x100), reg(1)});
  EXPECT_TRUE(said("E0004", "Deprecated use of PSR; flag bits not specified"));
  encode("MSR", {psr(OP_PSRF, 0x101, 8), imm(1)});
  EXPECT_TRUE(said("E0004", "MSR immediate is only available in ARM mode"));

  arch("7M3");
  EXPECT_EQ(encode("MRS", {reg(0), psr(OP_MSYSREG, 0x5)}), 0xF3EF8005u);
  EXPECT_EQ(encode("MRS", {reg(1), psr(OP_PSR, 0x300)}), 0xF3EF8100u);
  EXPECT_EQ(encode("MSR", {psr(OP_MSYSREG, 0x14), reg(2)}), 0xF3828814u);
  EXPECT_EQ(encode("MSR", {psr(OP_APSRF, 0x301, 31), reg(2)}), 0xF3828800u);
  EXPECT_EQ(encode("MSR", {psr(OP_PSR, 0x300), reg(2)}), 0xF3828800u);
  EXPECT_EQ(messages(), "");
  encode("MRS", {reg(0), psr(OP_PSR, 0x100)});
  EXPECT_TRUE(said("E0004", "Status register unsupported by this architecture."));
  EXPECT_EQ(encode("MRS", {reg(0), psr(OP_MSYSREG, 0x13)}), 0xF3EF8013u);
  arch("6M0");
  encode("MRS", {reg(0), psr(OP_MSYSREG, 0x13)});
  EXPECT_TRUE(said("E0004", "Cortex-M0 MSR/MRS instruction can not use FAULTMASK, BASEPRI, or BASEPRI_MAX"));
}

TEST_F(SysEncoderTest, ExceptionImmediatesSplitByState) {
  EXPECT_EQ(encode("SWI", {imm(0x123456)}), 0xEF123456u);
  EXPECT_EQ(encode("SWI", {imm(0x1000001)}, 0, COND_EQ), 0x0F000001u);
  EXPECT_TRUE(said("W0002", "Comment field value truncated"));
  encode("SWI", {op(OP_SYMBOL, 1)});
  EXPECT_TRUE(said("E0004", "Comment field value must be an absolute constant"));
  EXPECT_EQ(encode("BKPT", {imm(0x1234)}), 0xE1212374u);
  EXPECT_EQ(encode("SMI", {imm(0xABCD)}), 0xE16ABC7Du);
  EXPECT_EQ(encode("UDF", {imm(0xABCD)}), 0xE7FABCFDu);
  EXPECT_EQ(messages(), "");
  encode("UDF", {imm(0x10000)});
  EXPECT_TRUE(said("E0200", "Offset out of range, must be 16 bit immediate"));
  arch("4");
  encode("BKPT", {imm(1)});
  EXPECT_TRUE(said("E0002", "Instruction is only available in V5 and higher"));

  arch("7A8");
  state(STATE_THUMB2);
  EXPECT_EQ(encode("SMI", {imm(0xABCD)}), 0xF7FA8BCDu);
  EXPECT_EQ(encode("UDF", {imm(0xABCD)}), 0xF7FAABCDu);
  state(STATE_THUMB16);
  EXPECT_EQ(encode("UDF", {imm(0x12)}) >> 16, 0xDE12u);
  encode("UDF", {imm(0x100)});
  EXPECT_TRUE(said("E0200", "Offset out of range, must be 8 bit immediate"));
  std::strcpy(cur_it_string, "TE");
  encode("UDF", {imm(1)});
  EXPECT_TRUE(said("W0005", "Deprecated use of UDF inside an IT block"));
}

TEST_F(SysEncoderTest, ProcessorStateAndExceptionReturn) {
  EXPECT_EQ(encode("CPSIE", {cps_flags("aif")}), 0xF10801C0u);
  EXPECT_EQ(encode("CPSID", {cps_flags("F")}), 0xF10C0040u);
  EXPECT_EQ(encode("CPSIE", {cps_flags("i"), imm(0x13)}), 0xF10A0093u);
  EXPECT_EQ(encode("CPS", {imm(0x1F)}), 0xF102001Fu);
  EXPECT_EQ(encode("SETEND", {}, IF_BE), 0xF1010200u);
  EXPECT_EQ(encode("SETEND", {}, IF_LE), 0xF1010000u);
  EXPECT_EQ(encode("RFE", {reg(1, MOD_WRITEBACK)}, AM_IA << 4), 0xF8B10A00u);
  EXPECT_EQ(encode("SRS", {reg(13, MOD_WRITEBACK), imm(0x1F)}, AM_IA << 4), 0xF8ED051Fu);
  EXPECT_EQ(encode("SRS", {imm(0x13)}, AM_DB << 4), 0xF94D0513u);
  EXPECT_EQ(messages(), "");

  encode("CPSIE", {cps_flags("aix")});
  EXPECT_TRUE(said("E0004", "Illegal flag specified: x"));
  encode("CPSIE", {cps_flags("aifa")});
  EXPECT_TRUE(said("E0003", "Unexpected trailing operand(s)."));
  encode("CPSID", {imm(1)});
  EXPECT_TRUE(said("E0004", "Invalid operand type for CPS."));
  encode("SRS", {reg(0), imm(0x13)});
  EXPECT_TRUE(said("E0004", "The destination must be the SP"));
  encode("RFE", {imm(0)});
  EXPECT_TRUE(said("E0004", "Operand Rn must be a register"));
  arch("5e");
  encode("SETEND", {}, IF_BE);
  EXPECT_TRUE(said("E0002", "Instruction is only available in V6 and higher"));
  encode("RFE", {reg(0)});
  EXPECT_TRUE(said("E0002", "Instruction is only available in V6 and higher"));

  // Thumb-2: SRS takes its addressing mode itself (IA when none).
  arch("7A8");
  state(STATE_THUMB2);
  EXPECT_EQ(encode("SRS", {reg(13, MOD_WRITEBACK), imm(0x13)}), 0xE9ADC013u);
  EXPECT_EQ(encode("SRS", {imm(0x13)}, AM_FD << 4), 0xE80DC013u);
  encode("SRS", {imm(0x13)}, AM_IB << 4);
  EXPECT_TRUE(said("E0004", "Illegal addressing mode"));
  EXPECT_EQ(encode("CPS", {imm(0x13)}), 0xF3AF8113u);
  state(STATE_THUMB16);
  EXPECT_EQ(encode("SETEND", {}, IF_BE) >> 16, 0xB658u);
  arch("7M3");
  encode("SETEND", {}, IF_LE);
  EXPECT_TRUE(said("E0002", "Illegal Cortex-M instruction/directive"));
}

TEST_F(SysEncoderTest, HintsBarriersAndSecurityByArchitecture) {
  EXPECT_EQ(encode("WFI", {}, 0, COND_NE), 0x1320F003u);
  EXPECT_EQ(encode("DMB", {}), 0xF57FF05Fu);
  EXPECT_EQ(encode("CLREX", {}), 0xF57FF01Fu);
  EXPECT_EQ(encode("NOP", {}), 0xE1A00000u);
  EXPECT_EQ(messages(), "");
  arch("6");
  encode("SEV", {});
  EXPECT_TRUE(said("E0002", "Instruction only available in V7 and higher"));
  encode("ISB", {});
  EXPECT_TRUE(said("E0002", "Instruction only available in V6M0 and V7 and higher"));
  encode("CLREX", {});
  EXPECT_TRUE(said("E0002", "Instruction only available in V7 and higher"));

  // The Thumb-16 hints are v6-M instructions too; the barriers are its only Thumb-2.
  arch("6M0");
  state(STATE_THUMB16);
  EXPECT_EQ(encode("YIELD", {}) >> 16, 0xBF10u);
  state(STATE_THUMB2);
  EXPECT_EQ(encode("DSB", {}), 0xF3BF8F4Fu);
  EXPECT_EQ(messages(), "");

  arch("8M33");
  EXPECT_EQ(encode("TT", {reg(1), reg(2)}, IF_TT_A | IF_TT_T), 0xE842F1C0u);
  EXPECT_EQ(encode("SG", {}), 0xE97FE97Fu);
  EXPECT_EQ(messages(), "");
  arch("7M3");
  encode("TT", {reg(1), imm(2)});
  EXPECT_TRUE(said("E0002", "Instruction only available in V8M33"));
  EXPECT_TRUE(said("E0004", "Operand Rn must be a register"));
}

}  // namespace
