"""The statements of each family, per architecture folder, as
(source for this assembler, source for the reference tools) or, where
llvm-mc keeps a form that this assembler rewrites as GNU as does,
(source, reference, note): GNU as alone then gives the value. Where this
assembler encodes deliberately otherwise, (source, None, note, (hi, lo))
gives the value itself. A label is
(None, 'name:'). Every statement is 32 bits wide."""

A_R = ('v7a', 'v7r')
M = ('v7m', 'v7em', 'v8m')
V7 = A_R + M

SIZES = ['LDR', 'STR', 'LDRB', 'STRB', 'LDRH', 'STRH', 'LDRSB', 'LDRSH']
MODES = ['[R1]', '[R2, #0]', '[R3, #4095]', '[R4, #-255]', '[R5, #-1]', '[R6, #255]!', '[R7, #-8]!',
         '[R8], #4', '[R9], #-255', '[R10, R11]', '[R12, R1, LSL #3]', '[SP, #16]', '[R1, LR, LSL #1]']


def same(lines):
    return [(s, s) for s in lines]


def unwide(text):
    """llvm-mc takes .W only where a 16-bit form of the same kind exists."""
    return text.replace('.W ', ' ') if '-' in text or '!' in text or '], #' in text else text


def ldst(arch):
    if arch not in V7:
        return []
    out = []
    for op in SIZES:
        for i, mode in enumerate(MODES):
            out.append('%s.W R%d, %s' % (op, i % 8, mode))
    out = [(s, unwide(s)) for s in out]
    out += ['LDR.W PC, [R0, #4]', 'LDR.W R0, [PC, #-8]', 'LDR.W R0, [PC, #8]', 'LDRB.W R14, [R0, #1]',
            'LDR.W SP, [R0]', 'STR.W R0, [R0, #4]', 'LDR.W R1, [R1, #4]', 'LDRSH.W R9, [PC, #-100]']
    for op in ['LDRT', 'STRT', 'LDRBT', 'STRBT', 'LDRHT', 'STRHT', 'LDRSBT', 'LDRSHT']:
        out += ['%s R3, [R4]' % op, '%s R5, [R6, #255]' % op, '%s R7, [R8, #4]' % op]
    return [e if isinstance(e, tuple) else (unwide(e), unwide(e)) for e in out]


def dual(arch):
    if arch not in V7:
        return []
    out = []
    for op in ['LDRD', 'STRD']:
        for mode in ['[R2]', '[R2, #8]', '[R2, #-8]', '[R2, #1020]', '[R2, #-1020]', '[R2, #16]!',
                     '[R2, #-4]!', '[R2], #4', '[R2], #-1020', '[SP, #0]']:
            out.append('%s R0, R1, %s' % (op, mode))
        out.append('%s R4, R9, [R10, #4]' % op)
    out.append('LDRD R0, R1, [PC, #-16]')
    return same(out)


def pcrel(arch):
    if arch not in V7:
        return []
    out = [(None, 'back:')]
    for op in ['LDR.W R0', 'LDR.W R9', 'LDRB.W R1', 'LDRH.W R2', 'LDRSB.W R3', 'LDRSH.W R4', 'LDR.W PC']:
        out.append(('%s, back' % op, '%s, back' % op.lower()))
        out.append(('%s, fwd' % op, '%s, fwd' % op.lower()))
    out += [('LDRD R0, R1, back', 'ldrd r0, r1, back'), ('LDRD R2, R3, fwd', 'ldrd r2, r3, fwd'),
            ('PLD back', 'pld back'), ('PLD fwd', 'pld fwd')]
    if arch != 'v7m':
        out += [('PLI back', 'pli back'), ('PLI fwd', 'pli fwd')]
    out += [('NOP.W', 'nop.w'), ('NOP.W', 'nop.w'), (None, 'fwd:'), ('NOP.W', 'nop.w')]
    return out


def ldm(arch):
    if arch not in V7:
        return []
    out = []
    for op in ['LDM', 'LDMIA', 'LDMFD', 'LDMDB', 'LDMEA', 'STM', 'STMIA', 'STMEA', 'STMDB', 'STMFD']:
        out += ['%s.W R0, {R1, R2}' % op, '%s.W R3!, {R0-R2, R4-R12}' % op, '%s.W R8, {R0, R14}' % op]
    out += ['LDM.W R0, {R1, PC}', 'LDMDB.W R1!, {R4-R11, PC}', 'PUSH.W {R0, R1}', 'PUSH.W {R4-R11, LR}',
            'POP.W {R0, R1}', 'POP.W {R4-R11, PC}', 'POP.W {R1-R12, LR}']
    # One register: LDR or STR.
    out += ['PUSH.W {R0}', 'PUSH.W {LR}', 'POP.W {R7}', 'POP.W {PC}', 'LDM.W R0!, {R1}', 'STMDB.W SP!, {R4}',
            'STMFD.W R1!, {R9}']
    note = 'as LDR or STR'
    return same(out) + [(s, s, note) for s in ['LDMIA.W R0, {R5}', 'STMIA.W R2!, {R3}', 'LDMDB.W R6!, {R3}',
                                               'STM.W R8!, {R11}', 'STMDB.W R0, {R1}', 'LDMDB.W R0, {R1}',
                                               'LDMEA.W R3, {R2}', 'STMFD.W R4, {LR}']]


def table(arch):
    if arch not in V7:
        return []
    return same(['TBB [R0, R1]', 'TBB [PC, R2]', 'TBH [R3, R4, LSL #1]', 'TBH [PC, R12, LSL #1]',
                 'TBB [R12, R14]'])


def preload(arch):
    if arch not in V7:
        return []
    ops = ['PLD'] + (['PLI'] if arch != 'v7m' else [])
    out = []
    for op in ops:
        out += ['%s [R0]' % op, '%s [R1, #4095]' % op, '%s [R2, #-255]' % op, '%s [R3, #-1]' % op,
                '%s [R4, #0]' % op, '%s [R5, R6]' % op, '%s [R7, R8, LSL #3]' % op, '%s [PC, #-100]' % op,
                '%s [PC, #100]' % op, '%s [SP, #-128]' % op]
    return same(out)


def excl(arch):
    if arch not in V7 and arch != 'v8m':
        return []
    out = ['LDREX R0, [R1]', 'LDREX R2, [R3, #1020]', 'LDREX R4, [SP, #4]', 'LDREXB R5, [R6]',
           'LDREXH R7, [R8]', 'STREX R0, R1, [R2]', 'STREX R3, R4, [R5, #1020]', 'STREXB R6, R7, [R8]',
           'STREXH R9, R10, [R11]', 'CLREX']
    if arch in A_R:
        out += ['LDREXD R0, R1, [R2]', 'LDREXD R4, R9, [R10]', 'STREXD R0, R2, R3, [R4]',
                'STREXD R12, R10, R11, [SP]']
    return same(out)


def system(arch):
    if arch == 'v6m':
        out = ['DMB', 'DSB', 'ISB', 'MRS R0, APSR', 'MRS R1, PRIMASK', 'MRS R2, MSP', 'MRS R3, PSP',
               'MRS R4, CONTROL', 'MRS R5, IPSR', 'MSR APSR_nzcvq, R0', 'MSR PRIMASK, R1', 'MSR CONTROL, R2',
               'MSR MSP, R3']
        return same(out)
    out = ['DMB', 'DSB', 'ISB', 'NOP.W', 'YIELD.W', 'WFE.W', 'WFI.W']
    if arch in A_R:
        out += ['MRS R0, APSR', 'MRS R1, CPSR', 'MRS R2, SPSR', 'MSR CPSR_fc, R0', 'MSR CPSR_c, R1',
                'MSR SPSR_fsxc, R2', 'MSR APSR_nzcvq, R3', 'MSR CPSR_x, R4',
                'CPSIE.W i', 'CPSID.W aif', 'CPSIE.W f, #16', 'CPSID a, #31', 'CPS #19',
                'SRSDB SP!, #19', 'SRSIA SP, #16', 'SRS SP, #31', 'SRSFD SP!, #17', 'SRSEA SP, #18',
                'RFEIA R0', 'RFEDB R1!', 'RFEFD SP!', 'RFEEA R14']
    else:
        out += ['MRS R0, APSR', 'MRS R1, IAPSR', 'MRS R2, EAPSR', 'MRS R3, XPSR', 'MRS R4, IPSR',
                'MRS R5, EPSR', 'MRS R6, IEPSR', 'MRS R7, MSP', 'MRS R8, PSP', 'MRS R9, PRIMASK',
                'MRS R10, BASEPRI', 'MRS R11, BASEPRI_MAX', 'MRS R12, FAULTMASK', 'MRS R0, CONTROL',
                'MSR APSR_nzcvq, R0', 'MSR APSR_nzcvq, R1', 'MSR MSP, R2', 'MSR PSP, R3',
                'MSR PRIMASK, R4', 'MSR BASEPRI, R5', 'MSR BASEPRI_MAX, R6', 'MSR FAULTMASK, R7',
                'MSR CONTROL, R8']
        if arch == 'v7em':
            out += ['MSR APSR_g, R0', 'MSR APSR_nzcvqg, R1']
    out += ['UDF.W #0', 'UDF.W #65535', 'UDF.W #0x1234']
    if arch == 'v8m':
        out += ['SG', 'TT R0, R1', 'TTT R2, R3', 'TTA R4, R5', 'TTAT R6, R7', 'TT R12, LR']
    out = same(out) + [('SEV.W', None, 'the instruction table\'s word', (0xF3AF, 0x9004))]
    if arch == 'v7a':
        # Sixteen bits: the top four go where the others have their only four.
        out += [('SMI #0', 'smc #0'), ('SMI #0xF000', 'smc #15'), ('SMI #0x9000', 'smc #9'),
                ('SMI #0x1234', None, 'bits below the top four are kept', (0xF7F1, 0x8234)),
                ('SMI #0xFFFF', None, 'bits below the top four are kept', (0xF7FF, 0x8FFF))]
    return out


def coproc(arch):
    if arch not in V7:
        return []
    out = []
    for op in ['MRC', 'MCR', 'MRC2', 'MCR2']:
        out += ['%s p15, #0, R0, c1, c0, #0' % op, '%s p14, #7, R14, c15, c15, #7' % op,
                '%s p1, #1, R1, c2, c3' % op]
    for op in ['MRRC', 'MCRR', 'MRRC2', 'MCRR2']:
        out += ['%s p15, #0, R0, R1, c1' % op, '%s p7, #15, R12, R14, c15' % op]
    for op in ['LDC', 'STC', 'LDCL', 'STCL', 'LDC2', 'STC2', 'LDC2L', 'STC2L']:
        out += ['%s p1, c2, [R3]' % op, '%s p14, c15, [R4, #1020]' % op, '%s p0, c0, [R5, #-1020]!' % op,
                '%s p6, c7, [R8], #-4' % op, '%s p9, c10, [R11], {200}' % op]
    out += ['CDP p1, #2, c3, c4, c5, #6', 'CDP2 p15, #15, c15, c15, c15, #7', 'CDP p0, #0, c0, c0, c0, #0']
    return same(out)


FAMILIES = [
    ('ldst', 'word, byte and halfword loads and stores in every addressing mode, the T forms', ldst),
    ('dual', 'doubleword loads and stores', dual),
    ('pcrel', 'loads and preloads of labels in the same section', pcrel),
    ('ldm', 'multiple transfers, PUSH and POP, and lists of one register', ldm),
    ('table', 'table branches', table),
    ('preload', 'PLD and PLI', preload),
    ('excl', 'exclusive loads and stores, CLREX', excl),
    ('system', 'barriers, hints, status registers, CPS, SRS, RFE, SMI, UDF, SG, TT', system),
    ('coproc', 'coprocessor transfers', coproc),
]
