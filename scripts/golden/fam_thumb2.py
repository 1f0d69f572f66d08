"""Families of the Thumb-2 instruction set: data processing, shifts, the
width the assembler chooses for unsuffixed lines, IT blocks, multiplies,
media instructions, branches and system instructions."""
from entries import E, low
from fam_thumb import ADD_HI, CONDS16, IMM3_T2, it_wrap

# Registers of the data-processing forms: SP and PC have forms of their own.
GP = [r for r in range(15) if r != 13]
HIGH = [8, 9, 10, 11, 12, 14]
DP3 = ['AND', 'EOR', 'ADC', 'SBC', 'ORR', 'ORN', 'BIC', 'ADD', 'SUB', 'RSB']
MODIMM = ['0', '1', '0x7F', '255', '0x100', '0x3FC', '0x1FE0', '0xFF000', '0x80000000', '0xFF000000', '0x00AB00AB',
          '0xAB00AB00', '0xABABABAB', '0xFFFFFFFF', '0x55555555', '0x00010001', '0x7F800000']
SHIFTS = ['LSL #1', 'LSL #31', 'LSR #1', 'LSR #32', 'ASR #1', 'ASR #32', 'ROR #1', 'ROR #31', 'RRX', 'LSL #17',
          'lsr #3']
INVERSE = {'EQ': 'NE', 'NE': 'EQ', 'CS': 'CC', 'CC': 'CS', 'MI': 'PL', 'PL': 'MI', 'VS': 'VC', 'VC': 'VS',
           'HI': 'LS', 'LS': 'HI', 'GE': 'LT', 'LT': 'GE', 'GT': 'LE', 'LE': 'GT', 'HS': 'LO', 'LO': 'HS'}


def _r(a, n, pool=GP):
    return a.regs(n, pool)


def _w(text, ref=None, note=None):
    """A `.W` line: the suffix after the mnemonic. llvm-mc knows no `.W`
    on ADC and SBC with an immediate, which have no narrow form anyway."""
    m, _, ops = text.partition(' ')
    rm, _, rops = (ref or text).partition(' ')
    wide = '' if rm.upper() in ('ADC', 'ADCS', 'SBC', 'SBCS') and '#' in rops or rm.upper() == 'MUL' else '.w'
    return E('%s.W %s' % (m, ops), '%s%s %s' % (low(rm), wide, rops), note)


def dp(a):
    """Data processing with a modified constant, a register and a shifted
    register, flag setting, wide by suffix or by its operands."""
    out = []
    for op in DP3:
        for k in MODIMM:
            d, n = _r(a, 2)
            out.append(_w('%s %s, %s, #%s' % (op, d, n, k)))
            d, n = _r(a, 2, range(8, 13))
            out.append(E('%sS %s, %s, #%s' % (op, d, n, k)))
        d, n, m = _r(a, 3)
        out.append(_w('%s %s, %s, %s' % (op, d, n, m)))
        d, n, m = _r(a, 3, HIGH)
        out.append(E('%s %s, %s, %s' % (op, d, n, m)))
        out.append(E('%sS %s, %s, %s' % (op, d, n, m)))
        for sh in SHIFTS:
            d, n, m = _r(a, 3)
            out.append(E('%s %s, %s, %s, %s' % (op, d, n, m, sh)))
            d, n, m = _r(a, 3)
            out.append(_w('%sS %s, %s, %s, %s' % (op, d, n, m, sh)))
    # Two operands: Rd is the first source.
    for op in ['AND', 'ORR', 'EOR', 'BIC', 'ORN', 'ADC', 'SBC']:
        d, m = _r(a, 2, range(8, 13))
        out.append(E('%s %s, #0xFF00' % (op, d), '%s %s, %s, #0xFF00' % (low(op), d, d), 'Rd repeats'))
        out.append(E('%s %s, %s, LSL #2' % (op, d, m), '%s %s, %s, %s, lsl #2' % (low(op), d, d, m), 'Rd repeats'))
    for op in ['TST', 'TEQ', 'CMP', 'CMN']:
        for k in MODIMM:
            n = _r(a, 1)[0]
            out.append(_w('%s %s, #%s' % (op, n, k)))
            n = _r(a, 1, range(8, 13))[0]
            out.append(E('%s %s, #%s' % (op, n, k)))
        n, m = _r(a, 2)
        out.append(_w('%s %s, %s' % (op, n, m)))
        for sh in SHIFTS:
            n, m = _r(a, 2)
            out.append(E('%s %s, %s, %s' % (op, n, m, sh)))
    for op in ['MOV', 'MVN']:
        for k in MODIMM:
            d = _r(a, 1)[0]
            out.append(E('%s %s, #%s' % (op, d, k), follow=('gnu', 'a modified constant: no MOVW')))
            out.append(_w('%sS %s, #%s' % (op, d, k)))
        d, m = _r(a, 2)
        out.append(_w('%s %s, %s' % (op, d, m)))
        out.append(_w('%sS %s, %s' % (op, d, m)))
        for sh in SHIFTS:
            d, m = _r(a, 2)
            out.append(E('%s %s, %s, %s' % (op, d, m, sh)))
            d, m = _r(a, 2, range(8, 13))
            out.append(E('%sS %s, %s, %s' % (op, d, m, sh)))
    # A value no modified constant holds: MOVW for MOV, ADDW and SUBW for
    # ADD and SUB.
    for k in ['0x101', '0x1234', '0xFFFF', '4095', '0x8001']:
        d = _r(a, 1)[0]
        out.append(E('MOV %s, #%s' % (d, k), 'movw %s, #%s' % (d, k), 'becomes MOVW'))
    for k in ['0x101', '0x123', '4095', '1001', '0xFFF']:
        d, n = _r(a, 2)
        out.append(E('ADD %s, %s, #%s' % (d, n, k), 'addw %s, %s, #%s' % (d, n, k), 'becomes ADDW'))
        d, n = _r(a, 2)
        out.append(E('SUB %s, %s, #%s' % (d, n, k), 'subw %s, %s, #%s' % (d, n, k), 'becomes SUBW'))
    for k in ['0', '1', '255', '256', '0xABC', '4095']:
        d, n = _r(a, 2)
        out.append(E('ADDW %s, %s, #%s' % (d, n, k)))
        out.append(E('SUBW %s, %s, #%s' % (n, d, k)))
        d = _r(a, 1)[0]
        out.append(E('ADDW %s, SP, #%s' % (d, k)))
        out.append(E('SUBW %s, SP, #%s' % (d, k)))
        out.append(E('ADDW %s, PC, #%s' % (d, k)))
    for k in ['0', '1', '0xFFFF', '0x1234', '43981', '0x8000']:
        d = _r(a, 1)[0]
        out.append(E('MOVW %s, #%s' % (d, k)))
        out.append(E('MOVT %s, #%s' % (d, k)))
    # SP in the wide forms.
    for k in ['4', '0x100', '0xFF0', '1020']:
        d = _r(a, 1, range(8, 13))[0]
        out.append(_w('ADD %s, SP, #%s' % (d, k)))
        out.append(_w('SUB %s, SP, #%s' % (d, k)))
        out.append(_w('ADD SP, SP, #%s' % k))
        out.append(_w('SUB SP, SP, #%s' % k))
        out.append(_w('ADDS %s, SP, #%s' % (d, k)))
    out += [_w('ADD R0, SP, R1'), _w('ADD SP, SP, R2, LSL #2'), _w('SUB R9, SP, R3'), _w('MOV SP, R7'),
            _w('MOV R10, SP'), E('CMP SP, #8'), _w('CMP SP, R1')]
    if not a.m:
        out += [_w('SUBS PC, LR, #4'), E('SUBS PC, LR, #0'), E('SUBS PC, LR, #255')]
    return out


def shifts(a):
    """LSL, LSR, ASR, ROR by an amount and by a register, RRX."""
    out = []
    for op, amounts in [('LSL', [1, 7, 31]), ('LSR', [1, 16, 32]), ('ASR', [1, 31, 32]), ('ROR', [1, 8, 31])]:
        for n in amounts:
            d, m = _r(a, 2)
            out.append(E('%s %s, %s, #%d' % (op, d, m, n)))
            d, m = _r(a, 2)
            out.append(_w('%sS %s, %s, #%d' % (op, d, m, n)))
            d, m = _r(a, 2, range(8, 13))
            out.append(E('%sS %s, %s, #%d' % (op, d, m, n)))
        for _ in range(3):
            d, n, m = _r(a, 3)
            out.append(E('%s %s, %s, %s' % (op, d, n, m)))
            out.append(_w('%sS %s, %s, %s' % (op, d, n, m)))
        d, m = _r(a, 2, range(8, 13))
        out.append(E('%s %s, %s' % (op, d, m), '%s %s, %s, %s' % (low(op), d, d, m), 'Rd repeats'))
        out.append(_w('%s %s, %s' % (op, d, m), '%s %s, %s, %s' % (low(op), d, d, m), 'Rd repeats'))
    for _ in range(4):
        d, m = _r(a, 2)
        out.append(E('RRX %s, %s' % (d, m)))
        out.append(E('RRXS %s, %s' % (d, m)))
    return out


# Lines whose width the assembler chooses: written unsuffixed, outside an IT
# block and inside one.
WIDTH = ['ADD {0}, {0}, {1}', 'ADD {0}, {1}, {0}', 'ADDS {0}, {0}, {1}', 'ADD {0}, {1}, {2}', 'ADDS {0}, {1}, {2}',
         'ADD {0}, {1}', 'ADDS {0}, {1}', 'ADD {0}, {0}, #1', 'ADDS {0}, {0}, #200', 'ADDS {0}, {1}, #7',
         'ADDS {0}, {1}, #8', 'SUB {0}, {1}, {2}', 'SUBS {0}, {1}, {2}', 'SUBS {0}, {0}, #100', 'SUBS {0}, #255',
         'AND {0}, {0}, {1}', 'ANDS {0}, {0}, {1}', 'ANDS {0}, {1}, {0}', 'AND {0}, {1}, {0}', 'ANDS {0}, {1}, {2}',
         'EORS {0}, {0}, {1}', 'EOR {0}, {1}, {0}', 'ORRS {0}, {1}, {0}', 'ORR {0}, {0}, {1}', 'BICS {0}, {0}, {1}',
         'BIC {0}, {1}, {0}', 'ADCS {0}, {1}, {0}', 'SBCS {0}, {0}, {1}', 'SBC {0}, {0}, {1}', 'MULS {0}, {1}, {0}',
         'MUL {0}, {1}, {0}', 'MUL {0}, {0}, {1}', 'MVNS {0}, {1}', 'MVN {0}, {1}', 'MOV {0}, #1', 'MOVS {0}, #1',
         'MOVS {0}, #255', 'MOV {0}, {1}', 'CMP {0}, {1}', 'CMP {0}, #1', 'CMN {0}, {1}', 'TST {0}, {1}',
         'LSLS {0}, {1}, #2', 'LSL {0}, {1}, #2', 'LSRS {0}, {1}, #32', 'ASRS {0}, {1}, #1', 'LSLS {0}, {0}, {1}',
         'LSL {0}, {0}, {1}', 'RORS {0}, {0}, {1}', 'ASR {0}, {0}, {1}', 'NEGS {0}, {1}', 'RSBS {0}, {1}, #0',
         'RSB {0}, {1}, #0', 'MOVS {0}, {1}, LSL #3', 'MOV {0}, {1}, LSR #4', 'MOVS {0}, {1}, ASR #5',
         'MOVS {0}, {1}, ROR #5', 'ADC {0}, {0}, {1}', 'ADD {0}, SP, #4', 'ADD SP, SP, #8', 'ADD SP, #12', 'ADD {0}, SP, {0}']
WIDTH_HIGH = ['ADD {3}, {3}, {1}', 'ADDS {3}, {3}, {1}', 'ADD {3}, {1}', 'ADD {0}, {3}', 'MOV {3}, {0}',
              'MOVS {3}, {0}', 'MOV {0}, {3}', 'CMP {3}, {0}', 'CMP {3}, #1', 'ANDS {3}, {3}, {0}', 'LSLS {3}, {0}, #1',
              'MOVS {0}, {3}', 'ADD {3}, {0}, {3}', 'SUBS {3}, {3}, #1', 'MVNS {3}, {0}']


_S_OPS = {'ADD', 'SUB', 'AND', 'EOR', 'ORR', 'ADC', 'SBC', 'MUL', 'MVN', 'MOV', 'LSL', 'LSR', 'ASR', 'ROR', 'NEG',
          'RSB'}


def _cond_ref(t, regs, c):
    """The references' spelling: flag letter before the condition."""
    m, _, ops = t.partition(' ')
    return '%s%s %s' % (low(m), low(c), ops.format(*regs))


WIDTH_FOLLOW = {'ADD {0}, {1}': ADD_HI, 'ADD {0}, {0}, {1}': ADD_HI, 'ADD {0}, {1}, {0}': ADD_HI,
                'ADD {0}, {0}, #1': IMM3_T2}


def _hi_add(d, m):
    return '%04x' % (0x4400 | (d & 8) << 4 | m << 3 | d & 7)


# Inside an IT block, where the references take the flag-setting encodings
# (which set no flags there), this assembler keeps its own choices: an ADD of
# three registers with Rd repeated folds to the high-register ADD, and a MOV of
# two low registers is the 16-bit MOV's ADD Rd, Rm, #0.
IN_IT = {'ADD {0}, {0}, {1}': lambda d, m, *_: (_hi_add(d, m), 'Rd repeats: folded to ADD Rd, Rm'),
         'ADD {0}, {1}, {0}': lambda d, m, *_: (_hi_add(d, m), 'Rd repeats: folded to ADD Rd, Rm'),
         'MOV {0}, {1}': lambda d, m, *_: ('%04x' % (0x1C00 | m << 3 | d), 'ADD Rd, Rm, #0 inside the block')}


def width(a):
    """Unsuffixed lines: the narrow encoding wherever it means the same."""
    out = []
    for t in WIDTH + WIDTH_HIGH:
        f = WIDTH_FOLLOW.get(t)
        for _ in range(2):
            regs = _r(a, 3, range(8)) + _r(a, 1, range(8, 13))
            out.append(E(t.format(*regs), follow=f))
        if t.startswith('MULS') or t.startswith('NEGS'):
            continue  # a flag-setting line of 16 bits only: not inside a block
        regs = _r(a, 3, range(8)) + _r(a, 1, range(8, 13))
        c = a.pick(CONDS16[:14])
        out += it_wrap(a, c, _cond_src(t, regs, c), _cond_ref(t, regs, c))
        out[-1].follow = f
        if t in IN_IT:
            out[-1].want, out[-1].note = IN_IT[t](*[int(r[1:]) for r in regs])
    # No 16-bit SUB of SP: the wide form.
    why = 'no 16-bit SUB of SP: the wide form'
    out += [E('SUB SP, SP, #8', 'sub.w sp, sp, #8', why), E('SUB SP, #12', 'sub.w sp, sp, #12', why)]
    out += it_wrap(a, 'NE', 'SUBNE SP, SP, #16', 'subne.w sp, sp, #16')
    out[-1].note = why
    return out


def _cond_src(t, regs, c):
    """This assembler's spelling of a conditional line: the condition after
    the flag letter, as unified syntax has it."""
    m, _, ops = t.partition(' ')
    if m.endswith('S') and m[:-1] in _S_OPS:
        return '%sS%s %s' % (m[:-1], c, ops.format(*regs))
    return '%s%s %s' % (m, c, ops.format(*regs))


IT_BODY = ['ADD{c} R0, R1, R2', 'MOV{c} R3, #7', 'LDR{c} R0, [R1, #4]', 'ADD{c}.W R8, R9, #0x100',
           'CMP{c} R0, #3', 'STR{c} R2, [SP, #8]', 'LSL{c} R1, R2, #3', 'AND{c} R0, R0, R1', 'MVN{c} R2, R3',
           'ORRS{c}.W R4, R5, #1', 'LDR{c} R9, [R10, #-4]', 'MOV{c} R8, R1', 'SUB{c} R5, R6, #1',
           'MUL{c} R1, R2, R1', 'STRB{c} R7, [R6, R5]', 'ADD{c} R3, R3, R12', 'EOR{c} R1, R1, R2', 'NOP{c}']
IT_LAST = ['B{c} 8', 'BX{c} LR', 'B{c}.W 0x1000', 'BL{c} 256', 'POP{c} {{R4, PC}}', 'MOV{c} PC, LR', 'BLX{c} R3',
           'LDR{c} PC, [R0, #4]']


def _body_ref(t, c):
    m, _, ops = t.partition(' ')
    wide = '.W' in m
    m = m.replace('{c}', '').replace('.W', '')
    ops = ops.replace('{{', '{').replace('}}', '}')
    if m in ('B', 'BL'):
        ops = '{br:%d}' % int(ops, 0)
    return '%s%s%s %s' % (low(m), low(c), '.w' if wide else '', ops)


def it_blocks(a):
    """IT with every mask and condition, and the instructions of its block."""
    out = []
    masks = [''] + [x + y + z for x in 'TE' for y in ['', 'T', 'E'] for z in ['', 'T', 'E'] if y or not z]
    k = 0
    for ci, c in enumerate(CONDS16[:14]):
        for mask in masks:
            g = object()
            conds = [c] + [c if x == 'T' else INVERSE[c] for x in mask]
            out.append(E('IT%s %s' % (mask, c), 'it%s %s' % (low(mask), low(c)), group=g))
            for i, cc in enumerate(conds):
                last = i == len(conds) - 1
                if last and (ci + len(mask)) % 3 == 0:
                    t = IT_LAST[k % len(IT_LAST)]
                else:
                    t = IT_BODY[k % len(IT_BODY)]
                k += 1
                out.append(E(t.format(c=cc), _body_ref(t, cc), group=g))
    return out
