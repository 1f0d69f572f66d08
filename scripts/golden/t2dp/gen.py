#!/usr/bin/env python3
"""Writes tests/golden/<arch>/t2dp_<file>.asm: Thumb-2 data processing,
shifts, extends and multiplies, all 32 bits wide.

Each line's value comes from llvm-mc -show-encoding and must agree with GNU
as (read back from the object). Lines where the two disagree or either
rejects the line are printed and not written. Lines with a value of their own
(cases.py) skip the references.

    scripts/golden/t2dp/gen.py [--out DIR]
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import cases  # noqa: E402

# option of this assembler, llvm-mc options, GNU as options, feature groups
ARCHES = {
    'v7a': ('-v7A8', ['-triple=thumbv7a', '-mcpu=cortex-a8'], ['-mcpu=cortex-a8'], {'dsp', 'ar'}),
    'v7m': ('-v7M3', ['-triple=thumbv7m'], ['-march=armv7-m'], {'div'}),
    'v7em': ('-v7M4', ['-triple=thumbv7em'], ['-march=armv7e-m'], {'div', 'dsp'}),
    'v8m': ('-v8M33', ['-triple=thumbv8m.main', '-mattr=+dsp'], ['-march=armv8-m.main+dsp'], {'div', 'dsp'}),
}


def run(cmd):
    return subprocess.run(cmd, capture_output=True, text=True)


def llvm(lines, opts):
    """Per line: 'hhhh hhhh' or None."""
    with tempfile.TemporaryDirectory(prefix='zqt2_') as tmp:
        src = os.path.join(tmp, 'in.s')
        with open(src, 'w') as f:
            f.write('\n'.join(lines) + '\n')
        r = run(['llvm-mc', *opts, '-show-encoding', src])
    bad = {int(m.group(1)) - 1 for m in re.finditer(r'^.*?:(\d+):\d+: error:', r.stderr, re.M)}
    encs = re.findall(r'@ encoding: \[([^\]]*)\]', r.stdout)
    ok = [i for i in range(len(lines)) if i not in bad]
    if len(encs) != len(ok):
        raise RuntimeError('llvm-mc: %d encodings for %d lines' % (len(encs), len(ok)))
    out = [None] * len(lines)
    for i, enc in zip(ok, encs):
        b = [int(x, 16) for x in enc.split(',')]
        if len(b) == 4:
            out[i] = '%04x %04x' % (b[0] | b[1] << 8, b[2] | b[3] << 8)
    return out


def gnu(lines, opts):
    """Per line: 'hhhh hhhh' or None; a rejected line is replaced and tried again."""
    dropped = set()
    with tempfile.TemporaryDirectory(prefix='zqt2_') as tmp:
        src, obj, binf = (os.path.join(tmp, n) for n in ('in.s', 'in.o', 'in.bin'))
        for _ in range(4):
            text = ['.syntax unified', '.thumb']
            text += ['.inst.w 0' if i in dropped else ln for i, ln in enumerate(lines)]
            with open(src, 'w') as f:
                f.write('\n'.join(text) + '\n')
            r = run(['arm-none-eabi-as', *opts, '-mthumb', src, '-o', obj])
            errs = {int(m.group(1)) - 3 for m in re.finditer(r'^.*?:(\d+): Error:', r.stderr, re.M)}
            if not errs:
                break
            dropped |= errs
        run(['arm-none-eabi-objcopy', '-O', 'binary', '-j', '.text', obj, binf])
        data = open(binf, 'rb').read()
    if len(data) != 4 * len(lines):
        raise RuntimeError('GNU as: %d bytes for %d lines' % (len(data), len(lines)))
    out = []
    for i in range(len(lines)):
        b = data[4 * i:4 * i + 4]
        out.append(None if i in dropped else '%04x %04x' % (b[0] | b[1] << 8, b[2] | b[3] << 8))
    return out


def build(arch, name, title, entries, out_dir):
    option, llvm_opts, gnu_opts, groups = ARCHES[arch]
    rows = [e for e in entries if set(e[1]) <= groups]
    lines = [e[0] for e in rows]
    ref_l, ref_g = llvm(lines, llvm_opts), gnu(lines, gnu_opts)
    body = []
    for e, vl, vg in zip(rows, ref_l, ref_g):
        if len(e) > 2:
            body.append('        %-40s;= %s  ; note: %s' % (e[0], e[2], e[3]))
        elif vl and vl == vg:
            body.append('        %-40s;= %s' % (e[0], vl))
        else:
            print('%s/%s: %s: llvm %s, gnu %s' % (arch, name, e[0], vl, vg))
    path = os.path.join(out_dir, arch, 't2dp_%s.asm' % name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'w') as f:
        f.write('; Thumb-2 %s.\n' % title)
        f.write('; Written by scripts/golden/t2dp/gen.py: change the generator, not this file.\n')
        f.write('; RUN: %%s %%o %s\n' % option)
        f.write('        .thumb\n')
        f.write('\n'.join(body) + '\n')


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    ap = argparse.ArgumentParser()
    ap.add_argument('--out', default=os.path.join(here, '..', '..', '..', 'tests', 'golden'))
    args = ap.parse_args()
    for arch in ARCHES:
        for name, title, fn in cases.FILES:
            build(arch, name, title, fn(), args.out)


if __name__ == '__main__':
    main()
