"""What a corpus line is made of, and the helpers the families share."""
import random
import zlib

CONDS = ['EQ', 'NE', 'CS', 'CC', 'MI', 'PL', 'VS', 'VC', 'HI', 'LS', 'GE', 'LT', 'GT', 'LE', 'AL', 'HS', 'LO']
LEVEL = {'v4': 4, 'v5e': 5, 'v6': 6, 'v7a': 7, 'v7r': 7, 'v6m': 6, 'v7m': 7, 'v7em': 7, 'v8m': 8}
# Thumb-2 architectures, and the M profile among all of them.
T2 = ('v7a', 'v7r', 'v7m', 'v7em', 'v8m')
M_PROFILE = ('v6m', 'v7m', 'v7em', 'v8m')


class E:
    """One corpus line.

    src: the statement as this assembler reads it.
    ref: the same instruction for the reference tools (default: src). It may
         hold placeholders resolved per tool: {br:N} a branch offset N,
         {pcl:NAME} a pc-relative address of a label, {imm:NAME} the offset
         of a label as an immediate (ADR).
    note: said beside the expected bytes (deliberate differences).
    want: the expected word, given by hand where no reference can say it.
    refarch: the architecture the references are asked on, when the tools
         know the instruction only on a later one than the file's.
    label: a line that only defines this label.
    raw: a line for this assembler alone, such as a symbol definition; the
         references get the values in place of the symbols.
    group: lines that stand or fall together (an IT block and its
         instructions).
    follow: ('llvm' or 'gnu', why): the reference whose value this
         assembler's rules give where the two disagree (Thumb only); the
         line then carries the note `why`.
    """

    def __init__(self, src=None, ref=None, note=None, want=None, refarch=None, label=None, raw=None, group=None,
                 follow=None):
        self.src, self.ref, self.note, self.want, self.refarch, self.label = src, ref, note, want, refarch, label
        self.group, self.follow = group, follow
        self.raw = raw            # a line of this assembler only (a directive), written as it stands
        if self.ref is None:
            self.ref = src
        self.word = None          # set by the generator
        self.labels_before = []   # labels defined just before this line


def lab(name):
    return E(label=name)


def raw(text):
    return E(raw=text)


class Arch:
    """The architecture a file is made for, and a register picker that is
    fixed by the file's name, so a run of the generator repeats itself."""

    def __init__(self, name, family):
        self.name = name
        self.level = LEVEL[name]
        # v4 and v7-A get every shape of the base families; the architectures
        # between them a fixed sample, enough to see the family work there.
        self.full = name in ('v4', 'v7a')
        self.t2 = name in T2
        self.m = name in M_PROFILE
        self.rng = random.Random(zlib.crc32(('%s/%s' % (name, family)).encode()))

    def regs(self, n, pool=range(15)):
        """n different registers from the pool (default R0..R14)."""
        return ['R%d' % r for r in self.rng.sample(list(pool), n)]

    def some(self, seq, share=0.4):
        """All of seq on a full architecture, else a fixed sample (order kept)."""
        seq = list(seq)
        if self.full:
            return seq
        keep = set(self.rng.sample(range(len(seq)), max(1, round(len(seq) * share))))
        return [x for i, x in enumerate(seq) if i in keep]

    def pick(self, seq):
        return self.rng.choice(list(seq))


def low(text):
    return text.lower()


def rot_ok(v):
    """The value fits a rotated 8-bit immediate."""
    v &= 0xFFFFFFFF
    for k in range(16):
        if ((v << 2 * k | v >> (32 - 2 * k)) & 0xFFFFFFFF if k else v) <= 0xFF:
            return True
    return False
