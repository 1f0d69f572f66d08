#!/usr/bin/env python3
"""Writes tests/golden/<arch>/width_narrow.asm: the width that the Thumb-2
state chooses for unsuffixed 32-bit rows, with the values of llvm-mc (checked
against the GNU assembler). Lines where this assembler chooses otherwise carry
its value and a note.

    python3 scripts/golden/width/gen_width.py [--out tests/golden]
"""
import argparse
import os
import re
import subprocess
import sys
import tempfile

# (folder, option of this assembler, llvm-mc triple, GNU -march)
ARCHS = [("v7a", "-v7A8", "thumbv7a", "armv7-a"), ("v7m", "-v7M3", "thumbv7m", "armv7-m"),
         ("v7em", "-v7M4", "thumbv7em", "armv7e-m"), ("v8m", "-v8M33", "thumbv8m.main", "armv8-m.main")]

LINES = ['ADD R0, R0, R1', 'ADD R0, R1, R0', 'ADDS R0, R0, R1', 'ADD R8, R8, R1', 'ADD R0, R0, R8', 'ADDS R8, R8, R1',
 'ADD R0, R1, R2', 'ADDS R0, R1, R2', 'ADD R0, R1, #4', 'ADDS R0, R1, #4', 'ADDS R0, R0, #200',
 'ADDS R0, R1, #200', 'ADD SP, SP, #8', 'SUB SP, SP, #8', 'ADD R0, SP, #8', 'ADD SP, SP, R1',
 'SUB R0, R0, #1', 'SUBS R0, R0, #1', 'SUBS R0, R1, R2', 'SUBS R0, R1, R0', 'ANDS R0, R0, R1',
 'ANDS R0, R1, R0', 'AND R0, R0, R1', 'ANDS R0, R1, R2', 'BICS R0, R0, R1', 'BICS R0, R1, R0',
 'ORRS R0, R1, R0', 'EORS R0, R0, R1', 'ADCS R0, R1, R0', 'SBCS R0, R0, R1', 'MULS R0, R1, R0',
 'MUL R0, R1, R0', 'MOV R0, #1', 'MOVS R0, #1', 'MOVS R0, #300', 'MOV R0, R1', 'MOVS R0, R1', 'MOV R8, R1',
 'MOVS R8, R1', 'MVNS R0, R1', 'LSLS R0, R1, #2', 'LSRS R0, R1, #32', 'ASRS R0, R1, #3', 'LSL R0, R1, #2',
 'RORS R0, R1, #2', 'LSLS R0, R0, R1', 'CMP R0, #1', 'CMP R0, #300', 'CMP R8, R1', 'CMP R0, R1', 'CMN R0, R1',
 'TST R0, R1', 'ADD.W R0, R0, R1', 'ADDS.W R0, R0, R1', 'MOVS.W R0, #1', 'LDR R0, [R1, #4]',
 'LDR R0, [R1, #2]', 'LDR R8, [R1, #4]', 'LDR R0, [SP, #8]', 'LDR R0, [R1, #128]', 'STR R0, [R1, R2]',
 'LDRB R0, [R1, #31]', 'LDRB R0, [R1, #32]', 'LDRH R0, [R1, #6]', 'STRH R0, [R1, #7]', 'PUSH {R0}',
 'PUSH.W {R0}', 'PUSH {R0, R8}', 'PUSH {R4, LR}', 'POP {R0, PC}', 'POP.W {R0}', 'POP {R8}',
 'LDM R0!, {R1, R2}', 'LDM R0, {R1, R2}', 'NOP', 'SXTB R0, R1', 'REV R0, R1']

# Where this assembler's choice is its own: value and reason.
OWN = {
    "SUB SP, SP, #8": ("f1ad 0d08", "the 16-bit SUB has no SP form here, so the trial fails"),
    "MOVS R0, R1": ("1c08", "two low registers take the ADDS Rd, Rs, #0 form"),
}

HEADER = [
    "The narrowest encoding of 32-bit rows outside IT blocks: flag rules, folds,",
    "the 16-bit trial and its two-operand retry; .W keeps 32 bits.",
    "Written by scripts/golden/width/gen_width.py: change the generator, not this file.",
]


def halfwords(data):
    return " ".join("%04x" % (data[i] | data[i + 1] << 8) for i in range(0, len(data), 2))


def references(triple, march):
    src = "\t.syntax unified\n\t.thumb\n" + "".join("\t" + l + "\n" for l in LINES)
    with tempfile.TemporaryDirectory() as tmp:
        s, o = os.path.join(tmp, "g.s"), os.path.join(tmp, "g.o")
        with open(s, "w") as f:
            f.write(src)
        subprocess.run(["arm-none-eabi-as", "-march=" + march, "-mthumb", s, "-o", o], check=True)
        dump = subprocess.run(["arm-none-eabi-objdump", "-d", o], capture_output=True, text=True, check=True).stdout
    gnu = []
    for line in dump.splitlines():
        m = re.match(r"\s+[0-9a-f]+:\s+([0-9a-f]{4})(?: ([0-9a-f]{4}))?\s", line)
        if m:
            gnu.append(m.group(1) + (" " + m.group(2) if m.group(2) else ""))
    mc = subprocess.run(["llvm-mc", "-triple=" + triple, "-show-encoding"], input=src, capture_output=True,
                        text=True, check=True).stdout
    llvm = [halfwords([int(x, 16) for x in e.split(",")]) for e in re.findall(r"encoding: \[([^\]]*)\]", mc)]
    if not len(gnu) == len(llvm) == len(LINES):
        sys.exit("%s: the references assembled %d and %d of %d lines" % (triple, len(gnu), len(llvm), len(LINES)))
    return llvm, gnu


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--out", default=os.path.join(os.path.dirname(__file__), "..", "..", "..", "tests", "golden"))
    args = ap.parse_args()
    for folder, option, triple, march in ARCHS:
        llvm, gnu = references(triple, march)
        out = ["; " + h for h in HEADER] + ["; RUN: %s %o " + option, "        .thumb"]
        for line, value, other in zip(LINES, llvm, gnu):
            note = ""
            if line in OWN:
                value, why = OWN[line]
                note = "  ; note: " + why
            elif value != other:
                note = "  ; note: as llvm-mc; GNU as gives " + other
            out.append(("        %-26s ;= %s" % (line, value)) + note)
        os.makedirs(os.path.join(args.out, folder), exist_ok=True)
        with open(os.path.join(args.out, folder, "width_narrow.asm"), "w") as f:
            f.write("\n".join(out) + "\n")


if __name__ == "__main__":
    main()
