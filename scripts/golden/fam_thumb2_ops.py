"""Families of Thumb-2: multiplies and divides, media instructions, bit
fields, branches with plain-number offsets, and system instructions."""
from entries import E, low
from fam_thumb import CONDS16, it_wrap
from fam_thumb2 import GP, _w

DSP = ('v7a', 'v7r', 'v7em', 'v8m')
DIV = ('v7r', 'v7m', 'v7em', 'v8m')
XY = ['BB', 'BT', 'TB', 'TT']


def _rows(a, ops, n, count=3):
    out = []
    for op in ops:
        for _ in range(count):
            out.append(E('%s %s' % (op, ', '.join(a.regs(n, GP)))))
        out.append(E('%s %s' % (op, ', '.join(['R0', 'R14', 'R12', 'R1'][:n]))))
    return out


def mul(a):
    """MUL, MLA, MLS, the long multiplies, halfword and word multiplies,
    dual multiplies, divides."""
    out = []
    for _ in range(4):
        d, n, m = a.regs(3, GP)
        out.append(E('MUL %s, %s, %s' % (d, n, m)))
        out.append(_w('MUL %s, %s, %s' % (d, n, m)))
    out.append(E('MUL R8, R9', 'mul r8, r8, r9', 'Rd repeats'))
    out += _rows(a, ['MLA', 'MLS', 'UMULL', 'UMLAL', 'SMULL', 'SMLAL'], 4)
    if a.name in DSP:
        out += _rows(a, ['SMUL' + xy for xy in XY] + ['SMULWB', 'SMULWT'], 3, 2)
        out += _rows(a, ['SMLA' + xy for xy in XY] + ['SMLAWB', 'SMLAWT'], 4, 2)
        out += _rows(a, ['SMLAL' + xy for xy in XY], 4, 2)
        out += _rows(a, ['SMUAD', 'SMUADX', 'SMUSD', 'SMUSDX', 'SMMUL', 'SMMULR'], 3, 2)
        out += _rows(a, ['SMLAD', 'SMLADX', 'SMLSD', 'SMLSDX', 'SMMLA', 'SMMLAR', 'SMMLS', 'SMMLSR'], 4, 2)
        out += _rows(a, ['SMLALD', 'SMLALDX', 'SMLSLD', 'SMLSLDX', 'UMAAL'], 4, 2)
        out += _rows(a, ['QADD', 'QSUB', 'QDADD', 'QDSUB'], 3, 2)
    if a.name in DIV:
        out += _rows(a, ['SDIV', 'UDIV'], 3, 4)
    return out


PARALLEL = ['ADD16', 'ASX', 'SAX', 'SUB16', 'ADD8', 'SUB8']


def media(a):
    """Parallel arithmetic, saturation, packing, extends with rotation, byte
    and bit reversal, bit fields, CLZ."""
    out = []
    if a.name in DSP:
        for p in ['S', 'Q', 'SH', 'U', 'UQ', 'UH']:
            out += _rows(a, [p + op for op in PARALLEL], 3, 1)
        out += _rows(a, ['SEL', 'USAD8'], 3, 2) + _rows(a, ['USADA8'], 4, 2)
        for n in [1, 8, 16]:
            d, m = a.regs(2, GP)
            out.append(E('SSAT16 %s, #%d, %s' % (d, n, m)))
            out.append(E('USAT16 %s, #%d, %s' % (d, n - 1, m)))
        for sh in ['', ', LSL #1', ', LSL #31']:
            d, n, m = a.regs(3, GP)
            out.append(E('PKHBT %s, %s, %s%s' % (d, n, m, sh)))
        for sh in ['', ', ASR #1', ', ASR #32']:
            d, n, m = a.regs(3, GP)
            out.append(E('PKHTB %s, %s, %s%s' % (d, n, m, sh)))
        for op in ['SXTAB', 'SXTAH', 'SXTAB16', 'UXTAB', 'UXTAH', 'UXTAB16']:
            for rot in ['', ', ROR #8', ', ROR #16', ', ROR #24']:
                d, n, m = a.regs(3, GP)
                out.append(E('%s %s, %s, %s%s' % (op, d, n, m, rot)))
        for op in ['SXTB16', 'UXTB16']:
            for rot in ['', ', ROR #8', ', ROR #24']:
                d, m = a.regs(2, GP)
                out.append(E('%s %s, %s%s' % (op, d, m, rot)))
    for op in ['SXTB', 'SXTH', 'UXTB', 'UXTH']:
        for rot in ['', ', ROR #8', ', ROR #16', ', ROR #24']:
            d, m = a.regs(2, GP)
            out.append(E('%s %s, %s%s' % (op, d, m, rot)))
        d, m = a.regs(2, range(8))
        out.append(_w('%s %s, %s' % (op, d, m)))
    for op in ['SSAT', 'USAT']:
        for n, sh in [(1, ''), (32, ''), (16, ', LSL #4'), (8, ', ASR #1'), (31, ', LSL #31'), (5, ', ASR #31')]:
            d, m = a.regs(2, GP)
            out.append(E('%s %s, #%d, %s%s' % (op, d, n if op == 'SSAT' else n - 1, m, sh)))
    for op in ['REV', 'REV16', 'REVSH', 'RBIT', 'CLZ']:
        for _ in range(3):
            d, m = a.regs(2, GP)
            out.append(E('%s %s, %s' % (op, d, m)))
        if op != 'RBIT' and op != 'CLZ':
            d, m = a.regs(2, range(8))
            out.append(_w('%s %s, %s' % (op, d, m)))
    for lsb, width in [(0, 1), (0, 32), (31, 1), (8, 8), (4, 20)]:
        d, n = a.regs(2, GP)
        out.append(E('BFI %s, %s, #%d, #%d' % (d, n, lsb, width)))
        out.append(E('BFC %s, #%d, #%d' % (d, lsb, width)))
        out.append(E('SBFX %s, %s, #%d, #%d' % (d, n, lsb, width)))
        out.append(E('UBFX %s, %s, #%d, #%d' % (n, d, lsb, width)))
    return out


def branch(a):
    """Wide branches with plain-number offsets (the offset itself), and
    branches through a register."""
    out = []
    for n in [0, 4, -4, 2048, -2050, 0x100000, -0x100000, 0xFFFFFE, -0x1000000, 0x7FFFFE]:
        out.append(E('B.W %d' % n, 'b.w {br:%d}' % n))
        out.append(E('BL %d' % n, 'bl {br:%d}' % n))
    for n in [2048, -2050, 0x100000, -0x100000]:
        out.append(E('B %d' % n, 'b {br:%d}' % n))
    for i, c in enumerate(CONDS16[:14]):
        for n in [(i - 7) * 2, 256, -258, 0xFFFFE, -0x100000]:
            out.append(E('B%s.W %d' % (c, n), 'b%s.w {br:%d}' % (low(c), n)))
        out.append(E('B%s %d' % (c, 0x1000 + i * 2), 'b%s {br:%d}' % (low(c), 0x1000 + i * 2)))
    if not a.m:
        for n in [0, 4, -4, 0x1000, 0xFFFFFC, -0x1000000]:
            out.append(E('BLX %d' % n, 'blx {blx:%d}' % n))
        out += [E('BXJ R0'), E('BXJ R14'), E('BXJ R8')]
    out += [E('CRET 8', 'b.w {br:8}', 'CRET is a B, always wide'), E('CRET.W 0x2000', 'b.w {br:8192}', 'CRET is a B')]
    return out


MRS_M = ['APSR', 'IAPSR', 'EAPSR', 'XPSR', 'IPSR', 'EPSR', 'IEPSR', 'MSP', 'PSP', 'PRIMASK', 'BASEPRI',
         'BASEPRI_MAX', 'FAULTMASK', 'CONTROL']


def system(a):
    """PSR moves, CPS, barriers, hints, SVC and the like."""
    out = []
    if a.m:
        for r in MRS_M:
            if a.name == 'v6m' and r in ('BASEPRI', 'BASEPRI_MAX', 'FAULTMASK'):
                continue
            out.append(E('MRS R%d, %s' % (len(out) % 13, r)))
            msr = 'APSR_nzcvq' if r == 'APSR' else r
            out.append(E('MSR %s, R%d' % (msr, (len(out) * 3) % 13)))
        if a.name in ('v7em', 'v8m'):
            out += [E('MSR APSR_g, R1'), E('MSR APSR_nzcvqg, R2')]
        if a.name == 'v8m':
            out += [E('SG'), E('TT R0, R1'), E('TTT R2, R3'), E('TTA R4, R5'), E('TTAT R6, R7'), E('BXNS LR'),
                    E('BLXNS R3')]
    else:
        for r in ['CPSR', 'SPSR', 'APSR']:
            out.append(E('MRS R%d, %s' % (len(out) % 13, r)))
        for f in ['CPSR_c', 'CPSR_f', 'CPSR_fsxc', 'CPSR_sx', 'SPSR_fc', 'SPSR_fsxc', 'APSR_nzcvq', 'APSR_g',
                  'APSR_nzcvqg']:
            out.append(E('MSR %s, R%d' % (f, len(out) % 13)))
        for f in ['i', 'f', 'a', 'aif']:
            out += [E('CPSIE.W %s' % f), E('CPSID.W %s' % f), E('CPSIE %s, #16' % f), E('CPSID %s, #31' % f)]
        out += [E('CPS #16'), E('CPS #19'), E('SRSDB SP!, #19'), E('SRSIA SP, #16'), E('RFEIA R0'),
                E('RFEDB R1!'), E('RFEFD R2', 'rfeia r2', 'RFEFD is RFEIA'), E('RFEEA R3', 'rfedb r3', 'RFEEA is RFEDB'),
                E('SETEND BE'), E('SETEND LE')]
        if a.name == 'v7a':
            out += [E('SMI #%d' % n, 'smc #%d' % n, 'SMI is SMC') for n in (0, 3, 15)]
    out += [E('DMB', 'dmb sy'), E('DSB', 'dsb sy'), E('ISB', 'isb sy')]
    if a.name == 'v6m':
        return out
    for h in ['NOP', 'WFE', 'WFI', 'YIELD']:
        out.append(_w(h))
    out.append(E('SEV.W', note="the instruction table's word", want='f3af 9004'))
    for n in [0, 255, 256, 0xFFFF]:
        out.append(_w('UDF #%d' % n))
    out += [E('CLREX'), E('SVC #200')]
    if a.name in ('v7a', 'v7em'):
        out.append(E('FMSTAT', 'vmrs APSR_nzcv, fpscr', 'FMSTAT is VMRS APSR_nzcv'))
    for c in ['EQ', 'HI', 'LT']:
        out += it_wrap(a, c, 'SVC%s #1' % c, 'svc%s #1' % low(c))
    return out


def coproc(a):
    """Coprocessor instructions."""
    out = []
    for two in ['', '2']:
        out += [E('MRC%s p15, #0, R0, c1, c0, #0' % two), E('MCR%s p14, #7, R14, c15, c7, #7' % two),
                E('MRRC%s p15, #1, R2, R3, c4' % two), E('MCRR%s p7, #15, R8, R9, c0' % two),
                E('CDP%s p5, #2, c1, c2, c3, #4' % two), E('CDP%s p7, #15, c15, c15, c15, #7' % two)]
        for op in ['LDC', 'STC']:
            for l in ['', 'L']:
                m = op + two + l
                out += [E('%s p6, c1, [R2]' % m), E('%s p6, c1, [R2, #8]' % m), E('%s p6, c1, [R2, #-1020]!' % m),
                        E('%s p6, c1, [R2], #4' % m), E('%s p6, c1, [R2], {5}' % m)]
    return out
