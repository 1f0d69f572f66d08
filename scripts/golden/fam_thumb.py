"""Families of the 16-bit Thumb instruction set, in unified syntax. They run
on every architecture: in plain Thumb they are the only encodings, in
Thumb-2 the unsuffixed lines must come out narrow, as the references have
them, and the `.N` lines are narrow by order."""
from entries import E, low

LOW = range(8)
ALU2 = ['AND', 'EOR', 'ADC', 'SBC', 'ROR', 'ORR', 'BIC', 'MVN']
CONDS16 = ['EQ', 'NE', 'CS', 'CC', 'MI', 'PL', 'VS', 'VC', 'HI', 'LS', 'GE', 'LT', 'GT', 'LE', 'HS', 'LO']


def _n(a, text, ref=None, note=None, follow=None):
    """The line, and on Thumb-2 its `.N` twin too."""
    out = [E(text, ref, note, follow=IMM3_T2 if a.t2 and follow is IMM3 else follow)]
    if a.t2:
        m, _, ops = text.partition(' ')
        rm, _, rops = (ref or text).partition(' ')
        out.append(E('%s.N %s' % (m, ops), '%s.n %s' % (low(rm), rops), note, follow=follow))
    return out


# Where the references differ, this assembler's choices.
IMM3 = ('gnu', 'Rd repeats: the two-operand form with its eight-bit field')
# On Thumb-2 an unsuffixed line keeps its three operands (two are filled in to
# three): the width trial finds the three-bit form first.
IMM3_T2 = ('llvm', 'three operands: the three-bit form')
ADD_HI = ('llvm', 'two registers: the high-register form of ADD')


def pairs(a, count):
    """`count` pairs of low registers: every register in both places, some equal."""
    out = [(d, s) for d, s in zip(range(8), [7, 0, 3, 5, 6, 2, 1, 4])]
    while len(out) < count:
        out.append(tuple(a.rng.sample(list(LOW), 2)))
    return [('R%d' % d, 'R%d' % s) for d, s in out[:count]]


def arith(a):
    """ADD, SUB, their flag-setting forms, and the SP and PC forms."""
    out = []
    for op in ['ADDS', 'SUBS']:
        for d, n in pairs(a, 10):
            m = a.regs(1, LOW)[0]
            out += _n(a, '%s %s, %s, %s' % (op, d, n, m))
        for imm in range(8):
            d, n = a.regs(2, LOW)
            out += _n(a, '%s %s, %s, #%d' % (op, d, n, imm))
        d = a.regs(1, LOW)[0]
        out += _n(a, '%s %s, %s, #%d' % (op, d, d, 3), follow=IMM3)
        for imm in [0, 1, 8, 100, 127, 128, 200, 254, 255]:
            d = a.regs(1, LOW)[0]
            if a.t2 and imm < 8:
                # Filled in to Rd, Rd, #imm: the three-bit form.
                rd = int(d[1:])
                want = '%04x' % ((0x1C00 if op == 'ADDS' else 0x1E00) | imm << 6 | rd << 3 | rd)
                out.append(E('%s %s, #%d' % (op, d, imm), want=want, note='filled in to three operands: the three-bit form'))
                out.append(E('%s.N %s, #%d' % (op, d, imm), '%s.n %s, #%d' % (low(op), d, imm)))
                continue
            out += _n(a, '%s %s, #%d' % (op, d, imm))
    # A negative immediate swaps ADD and SUB in the eight-bit form.
    for op, other in [('ADDS', 'SUBS'), ('SUBS', 'ADDS')]:
        for imm in [1, 8, 255]:
            d = a.regs(1, LOW)[0]
            out.append(E('%s %s, #-%d' % (op, d, imm), '%s %s, #%d' % (low(other), d, imm),
                         'becomes %s' % other))
    # The high-register ADD: any registers, flags unchanged.
    for d, m in [(8, 0), (0, 8), (9, 10), (15, 1), (1, 15), (14, 14), (13, 2), (12, 7), (7, 12), (11, 13)]:
        out += _n(a, 'ADD R%d, R%d' % (d, m))
    for d in a.regs(4, LOW):
        out += _n(a, 'ADD %s, SP, %s' % (d, d))
    for imm in [0, 4, 8, 256, 1016, 1020]:
        d = a.regs(1, LOW)[0]
        out += _n(a, 'ADD %s, SP, #%d' % (d, imm))
        d = a.regs(1, LOW)[0]
        if a.t2:
            out.append(E('ADD.N %s, PC, #%d' % (d, imm), follow=('gnu', 'the narrow form of ADR')))
        else:
            out.append(E('ADD %s, PC, #%d' % (d, imm)))
    # The 16-bit SUB takes low registers only: a negative ADD lowers SP.
    for imm in [0, 4, 16, 256, 504, 508]:
        out += _n(a, 'ADD SP, #%d' % imm)
        out += _n(a, 'ADD SP, SP, #%d' % imm)
        if imm:
            out += _n(a, 'ADD SP, #-%d' % imm, 'sub sp, #%d' % imm, 'becomes SUB')
    for r in ['R0', 'R5', 'R8', 'LR']:
        out += _n(a, 'ADD SP, %s' % r)
    out += _n(a, 'ADD R3, SP, R3') + _n(a, 'ADD SP, SP, R9')
    return out


def alu(a):
    """The two-operand ALU instructions, MUL, NEG, the shifts, CMP, CMN,
    TST and MOV."""
    out = []
    for op in ALU2:
        for d, m in pairs(a, 8):
            out += _n(a, '%sS %s, %s' % (op, d, m))
    for op in ['TST', 'CMN', 'CMP']:
        for d, m in pairs(a, 8):
            out += _n(a, '%s %s, %s' % (op, d, m))
    for d, m in pairs(a, 8):
        out += _n(a, 'MULS %s, %s, %s' % (d, m, d))
    for d, m in pairs(a, 6):
        out += _n(a, 'RSBS %s, %s, #0' % (d, m))
        out += _n(a, 'NEGS %s, %s' % (d, m), 'rsbs %s, %s, #0' % (d, m))
    for op, amounts in [('LSL', [0, 1, 5, 16, 31]), ('LSR', [1, 8, 31, 32]), ('ASR', [1, 17, 31, 32])]:
        for n in amounts:
            d, m = a.regs(2, LOW)
            out += _n(a, '%sS %s, %s, #%d' % (op, d, m, n))
        for d, m in pairs(a, 4):
            out += _n(a, '%sS %s, %s' % (op, d, m))
    for imm in [0, 1, 127, 128, 255]:
        d = a.regs(1, LOW)[0]
        out += _n(a, 'CMP %s, #%d' % (d, imm))
        d = a.regs(1, LOW)[0]
        out += _n(a, 'MOVS %s, #%d' % (d, imm))
    for d, m in [(8, 0), (0, 8), (9, 10), (14, 15), (1, 13), (13, 2), (12, 12)]:
        out += _n(a, 'CMP R%d, R%d' % (d, m)) if 15 not in (d, m) else []
        out += _n(a, 'MOV R%d, R%d' % (d, m))
    out += _n(a, 'MOV PC, LR') + _n(a, 'MOV R8, R8')
    # MOVS of two low registers is ADDS Rd, Rm, #0 here; the references
    # write LSLS Rd, Rm, #0.
    for d, m in pairs(a, 4):
        out.append(E('MOVS %s, %s' % (d, m), want='%04x' % (0x1C00 | int(m[1:]) << 3 | int(d[1:])),
                     note='ADDS %s, %s, #0' % (d, m)))
    if a.level >= 6:
        for d, m in [(0, 1), (7, 7), (2, 9), (10, 3), (11, 12), (14, 0)]:
            out += _n(a, 'MOV R%d, R%d' % (d, m))
            out.append(E('CPY R%d, R%d' % (d, m), 'mov r%d, r%d' % (d, m), 'CPY is MOV'))
    return out


def ldst(a):
    """Loads and stores of words, bytes and halfwords: immediate offsets
    with their edges, register offsets, SP and PC bases."""
    out = []
    for op, scale in [('LDR', 4), ('STR', 4), ('LDRB', 1), ('STRB', 1), ('LDRH', 2), ('STRH', 2)]:
        for off in [0, scale, 2 * scale, 16 * scale, 31 * scale]:
            t, n = a.regs(2, LOW)
            out += _n(a, '%s %s, [%s, #%d]' % (op, t, n, off))
        t, n = a.regs(2, LOW)
        out += _n(a, '%s %s, [%s]' % (op, t, n))
        for _ in range(3):
            t, n, m = a.regs(3, LOW)
            out += _n(a, '%s %s, [%s, %s]' % (op, t, n, m))
    for op in ['LDRSB', 'LDRSH']:
        for _ in range(4):
            t, n, m = a.regs(3, LOW)
            out += _n(a, '%s %s, [%s, %s]' % (op, t, n, m))
    for old, new in [('LDSB', 'ldrsb'), ('LDSH', 'ldrsh')]:
        t, n, m = a.regs(3, LOW)
        out.append(E('%s %s, [%s, %s]' % (old, t, n, m), '%s %s, [%s, %s]' % (new, t, n, m),
                     '%s is %s' % (old, new.upper())))
    for op in ['LDR', 'STR']:
        for off in [0, 4, 64, 1016, 1020]:
            t = a.regs(1, LOW)[0]
            out += _n(a, '%s %s, [SP, #%d]' % (op, t, off))
        out += _n(a, '%s R7, [SP]' % op)
    for off in [0, 4, 8, 512, 1020]:
        t = a.regs(1, LOW)[0]
        out += _n(a, 'LDR %s, [PC, #%d]' % (t, off))
    return out


def ldm(a):
    """PUSH, POP, LDMIA, STMIA and their other names."""
    out = []
    lists = ['{R0}', '{R7}', '{R0-R7}', '{R1, R3, R5}', '{R2-R4, R6}']
    for lst in lists + ['{R4-R7, LR}', '{LR}', '{R0, LR}']:
        out += _n(a, 'PUSH %s' % lst)
    for lst in lists + ['{R4-R7, PC}', '{PC}', '{R0, PC}']:
        out += _n(a, 'POP %s' % lst)
    for i, lst in enumerate(['{R1}', '{R0-R3}', '{R4-R7}', '{R0, R2, R4, R6}', '{R1-R7}']):
        n = [0, 5, 2, 7, 0][i]
        out += _n(a, 'STMIA R%d!, %s' % (n, lst), 'stm r%d!, %s' % (n, lst))
        out += _n(a, 'STM R%d!, %s' % (n, lst))
        out.append(E('STMEA R%d!, %s' % (n, lst), 'stm r%d!, %s' % (n, lst), 'STMEA is STMIA'))
        out += _n(a, 'LDMIA R%d!, %s' % (n, lst), 'ldm r%d!, %s' % (n, lst))
        out += _n(a, 'LDM R%d!, %s' % (n, lst))
        out.append(E('LDMFD R%d!, %s' % (n, lst), 'ldm r%d!, %s' % (n, lst), 'LDMFD is LDMIA'))
    # The base in the list: no write-back.
    for n, lst in [(0, '{R0, R1}'), (3, '{R0-R3}'), (7, '{R7}'), (4, '{R2, R4, R6}')]:
        out += _n(a, 'LDMIA R%d, %s' % (n, lst), 'ldm r%d, %s' % (n, lst))
        out += _n(a, 'LDM R%d, %s' % (n, lst))
    return out


def branch(a):
    """Branches with plain-number offsets (the offset itself), BX and BLX."""
    out = []
    for n in [0, 2, -2, 4, -4, 100, -100, 2046, -2048]:
        out += _n(a, 'B %d' % n, 'b {br:%d}' % n)
    for i, c in enumerate(CONDS16):
        for n in [(i - 8) * 16, 254, -256]:
            if a.t2:
                out += it_wrap(a, c, 'B%s %d' % (c, n), 'b%s {br:%d}' % (low(c), n), out_of_it=True)
            else:
                out.append(E('B%s %d' % (c, n), 'b%s {br:%d}' % (low(c), n)))
    for n in [0, 4, -4, 2, 0x1000, -0x1000, 0x3FFFFE, -0x400000]:
        out.append(E('BL %d' % n, 'bl {br:%d}' % n))
    for r in range(16):
        out.append(E('BX R%d' % r))
    out += [E('BX LR'), E('BX SP'), E('BX PC')]
    if a.level >= 5:
        for r in range(15):
            out.append(E('BLX R%d' % r))
        out.append(E('BLX LR'))
    if a.level >= 5 and not a.m:
        for n in [0, 4, -4, 8, 0x1000, -0x1000, 0x3FFFFC, -0x400000]:
            out.append(E('BLX %d' % n, 'blx {blx:%d}' % n))
    return out


def it_wrap(a, cond, src, ref, out_of_it=False):
    """A conditional line: in Thumb-2 inside an IT block of its own; a
    conditional branch also stands outside one (`out_of_it`)."""
    g = object()
    out = [E('IT %s' % cond, 'it %s' % low(cond), group=g), E(src, ref, group=g)]
    if out_of_it:
        out.append(E(src, ref))
    return out


def misc(a):
    """SVC, BKPT, NOP, the extends and byte reversals, CPS, SETEND, hints."""
    out = []
    for n in [0, 1, 0x7F, 0x80, 0xFF]:
        out += _n(a, 'SVC #%d' % n)
        if a.level >= 5:
            out += _n(a, 'BKPT #%d' % n)
    out.append(E('SVC #0x12', 'svc #0x12'))
    if a.t2 or a.name == 'v6m':
        out += _n(a, 'NOP', follow=('llvm', 'the Thumb-2 state: the hint NOP'))
        for h in ['SEV', 'WFE', 'WFI', 'YIELD']:
            out += _n(a, h)
        for n in [0, 1, 255]:
            out += _n(a, 'UDF #%d' % n)
    else:
        out.append(E('NOP', want='46c0', note='MOV R8, R8'))
    if a.level >= 6:
        for op in ['SXTB', 'SXTH', 'UXTB', 'UXTH', 'REV', 'REV16', 'REVSH']:
            for d, m in pairs(a, 8):
                out += _n(a, '%s %s, %s' % (op, d, m))
        for op in ['CPSIE', 'CPSID']:
            for f in (['i', 'f', 'if'] if a.m else ['i', 'f', 'if', 'a', 'aif', 'ai']):
                out.append(E('%s %s' % (op, f)))
        if not a.m:
            out += [E('SETEND BE'), E('SETEND LE')]
    return out


def state16(a):
    """Plain Thumb in the older syntax of `.state16`: no flag letters (the
    16-bit forms set flags anyway), two-operand ALU forms, SWI, CPY and the
    older load names. The references read the unified spelling."""
    out = []
    for d, n in pairs(a, 6):
        m = a.regs(1, LOW)[0]
        out += [E('ADD %s, %s, %s' % (d, n, m), 'adds %s, %s, %s' % (d, n, m)),
                E('SUB %s, %s, %s' % (d, n, m), 'subs %s, %s, %s' % (d, n, m)),
                E('ADD %s, %s, #5' % (d, n), 'adds %s, %s, #5' % (d, n)),
                E('SUB %s, #200' % d, 'subs %s, #200' % d), E('MOV %s, #%d' % (d, 17 * int(n[1:])),
                                                              'movs %s, #%d' % (d, 17 * int(n[1:])))]
        for op in ALU2 + ['MUL']:
            ref = 'muls %s, %s, %s' % (d, n, d) if op == 'MUL' else '%ss %s, %s' % (low(op), d, n)
            out.append(E('%s %s, %s' % (op, d, n), ref))
        for op in ['TST', 'CMN', 'CMP']:
            out.append(E('%s %s, %s' % (op, d, n)))
        out += [E('NEG %s, %s' % (d, n), 'rsbs %s, %s, #0' % (d, n)),
                E('LSL %s, %s, #3' % (d, n), 'lsls %s, %s, #3' % (d, n)),
                E('LSR %s, %s, #32' % (d, n), 'lsrs %s, %s, #32' % (d, n)),
                E('ASR %s, %s' % (d, n), 'asrs %s, %s' % (d, n))]
        m = a.regs(1, LOW)[0]
        out += [E('LDSB %s, [%s, %s]' % (d, n, m), 'ldrsb %s, [%s, %s]' % (d, n, m)),
                E('LDSH %s, [%s, %s]' % (d, n, m), 'ldrsh %s, [%s, %s]' % (d, n, m)),
                E('LDRSB %s, [%s, %s]' % (d, n, m)), E('LDRB %s, [%s, #7]' % (d, n))]
    out += [E('ADD R8, R9'), E('MOV R10, R2'), E('CMP R11, R3'), E('ADD SP, #-8', 'sub sp, #8', 'becomes SUB'),
            E('ADD R0, #-1', 'subs r0, #1', 'becomes SUB'), E('SUB R1, #-2', 'adds r1, #2', 'becomes ADD')]
    for n in [0, 1, 0xFF]:
        out.append(E('SWI #%d' % n, 'svc #%d' % n, 'SWI is SVC'))
    if a.level >= 6:
        out += [E('CPY R0, R1', 'mov r0, r1', 'CPY is MOV'), E('CPY R9, R2', 'mov r9, r2', 'CPY is MOV')]
    out.append(E('NOP', want='46c0', note='MOV R8, R8'))
    return out
