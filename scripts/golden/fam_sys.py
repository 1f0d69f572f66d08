"""Families of system instructions: status registers, coprocessors, CPS, SRS,
RFE, SETEND, hints and barriers, and the exception-causing instructions."""
from entries import CONDS, E, low

PSR_MASKS = ['c', 'x', 's', 'f', 'cx', 'cs', 'cf', 'xs', 'xf', 'sf', 'cxs', 'cxf', 'csf', 'xsf', 'cxsf']


def psr(a):
    out = []
    for src in ['CPSR', 'SPSR', 'APSR', 'cpsr', 'spsr']:
        r = a.regs(1)[0]
        out.append(E('MRS %s, %s' % (r, src)))
    out += [E('MRS R14, CPSR'), E('MRSEQ R0, SPSR'), E('MRSNE R1, CPSR')]
    for m in PSR_MASKS:
        r = a.regs(1)[0]
        out.append(E('MSR CPSR_%s, %s' % (m, r)))
        out.append(E('MSR SPSR_%s, %s' % (m.upper(), r), 'msr spsr_%s, %s' % (m, r)))
    out += [E('MSR CPSR_fsxc, R0'), E('MSR cpsr_xc, R1'), E('MSR SPSR_fc, R14'),
            E('MSR CPSR_f, #0xF0000000'), E('MSR CPSR_c, #0x1F'), E('MSR CPSR_fc, #0xD3'),
            E('MSR SPSR_cxsf, #0x10'), E('MSR SPSR_s, #0xFF0000'), E('MSR APSR_nzcvq, R0'),
            E('MSR APSR_nzcvq, #0x80000000'), E('MSREQ CPSR_f, R3'), E('MSRGT SPSR_c, #0x13')]
    if a.level >= 6:
        # The GE bits are the s field; one reference wants its DSP option for the APSR name.
        out += [E('MSR APSR_g, R1', 'msr cpsr_s, r1'), E('MSR APSR_nzcvqg, R2', 'msr cpsr_fs, r2'),
                E('MSR APSR_g, #0xF0000', 'msr cpsr_s, #0xF0000')]
    return out


def coproc(a):
    out = []
    v5 = a.level >= 5

    def cps():
        return a.pick(['p0', 'p1', 'p7', 'p14', 'p15', 'P15', 'P3'])

    rows = ['CDP'] + (['CDP2'] if v5 else [])
    for op in rows:
        out += [E('%s %s, #0, c0, c1, c2, #0' % (op, cps())), E('%s p0, #15, c15, c15, c15, #7' % op),
                E('%s P7, #3, C4, C5, C6' % op, '%s p7, #3, c4, c5, c6, #0' % low(op)), E('%s p5, #1, c8, c0, c9, #4' % op)]
    for op in ['MRC', 'MCR'] + (['MRC2', 'MCR2'] if v5 else []):
        for _ in range(2):
            r = a.regs(1)[0]
            out.append(E('%s %s, #0, %s, c1, c0, #0' % (op, cps(), r)))
        out += [E('%s p14, #7, R14, c15, c15, #7' % op), E('%s P15, #1, R1, C2, C3' % op)]
    if v5:
        for op in ['MCRR', 'MRRC'] + (['MCRR2', 'MRRC2'] if a.level >= 6 else []):
            out += [E('%s p15, #0, R0, R1, c2' % op), E('%s p1, #15, R14, R2, c15' % op),
                    E('%s P6, #7, R3, R4, C0' % op)]
    modes = ['[{n}]', '[{n}, #1020]', '[{n}, #-1020]', '[{n}, #8]!', '[{n}, #-4]!', '[{n}], #-4', '[{n}], #1020',
             '[{n}], #0', '[{n}, #0]']
    for op in ['LDC', 'STC', 'LDCL', 'STCL'] + (['LDC2', 'STC2', 'LDC2L', 'STC2L'] if v5 else []):
        for mode in modes:
            out.append(E('%s %s, c%d, %s' % (op, cps(), a.pick(range(16)), mode.format(n=a.regs(1)[0]))))
    # No LT here: LDCLT and STCLT are the rows LDCL and STCL with a T.
    for c in ['EQ', 'NE', 'GT', 'AL']:
        out += [E('CDP%s p2, #1, c1, c2, c3, #1' % c), E('MRC%s p15, #0, R2, c1, c0, #0' % c),
                E('MCR%s p15, #0, R3, c7, c5, #4' % c), E('LDC%s p4, c5, [R6, #16]' % c),
                E('STC%sL p4, c5, [R6], #-16' % c, 'stcl%s p4, c5, [r6], #-16' % low(c)),
                E('LDC%sL p4, c5, [R6]' % c, 'ldcl%s p4, c5, [r6]' % low(c)),
                E('LDCL%s p4, c5, [R6, #-8]!' % c, 'ldcl%s p4, c5, [r6, #-8]!' % low(c))]
        if v5:
            out.append(E('MCRR%s p15, #2, R4, R5, c6' % c))
    return out


def system(a):
    """CPS, SRS, RFE and SETEND (v6)."""
    out = [E('CPS #16'), E('CPS #31'), E('CPS #0'), E('CPSIE i'), E('CPSIE if'), E('CPSIE aif'),
           E('CPSID a'), E('CPSID AIF', 'cpsid aif'), E('CPSIE f, #19'), E('CPSID ai, #31'), E('CPSIE a, #0'),
           E('CPSID fi', 'cpsid if'), E('CPSIE I', 'cpsie i')]
    for m, canon in [('IA', 'ia'), ('IB', 'ib'), ('DA', 'da'), ('DB', 'db'), ('FD', 'db'), ('FA', 'ib'),
                     ('ED', 'da'), ('EA', 'ia')]:
        out.append(E('SRS%s SP!, #19' % m, 'srs%s sp!, #19' % canon))
        out.append(E('SRS%s SP, #31' % m, 'srs%s sp, #31' % canon))
        out.append(E('SRS%s #16' % m, 'srs%s sp, #16' % canon, 'the SP may be left out'))
    for m, canon in [('IA', 'ia'), ('IB', 'ib'), ('DA', 'da'), ('DB', 'db'), ('FD', 'ia'), ('ED', 'ib'),
                     ('EA', 'db'), ('FA', 'da')]:
        r = a.regs(1)[0]
        out.append(E('RFE%s %s' % (m, r), 'rfe%s %s' % (canon, r)))
        out.append(E('RFE%s %s!' % (m, r), 'rfe%s %s!' % (canon, r)))
    out += [E('RFE R0', 'rfeda r0', 'no mode letter writes DA'),
            E('SRS SP, #19', 'srsda sp, #19', 'no mode letter writes DA'),
            E('SETEND BE'), E('SETEND LE')]
    return out


def hints(a):
    """NOP, the hints, the barriers, and the instructions that trap."""
    out = []
    nop_note = 'NOP is MOV R0, R0' if a.level >= 7 else None
    out += [E('NOP', 'mov r0, r0', nop_note), E('NOPEQ', 'moveq r0, r0', nop_note),
            E('NOPNE', 'movne r0, r0', nop_note)]
    if a.level >= 7:
        for op in ['YIELD', 'WFE', 'WFI', 'SEV']:
            out.append(E(op))
            for c in ['EQ', 'NE', 'GT', 'AL']:
                out.append(E(op + c))
        out += [E('DMB', 'dmb sy'), E('DSB', 'dsb sy'), E('ISB', 'isb sy'), E('CLREX')]
    if a.level >= 5:
        out += [E('BKPT #0'), E('BKPT #0xFFFF'), E('BKPT #0x1234'), E('BKPT #15'), E('BKPT #16')]
    for v in ['#0', '#0xFFFFFF', '#0x123456', '#1', '#0x800000']:
        out.append(E('SWI %s' % v, 'svc %s' % v))
        out.append(E('SVC %s' % v))
    for c in CONDS:
        out.append(E('SVC%s #%d' % (c, len(c) * 7), 'svc%s #%d' % (low(c), len(c) * 7)))
    out += [E('SWIEQ #1', 'svceq #1'), E('SWIAL #0xABCDEF', 'svc #0xABCDEF')]
    for v in [0, 1, 0x10, 0xFFFF, 0x1234, 0xFFF0]:
        out.append(E('UDF #%d' % v, refarch='v7a' if a.level < 7 else None))
    if a.level >= 6:
        ref = 'v7a' if a.name != 'v7a' else None
        note = 'the references know it only with the security extension' if ref else None
        for v in [0, 1, 7, 15]:
            out.append(E('SMI #%d' % v, 'smc #%d' % v, note, refarch=ref))
        out.append(E('SMIEQ #3', 'smceq #3', note, refarch=ref))
        # The field is 16 bits wide, split 4 and 12 like BKPT.
        for v in [0x10, 0x1234, 0xFFFF]:
            out.append(E('SMI #%d' % v, want=0xE1600070 | v & 0xF | (v >> 4) << 8,
                         note='16-bit comment field, no reference has it'))
    out += [E('FMSTAT', want=0xEEF1FA10, note='base value only: no VFP check'),
            E('FMSTATEQ', want=0x0EF1FA10, note='base value only: no VFP check')]
    return out
