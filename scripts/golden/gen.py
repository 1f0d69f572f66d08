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
from entries import Arch  # noqa: E402
from refs import gnu_encode, llvm_encode  # noqa: E402

ARCH_OPTION = {'v4': '-v4', 'v5e': '-v5e', 'v6': '-v6', 'v7a': '-v7A8', 'v7r': '-v7R4'}

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


# Families this assembler cannot encode yet on main: the runner reports their
# findings without failing. A mark goes as soon as its family lands.
XFAIL = {}


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
    jobs = [(arch, name, what, build) for arch in args.arch for name, what, build, level in FAMILIES
            if Arch(arch, name).level >= level]
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
