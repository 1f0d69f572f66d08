"""Families of the DSP and media extensions: saturating arithmetic and
halfword multiplies (v5E), parallel arithmetic, sums of differences, dual
multiplies, saturation, packing, extension, byte reversal (v6), bit fields (v7)."""
from entries import CONDS, E, low

PAR_PREFIX = ['S', 'Q', 'SH', 'U', 'UQ', 'UH']
PAR_OPS = ['ADD16', 'ASX', 'SAX', 'SUB16', 'ADD8', 'SUB8']


def dsp(a):
    out = []
    for op in ['QADD', 'QSUB', 'QDADD', 'QDSUB']:
        for _ in range(3):
            out.append(E('%s %s, %s, %s' % ((op,) + tuple(a.regs(3)))))
        out.append(E('%s R14, R0, R14' % op))
    for xy in ['BB', 'TB', 'BT', 'TT']:
        out.append(E('SMLA%s %s, %s, %s, %s' % ((xy,) + tuple(a.regs(4)))))
        out.append(E('SMLAL%s %s, %s, %s, %s' % ((xy,) + tuple(a.regs(4)))))
        out.append(E('SMUL%s %s, %s, %s' % ((xy,) + tuple(a.regs(3)))))
    for y in ['B', 'T']:
        out.append(E('SMLAW%s %s, %s, %s, %s' % ((y,) + tuple(a.regs(4)))))
        out.append(E('SMULW%s %s, %s, %s' % ((y,) + tuple(a.regs(3)))))
    for _ in range(3):
        out.append(E('CLZ %s, %s' % tuple(a.regs(2))))
    out += [E('CLZ R14, R0'), E('CLZ R0, R14'), E('SMULBB R0, R0, R0'), E('SMLATT R14, R14, R14, R14')]
    ops = ['QADD', 'SMLABT', 'SMLALTB', 'SMULTT', 'SMLAWT', 'SMULWB', 'CLZ', 'QDSUB']
    for i, c in enumerate(CONDS):
        op = ops[i % len(ops)]
        n = {'SMLABT': 4, 'SMLALTB': 4, 'SMLAWT': 4, 'CLZ': 2}.get(op, 3)
        out.append(E('%s%s %s' % (op, c, ', '.join(a.regs(n)))))
    return out


def parallel(a):
    out = []
    old = {'ASX': 'ADDSUBX', 'SAX': 'SUBADDX'}
    for p in PAR_PREFIX:
        for op in PAR_OPS:
            r = a.regs(3)
            out.append(E('%s%s %s, %s, %s' % (p, op, r[0], r[1], r[2])))
            if op in old:
                r = a.regs(3)
                out.append(E('%s%s %s, %s, %s' % (p, old[op], r[0], r[1], r[2]),
                             '%s%s %s, %s, %s' % (low(p), low(op), r[0], r[1], r[2])))
    for i, c in enumerate(CONDS):
        p, op = PAR_PREFIX[i % 6], PAR_OPS[(i * 5) % 6]
        out.append(E('%s%s%s R0, R1, R2' % (p, op, c)))
    for _ in range(3):
        out.append(E('SEL %s, %s, %s' % tuple(a.regs(3))))
    out += [E('SEL8 R0, R1, R2', 'sel r0, r1, r2', 'SEL8 is SEL'), E('SELNE R3, R4, R5'),
            E('USAD8 R0, R1, R2'), E('USAD8 R14, R3, R4'), E('USADA8 R0, R1, R2, R3'), E('USADA8EQ R5, R6, R7, R8'),
            E('USAD8LT R9, R10, R11')]
    return out


def dualmul(a):
    out = []
    for op in ['SMLAD', 'SMLADX', 'SMLSD', 'SMLSDX', 'SMMLA', 'SMMLAR', 'SMMLS', 'SMMLSR']:
        out.append(E('%s %s, %s, %s, %s' % ((op,) + tuple(a.regs(4)))))
        out.append(E('%sEQ %s, %s, %s, %s' % ((op,) + tuple(a.regs(4)))))
    for op in ['SMUAD', 'SMUADX', 'SMUSD', 'SMUSDX', 'SMMUL', 'SMMULR']:
        out.append(E('%s %s, %s, %s' % ((op,) + tuple(a.regs(3)))))
        out.append(E('%sNE %s, %s, %s' % ((op,) + tuple(a.regs(3)))))
    for op in ['SMLALD', 'SMLALDX', 'SMLSLD', 'SMLSLDX', 'UMAAL']:
        out.append(E('%s %s, %s, %s, %s' % ((op,) + tuple(a.regs(4)))))
        out.append(E('%sGE %s, %s, %s, %s' % ((op,) + tuple(a.regs(4)))))
    out += [E('UMAAL R14, R0, R1, R2'), E('SMLAD R14, R14, R14, R0'), E('SMMUL R0, R14, R14')]
    return out


def sat(a):
    out = []
    for n in [1, 2, 16, 31, 32]:
        r = a.regs(2)
        out.append(E('SSAT %s, #%d, %s' % (r[0], n, r[1])))
    for n in [0, 1, 15, 30, 31]:
        r = a.regs(2)
        out.append(E('USAT %s, #%d, %s' % (r[0], n, r[1])))
    for op, n in [('SSAT', 8), ('USAT', 7)]:
        for sh in ['LSL #1', 'LSL #31', 'ASR #1', 'ASR #31', 'ASR #32', 'LSL #0']:
            r = a.regs(2)
            ref = None if sh != 'LSL #0' else '%s %s, #%d, %s' % (low(op), r[0], n, r[1])
            out.append(E('%s %s, #%d, %s, %s' % (op, r[0], n, r[1], sh), ref))
    for n in [1, 2, 8, 16]:
        out.append(E('SSAT16 %s, #%d, %s' % (a.regs(1)[0], n, a.regs(1)[0])))
    for n in [0, 1, 8, 15]:
        out.append(E('USAT16 %s, #%d, %s' % (a.regs(1)[0], n, a.regs(1)[0])))
    out += [E('SSATEQ R0, #4, R1'), E('USATNE R2, #5, R3, ASR #2'), E('SSAT16GT R4, #6, R5'),
            E('USAT16LE R6, #7, R7'), E('SSAT R14, #32, R14')]
    return out


def pack(a):
    out = []
    for n in [1, 8, 16, 31]:
        r = a.regs(3)
        out.append(E('PKHBT %s, %s, %s, LSL #%d' % (r[0], r[1], r[2], n)))
        r = a.regs(3)
        out.append(E('PKHTB %s, %s, %s, ASR #%d' % (r[0], r[1], r[2], n)))
    r = a.regs(3)
    out.append(E('PKHBT %s, %s, %s' % tuple(r)))
    out.append(E('PKHBT %s, %s, %s, LSL #0' % tuple(r), 'pkhbt %s, %s, %s' % tuple(r), 'a shift by 0 is no shift'))
    r = a.regs(3)
    out.append(E('PKHTB %s, %s, %s' % tuple(r), 'pkhbt %s, %s, %s' % (r[0], r[2], r[1]),
                 'without a shift the sources swap into PKHBT'))
    out += [E('PKHBTEQ R0, R1, R2, LSL #4'), E('PKHTBNE R3, R4, R5, ASR #12'), E('PKHBT R14, R14, R0')]
    return out


def extend(a):
    out = []
    two = ['SXTB', 'SXTH', 'UXTB', 'UXTH', 'SXTB16', 'UXTB16']
    three = ['SXTAB', 'SXTAH', 'UXTAB', 'UXTAH', 'SXTAB16', 'UXTAB16']
    for op in two:
        out.append(E('%s %s, %s' % ((op,) + tuple(a.regs(2)))))
        for rot in [8, 16, 24]:
            out.append(E('%s %s, %s, ROR #%d' % ((op,) + tuple(a.regs(2)) + (rot,))))
        out.append(E('%sEQ %s, %s' % ((op,) + tuple(a.regs(2)))))
    for op in three:
        out.append(E('%s %s, %s, %s' % ((op,) + tuple(a.regs(3)))))
        for rot in [8, 16, 24]:
            out.append(E('%s %s, %s, %s, ROR #%d' % ((op,) + tuple(a.regs(3)) + (rot,))))
        out.append(E('%sMI %s, %s, %s' % ((op,) + tuple(a.regs(3)))))
    out += [E('SXTB R14, R0'), E('UXTAH R0, R14, R0')]
    # Older spellings of the same rows.
    for old, new in [('SUNPK8TO16', 'SXTB16'), ('SUNPK8TO32', 'SXTB'), ('SUNPK16TO32', 'SXTH'),
                     ('UUNPK8TO16', 'UXTB16'), ('UUNPK8TO32', 'UXTB'), ('UUNPK16TO32', 'UXTH')]:
        out.append(E('%s R0, R1, ROR #8' % old, '%s r0, r1, ror #8' % low(new), 'older spelling of ' + new))
    for old, new in [('SADD8TO16', 'SXTAB16'), ('SADD8TO32', 'SXTAB'), ('SADD16TO32', 'SXTAH'),
                     ('UADD8TO16', 'UXTAB16'), ('UADD8TO32', 'UXTAB'), ('UADD16TO32', 'UXTAH')]:
        out.append(E('%s R2, R3, R4' % old, '%s r2, r3, r4' % low(new), 'older spelling of ' + new))
    return out


def rev(a):
    out = []
    ops = ['REV', 'REV16', 'REVSH', 'RBIT']
    for op in ops:
        ref = 'v7a' if op == 'RBIT' and a.level < 7 else None
        note = 'RBIT is taken from v6 on' if ref else None
        for _ in range(3):
            out.append(E('%s %s, %s' % ((op,) + tuple(a.regs(2))), note=note, refarch=ref))
        out.append(E('%s R14, R0' % op, note=note, refarch=ref))
        out.append(E('%sEQ R1, R14' % op, note=note, refarch=ref))
    return out


def bitfield(a):
    out = []
    for lsb, width in [(0, 1), (0, 32), (31, 1), (8, 8), (16, 16), (1, 31), (4, 12), (30, 2)]:
        r = a.regs(2)
        out.append(E('BFC %s, #%d, #%d' % (r[0], lsb, width)))
        out.append(E('BFI %s, %s, #%d, #%d' % (r[0], r[1], lsb, width)))
        r = a.regs(2)
        out.append(E('SBFX %s, %s, #%d, #%d' % (r[0], r[1], lsb, width)))
        out.append(E('UBFX %s, %s, #%d, #%d' % (r[0], r[1], lsb, width)))
    out += [E('BFCEQ R0, #4, #4'), E('BFINE R1, R2, #0, #8'), E('SBFXGT R3, R4, #7, #9'), E('UBFXLE R5, R6, #2, #30'),
            E('BFI R14, R0, #3, #3'), E('UBFX R0, R14, #31, #1')]
    return out
