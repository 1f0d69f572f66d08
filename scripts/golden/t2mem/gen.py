#!/usr/bin/env python3
"""Writes tests/golden/<arch>/t2mem_<family>.asm: Thumb-2 loads, stores,
multiple transfers, table branches, preloads and system instructions.

Every line is a 32-bit instruction, so the n-th line lies at 4 * n in both
reference objects (rejected lines are replaced by a 4-byte filler and
dropped). A line is written when llvm-mc and GNU as agree on it; the others
go to review.txt beside this script.

    scripts/golden/t2mem/gen.py [--out DIR] [--review FILE]
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import lines as L  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, '..', '..', '..'))

# corpus folder: (our option, llvm-mc options, GNU as options)
ARCHES = {
    'v7a': ('-v7A8', ['-triple=thumbv7a', '-mcpu=cortex-a8', '-mattr=+trustzone'], ['-mcpu=cortex-a8']),
    'v7r': ('-v7R4', ['-triple=thumbv7r', '-mcpu=cortex-r4'], ['-mcpu=cortex-r4']),
    'v7m': ('-v7M3', ['-triple=thumbv7m', '-mcpu=cortex-m3'], ['-mcpu=cortex-m3']),
    'v7em': ('-v7M4', ['-triple=thumbv7em', '-mcpu=cortex-m4'], ['-mcpu=cortex-m4']),
    'v8m': ('-v8M33', ['-triple=thumbv8m.main', '-mcpu=cortex-m33'], ['-march=armv8-m.main', '-mcpu=cortex-m33']),
    'v6m': ('-v6M0', ['-triple=thumbv6m', '-mcpu=cortex-m0'], ['-mcpu=cortex-m0']),
}
FILLER = 'nop.w'


def run(cmd):
    return subprocess.run(cmd, capture_output=True, text=True)


def assemble(tool, opts, lines):
    """Per line: the instruction as (hi, lo) halfwords, or None if rejected."""
    dropped = set()
    with tempfile.TemporaryDirectory(prefix='zqg_t2m_') as tmp:
        src, obj, binf = (os.path.join(tmp, n) for n in ('in.s', 'in.o', 'in.bin'))
        for _ in range(len(lines) + 1):
            text = ['.syntax unified', '.thumb', '.text'] + \
                [FILLER if i in dropped else ln for i, ln in enumerate(lines)]
            with open(src, 'w') as f:
                f.write('\n'.join(text) + '\n')
            if tool == 'llvm':
                r = run(['llvm-mc', *opts, '-filetype=obj', '-o', obj, src])
                pat = r'^.*?:(\d+):\d+: error:'
            else:
                r = run(['arm-none-eabi-as', *opts, '-o', obj, src])
                pat = r'^.*?:(\d+): Error:'
            bad = {int(m.group(1)) - 4 for m in re.finditer(pat, r.stderr, re.M)} - dropped
            if r.returncode == 0 and not bad:
                break
            if not bad:
                raise RuntimeError('%s failed without a line to drop:\n%s' % (tool, r.stderr))
            dropped |= bad
        if tool == 'llvm':
            run(['llvm-objcopy', '-O', 'binary', '--only-section=.text', obj, binf])
        else:
            run(['arm-none-eabi-objcopy', '-O', 'binary', '-j', '.text', obj, binf])
        data = open(binf, 'rb').read()
    out = []
    at = 0
    for i, ln in enumerate(lines):
        if ln.endswith(':'):
            out.append(None)
            continue
        b = data[at:at + 4]
        at += 4
        out.append(None if i in dropped or len(b) < 4 else (b[0] | b[1] << 8, b[2] | b[3] << 8))
    if len(data) != at:
        raise RuntimeError('%s: %d bytes for %d instructions' % (tool, len(data), at // 4))
    return out


def generate(arch, family, entries, review):
    option, llvm_opts, gnu_opts = ARCHES[arch]
    refs = [e[1] if e[1] is not None else FILLER for e in entries]
    llvm = assemble('llvm', llvm_opts, refs)
    gnu = assemble('gnu', gnu_opts, refs)
    body = []
    for e, a, b in zip(entries, llvm, gnu):
        src, ref = e[0], e[1]
        note = e[2] if len(e) > 2 else None
        if src is None:
            body.append(ref[:-1])   # a label, in column 1
            continue
        if len(e) > 3:
            a = b = e[3]
        elif note and b is not None:
            a = b
        if a is None or a != b:
            review.append('%s/%s: %s: llvm %s, gnu %s' % (arch, family, ref, a, b))
            continue
        line = '        %-40s;= %04x %04x' % (src, a[0], a[1])
        body.append(line + ('  ; note: %s' % note if note else ''))
    return body


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument('--out', default=os.path.join(ROOT, 'tests', 'golden'))
    ap.add_argument('--review', default=os.path.join(HERE, 'review.txt'))
    args = ap.parse_args()
    review = []
    for arch in ARCHES:
        for family, what, build in L.FAMILIES:
            entries = build(arch)
            if not entries:
                continue
            body = generate(arch, family, entries, review)
            path = os.path.join(args.out, arch, 't2mem_%s.asm' % family)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, 'w') as f:
                f.write('; Thumb-2 %s. Written by scripts/golden/t2mem/gen.py.\n' % what)
                f.write('; RUN: %%s %%o %s\n' % ARCHES[arch][0])
                f.write('        .thumb\n')
                f.write('\n'.join(body) + '\n')
    with open(args.review, 'w') as f:
        f.write('\n'.join(review) + ('\n' if review else ''))


if __name__ == '__main__':
    main()
