"""Families of Thumb-2 loads and stores, and the files of lines whose
length or value depends on a label of the section."""
from entries import E, lab, low
from fam_thumb import CONDS16, it_wrap
from fam_thumb2 import GP, _w

RELOC = 'relocated: the field holds the addend'
SINGLE = ['LDR', 'STR', 'LDRB', 'STRB', 'LDRH', 'STRH', 'LDRSB', 'LDRSH']


def ldst(a):
    """Word, byte and halfword loads and stores: every addressing mode."""
    out = []
    for op in SINGLE:
        for off in [0, 1, 4, 255, 256, 1020, 4095]:
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s, #%d]' % (op, t, n, off)))
            t, n = a.regs(2, range(8))
            out.append(_w('%s %s, [%s, #%d]' % (op, t, n, off)))
        for off in [-1, -4, -128, -255]:
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s, #%d]' % (op, t, n, off)))
        for off in [1, 255, -1, -255, 0]:
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s, #%d]!' % (op, t, n, off)))
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s], #%d' % (op, t, n, off)))
        for sh in ['', ', LSL #0', ', LSL #1', ', LSL #2', ', LSL #3']:
            t, n, m = a.regs(3, GP)
            out.append(E('%s %s, [%s, %s%s]' % (op, t, n, m, sh)))
        t, n, m = a.regs(3, range(8))
        out.append(_w('%s %s, [%s, %s]' % (op, t, n, m)))
        t, n = a.regs(2, range(8, 13))
        out.append(E('%s %s, [%s]' % (op, t, n)))
        if op.startswith('LDR'):
            for off in [0, 4, 1020, 4095, -4, -255]:
                t = a.regs(1, GP)[0]
                out.append(E('%s %s, [PC, #%d]' % (op, t, off)))
    for off in [0, 4, 255, 1020, 4092]:
        out.append(E('LDR R9, [SP, #%d]' % off))
        out.append(E('STR R10, [SP, #%d]' % off))
    out += [E('LDR PC, [R0, #4]'), E('LDR.W R0, [SP, #-4]!'), E('STR R0, [SP, #-4]!'),
            E('LDR.W PC, [R1, R2, LSL #2]')]
    for op in ['LDRT', 'STRT', 'LDRBT', 'STRBT', 'LDRHT', 'STRHT', 'LDRSBT', 'LDRSHT']:
        for off in [0, 1, 255]:
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s, #%d]' % (op, t, n, off)))
        t, n = a.regs(2, GP)
        out.append(E('%s %s, [%s]' % (op, t, n)))
    for op in ['LDRD', 'STRD']:
        for off in [0, 4, 1020, -4, -1020]:
            t, t2, n = a.regs(3, GP)
            out.append(E('%s %s, %s, [%s, #%d]' % (op, t, t2, n, off)))
            t, t2, n = a.regs(3, GP)
            out.append(E('%s %s, %s, [%s, #%d]!' % (op, t, t2, n, off)))
            t, t2, n = a.regs(3, GP)
            out.append(E('%s %s, %s, [%s], #%d' % (op, t, t2, n, off)))
        t, t2, n = a.regs(3, GP)
        out.append(E('%s %s, %s, [%s]' % (op, t, t2, n)))
        out.append(E('%s R0, R1, [SP, #8]' % op))
    out += [E('LDRD R2, R3, [PC, #16]'), E('LDRD R4, R5, [PC, #-16]')]
    # The older spellings of the signed loads.
    out += [E('LDSB R8, [R9, #4]', 'ldrsb r8, [r9, #4]', 'LDSB is LDRSB'),
            E('LDSH R10, [R11, R12]', 'ldrsh r10, [r11, r12]', 'LDSH is LDRSH')]
    return out


def ldm(a):
    """LDM, STM, LDMDB, STMDB, PUSH and POP in wide forms; a single register
    becomes LDR or STR."""
    out = []
    lists = ['{R0, R1}', '{R0-R12}', '{R1, R3, R8, R12}', '{R4-R11, LR}', '{R2, R14}', '{R8, R9}']
    for lst, n in zip(lists, ['R2', 'R13', 'R14', 'R3', 'R12', 'R7']):
        for op, ref in [('LDM', 'ldm'), ('LDMIA', 'ldm'), ('LDMFD', 'ldm'), ('LDMDB', 'ldmdb'), ('LDMEA', 'ldmdb'),
                        ('STM', 'stm'), ('STMIA', 'stm'), ('STMEA', 'stm'), ('STMDB', 'stmdb'), ('STMFD', 'stmdb')]:
            out.append(E('%s %s!, %s' % (op, n, lst), '%s %s!, %s' % (ref, n, lst)))
            out.append(E('%s %s, %s' % (op, n, lst), '%s %s, %s' % (ref, n, lst)))
        out.append(E('LDM.W %s!, %s' % (n, lst)))
    for lst in ['{R0, R1}', '{R4-R11, LR}', '{R8}', '{R0-R12}', '{R3, R9, LR}', '{R1}']:
        out.append(E('PUSH %s' % lst))
        out.append(_w('PUSH %s' % lst))
    for lst in ['{R0, R1}', '{R4-R11, PC}', '{R8}', '{R0-R12}', '{R3, R9, LR}', '{R1}', '{PC}', '{R9, PC}']:
        out.append(E('POP %s' % lst))
        out.append(_w('POP %s' % lst))
    # The rows of increment-before and decrement-after: ARM only.
    out += [E('LDMIB R0, {R1, R2}'), E('STMDA R0, {R1, R2}')]
    return out


def excl(a):
    """Exclusive loads and stores, table branches, preloads."""
    out = []
    for off in [0, 4, 1020]:
        t, n = a.regs(2, GP)
        out.append(E('LDREX %s, [%s, #%d]' % (t, n, off)))
        s, t, n = a.regs(3, GP)
        out.append(E('STREX %s, %s, [%s, #%d]' % (s, t, n, off)))
    out += [E('LDREX R0, [R1]'), E('STREX R0, R1, [R2]')]
    if not a.name == 'v6m':
        for op in ['LDREXB', 'LDREXH']:
            t, n = a.regs(2, GP)
            out.append(E('%s %s, [%s]' % (op, t, n)))
        for op in ['STREXB', 'STREXH']:
            s, t, n = a.regs(3, GP)
            out.append(E('%s %s, %s, [%s]' % (op, s, t, n)))
        if not a.m:
            t, t2, n = a.regs(3, GP)
            out.append(E('LDREXD %s, %s, [%s]' % (t, t2, n)))
            s, t, t2, n = a.regs(4, GP)
            out.append(E('STREXD %s, %s, %s, [%s]' % (s, t, t2, n)))
    for n, m in [('R0', 'R1'), ('R9', 'R14'), ('PC', 'R3'), ('R12', 'R0')]:
        out.append(E('TBB [%s, %s]' % (n, m)))
        out.append(E('TBH [%s, %s, LSL #1]' % (n, m)))
    for op in ['PLD', 'PLI']:
        out += [E('%s [R0]' % op), E('%s [R1, #4]' % op), E('%s [R2, #4095]' % op), E('%s [R3, #-1]' % op),
                E('%s [R4, #-255]' % op), E('%s [R5, R6]' % op), E('%s [R7, R8, LSL #3]' % op),
                E('%s [PC, #100]' % op), E('%s [PC, #-100]' % op)]
    return out


def branch_label(a):
    """Branches, ADR and loads of labels: their length follows the distance."""
    out = [lab('back')]
    # A call, and a wide branch, of a label is relocated also in its own
    # section: the field holds the addend, -4.
    out += [E('MOVS R0, #1'), E('B back'), E('BEQ back'), E('BL back', 'bl {br:-4}', RELOC), E('B fwd'),
            E('BNE fwd'), E('BGT fwd'), E('BL fwd', 'bl {br:-4}', RELOC)]
    if a.t2:
        out += [E('B.W back', 'b.w {br:-4}', RELOC), E('BEQ.W fwd', 'beq.w {br:-4}', RELOC),
                E('BLT.W back', 'blt.w {br:-4}', RELOC), E('B.N fwd'), E('BLE.N back'),
                E('CRET.W fwd', 'b.w {br:-4}', 'CRET is a B; ' + RELOC)]
        out += it_wrap(a, 'EQ', 'BEQ fwd', 'beq fwd') + it_wrap(a, 'LT', 'BLT back', 'blt back')
    out += [E('ADR R0, fwd'), E('LDR R1, fwd'), E('ADR R7, fwd')]
    if a.t2:
        out += [E('ADR R8, fwd'), E('ADR R2, back'), E('ADR.W R3, fwd'), E('LDR R9, fwd'), E('LDR R4, back'),
                E('LDR.W R5, fwd'), E('LDRB R6, fwd'), E('LDRSH R3, back'), E('LDRD R0, R1, fwd')]
    if a.t2:
        out += [E('CRET back', 'b.w {br:-4}', 'CRET is a B; ' + RELOC)]
    else:
        out += [E('CRET back', 'b back', 'CRET is a B'), E('CRET fwd', 'b fwd', 'CRET is a B')]
    out += [E('MOVS R3, #3'), lab('fwd'), E('MOVS R4, #4'), E('MOVS R0, #2')]
    # Distances at the edges of the narrow forms.
    out += [lab('far')] + [E('MOVS R1, #1') for _ in range(120)]
    out += [E('BEQ far'), E('B far'), E('LDR R0, far2'), E('ADR R1, far2')] + [E('MOVS R5, #5') for _ in range(4)]
    out += [lab('far2'), E('MOVS R2, #2')]
    return out


def czb(a):
    """CBZ and CBNZ with labels at every distance they reach."""
    out = [E('CBZ R0, z0'), E('MOVS R6, #6'), lab('z0'), E('CBNZ R7, z1'), E('MOVS R6, #6'), lab('z1'),
           E('MOVS R6, #6')]
    for i in range(8):
        out.append(E('CBZ R%d, t%d' % (i, i)))
        out.append(E('CBNZ R%d, t%d' % (7 - i, i)))
        out += [E('MOVS R0, #1') for _ in range(i * 8 + 1)]
        out.append(lab('t%d' % i))
        out.append(E('MOVS R6, #6'))
    out += [E('CBZ R3, top2')] + [E('MOVS R1, #1') for _ in range(62)]
    out += [lab('top2'), E('MOVS R6, #6')]
    return out
