"""The statements of the Thumb-2 data-processing corpus, by file.

Each entry is (statement, groups); a group names a feature that an
architecture must have for the line to be written for it. A third element,
when present, is this assembler's own value for a line where it deliberately
differs from the references, with the note that says why.
"""

# Mnemonics that also have a 16-bit form take .W, so that the lines keep their
# width once narrowing lands.
MODCONST = ['#0', '#0x7F', '#0xFF', '#0x00AB00AB', '#0xAB00AB00', '#0xABABABAB', '#0x80000000',
            '#0x3FC00', '#0xFF000000', '#0x1FE', '#0x00FF00FF', '#-1']


def imm():
    out = []
    for name in ['ADD', 'AND', 'BIC', 'EOR', 'ORR', 'RSB', 'SUB', 'ADC', 'SBC']:
        # ADC and SBC have no 16-bit immediate form (and the references no .W).
        w = '' if name in ('ADC', 'SBC') else '.W'
        out += [('%s%s R0, R1, #1' % (name, w), ()), ('%sS%s R8, R9, #0x1FE' % (name, w), ()),
                ('%s%s R12, R14, #0xAB00AB00' % (name, w), ())]
    out += [('ADD.W R12, SP, #0xAB00AB00', ()), ('SUBS.W R1, SP, #0xFF0', ())]
    out += [('ORN R1, R2, #0x3FC00', ()), ('ORNS R11, R4, #0xFF00FF', ())]
    for c in MODCONST:
        out.append(('ADDS.W R3, R10, %s' % c, ()))
    out += [('%s R5, #0x55000000' % n, ()) for n in ['TST.W', 'TEQ', 'CMP.W', 'CMN.W']]
    out += [('CMP.W R9, #7', ()), ('CMP.W SP, #1', ())]
    out += [('MOV.W R0, #0xFF00FF00', ()), ('MOVS.W R9, #0x7F8', ()), ('MVN.W R2, #0xABABABAB', ()),
            ('MVNS.W R14, #0x100', ()), ('MOV.W R1, #-1', ())]
    # ADD and SUB without S take the twelve-bit forms for other values.
    out += [('ADD.W R0, R1, #0xFFF', (), 'f601 70ff', 'ADDW for a value that is no modified constant'),
            ('SUB.W R2, R3, #0x123', (), 'f2a3 1223', 'SUBW for a value that is no modified constant'),
            ('ADD R4, SP, #0x101', (), 'f20d 1401', 'ADDW for a value that is no modified constant'),
            ('ADDW R8, R9, #0', ()), ('ADDW R0, PC, #4095', ()), ('SUBW R1, SP, #2047', ()),
            ('SUBW R10, R11, #0x800', ())]
    # MOV of a sixteen-bit value that is no modified constant: MOVW.
    out += [('MOV.W R3, #0x1234', (), 'f241 2334', 'MOVW for a value that is no modified constant'),
            ('MOV R11, #0xFFFF', (), 'f64f 7bff', 'MOVW for a value that is no modified constant')]
    out += [('MOVW R1, #0', ()), ('MOVT R9, #0xFFFF', ()), ('MOVW R12, #0xA5A5', ()), ('MOVT LR, #0x1234', ())]
    out += [('SUBS PC, LR, #0', ('ar',)), ('SUBS PC, LR, #255', ('ar',))]
    return out


SHIFTS = ['', ', LSL #1', ', LSL #31', ', LSR #1', ', LSR #32', ', ASR #7', ', ASR #32', ', ROR #1', ', ROR #31',
          ', RRX']


def reg():
    out = []
    for name in ['ADD', 'ADC', 'AND', 'BIC', 'EOR', 'ORR', 'RSB', 'SBC', 'SUB']:
        out += [('%s.W R0, R1, R2' % name, ()), ('%sS.W R8, R9, R10, LSL #4' % name, ())]
    out += [('ORN R1, R2, R3, ASR #2', ()), ('ORNS R11, R12, R14', ())]
    for s in SHIFTS:
        out.append(('EOR.W R3, R4, R5%s' % s, ()))
    out += [('TST.W R1, R2, LSL #3', ()), ('TEQ R9, R10, ROR #4', ()), ('CMP.W R11, R12, ASR #30', ()),
            ('CMN.W R0, R1, LSR #2', ()), ('CMP.W SP, R1', ())]
    out += [('MOV.W R0, R1', ()), ('MOVS.W R8, R9', ()), ('MVN.W R2, R3, LSL #2', ()), ('MVNS.W R12, R14', ()),
            ('MOV.W R2, R3, RRX', ()), ('MOV.W SP, R1', ()), ('MOV.W R1, SP', ())]
    out += [('ADD.W R0, SP, R1, LSL #2', ()), ('SUB.W SP, SP, R3', ())]
    # Shifts by an immediate are MOV with a shifted register; by a register
    # their own class.
    for name in ['LSL', 'LSR', 'ASR', 'ROR']:
        out += [('%s.W R0, R1, R2' % name, ()), ('%sS.W R8, R9, R10' % name, ())]
    out += [('LSL.W R1, R2, #5', ()), ('LSRS.W R3, R4, #32', ()), ('ASR.W R12, R11, #1', ()),
            ('ROR.W R9, R8, #31', ()), ('RRX R0, R1', ()), ('RRXS R14, R12', ())]
    return out


def ext():
    out = []
    for name in ['SXTB', 'SXTH', 'UXTB', 'UXTH']:
        out += [('%s.W R0, R1' % name, ()), ('%s.W R8, R9, ROR #8' % name, ()),
                ('%s.W R12, R14, ROR #24' % name, ())]
    for name in ['SXTB16', 'UXTB16']:
        out += [('%s R0, R1' % name, ('dsp',)), ('%s R10, R11, ROR #16' % name, ('dsp',))]
    for name in ['SXTAB', 'SXTAH', 'SXTAB16', 'UXTAB', 'UXTAH', 'UXTAB16']:
        out += [('%s R0, R1, R2' % name, ('dsp',)), ('%s R8, R9, R10, ROR #24' % name, ('dsp',))]
    for name in ['REV', 'REV16', 'REVSH']:
        out += [('%s.W R0, R1' % name, ()), ('%s.W R9, R10' % name, ())]
    out += [('RBIT R2, R3', ()), ('RBIT R12, R14', ()), ('CLZ R0, R1', ()), ('CLZ R11, R12', ())]
    return out


def mul():
    out = [('MUL.W R0, R1, R2', (), 'fb01 f002', 'the references have no .W form'),
           ('MUL R8, R9, R10', ()), ('MLA R0, R1, R2, R3', ()), ('MLA R8, R9, R10, R11', ()),
           ('MLS R1, R2, R3, R4', ()), ('MLS R12, R11, R10, R9', ())]
    for name in ['UMULL', 'UMLAL', 'SMULL', 'SMLAL']:
        out += [('%s R0, R1, R2, R3' % name, ()), ('%s R8, R9, R10, R11' % name, ())]
    out += [('SDIV R0, R1, R2', ('div',)), ('UDIV R8, R9, R10', ('div',)), ('SDIV R12, R14, R11', ('div',))]
    for xy in ['BB', 'BT', 'TB', 'TT']:
        out += [('SMUL%s R0, R1, R2' % xy, ('dsp',)), ('SMLA%s R8, R9, R10, R11' % xy, ('dsp',)),
                ('SMLAL%s R1, R2, R3, R4' % xy, ('dsp',))]
    for y in ['B', 'T']:
        out += [('SMULW%s R3, R4, R5' % y, ('dsp',)), ('SMLAW%s R9, R10, R11, R12' % y, ('dsp',))]
    for name in ['SMLAD', 'SMLADX', 'SMLSD', 'SMLSDX', 'SMMLA', 'SMMLAR', 'SMMLS', 'SMMLSR']:
        out.append(('%s R0, R1, R2, R3' % name, ('dsp',)))
    for name in ['SMUAD', 'SMUADX', 'SMUSD', 'SMUSDX', 'SMMUL', 'SMMULR']:
        out.append(('%s R8, R9, R10' % name, ('dsp',)))
    for name in ['SMLALD', 'SMLALDX', 'SMLSLD', 'SMLSLDX', 'UMAAL']:
        out.append(('%s R1, R2, R3, R4' % name, ('dsp',)))
    out += [('USAD8 R0, R1, R2', ('dsp',)), ('USADA8 R8, R9, R10, R11', ('dsp',))]
    return out


def media():
    out = []
    for name in ['QADD', 'QSUB', 'QDADD', 'QDSUB']:
        out.append(('%s R0, R1, R2' % name, ('dsp',)))
    for prefix in ['S', 'Q', 'SH', 'U', 'UQ', 'UH']:
        for op in ['ADD16', 'ASX', 'SAX', 'SUB16', 'ADD8', 'SUB8']:
            out.append(('%s%s R1, R2, R3' % (prefix, op), ('dsp',)))
    out += [('SEL R8, R9, R10', ('dsp',))]
    out += [('SSAT R0, #1, R1', ()), ('SSAT R8, #32, R9, LSL #31', ()), ('SSAT R2, #16, R3, ASR #31', ()),
            ('USAT R4, #0, R5', ()), ('USAT R10, #31, R11, ASR #1', ()), ('USAT R1, #7, R2, LSL #4', ())]
    out += [('SSAT16 R0, #1, R1', ('dsp',)), ('SSAT16 R9, #16, R10', ('dsp',)),
            ('USAT16 R2, #0, R3', ('dsp',)), ('USAT16 R11, #15, R12', ('dsp',))]
    out += [('PKHBT R0, R1, R2', ('dsp',)), ('PKHBT R8, R9, R10, LSL #31', ('dsp',)),
            ('PKHTB R3, R4, R5, ASR #32', ('dsp',)), ('PKHTB R11, R12, R14, ASR #1', ('dsp',))]
    out += [('BFI R0, R1, #0, #32', ()), ('BFI R8, R9, #31, #1', ()), ('BFC R2, #4, #8', ()),
            ('SBFX R3, R4, #5, #27', ()), ('UBFX R10, R11, #0, #1', ()), ('UBFX R12, R14, #16, #16', ())]
    return out


FILES = [
    ('imm', 'data processing with a modified constant, ADDW, SUBW, MOV, MVN, MOVW, MOVT', imm),
    ('reg', 'data processing with a shifted register, the shifts', reg),
    ('ext', 'extends, byte and bit reversal, CLZ', ext),
    ('mul', 'multiplies, long multiplies, divides, DSP multiplies', mul),
    ('media', 'saturating arithmetic, parallel add and subtract, SEL, saturation, packs, bit fields', media),
]
