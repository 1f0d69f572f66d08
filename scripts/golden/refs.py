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


# Thumb: per architecture of the corpus, llvm-mc options and GNU as options.
THUMB_TOOLS = {
    'v4': (['-triple=thumbv4t'], ['-march=armv4t']),
    'v5e': (['-triple=thumbv5te'], ['-march=armv5te']),
    'v6': (['-triple=thumbv6'], ['-march=armv6']),
    'v6m': (['-triple=thumbv6m'], ['-march=armv6-m']),
    'v7a': (['-triple=thumbv7a', '-mcpu=cortex-a8', '-mattr=+trustzone'], ['-mcpu=cortex-a8', '-mfpu=vfpv3']),
    'v7r': (['-triple=thumbv7r', '-mcpu=cortex-r4'], ['-mcpu=cortex-r4']),
    'v7m': (['-triple=thumbv7m', '-mcpu=cortex-m3'], ['-mcpu=cortex-m3']),
    'v7em': (['-triple=thumbv7em', '-mcpu=cortex-m4'], ['-mcpu=cortex-m4', '-mfpu=fpv4-sp-d16']),
    'v8m': (['-triple=thumbv8m.main', '-mcpu=cortex-m33'], ['-mcpu=cortex-m33']),
}


def thumb_text(data):
    """Thumb code bytes (little-endian) as the corpus writes them: each
    instruction's halfwords in hexadecimal, a 32-bit one as two groups."""
    halves = [data[i] | data[i + 1] << 8 for i in range(0, len(data) - 1, 2)]
    return ' '.join('%04x' % h for h in halves)


def _text_section(obj):
    """The bytes of .text of an ELF object."""
    path = obj + '.bin'
    r = _run(['arm-none-eabi-objcopy', '-O', 'binary', '-j', '.text', obj, path])
    if r.returncode != 0:
        raise RuntimeError('objcopy failed: ' + r.stderr)
    with open(path, 'rb') as f:
        return f.read()


def thumb_encode(lines, arch, tool, groups=None):
    """One RefResult per line for Thumb code, `word` being the line's bytes as
    thumb_text writes them. Both tools make an object that is read back by
    labels of our own, so lines may use labels of the file. A line the tool
    rejects is taken out and the rest assembled again; with it the lines of
    its group (`groups`: a key per line or None), as an IT block must stay
    whole."""
    llvm_opts, gnu_opts = THUMB_TOOLS[arch]
    out = [RefResult() for _ in lines]
    dropped = set()
    with tempfile.TemporaryDirectory(prefix='zqg_t_') as tmp:
        src, obj = os.path.join(tmp, 'in.s'), os.path.join(tmp, 'in.o')
        for _ in range(20):
            text = ['.syntax unified', '.thumb']
            where = {}
            for i, ln in enumerate(lines):
                text.append('zqg_%d:' % i)
                if i not in dropped:
                    text.append(ln)
                    where[len(text)] = i
            text.append('zqg_end:')
            with open(src, 'w') as f:
                f.write('\n'.join(text) + '\n')
            if tool == 'llvm':
                r = _run(['llvm-mc', *llvm_opts, '-filetype=obj', '-o', obj, src])
                pat = r'^.*?:(\d+):\d+: (error|warning): (.*)$'
            else:
                r = _run(['arm-none-eabi-as', *gnu_opts, '-o', obj, src])
                pat = r'^.*?:(\d+): (Error|Warning): (.*)$'
            new = False
            cut = None  # after an IT block goes, later errors may only echo it
            for m in re.finditer(pat, r.stderr, re.M):
                i = where.get(int(m.group(1)))
                if i is None or cut is not None and i > cut:
                    continue
                if m.group(3) not in out[i].why:
                    out[i].why = (out[i].why + '; ' if out[i].why else '') + m.group(3)
                if m.group(2).lower() == 'error' and i not in dropped:
                    dropped.add(i)
                    new = True
                    if groups and groups[i] is not None:
                        for j, g in enumerate(groups):
                            if g is groups[i]:
                                cut = j if cut is None or j > cut else cut
                                if j not in dropped:
                                    dropped.add(j)
                                    out[j].why = out[j].why or 'its IT block went'
            if r.returncode == 0 and not new:
                break
            if not new:
                raise RuntimeError('%s failed without a line to drop:\n%s' % (tool, r.stderr))
        if r.returncode != 0:
            raise RuntimeError('%s still fails:\n%s' % (tool, r.stderr[:3000]))
        nm = _run(['arm-none-eabi-nm', obj]).stdout
        at = {}
        for m in re.finditer(r'^([0-9a-f]+) \w (zqg_\w+)$', nm, re.M):
            at[m.group(2)] = int(m.group(1), 16) & ~1
        data = _text_section(obj)
    for i in range(len(lines)):
        if i in dropped:
            continue
        start = at['zqg_%d' % i]
        end = at['zqg_%d' % (i + 1)] if i + 1 < len(lines) else at['zqg_end']
        if end - start not in (2, 4, 6, 8) or end > len(data):
            out[i].why = 'gave %d bytes' % (end - start)
            continue
        out[i].word = thumb_text(data[start:end])
    return out
