"""Families of the base instruction set: data processing, shifts, multiplies,
branches, ADR and the register names."""
from entries import CONDS, E, lab, low, raw

DP3 = ['AND', 'EOR', 'SUB', 'RSB', 'ADD', 'ADC', 'SBC', 'RSC', 'ORR', 'BIC']
DP_CMP = ['TST', 'TEQ', 'CMP', 'CMN']
IMMS = ['#0', '#255', '#0x100', '#0x3FC', '#0xFF000000', '#0xF000000F', '#0x00AB0000', '#0x80000000',
        '#1020', '#0x104']
SHIFT_IMM = ['LSL #1', 'LSL #31', 'LSR #1', 'LSR #32', 'ASR #1', 'ASR #32', 'ROR #1', 'ROR #31', 'RRX',
             'lsl #5', 'asr #17']
SHIFT_REG = ['LSL', 'LSR', 'ASR', 'ROR']


def _operand_forms(a, op, shape):
    """Every second-operand shape of one data-processing mnemonic."""
    out = []

    def line(op2, regs):
        if shape == 3:
            return '%s %s, %s, %s' % (op, regs[0], regs[1], op2)
        return '%s %s, %s' % (op, regs[0], op2)

    for imm in a.some(IMMS):
        out.append(E(line(imm, a.regs(2))))
    r = a.regs(3)
    out.append(E(line(r[2], r)))
    for sh in a.some(SHIFT_IMM):
        r = a.regs(3)
        out.append(E(line('%s, %s' % (r[2], sh), r)))
    for sh in a.some(SHIFT_REG, 0.5):
        r = a.regs(4)
        out.append(E(line('%s, %s %s' % (r[2], sh, r[3]), r)))
    return out


def dp(a):
    out = []
    for op in DP3:
        out += _operand_forms(a, op, 3)
        r = a.regs(3)
        out.append(E('%sS %s, %s, %s' % (op, r[0], r[1], r[2])))
        r = a.regs(2)
        out.append(E('%sS %s, %s, #0x3F0' % (op, r[0], r[1])))
    for op in ['MOV', 'MVN']:
        out += _operand_forms(a, op, 2)
        r = a.regs(2)
        out.append(E('%sS %s, %s, LSR #32' % (op, r[0], r[1])))
    for op in DP_CMP:
        out += _operand_forms(a, op, 2)
    out += [E('CPY R0, R1', 'mov r0, r1', 'CPY is MOV'), E('CPYEQ R14, R2', 'moveq r14, r2', 'CPY is MOV'),
            E('CPY R3, #1', 'mov r3, #1', 'CPY is MOV')]
    # Registers 0, 14 and 15 where the instruction allows them.
    out += [E('ADD R0, R0, R0'), E('ADD R14, R14, R14'), E('ADD R0, PC, #8'), E('SUB R1, PC, #0x400'),
            E('MOV PC, LR'), E('MOVS PC, LR'), E('SUBS PC, LR, #4'), E('ADD PC, R0, R1, LSL #2'),
            E('MOV R0, PC'), E('ORR R14, R0, PC, LSL #3'), E('CMP PC, R0'), E('TEQ R14, #0xFF')]
    # Negative immediates: the instruction changes to its counterpart.
    out += [E('ADD R0, R1, #-1', 'sub r0, r1, #1', 'becomes SUB'),
            E('ADDS R2, R3, #-256', 'subs r2, r3, #256', 'becomes SUBS'),
            E('ADD R4, R5, #0xFFFFFF00', 'sub r4, r5, #256', 'becomes SUB'),
            E('SUB R0, R1, #-4', 'add r0, r1, #4', 'becomes ADD'),
            E('SUBEQ R6, R7, #-0x10000', 'addeq r6, r7, #0x10000', 'becomes ADD'),
            E('CMP R0, #-1', 'cmn r0, #1', 'becomes CMN'),
            E('CMP R9, #-0x3FC', 'cmn r9, #0x3FC', 'becomes CMN'),
            E('CMN R0, #-1', 'cmp r0, #1', 'becomes CMP'),
            E('CMNNE R3, #0xFFFFFF01', 'cmpne r3, #255', 'becomes CMP')]
    # A shift by 0 is no shift, whatever its type.
    out += [E('MOV R0, R1, LSR #0', 'mov r0, r1', 'a shift by 0 is no shift'),
            E('ADD R2, R3, R4, ASR #0', 'add r2, r3, r4', 'a shift by 0 is no shift'),
            E('EOR R5, R6, R7, ROR #0', 'eor r5, r6, r7', 'a shift by 0 is no shift'),
            E('SUB R8, R9, R10, LSL #0', 'sub r8, r9, r10')]
    # Every condition, with the flag letter before it (unified order) and
    # after it (the older order).
    for i, c in enumerate(CONDS):
        op = DP3[i % len(DP3)]
        r = a.regs(3)
        out.append(E('%s%s %s, %s, %s' % (op, c, r[0], r[1], r[2])))
        out.append(E('%sS%s %s, %s, #%d' % (op, c, r[0], r[1], 4 << (2 * (i % 12))),
                     '%ss%s %s, %s, #%d' % (low(op), low(c), r[0], r[1], 4 << (2 * (i % 12)))))
        out.append(E('%s%sS %s, %s, %s, LSL #%d' % (op, c, r[0], r[1], r[2], i + 1),
                     '%ss%s %s, %s, %s, lsl #%d' % (low(op), low(c), r[0], r[1], r[2], i + 1)))
        m = ['MOV', 'MVN'][i % 2]
        out.append(E('%s%sS %s, %s' % (m, c, r[0], r[1]), '%ss%s %s, %s' % (low(m), low(c), r[0], r[1])))
        out.append(E('%s%s %s, #%d' % (DP_CMP[i % 4], c, r[0], i * 3)))
    return out


def movw_forms(a):
    """MOVW, MOVT, and MOV of a value that no rotated byte holds."""
    out = []
    for v in ['#0', '#1', '#0xFFFF', '#0x1234', '#43981', '#0x8000']:
        r = a.regs(1)
        out.append(E('MOVW %s, %s' % (r[0], v)))
        out.append(E('MOVT %s, %s' % (r[0], v)))
    for c in ['EQ', 'NE', 'GT', 'LE']:
        out.append(E('MOVW%s R14, #0xABCD' % c))
        out.append(E('MOVT%s R0, #0x5555' % c))
    for v in ['0x1234', '0xFFFF', '0x101', '0x8001', '4097']:
        r = a.regs(1)
        out.append(E('MOV %s, #%s' % (r[0], v), 'movw %s, #%s' % (r[0], v), 'becomes MOVW'))
    out.append(E('MOVNE R3, #0x4321', 'movwne r3, #0x4321', 'becomes MOVW'))
    out.append(E('MOV R3, #0x10000', 'mov r3, #0x10000', 'a rotated byte: no MOVW'))
    return out


def shifts(a):
    """The shift mnemonics of unified syntax: MOV with a shifted register."""
    out = []
    for op, amounts in [('LSL', [1, 7, 31]), ('LSR', [1, 16, 32]), ('ASR', [1, 31, 32]), ('ROR', [1, 8, 31])]:
        for n in amounts:
            r = a.regs(2)
            out.append(E('%s %s, %s, #%d' % (op, r[0], r[1], n)))
        r = a.regs(3)
        out.append(E('%s %s, %s, %s' % (op, r[0], r[1], r[2])))
        r = a.regs(2)
        out.append(E('%sS %s, %s, #2' % (op, r[0], r[1])))
        out.append(E('%sS %s, %s, %s' % (op, r[0], r[1], r[0])))
        r = a.regs(1)
        out.append(E('%s %s, #3' % (op, r[0]), '%s %s, %s, #3' % (low(op), r[0], r[0]), 'two operands: Rd repeats'))
        r = a.regs(2)
        out.append(E('%s %s, %s' % (op, r[0], r[1]), '%s %s, %s, %s' % (low(op), r[0], r[0], r[1]),
                     'two operands: Rd repeats'))
        for c in ['EQ', 'MI', 'HI', 'GE']:
            r = a.regs(2)
            out.append(E('%s%s %s, %s, #4' % (op, c, r[0], r[1])))
            out.append(E('%sS%s %s, %s, #5' % (op, c, r[0], r[1]),
                         '%ss%s %s, %s, #5' % (low(op), low(c), r[0], r[1])))
            out.append(E('%s%sS %s, %s, #6' % (op, c, r[0], r[1]),
                         '%ss%s %s, %s, #6' % (low(op), low(c), r[0], r[1])))
    out.append(E('LSL R0, R1, #0', 'mov r0, r1'))
    for r in ['R0', 'R7', 'R14']:
        out.append(E('RRX %s, R2' % r))
        out.append(E('RRXS %s, R3' % r))
    out += [E('RRXEQ R4, R5'), E('RRXSNE R6, R7', 'rrxsne r6, r7'), E('RRXCCS R8, R9', 'rrxscc r8, r9')]
    return out


def mul(a):
    out = []
    v5 = a.level >= 5   # below v5E Rd must differ from Rm

    def three():
        return a.regs(3, range(15))

    for _ in range(6):
        r = three()
        out.append(E('MUL %s, %s, %s' % tuple(r)))
        r = a.regs(4)
        out.append(E('MLA %s, %s, %s, %s' % tuple(r)))
    out += [E('MULS R0, R1, R2'), E('MLAS R14, R13, R12, R11'), E('MUL R14, R0, R14'), E('MLA R0, R14, R0, R1')]
    if v5:
        out += [E('MUL R3, R3, R4'), E('MLA R5, R5, R6, R7')]
    longs = ['UMULL', 'UMLAL', 'SMULL', 'SMLAL']
    for op in longs:
        for _ in range(3):
            r = a.regs(4)
            out.append(E('%s %s, %s, %s, %s' % ((op,) + tuple(r))))
        out.append(E('%sS R0, R1, R2, R3' % op))
        out.append(E('%s R14, R0, R1, R14' % op))
    for i, c in enumerate(CONDS):
        r = a.regs(4)
        op = ['MUL', 'MLA', 'UMULL', 'UMLAL', 'SMULL', 'SMLAL'][i % 6]
        n = 3 if op == 'MUL' else 4
        regs = ', '.join(r[:n])
        out.append(E('%s%s %s' % (op, c, regs)))
        out.append(E('%sS%s %s' % (op, c, regs), '%ss%s %s' % (low(op), low(c), regs)))
        out.append(E('%s%sS %s' % (op, c, regs), '%ss%s %s' % (low(op), low(c), regs)))
    if a.level >= 7:
        for _ in range(4):
            r = a.regs(4)
            out.append(E('MLS %s, %s, %s, %s' % tuple(r)))
        out += [E('MLSEQ R0, R1, R2, R3'), E('MLSLT R14, R0, R1, R2'), E('MLS R14, R14, R14, R14')]
    return out


def branch(a):
    out = []
    offsets = [0, 8, -8, 4, -4, 0x100, -0x1000, 0x1FFFFFC, -0x2000000, 0x7FFFF0]
    for n in offsets:
        out.append(E('B %d' % n, 'b {br:%d}' % n))
        out.append(E('BL %d' % n, 'bl {br:%d}' % n))
    for i, c in enumerate(CONDS):
        n = (i - 8) * 64
        out.append(E('B%s %d' % (c, n), 'b%s {br:%d}' % (low(c), n)))
        out.append(E('BL%s %d' % (c, n + 4), 'bl%s {br:%d}' % (low(c), n + 4)))
    out += [E('BLE 16', 'ble {br:16}', 'BLE is B with LE'), E('BLLE 16', 'blle {br:16}'),
            E('BLS -16', 'bls {br:-16}', 'BLS is B with LS'), E('BLLS -16', 'blls {br:-16}'),
            E('BLT 0', 'blt {br:0}'), E('BLO 0', 'blo {br:0}'), E('BLLO 32', 'bllo {br:32}')]
    out += [E('CRET 8', 'b {br:8}', 'CRET is a B'), E('CRETEQ -8', 'beq {br:-8}', 'CRET is a B')]
    for r in ['R0', 'R7', 'LR', 'R14', 'PC']:
        out.append(E('BX %s' % r))
    out += [E('BXEQ R1'), E('BXNE LR'), E('BXGT R12')]
    if a.level >= 5:
        # A written BLX takes the offset with 1-bit scaling into the 24-bit
        # field, without the H bit: no reference encodes it so.
        for n in [0, 2, 8, -2, -8, 0x1000, 0xFFFFFE, -0x1000000]:
            out.append(E('BLX %d' % n, want=0xFA000000 | (n >> 1) & 0xFFFFFF,
                         note='1-bit scaling in the 24-bit field, no H bit'))
        for r in ['R0', 'R3', 'R12', 'LR']:
            out.append(E('BLX %s' % r))
        out += [E('BLXEQ R2'), E('BLXMI R5'), E('BLXAL R6')]
    if a.level >= 6:
        out += [E('BXJ R0'), E('BXJ R14'), E('BXJNE R3')]
    return out


def adr(a):
    out = []
    for n in [8, -8, 4, 0x400, -0x400, 1020, -1020, 0x10000, 0xFF0, -0xFF0]:
        r = a.regs(1)
        out.append(E('ADR %s, #%d' % (r[0], n), 'adr %s, {adrn:%d}' % (r[0], n)))
    out += [lab('back'), E('ADD R0, R0, R0'), E('ADR R1, back', 'adr r1, {imm:back}'),
            E('ADR R2, back', 'adr r2, {imm:back}'), E('ADREQ R3, fwd', 'adreq r3, {imm:fwd}'),
            E('ADR R14, fwd', 'adr r14, {imm:fwd}'), E('ADRNE PC, fwd', 'adrne pc, {imm:fwd}'),
            E('ADR R4, fwd', 'adr r4, {imm:fwd}'), lab('fwd'), E('ADR R5, fwd', 'adr r5, {imm:fwd}'),
            E('ADR R6, back', 'adr r6, {imm:back}')]
    return out


def regnames(a):
    names = [('A1', 'r0'), ('A2', 'r1'), ('A3', 'r2'), ('A4', 'r3'), ('V1', 'r4'), ('V2', 'r5'), ('V3', 'r6'),
             ('V4', 'r7'), ('V5', 'r8'), ('V6', 'r9'), ('V7', 'r10'), ('V8', 'r11'), ('V9', 'r12'),
             ('AP', 'r7'), ('IP', 'r12'), ('SP', 'r13'), ('LR', 'r14'), ('PC', 'r15'), ('R13', 'r13'),
             ('r5', 'r5'), ('sp', 'r13'), ('lr', 'r14'), ('ip', 'r12'), ('a1', 'r0'), ('v9', 'r12'),
             ('ap', 'r7')]
    out = []
    for i, (n, r) in enumerate(names):
        other = ['R1', 'R2', 'R3'][i % 3]
        out.append(E('ADD %s, %s, %s' % (n if r != 'r15' else 'R0', other, n),
                     'add %s, %s, %s' % (r if r != 'r15' else 'r0', other, r)))
    out += [E('mov r0, r1'), E('Mov R2, r3'), E('add r4, r5, #0x10'), E('ldr r0, [r1, #4]'),
            E('addeq r0, r1, r2'), E('ldreqb r3, [r4]', 'ldrbeq r3, [r4]'), E('movseq r0, r1')]
    return out


def expr(a):
    return [raw('VAL     .set    0x10'), raw('SH      .equ    3'), raw('NEG     .set    -8'),
            E('ADD R0, R1, #(1 << 8) + 4', 'add r0, r1, #260'), E('ADD R0, R1, #VAL * 2', 'add r0, r1, #32'),
            E('MOV R2, R3, LSL #SH', 'mov r2, r3, lsl #3'), E('LDR R4, [R5, #VAL - 4]', 'ldr r4, [r5, #12]'),
            E('LDR R4, [R5, #NEG]', 'ldr r4, [r5, #-8]'), E('STRH R6, [R7, #NEG * 2]!', 'strh r6, [r7, #-16]!'),
            E('ADD R0, R1, #LATER', 'add r0, r1, #12', 'defined further down'),
            E("SUB R0, R1, #'A'", 'sub r0, r1, #65'), E('ORR R0, R1, #0x0F0 | 0xF00', 'orr r0, r1, #0xff0'),
            E('MOV R0, #-1 & 0xFF', 'mov r0, #255'), E('ADD R0, R1, #10 % 3', 'add r0, r1, #1'),
            E('CMP R0, #-VAL', 'cmn r0, #16', 'becomes CMN'), E('ADD R0, R1, #R3', 'add r0, r1, #3', '#R3 is 3'),
            E('LDR R0, [R1, R2, LSL #0]', 'ldr r0, [r1, r2]', 'a shift by 0 is no shift'),
            E('LDR R0, [R1, -R2, LSR #0]', 'ldr r0, [r1, -r2]', 'a shift by 0 is no shift'),
            E('SWI #VAL + 1', 'svc #17'), E('B VAL', 'b {br:16}'), E('BNE LATER * 4', 'bne {br:48}'),
            E('MRC p15, #SH - 3, R0, c1, c0, #SH', 'mrc p15, #0, r0, c1, c0, #3'),
            E('MOV R0, #VAL << 24', 'mov r0, #0x10000000'), E('MVN R1, #LATER', 'mvn r1, #12'),
            raw('LATER   .set    12')]
