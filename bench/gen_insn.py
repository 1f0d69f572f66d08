#!/usr/bin/env python3
"""Writes a large instruction source twice: for zqasm and, with the same
program, in the syntax of arm-none-eabi-as and llvm-mc.

    gen_insn.py arm|thumb LINES OUTDIR
        ->  OUTDIR/insn_STATE_LINES.asm (zqasm) and OUTDIR/insn_STATE_LINES.s (GNU)

The program is a run of functions: push/pop, data processing with immediates
and shifts, loads and stores in every addressing mode, load and store
multiple, conditional execution (IT blocks in Thumb-2), near and far
conditional branches, ADR and PC-relative loads of labels, calls to external
symbols and to other functions, addresses by MOVW/MOVT (no literal pools),
small tables in the code, a data section every few functions, and comments.
"""
import sys

FAR = 24          # a far branch goes this many functions back
EXTERNALS = 64    # number of external symbols called


def imm8r(k, r):
    """A constant both states encode as a modified immediate."""
    return ((k & 0xFF) | 0x81) << (2 * (r % 12))


def function(i, thumb):
    """One function as (zqasm lines, GNU lines)."""
    z, g = [], []
    n = (i * 2654435761) & 0xFFFFFFFF
    s = 1 + i % 31                        # a shift amount
    o = (i * 4) % 1024                    # a word offset
    o8 = (i % 60) * 4 + 4                 # an offset a Thumb-2 writeback takes
    r = i % 12

    def both(zline, gline=None):
        z.append(zline)
        # A comment starts with ';' here and with '@' in GNU syntax.
        g.append(zline.replace(";", "@") if gline is None else gline)

    def comment(text):
        both(f"; {text}")

    comment(f"function {i}: checks a record, updates it and calls out")
    if i % 4 == 0:
        both(f"        .global f{i}")
    both(f"f{i}:")
    both("        push    {r4-r7, lr}")
    d = i - i % 8                          # the data block of this group
    both(f"        movw    r4, dat{d}", f"        movw    r4, #:lower16:dat{d}")
    both(f"        movt    r4, dat{d}", f"        movt    r4, #:upper16:dat{d}")
    both(f"        add     r0, r1, #{imm8r(n, r)}")
    both(f"        adds    r2, r2, #{n % 256}        ; count it")
    both(f"        sub     r3, r0, r1, lsl #{s}")
    both(f"        rsb     r5, r2, r3, asr #{s}")
    both(f"        and     r6, r6, #0x{imm8r(n >> 8, r + 4):X}")
    if thumb:
        both(f"        lsl     r7, r1, r2")
    else:
        both(f"        orr     r7, r7, r1, lsr r2")
    both(f"        eor     r0, r0, r4, ror #{s}")
    both(f"        bic     r1, r1, #{imm8r(n >> 16, r + 2)}")
    both(f"        mov     r2, #{imm8r(n >> 4, r)}")
    both(f"        mvn     r3, #{n % 200}")
    both(f"        cmp     r0, #{n % 255}")
    both(f"        tst     r2, #0x{imm8r(n >> 12, r + 6):X}")
    both(f"        movw    r12, #{n & 0xFFFF}")
    comment("the record: fields in every addressing mode")
    both(f"        ldr     r0, [r4, #{o}]")
    both(f"        ldr     r1, [r4, #-{o8}]")
    both(f"        str     r0, [r4, #{o8}]!")
    both(f"        ldr     r2, [r4], #{o8}")
    both(f"        ldr     r3, [r4, r1, lsl #2]")
    both(f"        strb    r0, [r4, r1]")
    both(f"        ldrb    r1, [r4, #{i % 256}]")
    both(f"        ldrh    r2, [r4, #{(i % 100) * 2}]")
    both(f"        strh    r2, [r4, #-{(i % 100) * 2 + 2}]")
    both(f"        ldrsh   r3, [r4], #2")
    both(f"        ldrd    r0, r1, [r4, #8]")
    both(f"        strd    r0, r1, [r4, #-8]!")
    if not thumb:
        both(f"        ldr     r0, [r4, -r1]")
        both(f"        str     r0, [r4], r2, lsl #{s}")
    both(f"        ldr     r0, tab{i}")
    both(f"        adr     r1, tab{i}")
    both("        ldm     r4!, {r0-r3}")
    both("        stmdb   r4, {r0, r1}")
    both("        cmp     r0, r1")
    if thumb:
        both("        it      eq")
    both("        addeq   r0, r0, #1")
    if thumb:
        both("        ite     ne")
    both("        movne   r1, #0")
    both("        moveq   r1, #1")
    if thumb:
        both("        itt     gt")
    both("        ldrgt   r2, [r4]")
    both("        subgt   r3, r3, #1")
    both(f"        beq     l{i}")
    if i >= FAR:
        both(f"        bgt     f{i - FAR}")
    both(f"        bl      ext{i % EXTERNALS}")
    if i > 0:
        both(f"        bl      f{i - 1}")
    both(f"l{i}:    add     r0, r0, r1")
    both(f"        cmp     r0, #{n % 64}")
    both(f"        blt     l{i}")
    both("        pop     {r4-r7, pc}")
    both("        .align  4", "        .balign 4")
    both(f"tab{i}:  .word   {n}, {n ^ 0x5A5A}")
    if i % 8 == 7:
        comment(f"data of functions {d} to {i}")
        both("        .data")
        both(f"dat{d}:  .word   f{d}, tab{i}, {n}")
        both(f"        .half   {n & 0xFFFF}, {i % 1000}", f"        .hword  {n & 0xFFFF}, {i % 1000}")
        both(f"        .byte   {n % 256}, 1, 2, 3")
        both("        .text")
        if thumb:
            both("        .thumb")
    return z, g


def header(thumb):
    ext = ", ".join(f"ext{k}" for k in range(EXTERNALS))
    z = ["; Generated instruction benchmark source.",
         f"        .global {ext}",
         "        .text"]
    g = ["@ Generated instruction benchmark source.",
         "        .syntax unified",
         f"        .global {ext}",
         "        .text"]
    if thumb:
        z.append("        .thumb")
        g.append("        .thumb")
    else:
        g.append("        .arm")
    return z, g


def main():
    if len(sys.argv) != 4 or sys.argv[1] not in ("arm", "thumb"):
        sys.exit("usage: gen_insn.py arm|thumb LINES OUTDIR")
    state, lines, outdir = sys.argv[1], int(sys.argv[2]), sys.argv[3]
    thumb = state == "thumb"
    zh, gh = header(thumb)
    base = f"{outdir}/insn_{state}_{lines}"
    with open(base + ".asm", "w") as zf, open(base + ".s", "w") as gf:
        zf.write("\n".join(zh) + "\n")
        gf.write("\n".join(gh) + "\n")
        count = len(zh)
        i = 0
        while count < lines:
            z, g = function(i, thumb)
            i += 1
            # Whole functions only, so that the last one ends and its data
            # block, if any, is complete.
            count += len(z)
            zf.write("\n".join(z) + "\n")
            gf.write("\n".join(g) + "\n")
        # The last group's data block, so that every MOVW has its target.
        if i % 8:
            d = (i - 1) - (i - 1) % 8
            zf.write(f"        .data\ndat{d}:  .word   0\n")
            gf.write(f"        .data\ndat{d}:  .word   0\n")


if __name__ == "__main__":
    main()
