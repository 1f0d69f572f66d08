// Operand shapes: registers with shifts and lanes, immediates, expressions,
// status registers, coprocessor names, addresses and register lists.
#include "parse_fixture.h"

#include <cstring>

#include "target/arm/opcodes.h"

namespace {

using Operands = ParseTest;

struct operand_case {
  const char *line;
  int index;
  const char *shape;              // ParseTest::describe
  const char *message = nullptr;  // "[id] text" that the line must give; else none
};

const operand_case cases[] = {
    // Registers of every class, shifts, lanes.
    {"add r0, r1, r2, lsl #3", 2, "SHI r2 LSL =3"},
    {"mov r0, r1, ASR r12", 1, "SHR r1 ASR =12"},
    {"mov r0, r1, rrx", 1, "SHI r1 RRX =0"},
    {"mov r0, r1, ror #0", 1, "SHI r1 LSL =0"},  // any shift by 0 is LSL #0
    {"mov r0, r1, asl #31", 1, "SHI r1 LSL =31"},
    {"mla r0, r1, r2, r3", 3, "REG r3 =3"},      // no shift name: the next operand
    {"bx v8", 0, "REG r11 =11"},
    {"bx s31", 0, "SREG r31 =31"},
    {"bx fpexc", 0, "VFPSYS r8 =8"},
    {"bx c7", 0, "CPREG r7 =7"},
    {"bx p15", 0, "CPID r15 =15"},
    {"bx cpsr", 0, "PSR r0 =256"},
    {"bx primask", 0, "MSYS r16 =16"},
    {"vmov r0, d3[1]", 1, "DREG r3 =3 [1]"},
    {"vmov r0, d17[]", 1, "DREG r17 =17 [-1]"},
    {"vmov r0, q3[]", 1, "QREG r3 =3 [-1]"},
    {"ldm r0^, {r1}", 0, "REG r0 =0 ^"},
    {"mov r0, r1, lsl pc", 1, "NONE r1 LSL =1", "[E0004] R15 (PC) cannot specify register shift amount"},
    {"mov r0, r1, lsl s2", 1, "NONE r1 LSL =1", "[E0004] Illegal operands for a shifted register"},
    {"vmov r0, q3[1]", 1, "NONE r0 =0", "[E0003] Invalid register indexing. Must be one of Dd[x], Dd[], Qd[]"},
    // Immediates and expressions.
    {"mov r0, #-1", 1, "ICON r0 =-1"},
    {"mov r0, #R3", 1, "ICON r0 =3"},
    {"mov r0, #p14", 1, "ICON r0 =14"},
    {"mov r0, #(2+3)*4", 1, "ICON r0 =20"},
    {"b 0x100", 0, "SYM r0 =256"},
    {"mov r0, #nowhere", 1, "NONE r0 =0", "[E0001] Undefined symbol"},
    {"mov r0, #cpsr", 1, "NONE r0 =0", "[E0004] Expression must evaluate to an absolute constant"},
    {"mov r0, #1.5", 1, "NONE r0 =0", "[E0201] Illegal floating-point expression"},
    {"add r0, , r1", 1, "NONE r0 =0", "[E0005] Operand missing"},
    {"add r0, , r1", 2, "REG r1 =1", "[E0005] Operand missing"},
    {"b somewhere", 0, "SYM r0 =0", "[E0001] Undefined symbol"},
    {"b 1.5", 0, "NONE r0 =0", "[E0001] Illegal symbol"},
    // Status register fields.
    {"msr CPSR_fc, r0", 0, "PSRF r0 =257 m9"},
    {"msr spsr_sx, r0", 0, "PSRF r0 =513 m6"},
    {"msr APSR_nzcvqg, r0", 0, "APSRF r0 =769 m63"},
    {"msr cpsr_all, r0", 0, "PSRF r0 =257 m9", "[W0000] Deprecated use of PSR; use \"cf\" instead of \"all\""},
    {"msr cpsr_flg, r0", 0, "PSRF r0 =257 m8", "[W0000] Deprecated use of PSR; use \"f\" instead of \"flg\""},
    {"msr cpsr_fk, r0", 0, "NONE r0 =0", "[E0004] Illegal PSR field specifier: 'k'"},
    // Addresses.
    {"ldr r0, [r1]", 1, "IND r1 r0 =0"},
    {"ldr r0, [r1, #-4]!", 1, "PREE r1 r0 =-4 !"},
    {"ldr r0, [r1, -r2, lsl #2]!", 1, "PRES r1 r2 LSL =2 - !"},
    {"ldr r0, [r1, +r2]", 1, "PRES r1 r2 =0"},
    {"ldr r0, [r1], #4", 1, "POSTE r1 r0 =4"},
    {"ldr r0, [r1], r2, asr #32", 1, "POSTS r1 r2 ASR =32"},
    {"ldr r0, [r1], r2, rrx", 1, "POSTS r1 r2 RRX =0"},
    {"ldc p1, c2, [r1], {5}", 2, "OPT r1 r0 =5"},
    {"vld1.8 {d0}, [r1@64], r2", 1, "POSTS r1 r2 =0"},
    {"ldr r0, [r1", 1, "IND r1 r0 =0", "[W0000] Missing right bracket, one assumed"},
    {"ldr r0, [r1, #4", 1, "PREE r1 r0 =4", "[W0000] Missing right bracket, one assumed"},
    {"ldc p1, c2, [r1], {5", 2, "OPT r1 r0 =5", "[W0000] Missing right brace, one assumed"},
    {"ldr r0, [s1]", 1, "NONE r0 =0", "[E0003] Invalid base register"},
    {"ldr r0, [r1, 4]", 1, "NONE r0 =0", "[E0003] Invalid shift register"},
    {"ldr r0, [r1, pc]", 1, "NONE r0 =0", "[E0004] Register offset (Rm) cannot be R15 (PC)"},
    {"ldr r0, [r1, r2, lsl r3]", 1, "NONE r0 =0", "[E0004] Shift amount cannot be specified with a register"},
    {"vld1.8 {d0}, [r1@48]", 1, "NONE r0 =0", "[E0002] Illegal Alignment"},
    {"ldr r0, [s1, #4], r2", 2, "none", "[E0003] Invalid base register"},  // the rest of it goes too
    // Register lists.
    {"ldmfd sp!, {r0-r3, lr}^", 1, "LIST r0 r14 =16399 ^"},
    {"vpush {d8-d15}", 0, "DLIST r8 r15 =65280"},
    {"vld1.8 {q1, q2}, [r0]", 0, "QLIST r1 r2 =6"},
    {"vld1.8 {d0[2], d1[2]}, [r0]", 0, "DLIST r0 r1 =3 [2]"},
    {"vld1.8 {d0[]-d1[]}, [r0]", 0, "DLIST r0 r1 =3 [-1]"},
    {"fldmias r0, {s1-s3}", 1, "LIST r1 r3 =14"},
    {"ldm r0, {}", 1, "LIST r0 =0", "[W0000] Register list is empty"},
    {"ldm r0, {r3-r0}", 1, "NONE r0 =0", "[E0003] Invalid register range"},
    {"ldm r0, {r0, s1}", 1, "NONE r0 =0", "[E0003] Invalid register"},
    {"ldm r0, {r0, nothing}", 1, "NONE r0 =0", "[E0003] Invalid register"},
    {"ldm r0, {r0 r1}", 1, "NONE r0 =0", "[E0003] Invalid register list"},
    {"ldm r0, {r0, r1", 1, "NONE r0 =0", "[E0003] Invalid register list"},
    // CPS letters.
    {"cpsie aif, #16", 0, "CPS r0 aif"},
    {"cpsie aif, #16", 1, "ICON r0 =16"},
    {"cps #16", 0, "ICON r0 =16"},
    {"cpsid a_1", 0, "NONE r0 =0", "[E0003] Operand must be a CPS flag concatenation."},
};

TEST_F(Operands, Shapes) {
  for (const operand_case &c : cases) {
    target(std::strncmp(c.line, "cps", 3) == 0 ? "6" : "7A8", 0);
    ASSERT_NE(parse(c.line), nullptr) << c.line;
    EXPECT_EQ(describe(c.index), c.shape) << c.line;
    if (c.message) EXPECT_NE(screen().find(c.message), std::string::npos) << c.line << ": " << screen();
    else EXPECT_EQ(screen(), "") << c.line;
  }
}

TEST_F(Operands, StatusFieldsByArchitectureAndState) {
  target("7A8", 2);  // Thumb-2 refuses the old field names
  parse("msr cpsr_all, r0");
  EXPECT_NE(screen().find("[E0004] Deprecated use of PSR; use \"cf\" instead of \"all\""), std::string::npos);
  target("7M3", 2);  // Cortex-M: no deprecation, letters unchecked
  parse("msr cpsr_all, r0");
  EXPECT_EQ(screen(), "");
  parse("msr cpsr_fk, r0");
  EXPECT_EQ(describe(0), "PSRF r0 =257 m8");
  EXPECT_EQ(screen(), "");
}

TEST_F(Operands, AlignmentOfTheStatement) {
  cur_suffixes.align = 0;
  parse("vld1.8 {d0}, [r1@128]");
  EXPECT_EQ(cur_suffixes.align, 8u);
}

}  // namespace
