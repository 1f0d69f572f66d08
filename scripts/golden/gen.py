#!/usr/bin/env python3
"""Writes the encoding corpus tests/golden/<arch>/<family>.asm.

Each line's expected word comes from llvm-mc -show-encoding and must agree
with GNU as (read back with objdump -d). Lines where the two disagree, or
both reject the line, are not written: they are listed in review.txt beside
this script. Lines with a `want` of their own (this assembler's deliberate
differences, where no reference can say the value) skip the references.

    scripts/golden/gen.py [--out DIR] [--arch v7a ...]
"""
import argparse
import concurrent.futures
import os
import re
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import fam_core  # noqa: E402
import fam_media  # noqa: E402
import fam_mem  # noqa: E402
import fam_sys  # noqa: E402
import fam_thumb  # noqa: E402
import fam_thumb2  # noqa: E402
import fam_thumb2_mem  # noqa: E402
import fam_thumb2_ops  # noqa: E402
from entries import Arch  # noqa: E402
from refs import gnu_encode, llvm_encode, thumb_encode  # noqa: E402

ARCH_OPTION = {'v4': '-v4', 'v5e': '-v5e', 'v6': '-v6', 'v7a': '-v7A8', 'v7r': '-v7R4', 'v6m': '-v6M0',
               'v7m': '-v7M3', 'v7em': '-v7M4', 'v8m': '-v8M33'}
ARM_ARCHS = ['v4', 'v5e', 'v6', 'v7a', 'v7r']

# name, what the file holds, builder, lowest architecture level
FAMILIES = [
    ('dp', 'data processing: every second-operand shape, conditions, flag letters in both orders',
     fam_core.dp, 4),
    ('movw', 'MOVW, MOVT, and MOV of a value that no rotated byte holds', fam_core.movw_forms, 7),
    ('shifts', 'the shift mnemonics LSL LSR ASR ROR RRX, as MOV with a shifted register', fam_core.shifts, 4),
    ('mul', 'multiplies and long multiplies', fam_core.mul, 4),
    ('branch', 'branches with plain-number offsets (the offset itself), BX, BLX, BXJ, CRET', fam_core.branch, 4),
    ('adr', 'ADR with an offset and with labels of the section', fam_core.adr, 4),
    ('regnames', 'register names and lower case', fam_core.regnames, 4),
    ('expr', 'operands that are expressions and symbols, also defined further down', fam_core.expr, 4),
    ('ldst', 'word and byte loads and stores: every addressing mode, T forms, suffix orders', fam_mem.ldst, 4),
    ('ldst_half', 'halfword and signed loads and stores: every addressing mode, suffix orders',
     fam_mem.ldst_half, 4),
    ('ldst_dual', 'doubleword loads and stores', fam_mem.ldst_dual, 5),
    ('pcrel', 'loads, stores and preloads of labels in the same section: pc-relative, no relocation',
     fam_mem.pcrel, 4),
    ('preload', 'PLD and PLI', fam_mem.preload, 5),
    ('ldm', 'LDM and STM in every addressing mode, write-back, ^, PUSH and POP', fam_mem.ldm, 4),
    ('swp', 'SWP and SWPB', fam_mem.swp, 4),
    ('excl', 'exclusive loads and stores, CLREX', fam_mem.excl, 6),
    ('psr', 'MRS and MSR with every field mask', fam_sys.psr, 4),
    ('coproc', 'coprocessor instructions', fam_sys.coproc, 4),
    ('system', 'CPS, SRS, RFE, SETEND', fam_sys.system, 6),
    ('hints', 'NOP, hints, barriers, BKPT, SVC, SMI, UDF, FMSTAT', fam_sys.hints, 4),
    ('dsp', 'saturating arithmetic, halfword multiplies, CLZ', fam_media.dsp, 5),
    ('parallel', 'parallel add and subtract, SEL, USAD8', fam_media.parallel, 6),
    ('dualmul', 'dual and most-significant-word multiplies, long accumulates', fam_media.dualmul, 6),
    ('sat', 'SSAT, USAT, SSAT16, USAT16', fam_media.sat, 6),
    ('pack', 'PKHBT and PKHTB', fam_media.pack, 6),
    ('extend', 'sign and zero extension with rotation', fam_media.extend, 6),
    ('rev', 'byte and bit reversal', fam_media.rev, 6),
    ('bitfield', 'bit-field clear, insert and extract', fam_media.bitfield, 7),
]

# A few files again in big-endian byte order (the values stay the same), with
# the architecture option of the copy: the v7-R copy runs on the R5.
BIG = {('v4', 'ldst'): '-v4', ('v5e', 'dsp'): '-v5e', ('v6', 'parallel'): '-v6', ('v7a', 'shifts'): '-v7A8',
       ('v7r', 'branch'): '-v7R5'}

PLAIN = ('v4', 'v5e', 'v6', 'v6m')
T2 = ('v7a', 'v7r', 'v7m', 'v7em', 'v8m')
ALL = PLAIN + T2

# Thumb families: name, what the file holds, builder, architectures. The
# 16-bit families run everywhere: on Thumb-2 their unsuffixed lines must come
# out narrow.
THUMB_FAMILIES = [
    ('thumb_arith', 'ADD and SUB in 16 bits: registers, immediates, SP and PC forms, high registers',
     fam_thumb.arith, ALL),
    ('thumb_alu', '16-bit ALU instructions, shifts, compares and moves', fam_thumb.alu, ALL),
    ('thumb_ldst', '16-bit loads and stores: immediate and register offsets, SP and PC bases', fam_thumb.ldst, ALL),
    ('thumb_ldm', '16-bit PUSH, POP, LDM and STM', fam_thumb.ldm, ALL),
    ('thumb_branch', 'branches with plain-number offsets (the offset itself), BX and BLX', fam_thumb.branch, ALL),
    ('thumb_misc', 'SVC, BKPT, NOP, hints, extends, byte reversal, CPS and SETEND in 16 bits', fam_thumb.misc, ALL),
    ('thumb_state16', 'plain Thumb in the older syntax of .state16, also on a Thumb-2 architecture',
     fam_thumb.state16, ('v4', 'v5e', 'v6', 'v7a', 'v7m')),
    ('thumb_branch_label', 'branches, ADR and loads of labels: the length follows the distance',
     fam_thumb2_mem.branch_label, ALL),
    ('thumb_system', 'PSR moves, CPS, barriers, hints, SVC, SMC, SRS, RFE, security extension',
     fam_thumb2_ops.system, ('v6m',) + T2),
    ('thumb_dp32', 'Thumb-2 data processing: modified constants, registers, shifted registers, wide forms',
     fam_thumb2.dp, T2),
    ('thumb_shift32', 'Thumb-2 shifts by an amount and by a register, RRX', fam_thumb2.shifts, T2),
    ('thumb_width', 'unsuffixed lines, outside and inside IT blocks: the narrow encoding where it means the same',
     fam_thumb2.width, T2),
    ('thumb_it', 'IT with every mask and condition, and the instructions of its block', fam_thumb2.it_blocks, T2),
    ('thumb_mul', 'Thumb-2 multiplies, multiply-accumulates and divides', fam_thumb2_ops.mul, T2),
    ('thumb_media', 'Thumb-2 parallel arithmetic, saturation, packing, extends, reversal, bit fields, CLZ',
     fam_thumb2_ops.media, T2),
    ('thumb_branch32', 'Thumb-2 branches with plain-number offsets (the offset itself), BXJ', fam_thumb2_ops.branch,
     T2),
    ('thumb_coproc', 'Thumb-2 coprocessor instructions', fam_thumb2_ops.coproc, T2),
    ('thumb_ldst32', 'Thumb-2 loads and stores: every addressing mode, T forms, doublewords', fam_thumb2_mem.ldst,
     T2),
    ('thumb_ldm32', 'Thumb-2 LDM, STM, PUSH and POP', fam_thumb2_mem.ldm, T2),
    ('thumb_excl', 'exclusive loads and stores, table branches, preloads', fam_thumb2_mem.excl, T2),
    ('thumb_czb', 'CBZ and CBNZ with labels at every distance they reach', fam_thumb2_mem.czb, T2),
]

# The state directive at the top of a Thumb file: .thumb, or .state16 for
# plain Thumb in the older syntax.
STATE_DIRECTIVE = {'thumb_state16': '.state16'}

# Families this assembler cannot encode yet on main: the runner reports their
# findings without failing. A mark goes as soon as its family lands.
XFAIL = {}
# Thumb files of the Thumb-2 architectures that main cannot encode yet.
XFAIL_T2 = {}


def resolve(ref, pc, labels, tool):
    """The reference text of one line for llvm-mc or GNU as."""
    def sub(m):
        kind, arg = m.group(1), m.group(2)
        if kind in ('br', 'adrn'):
            n = int(arg, 0)
            return '#%d' % n if tool == 'llvm' else '.%+d' % (n + 8)
        off = labels[arg] - (pc + 8)
        if tool == 'gnu':
            return arg
        return '[pc, #%d]' % off if kind == 'pcl' else '#%d' % off
    return re.sub(r'\{(\w+):([^}]+)\}', sub, ref)


def encode_file(arch, entries, review, where):
    """Sets `word` on each entry, or drops it into `review`."""
    pcs, labels, pc = {}, {}, 0
    pending = []
    for e in entries:
        if e.raw:
            continue
        if e.label:
            pending.append(e.label)
            labels[e.label] = pc
            continue
        pcs[id(e)] = pc
        e.labels_before, pending = pending, []
        pc += 4
    groups = {}
    for e in entries:
        if not e.label and not e.raw and e.want is None:
            groups.setdefault(e.refarch or arch, []).append(e)
    for refarch, group in groups.items():
        llvm = llvm_encode([resolve(e.ref, pcs[id(e)], labels, 'llvm') for e in group], refarch)
        gnu = gnu_encode([resolve(e.ref, pcs[id(e)], labels, 'gnu') for e in group], refarch,
                         [e.labels_before for e in group])
        for e, lr, gr in zip(group, llvm, gnu):
            if lr.word is not None and lr.word == gr.word:
                e.word = lr.word
                continue
            e.word = None
            review.append('%s: %-40s llvm-mc[%s]: %s | GNU as: %s' % (
                where, e.src, refarch, '%08x' % lr.word if lr.word is not None else 'rejected (%s)' % lr.why,
                '%08x' % gr.word if gr.word is not None else 'rejected (%s)' % gr.why))
    for e in entries:
        if e.want is not None:
            e.word = e.want


def resolve_thumb(ref, pc, tool):
    """The reference text of one Thumb line: {br:N} is a branch offset N,
    {blx:N} the offset of a BLX, whose base is the word-aligned pc."""
    def sub(m):
        kind, n = m.group(1), int(m.group(2), 0)
        if tool == 'llvm':
            return '#%d' % n
        if kind == 'br':
            return '.%+d' % (n + 4)
        return '.%+d' % (((pc + 4) & ~3) + n - pc)
    return re.sub(r'\{(br|blx):([^}]+)\}', sub, ref)


def _size(text):
    return 2 * len(text.split())


def _thumb_value(e, lr, gr):
    """The value of a Thumb line from the two references' results, or None."""
    if lr.word is not None and lr.word == gr.word:
        return lr.word
    chosen = {'llvm': lr, 'gnu': gr}.get(e.follow[0] if e.follow else None)
    other = gr if chosen is lr else lr
    if chosen is not None and chosen.word is not None and other.word is not None:
        return chosen.word
    return None


def encode_thumb_file(arch, entries, review, where):
    """Sets `word` (the halfwords as text) on each Thumb entry, or drops it
    into `review`. An IT block goes as a whole. Where lines depend on their
    place (labels, BLX offsets) the file is assembled again without the lines
    that went: first those of a different size, then those of a different
    value, until none goes."""
    placed = [e for e in entries if not e.label and not e.raw]
    asked = [e for e in placed if e.want is None]
    positional = any(e.label for e in entries) or any('{blx:' in e.ref for e in asked)
    live = {id(e) for e in placed}
    found = {}
    for _ in range(12):
        lines, pending = [], []
        for e in entries:
            if e.label:
                pending.append(e.label)
            elif not e.raw and id(e) in live:
                # A line of our own value takes its place as data, but inside
                # an IT block the block needs an instruction: its reference text.
                own = e.want is not None and e.group is None
                text = '.short ' + ', '.join('0x' + h for h in e.want.split()) if own else e.ref
                lines.append((e, ''.join(n + ': ' for n in pending) + text))
                pending = []
        groups = [e.group for e, _ in lines]
        llvm = thumb_encode([resolve_thumb(t, 0, 'llvm') for _, t in lines], arch, 'llvm', groups)
        pcs, pc = [], 0
        for (e, _), r in zip(lines, llvm):
            pcs.append(pc)
            pc += _size(e.want if e.want is not None else (r.word or ''))
        gnu = thumb_encode([resolve_thumb(t, p, 'gnu') for (_, t), p in zip(lines, pcs)], arch, 'gnu', groups)
        resized, differ = set(), set()
        for (e, _), lr, gr in zip(lines, llvm, gnu):
            if e.want is not None:
                continue
            found[id(e)] = (lr, gr)
            if lr.word is None or gr.word is None or _size(lr.word) != _size(gr.word):
                resized.add(id(e))
            if _thumb_value(e, lr, gr) is None:
                differ.add(id(e))
        gone = resized if positional and resized else differ
        groups = {e.group for e in placed if id(e) in gone and e.group is not None}
        gone |= {id(e) for e in placed if e.group is not None and e.group in groups}
        live -= gone
        if not gone or not positional:
            break
    for e in placed:
        if e.want is not None:
            e.word = e.want if id(e) in live else None
            continue
        lr, gr = found[id(e)]
        e.word = _thumb_value(e, lr, gr) if id(e) in live else None
        if e.word is not None and lr.word != gr.word:
            e.note = e.follow[1]
        if lr.word is None or lr.word != gr.word:
            review.append('%s: %-40s llvm-mc: %s | GNU as: %s%s' % (
                where, e.src, lr.word if lr.word is not None else 'rejected (%s)' % lr.why,
                gr.word if gr.word is not None else 'rejected (%s)' % gr.why,
                ' | written: %s' % e.word if e.word else ''))


def render_thumb(arch, name, what, entries):
    head = ['; %s%s.' % (what[0].upper(), what[1:]),
            '; Written by scripts/golden/gen.py: change the generator, not this file.',
            '; RUN: %%s %%o %s' % ARCH_OPTION[arch]]
    reason = XFAIL_T2.get(name) if arch in T2 else None
    if reason:
        head.append('; XFAIL: ' + reason)
    body = ['        %s' % STATE_DIRECTIVE.get(name, '.thumb')]
    for e in entries:
        if e.label or e.raw:
            body.append(e.label or e.raw)
            continue
        if e.word is None:
            continue
        mnemonic, _, operands = e.src.partition(' ')
        stmt = ('        %-7s %s' % (mnemonic, operands)).rstrip()
        body.append('%-48s;= %s%s' % (stmt, e.word, '  ; note: ' + e.note if e.note else ''))
    return '\n'.join(head + body) + '\n'


def render(arch, name, what, entries, big):
    head = ['; %s%s.' % (what[0].upper(), what[1:]),
            '; Written by scripts/golden/gen.py: change the generator, not this file.',
            '; RUN: %%s %%o %s' % (BIG[arch, name] + ' --endian=big' if big else ARCH_OPTION[arch])]
    if name in XFAIL:
        head.append('; XFAIL: ' + XFAIL[name])
    body = []
    for e in entries:
        if e.label or e.raw:
            body.append(e.label or e.raw)
            continue
        if e.word is None:
            continue
        mnemonic, _, operands = e.src.partition(' ')
        stmt = ('        %-7s %s' % (mnemonic, operands)).rstrip()
        note = e.note or ('the references know it only from %s' % e.refarch if e.refarch else None)
        body.append('%-48s;= %08x%s' % (stmt, e.word & 0xFFFFFFFF, '  ; note: ' + note if note else ''))
    return '\n'.join(head + body) + '\n'


def build_file(arch, name, what, build):
    """The texts of one family's file (and its big-endian twin), and the
    lines left for review."""
    entries, review = build(Arch(arch, name)), []
    if name.startswith('thumb_'):
        encode_thumb_file(arch, entries, review, '%s/%s' % (arch, name))
        return {name: render_thumb(arch, name, what, entries)}, review
    encode_file(arch, entries, review, '%s/%s' % (arch, name))
    texts = {name: render(arch, name, what, entries, False)}
    if (arch, name) in BIG:
        texts[name + '_big'] = render(arch, name, what, entries, True)
    return texts, review


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    here = os.path.dirname(os.path.abspath(__file__))
    ap.add_argument('--out', default=os.path.join(here, '..', '..', 'tests', 'golden'))
    ap.add_argument('--review', default=os.path.join(here, 'review.txt'))
    ap.add_argument('--arch', nargs='*', default=list(ARCH_OPTION))
    args = ap.parse_args()
    jobs = [(arch, name, what, build) for arch in args.arch if arch in ARM_ARCHS
            for name, what, build, level in FAMILIES if Arch(arch, name).level >= level]
    jobs += [(arch, name, what, build) for arch in args.arch for name, what, build, archs in THUMB_FAMILIES
             if arch in archs]
    # The reference tools do the work: one file per thread keeps every core busy.
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 2) as pool:
        done = list(pool.map(lambda job: build_file(*job), jobs))
    review, total = [], 0
    for (arch, *_), (texts, left) in zip(jobs, done):
        os.makedirs(os.path.join(args.out, arch), exist_ok=True)
        for name, text in texts.items():
            with open(os.path.join(args.out, arch, name + '.asm'), 'w') as f:
                f.write(text)
            total += text.count(';= ')
        review += left
    with open(args.review, 'w') as f:
        f.write('# Lines left out of the corpus: the references disagree or both reject them.\n')
        f.write(''.join(r + '\n' for r in review))
    print('%d lines written, %d left for review (%s)' % (total, len(review), args.review))


if __name__ == '__main__':
    main()
