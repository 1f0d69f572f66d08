"""The two reference assemblers, driven in batches.

llvm-mc prints each instruction's encoding (-show-encoding); the GNU
assembler's object is read back with objdump, each line found by a label of
our own. A line a tool rejects gives None and the tool's message.
"""
import os
import re
import subprocess
import tempfile

# Per architecture of the corpus: llvm-mc options and GNU as options.
ARCH_TOOLS = {
    'v4': (['-triple=armv4t'], ['-march=armv4t']),
    'v5e': (['-triple=armv5te'], ['-march=armv5te']),
    'v6': (['-triple=armv6'], ['-march=armv6']),
    'v7a': (['-triple=armv7a', '-mcpu=cortex-a8', '-mattr=+trustzone'], ['-mcpu=cortex-a8']),
    'v7r': (['-triple=armv7r', '-mcpu=cortex-r4'], ['-mcpu=cortex-r4']),
}


class RefResult:
    def __init__(self, word=None, why=''):
        self.word = word      # the 32-bit instruction value, or None
        self.why = why        # the tool's message when rejected or warned


def _run(cmd, **kw):
    return subprocess.run(cmd, capture_output=True, text=True, **kw)


def llvm_encode(lines, arch):
    """One RefResult per line: the line's ARM word as llvm-mc encodes it."""
    opts = ARCH_TOOLS[arch][0]
    out = [RefResult() for _ in lines]
    with tempfile.TemporaryDirectory(prefix='zqg_llvm_') as tmp:
        src = os.path.join(tmp, 'in.s')
        with open(src, 'w') as f:
            f.write('\n'.join(lines) + '\n')
        r = _run(['llvm-mc', *opts, '-show-encoding', src])
    failed = set()
    for m in re.finditer(r'^.*?:(\d+):\d+: (error|warning): (.*)$', r.stderr, re.M):
        i = int(m.group(1)) - 1
        if 0 <= i < len(lines):
            out[i].why = (out[i].why + '; ' if out[i].why else '') + m.group(3)
            if m.group(2) == 'error':
                failed.add(i)
    encodings = re.findall(r'@ encoding: \[([^\]]*)\]', r.stdout)
    ok = [i for i in range(len(lines)) if i not in failed]
    if len(encodings) != len(ok):
        raise RuntimeError('llvm-mc gave %d encodings for %d lines (%s)' % (len(encodings), len(ok), arch))
    for i, enc in zip(ok, encodings):
        b = [int(x, 16) for x in enc.split(',')]
        if len(b) != 4:
            out[i].why = 'not one ARM word: %s' % enc
            continue
        out[i].word = b[0] | b[1] << 8 | b[2] << 16 | b[3] << 24
    return out


def gnu_encode(lines, arch, labels=()):
    """One RefResult per line, from GNU as and objdump. `labels` gives, per
    line, the names of labels defined just before it (for pc-relative forms)."""
    opts = ARCH_TOOLS[arch][1]
    out = [RefResult() for _ in lines]
    dropped = set()
    with tempfile.TemporaryDirectory(prefix='zqg_gnu_') as tmp:
        src, obj = os.path.join(tmp, 'in.s'), os.path.join(tmp, 'in.o')
        for _ in range(4):
            text = ['.syntax unified', '.arm']
            where = {}
            for i, ln in enumerate(lines):
                for name in (labels[i] if labels else ()):
                    text.append(name + ':')
                text.append('zqg_%d:' % i)
                # A rejected line keeps its place, so labels keep their addresses.
                text.append(ln if i not in dropped else '.word 0')
                where[len(text)] = i
            text.append('zqg_end:')
            with open(src, 'w') as f:
                f.write('\n'.join(text) + '\n')
            r = _run(['arm-none-eabi-as', *opts, '-o', obj, src])
            new = False
            for m in re.finditer(r'^.*?:(\d+): (Error|Warning): (.*)$', r.stderr, re.M):
                i = where.get(int(m.group(1)))
                if i is None:
                    continue
                out[i].why = (out[i].why + '; ' if out[i].why else '') + m.group(3)
                if m.group(2) == 'Error' and i not in dropped:
                    dropped.add(i)
                    new = True
            if r.returncode == 0:
                break
            if not new:
                raise RuntimeError('GNU as failed without a line to drop:\n' + r.stderr)
        nm = _run(['arm-none-eabi-nm', obj]).stdout
        at = {}
        for m in re.finditer(r'^([0-9a-f]+) \w (zqg_\w+)$', nm, re.M):
            at[m.group(2)] = int(m.group(1), 16)
        dump = _run(['arm-none-eabi-objdump', '-d', '-z', '-j', '.text', obj]).stdout
    words = {}
    for m in re.finditer(r'^\s*([0-9a-f]+):\s+([0-9a-f]{8})\s', dump, re.M):
        words[int(m.group(1), 16)] = int(m.group(2), 16)
    for i in range(len(lines)):
        if i in dropped:
            continue
        start = at['zqg_%d' % i]
        end = at['zqg_%d' % (i + 1)] if i + 1 < len(lines) else at['zqg_end']
        if end - start != 4 or start not in words:
            out[i].why = 'gave %d bytes' % (end - start)
            continue
        out[i].word = words[start]
    return out
