#!/usr/bin/env python3
"""Writes tests/golden/<arch>/t2br_*.asm: Thumb-2 branches, ADR, CBZ/CBNZ, IT
and BXJ. Each value comes from llvm-mc -show-encoding and must agree with GNU
as (read back with objdump -d); a line where they disagree is left out and
named on stdout. Run from the repository root.
"""
import os
import re
import subprocess
import sys
import tempfile

# A case is (this assembler's text, llvm-mc's text, GNU as's text).
def llvm(lines, triple, mattr=None):
    src = "\n".join(lines) + "\n"
    cmd = ["llvm-mc", "-triple=" + triple, "-show-encoding"]
    if mattr: cmd.append("-mattr=" + mattr)
    out = subprocess.run(cmd, input=src, capture_output=True, text=True)
    if out.returncode: print(out.stderr[:2000]); sys.exit(1)
    encs = re.findall(r"encoding: \[([^\]]*)\]", out.stdout)
    res = []
    for e in encs:
        b = [int(x, 16) for x in e.split(",")]
        hw = [b[i] | b[i+1] << 8 for i in range(0, len(b), 2)]
        res.append(" ".join("%04x" % h for h in hw))
    assert len(res) == len(lines), (len(res), len(lines))
    return res

def gnu(lines, march, count=None):
    src = ".syntax unified\n.thumb\n.text\n" + "\n".join(lines) + "\n"
    with tempfile.TemporaryDirectory() as tmp:
        s, o = os.path.join(tmp, "g.s"), os.path.join(tmp, "g.o")
        open(s, "w").write(src)
        r = subprocess.run(["arm-none-eabi-as", "-march=" + march, s, "-o", o], capture_output=True, text=True)
        if r.returncode: print(r.stderr[:2000]); sys.exit(1)
        d = subprocess.run(["arm-none-eabi-objdump", "-d", o], capture_output=True, text=True).stdout
    res = []
    for line in d.splitlines():
        m = re.match(r"\s+[0-9a-f]+:\s+([0-9a-f]{4})(?: ([0-9a-f]{4}))?\s", line)
        if m: res.append(m.group(1) + (" " + m.group(2) if m.group(2) else ""))
    assert len(res) == (len(lines) if count is None else count), (len(res), len(lines), d)
    return res

# ADR to labels of the section, also from a pc that is not word aligned:
# (this assembler's line, GNU's line); labels stand on lines of their own.
ADR_LABELS = [("back", "back:"), ("ADR.W   R0, back", "adr.w r0, back"), ("ADR.W   R1, fwd", "adr.w r1, fwd"),
              (".half   0xbf00", ".hword 0xbf00"), ("ADR.W   R2, back", "adr.w r2, back"),
              ("ADR.W   R3, fwd", "adr.w r3, fwd"), ("ADR.W   R9, back", "adr.w r9, back"), ("fwd", "fwd:"),
              ("ADR.W   R4, fwd", "adr.w r4, fwd"), ("ADR.W   R5, back", "adr.w r5, back")]

def label_tail(pairs, march):
    code = [p for p in pairs if not p[1].endswith(":")]
    values = gnu([p[1] for p in pairs], march, len(code))
    out = ["; Labels of the section: the offset is from the word of the instruction, plus 4."]
    for zt, gt in pairs:
        if gt.endswith(":"):
            out.append(zt)
        else:
            out.append("        %-32s;= %s" % (zt, values.pop(0)))
    return out

def emit(path, header, cases, triple, march, mattr=None, tail=()):
    z = [c[0] for c in cases]
    l = llvm([c[1] for c in cases], triple, mattr)
    g = gnu([c[2] for c in cases], march)
    out = header[:]
    for (zt, lt, gt), lv, gv in zip(cases, l, g):
        if lv != gv:
            print("DISAGREE", zt, lv, gv); continue
        note = ""
        if len(c := zt.split(";;")) > 1: zt, note = c[0].rstrip(), "  ; note: " + c[1].strip()
        out.append("        %-32s;= %s%s" % (zt, lv, note))
    out += tail
    os.makedirs(os.path.dirname(path), exist_ok=True)
    open(path, "w").write("\n".join(out) + "\n")

conds = ["EQ","NE","CS","CC","MI","PL","VS","VC","HI","LS","GE","LT","GT","LE"]
def branch_cases(blx):
    cs = []
    offs = [0, 4, -4, 8, -8, 256, -4096, 0x12344, -0x12346, 4094, 4096, 16777214, -16777216, 8388606, -8388608, 2097150]
    for o in offs:
        g = ".+%d" % (o + 4)
        cs.append(("B.W     %d" % o, "b.w #%d" % o, "b.w %s" % g))
        cs.append(("BL      %d" % o, "bl #%d" % o, "bl %s" % g))
    coffs = [0, 2, -2, 256, -256, 1048574, -1048576, 524288, -524290, 0x5554]
    for i, c in enumerate(conds):
        for o in (coffs[i % len(coffs)], coffs[(i + 3) % len(coffs)], coffs[(i + 6) % len(coffs)]):
            cs.append(("B%s.W   %d" % (c, o), "b%s.w #%d" % (c.lower(), o), "b%s.w .+%d" % (c.lower(), o + 4)))
    return cs

def hdr(what, run, offsets=True, xfail=None):
    h = ["; %s" % what, "; Written by scripts/golden/t2br.py from llvm-mc, cross-checked with arm-none-eabi-as."]
    if offsets: h.append("; Targets are plain numbers: the offset itself.")
    if xfail: h.append("; XFAIL: " + xfail)
    return h + ["; RUN: %s" % run, "        .thumb"]


for arch, run, triple, march in [("v7m", "%s %o -v7M3 -mt", "thumbv7m", "armv7-m"),
                                 ("v7a", "%s %o -v7A8 -mt", "thumbv7a", "armv7-a"),
                                 ("v8m", "%s %o -v8M33 -mt", "thumbv8m.main", "armv8-m.main")]:
    emit("tests/golden/%s/t2br_branch.asm" % arch, hdr("Thumb-2 B.W, BL and conditional B.W by offset.", run), branch_cases(False), triple, march)

def adr_cases():
    cs = []
    for i, o in enumerate([0, 1, -1, 8, -8, 255, -255, 256, -256, 0x7FF, 0x800, -0x800, 0xABC, -0x123, 4095, -4095]):
        r = "R%d" % (i % 13)
        g = ".%+d" % (o + 4)
        cs.append(("ADR.W   %s, %d" % (r, o), "adr.w %s, #%d" % (r.lower(), o), "adr.w %s, %s" % (r.lower(), g)))
    for r in ("R8", "R12", "LR"):
        cs.append(("ADR.W   %s, 100" % r, "adr.w %s, #100" % r.lower(), "adr.w %s, .+104" % r.lower()))
    return cs

def cbz_cases():
    cs = []
    for i, o in enumerate(range(0, 128, 2)):
        if i % 3 and o not in (0, 2, 64, 126): continue
        r = "R%d" % (i % 8)
        for n in ("CBZ", "CBNZ"):
            cs.append(("%-7s %s, %d" % (n, r, o), "%s %s, #%d" % (n.lower(), r.lower(), o), "%s %s, .+%d" % (n.lower(), r.lower(), o + 4)))
    return cs

def it_cases():
    cs = []
    masks = ["", "T", "E", "TT", "TE", "ET", "EE", "TTT", "TTE", "TET", "TEE", "ETT", "ETE", "EET", "EEE"]
    inv = {c: conds[i ^ 1] for i, c in enumerate(conds)}
    plan = [(m, "EQ") for m in masks] + [(m, "NE") for m in masks]
    plan += [(masks[i % len(masks)], c) for i, c in enumerate(conds)]
    plan += [("", "AL"), ("TTT", "AL")]
    for m, c in plan:
        cs.append(("IT%-5s %s" % (m, c), "it%s %s" % (m.lower(), c.lower()), "it%s %s" % (m.lower(), c.lower())))
        for letter in "T" + m:
            cc = c if letter == "T" else inv[c]
            z = "NOP%s.W" % (cc if cc != "AL" else "")
            cs.append((z, z.lower(), z.lower()))
    # A branch that ends a block takes the unconditional word.
    cs += [("IT      NE", "it ne", "it ne"), ("BNE.W   8", "bne.w #8", "bne.w .+12"),
           ("ITE     GT", "ite gt", "ite gt"), ("NOPGT.W", "nopgt.w", "nopgt.w"), ("BLLE    -8", "blle #-8", "blle .-4")]
    return cs

def blx_cases():
    cs = []
    for o in [0, 4, -4, 8, -8, 256, -4096, 0x12344, -0x12348, 16777212, -16777216]:
        cs.append(("BLX     %d" % o, "blx #%d" % o, "blx .+%d" % (o + 4)))
    for r in list(range(13)) + [14]:
        cs.append(("BXJ     R%d" % r, "bxj r%d" % r, "bxj r%d" % r))
    return cs

for arch, run, triple, march in [("v7m", "%s %o -v7M3 -mt", "thumbv7m", "armv7-m"),
                                 ("v7a", "%s %o -v7A8 -mt", "thumbv7a", "armv7-a"),
                                 ("v8m", "%s %o -v8M33 -mt", "thumbv8m.main", "armv8-m.main")]:
    emit("tests/golden/%s/t2br_adr.asm" % arch, hdr("ADR.W by offset: ADDW or SUBW from PC.", run), adr_cases(), triple, march,
         tail=label_tail(ADR_LABELS, march))
    emit("tests/golden/%s/t2br_cbz.asm" % arch, hdr("CBZ and CBNZ over their whole range.", run), cbz_cases(), triple, march)
    emit("tests/golden/%s/t2br_it.asm" % arch, hdr("IT with every mask, each block filled with NOP.W of its conditions.", run, False), it_cases(), triple, march)
emit("tests/golden/v7a/t2br_blx.asm", hdr("BLX to an offset (ARM code) and BXJ.", "%s %o -v7A8 -mt"), blx_cases(), "thumbv7a", "armv7-a")
