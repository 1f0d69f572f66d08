#!/usr/bin/env python3
"""Writes a large data-only assembly source twice: for zqasm and, with the same
contents, in the syntax of arm-none-eabi-as.

    gen.py LINES OUTDIR   ->  OUTDIR/data_LINES.asm and OUTDIR/data_LINES.s

The source repeats one block of statements with fresh labels: comments,
labels, bytes, halfwords, words, long words, strings with and without a
terminator, floats and doubles, reserved space, alignment, constants and
expressions over labels of the same section.
"""
import sys


def block_pair(i):
    """One block as (zqasm lines, GNU lines); both give the same bytes except
    for alignment padding, which zqasm fills with its no-op pattern."""
    n = i * 7 + 1
    z, g = [], []

    def both(zline, gline=None):
        z.append(zline)
        g.append(zline if gline is None else gline)

    both(f"; block {i}: a table entry with its name and values",
         f"@ block {i}: a table entry with its name and values")
    both(f"t{i}:    .word   0x{(n * 2654435761) & 0xFFFFFFFF:08X}, {n} * 4 + 3, (t{i} - base) >> 2",
         f"t{i}:    .word   0x{(n * 2654435761) & 0xFFFFFFFF:08X}, {n} * 4 + 3, (t{i} - base) >> 2")
    both(f"        .half   0x{n & 0xFFFF:04X}, -{n % 1000}, {n % 65536}",
         f"        .hword  0x{n & 0xFFFF:04X}, -{n % 1000}, {n % 65536}")
    both(f"        .byte   {n % 256}, -{n % 100}, 'A', 0x7F")
    both(f"        .string \"entry{i:07d}\"",
         f"        .ascii  \"entry{i:07d}\"")
    both(f"        .cstring \"name {i:07d}\\n\"",
         f"        .asciz  \"name {i:07d}\\n\"")
    both(f"        .align  4", f"        .balign 4")
    both(f"        .long   {n} | 0x80000000, e{i} - t{i}")
    both(f"        .float  {n % 997}.25, -1.5e{n % 30}")
    both(f"        .double {n % 991}.125")
    both(f"e{i}:    .space  {4 + (i % 3) * 4}")
    both(f"        ; packed flags and a checksum",
         f"        @ packed flags and a checksum")
    both(f"        .word   ((({n} & 0xFF) << 24) | ({n} % 4096)) ^ 0x5A5A, K{i % 16} + {i}")
    both(f"        .byte   ({n} >> 3) & 0xFF, ~{n % 127} & 0xFF")
    both(f"        .half   e{i} - t{i}, 3 * ({n % 100} + 2)",
         f"        .hword  e{i} - t{i}, 3 * ({n % 100} + 2)")
    both(f"        .align  4", f"        .balign 4")
    return z, g


def header():
    z = ["; Generated data-only benchmark source.",
         "        .global base"]
    g = ["@ Generated data-only benchmark source.",
         "        .global base"]
    for k in range(16):
        z.append(f"K{k}      .equ    {k * 17 + 5}")
        g.append(f"        .equ    K{k}, {k * 17 + 5}")
    z += ["        .data", "base:   .word   0"]
    g += ["        .data", "base:   .word   0"]
    return z, g


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: gen.py LINES OUTDIR")
    lines = int(sys.argv[1])
    outdir = sys.argv[2]
    z_lines, g_lines = header()
    i = 0
    while len(z_lines) < lines:
        z, g = block_pair(i)
        z_lines += z
        g_lines += g
        i += 1
    z_lines = z_lines[:lines]
    g_lines = g_lines[:lines]
    with open(f"{outdir}/data_{lines}.asm", "w") as f:
        f.write("\n".join(z_lines) + "\n")
    with open(f"{outdir}/data_{lines}.s", "w") as f:
        f.write("\n".join(g_lines) + "\n")


if __name__ == "__main__":
    main()
