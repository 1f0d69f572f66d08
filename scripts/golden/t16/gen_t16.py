#!/usr/bin/env python3
"""Writes the 16-bit Thumb files tests/golden/<arch>/t16_<group>.asm.

Each line's value comes from llvm-mc -show-encoding and must agree with the
GNU assembler's (read back with objdump). A line may give the reference
tools their own spelling (old syntax, or a branch target written relative
to the location counter for GNU as), or, where this assembler deliberately
encodes differently, its value with a note.

    python3 scripts/golden/t16/gen_t16.py [--out DIR] [--check]

--check compares with the files in DIR instead of writing them.
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
import t16_lines  # noqa: E402

ARCHS = {
    'v4': (['-triple=thumbv4t'], ['-march=armv4t'], '-v4', '.thumb'),
    'v6': (['-triple=thumbv6'], ['-march=armv6'], '-v6', '.thumb'),
    'v6m': (['-triple=thumbv6m'], ['-march=armv6s-m'], '-v6M0', '.state16'),
}


def run(cmd):
    return subprocess.run(cmd, capture_output=True, text=True)


def halves_of(data):
    return [data[i] | data[i + 1] << 8 for i in range(0, len(data), 2)]


def llvm_values(lines, arch):
    """Halfwords of each line by llvm-mc, or None where it refuses the line."""
    out = [None] * len(lines)
    with tempfile.TemporaryDirectory(prefix='zqt16_') as tmp:
        src = os.path.join(tmp, 'in.s')
        with open(src, 'w') as f:
            f.write('.syntax unified\n.thumb\n' + '\n'.join(lines) + '\n')
        r = run(['llvm-mc', *ARCHS[arch][0], '-show-encoding', src])
    bad = {int(m.group(1)) - 3 for m in re.finditer(r'^.*?:(\d+):\d+: error:', r.stderr, re.M)}
    encodings = re.findall(r'@ encoding: \[([^\]]*)\]', r.stdout)
    ok = [i for i in range(len(lines)) if i not in bad]
    if len(ok) != len(encodings):
        raise RuntimeError('llvm-mc: %d encodings for %d lines\n%s' % (len(encodings), len(ok), r.stderr))
    for i, enc in zip(ok, encodings):
        out[i] = halves_of([int(x, 16) for x in enc.split(',')])
    return out


def gnu_values(lines, arch):
    """Halfwords of each line by GNU as and objdump, or None where refused."""
    out = [None] * len(lines)
    with tempfile.TemporaryDirectory(prefix='zqt16_') as tmp:
        src, obj = os.path.join(tmp, 'in.s'), os.path.join(tmp, 'in.o')
        text = ['.syntax unified', '.thumb']
        for i, ln in enumerate(lines):
            text += ['zqg_%d:' % i, ln]
        text.append('zqg_end:')
        with open(src, 'w') as f:
            f.write('\n'.join(text) + '\n')
        r = run(['arm-none-eabi-as', *ARCHS[arch][1], '-o', obj, src])
        if r.returncode != 0:
            raise RuntimeError('GNU as refused:\n' + r.stderr)
        nm = run(['arm-none-eabi-nm', obj]).stdout
        at = {m.group(2): int(m.group(1), 16) for m in re.finditer(r'^([0-9a-f]+) \w (zqg_\w+)$', nm, re.M)}
        dump = run(['arm-none-eabi-objdump', '-s', '-j', '.text', obj]).stdout
    data = bytearray()
    for m in re.finditer(r'^ [0-9a-f]{4,} ((?:[0-9a-f]{2,8} ){1,4})', dump, re.M):
        data += bytes.fromhex(m.group(1).replace(' ', ''))
    for i in range(len(lines)):
        start = at['zqg_%d' % i]
        end = at['zqg_%d' % (i + 1)] if i + 1 < len(lines) else at['zqg_end']
        out[i] = halves_of(data[start:end])
    return out


def render(arch, group, entries):
    llvm = llvm_values([e.llvm for e in entries], arch)
    gnu = gnu_values([e.gnu for e in entries], arch)
    rows = []
    for e, lv, gv in zip(entries, llvm, gnu):
        if lv != gv:
            raise RuntimeError('%s/%s: %r: llvm-mc %r, GNU as %r' % (arch, group, e.zq, lv, gv))
        value = e.value if e.value is not None else lv
        comment = '  ; note: ' + e.note if e.note else ''
        rows.append('        %-39s ;= %s%s' % (e.zq, ' '.join('%04x' % h for h in value), comment))
    head = t16_lines.HEADS[group]
    _, _, option, state = ARCHS[arch]
    return ('; %s\n; Written by scripts/golden/t16/gen_t16.py: change the generator, not this file.\n'
            '; RUN: %%s %%o %s\n        %s\n' % (head, option, state)) + '\n'.join(rows) + '\n'


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument('--out', default=os.path.join(HERE, '..', '..', '..', 'tests', 'golden'))
    ap.add_argument('--check', action='store_true')
    args = ap.parse_args()
    stale = []
    for (arch, group), entries in t16_lines.FILES.items():
        text = render(arch, group, entries)
        path = os.path.join(args.out, arch, 't16_%s.asm' % group)
        if args.check:
            if not os.path.exists(path) or open(path).read() != text:
                stale.append(path)
            continue
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, 'w') as f:
            f.write(text)
    if stale:
        print('out of date:', *stale, sep='\n  ', file=sys.stderr)
        return 1
    return 0


if __name__ == '__main__':
    sys.exit(main())
