"""Families of memory access: loads and stores of every size and addressing
mode, pc-relative forms, preloads, multiple transfers, swaps, exclusives."""
from entries import CONDS, E, lab, low

WORD_MODES = ['[{n}]', '[{n}, #0]', '[{n}, #4095]', '[{n}, #-4095]', '[{n}, #1]', '[{n}, #-256]',
              '[{n}, #4]!', '[{n}, #-4095]!', '[{n}], #4095', '[{n}], #-1', '[{n}], #0',
              '[{n}, {m}]', '[{n}, -{m}]', '[{n}, +{m}]', '[{n}, {m}, LSL #2]', '[{n}, -{m}, LSR #32]',
              '[{n}, {m}, ASR #1]', '[{n}, {m}, ROR #31]', '[{n}, -{m}, RRX]', '[{n}, {m}]!',
              '[{n}, -{m}, LSL #31]!', '[{n}], {m}', '[{n}], -{m}', '[{n}], {m}, ASR #32', '[{n}], -{m}, ROR #4']
HALF_MODES = ['[{n}]', '[{n}, #0]', '[{n}, #255]', '[{n}, #-255]', '[{n}, #0x80]!', '[{n}, #-1]!',
              '[{n}], #255', '[{n}], #-16', '[{n}, {m}]', '[{n}, -{m}]', '[{n}, {m}]!', '[{n}, -{m}]!',
              '[{n}], {m}', '[{n}], -{m}']
DUAL_MODES = ['[{n}]', '[{n}, #8]', '[{n}, #-255]', '[{n}, #255]', '[{n}, #16]!', '[{n}], #-8',
              '[{n}, {m}]', '[{n}, -{m}]', '[{n}, {m}]!', '[{n}], {m}', '[{n}], -{m}']


def _addr(a, mode, exclude=()):
    n, m = a.regs(2, [r for r in range(15) if r not in exclude])
    return mode.format(n=n, m=m)


def ldst(a):
    out = []
    for op in ['LDR', 'STR', 'LDRB', 'STRB']:
        for mode in a.some(WORD_MODES):
            t = a.regs(1)[0]
            out.append(E('%s %s, %s' % (op, t, _addr(a, mode, [int(t[1:])]))))
    # Old order puts the condition before B and T, unified order after them.
    for i, c in enumerate(CONDS):
        t, n = a.regs(2)
        out.append(E('LDR%s %s, [%s, #%d]' % (c, t, n, i * 4)))
        out.append(E('STR%s %s, [%s], #-%d' % (c, t, n, i + 1)))
        out.append(E('LDR%sB %s, [%s]' % (c, t, n), 'ldrb%s %s, [%s]' % (low(c), t, n)))
        out.append(E('LDRB%s %s, [%s]' % (c, t, n)))
        out.append(E('STR%sB %s, [%s, #-%d]' % (c, t, n, i + 1), 'strb%s %s, [%s, #-%d]' % (low(c), t, n, i + 1)))
        out.append(E('STRB%s %s, [%s, #%d]!' % (c, t, n, i + 1)))
    for op in ['LDRT', 'STRT', 'LDRBT', 'STRBT']:
        for mode in ['[{n}], #4', '[{n}], #-4095', '[{n}], {m}', '[{n}], -{m}, LSL #4', '[{n}], {m}, ASR #32']:
            t = a.regs(1)[0]
            out.append(E('%s %s, %s' % (op, t, _addr(a, mode, [int(t[1:])]))))
    for c in ['EQ', 'NE', 'HS', 'LT']:
        out.append(E('LDR%sT R0, [R1], #8' % c, 'ldrt%s r0, [r1], #8' % low(c)))
        out.append(E('LDRT%s R2, [R3], #-8' % c, 'ldrt%s r2, [r3], #-8' % low(c)))
        out.append(E('STR%sBT R4, [R5], R6' % c, 'strbt%s r4, [r5], r6' % low(c)))
        out.append(E('STRBT%s R7, [R8], -R9' % c, 'strbt%s r7, [r8], -r9' % low(c)))
    # An offset of -0 is a value like any other, not a subtraction.
    out += [E('STR R0, [R1, #-0]', 'str r0, [r1, #0]', '#-0 adds'),
            E('LDRB R2, [R3], #-0', 'ldrb r2, [r3], #0', '#-0 adds')]
    # Registers 0, 14 and 15 where they are allowed.
    out += [E('LDR R0, [R0]'), E('LDR R14, [R14, #-4]'), E('LDR PC, [SP], #4'), E('LDR PC, [R0, R1, LSL #2]'),
            E('LDR R0, [PC, #-8]'), E('LDR R1, [PC, #4095]'), E('LDR R2, [PC, R3]'), E('STR R14, [SP, #-4]!'),
            E('STR R0, [R14], R0'), E('LDRB R14, [R0, -R14]')]
    return out


def ldst_half(a):
    out = []
    for op in ['LDRH', 'STRH', 'LDRSB', 'LDRSH']:
        for mode in a.some(HALF_MODES, 0.6):
            t = a.regs(1)[0]
            out.append(E('%s %s, %s' % (op, t, _addr(a, mode, [int(t[1:])]))))
    for i, c in enumerate(CONDS):
        t, n = a.regs(2)
        for op in ['H', 'SH', 'SB']:
            out.append(E('LDR%s%s %s, [%s, #%d]' % (c, op, t, n, i * 3),
                         'ldr%s%s %s, [%s, #%d]' % (low(op), low(c), t, n, i * 3)))
            out.append(E('LDR%s%s %s, [%s], #-%d' % (op, c, t, n, i + 1)))
        out.append(E('STR%sH %s, [%s]' % (c, t, n), 'strh%s %s, [%s]' % (low(c), t, n)))
        out.append(E('STRH%s %s, [%s, -%s]' % (c, t, n, t)))
    # Suffixes where H, S and a condition meet: the letters must not eat the condition.
    out += [E('LDRHIH R0, [R1]', 'ldrhhi r0, [r1]'), E('LDRHHI R0, [R1]', 'ldrhhi r0, [r1]'),
            E('LDRHSH R2, [R3]', 'ldrhhs r2, [r3]'), E('LDRHHS R2, [R3]', 'ldrhhs r2, [r3]'),
            E('LDRSBHI R4, [R5]', 'ldrsbhi r4, [r5]'), E('LDRHISB R4, [R5]', 'ldrsbhi r4, [r5]'),
            E('LDRSHHS R6, [R7]', 'ldrshhs r6, [r7]'), E('LDRHSSH R6, [R7]', 'ldrshhs r6, [r7]'),
            E('STRHIH R8, [R9]', 'strhhi r8, [r9]'), E('LDRHI R10, [R11]', 'ldrhi r10, [r11]'),
            E('LDRHS R12, [R0]', 'ldrhs r12, [r0]'), E('LDRSHLS R1, [R2]', 'ldrshls r1, [r2]')]
    out += [E('LDRH R0, [R0]'), E('LDRH R14, [R14, #2]'), E('LDRSH R0, [PC, #-8]'), E('LDRSB R1, [PC, #255]'),
            E('STRH R14, [SP, #-2]!')]
    return out


def ldst_dual(a):
    out = []
    pairs = [0, 2, 4, 6, 8, 10]
    for op in ['LDRD', 'STRD']:
        for mode in DUAL_MODES:
            t = a.pick(pairs)
            addr = _addr(a, mode, [t, t + 1])
            out.append(E('%s R%d, R%d, %s' % (op, t, t + 1, addr)))
            t = a.pick(pairs)
            addr = _addr(a, mode, [t, t + 1])
            out.append(E('%s R%d, %s' % (op, t, addr), '%s r%d, r%d, %s' % (low(op), t, t + 1, addr),
                         'Rt2 left out'))
    for c in ['EQ', 'NE', 'CS', 'GT', 'AL']:
        out.append(E('LDR%sD R0, R1, [R2, #8]' % c, 'ldrd%s r0, r1, [r2, #8]' % low(c)))
        out.append(E('LDRD%s R4, R5, [R6], #-8' % c, 'ldrd%s r4, r5, [r6], #-8' % low(c)))
        out.append(E('STR%sD R2, R3, [R7, -R8]' % c, 'strd%s r2, r3, [r7, -r8]' % low(c)))
        out.append(E('STRD%s R10, R11, [R12, #16]!' % c, 'strd%s r10, r11, [r12, #16]!' % low(c)))
    out += [E('LDRD R12, R13, [R0]'), E('STRD R0, R1, [R14, #-255]!'), E('LDRD R2, R3, [PC, #-8]')]
    return out


def pcrel(a):
    """Loads, stores and ADR of labels in the same section: pc-relative, no
    relocation."""
    def filler():
        return E('MOV R0, R0')

    out = [lab('back'), filler(), filler(), E('LDR R1, back', 'ldr r1, {pcl:back}'),
           E('STR R2, back', 'str r2, {pcl:back}'), E('LDRB R3, back', 'ldrb r3, {pcl:back}'),
           E('LDREQ R4, fwd', 'ldreq r4, {pcl:fwd}'), E('STRB R5, fwd', 'strb r5, {pcl:fwd}'),
           E('LDRH R6, back', 'ldrh r6, {pcl:back}'), E('LDRSB R7, fwd', 'ldrsb r7, {pcl:fwd}'),
           E('LDRSH R8, back', 'ldrsh r8, {pcl:back}'), E('STRH R9, fwd', 'strh r9, {pcl:fwd}'),
           E('LDR PC, fwd', 'ldr pc, {pcl:fwd}'), E('LDR R0, #16', 'ldr r0, [pc, #16]', 'a # offset is pc-relative'),
           E('LDR R1, #-8', 'ldr r1, [pc, #-8]', 'a # offset is pc-relative'),
           E('LDRB R2, #4095', 'ldrb r2, [pc, #4095]', 'a # offset is pc-relative')]
    if a.level >= 5:
        out += [E('LDRD R0, R1, back', 'ldrd r0, r1, {pcl:back}'), E('PLD back', 'pld {pcl:back}'),
                E('PLD fwd', 'pld {pcl:fwd}'), E('LDC p1, c2, back', 'ldc p1, c2, {pcl:back}'),
                E('STCL p3, c4, fwd', 'stcl p3, c4, {pcl:fwd}')]
    out += [filler(), lab('fwd'), filler(), E('LDR R10, fwd', 'ldr r10, {pcl:fwd}'),
            E('LDRNE R11, back', 'ldrne r11, {pcl:back}')]
    return out


def preload(a):
    out = []
    ops = ['PLD'] + (['PLI'] if a.level >= 7 else [])
    for op in ops:
        for mode in ['[{n}]', '[{n}, #0]', '[{n}, #4095]', '[{n}, #-4095]', '[{n}, #-1]', '[{n}, {m}]',
                     '[{n}, -{m}]', '[{n}, {m}, LSL #2]', '[{n}, -{m}, ROR #3]', '[{n}, {m}, ASR #32]',
                     '[{n}, {m}, RRX]']:
            out.append(E('%s %s' % (op, _addr(a, mode))))
        out += [E('%s [PC, #-8]' % op), E('%s [R14, #8]' % op), E('%s [R0, R14]' % op)]
    return out


# The stack-named modes as the references spell them.
CANON_MODE = {'LDM': {'FD': 'IA', 'ED': 'IB', 'EA': 'DB', 'FA': 'DA'},
              'STM': {'FD': 'DB', 'FA': 'IB', 'EA': 'IA', 'ED': 'DA'}}


def _canon(op, mode):
    return low(op + CANON_MODE[op].get(mode, mode))


def ldm(a):
    out = []
    lists = ['{R0}', '{R0-R3}', '{R0, R2, R4-R6, LR}', '{R1-R12, LR}', '{R14}', '{R0,R1}']
    for op in ['LDM', 'STM']:
        for mode in ['', 'IA', 'IB', 'DA', 'DB', 'FD', 'FA', 'ED', 'EA']:
            base = a.pick(['R0', 'R7', 'R13', 'SP', 'R11'])
            lst = a.pick(lists)
            if base in ('R0',) and 'R0' in lst:
                base = 'R8'
            out.append(E('%s%s %s, %s' % (op, mode, base, lst), '%s %s, %s' % (_canon(op, mode), base, lst)))
            base = base if base != 'R0' else 'R9'
            out.append(E('%s%s %s!, {R2-R5}' % (op, mode, base), '%s %s!, {R2-R5}' % (_canon(op, mode), base)))
    out += [E('LDM R0, {R0-R15}'), E('LDMFD SP!, {R4-R11, PC}'), E('LDMIA R0, {R1, R2}^'),
            E('LDMFD SP!, {R0-R3, PC}^'), E('STMIA R0, {R1, R2}^'), E('STMDB SP, {R0-R14}^'),
            E('STMFD SP!, {R0-R12, LR}'), E('LDMDB R14, {R0, PC}'), E('STMIB R14!, {R0-R13}')]
    for i, c in enumerate(CONDS):
        mode = ['IA', 'IB', 'DA', 'DB', 'FD', 'FA', 'ED', 'EA'][i % 8]
        out.append(E('LDM%s%s R%d!, {R0, R15}' % (c, mode, i % 13 + 1), '%s%s r%d!, {r0, r15}' % (
            _canon('LDM', mode), low(c), i % 13 + 1)))
        out.append(E('STM%s%s R%d, {R1-R3}' % (mode, c, i % 13 + 1), '%s%s r%d, {r1-r3}' % (
            _canon('STM', mode), low(c), i % 13 + 1)))
    out += [E('PUSH {R0-R3}'), E('PUSH {R4, LR}'), E('POP {R4, PC}'), E('PUSH {R0-R12, LR}'),
            E('POP {R0-R12, PC}'), E('PUSHEQ {R0, R1}'), E('POPNE {R2-R5}'),
            E('PUSH {R0}', 'stmdb sp!, {r0}', 'one register stays a multiple store'),
            E('POP {R1}', 'ldmia sp!, {r1}', 'one register stays a multiple load'),
            E('PUSHGT {LR}', 'stmdbgt sp!, {lr}', 'one register stays a multiple store')]
    return out


def swp(a):
    out = []
    for op in ['SWP', 'SWPB']:
        for _ in range(4):
            t, t2, n = a.regs(3)
            out.append(E('%s %s, %s, [%s]' % (op, t, t2, n)))
        out.append(E('%s R0, R0, [R1]' % op))
        out.append(E('%s R14, R14, [R0]' % op))
    for c in ['EQ', 'NE', 'CC', 'LE', 'AL']:
        out.append(E('SWP%s R0, R1, [R2]' % c))
        out.append(E('SWP%sB R3, R4, [R5]' % c, 'swpb%s r3, r4, [r5]' % low(c)))
        out.append(E('SWPB%s R6, R7, [R8]' % c))
    return out


def excl(a):
    out = []
    forms = [('LDREX', 'STREX')] + ([('LDREXB', 'STREXB'), ('LDREXH', 'STREXH')] if a.level >= 7 else [])
    for ld, st in forms:
        for _ in range(3):
            t, n = a.regs(2)
            out.append(E('%s %s, [%s]' % (ld, t, n)))
            d, t, n = a.regs(3)
            out.append(E('%s %s, %s, [%s]' % (st, d, t, n)))
        out += [E('%s R14, [R0]' % ld), E('%s R0, R14, [R1]' % st)]
        for c in ['EQ', 'NE', 'MI', 'AL']:
            out.append(E('%s%s R2, [R3]' % (ld, c)))
            out.append(E('%s%s R4, R5, [R6]' % (st, c)))
    if a.level >= 7:
        for t in [0, 2, 4, 10, 12]:
            n = (t + 5) % 15
            out.append(E('LDREXD R%d, R%d, [R%d]' % (t, t + 1, n)))
            out.append(E('STREXD R%d, R%d, R%d, [R%d]' % ((t + 7) % 15 if (t + 7) % 15 not in (t, t + 1, n) else 14,
                                                          t, t + 1, n)))
        out += [E('LDREXDEQ R0, R1, [R2]'), E('STREXDNE R3, R4, R5, [R6]')]
        out += [E('CLREX')]
    return out
