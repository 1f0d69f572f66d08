#!/usr/bin/env python3
"""Compares the .text sections of two objects built from the same program,
instruction by instruction.

    cmp_text.py arm|thumb OBJ1 OBJ2

Prints one line: the section sizes, the instruction counts, how many
instructions differ only as branches (a branch left to the linker with a
relocation against one resolved by the assembler) and how many differ
otherwise, with the first few of those. Exit status 1 on other differences.
"""
import subprocess
import sys
import tempfile


def text_bytes(obj):
    with tempfile.NamedTemporaryFile() as f:
        subprocess.run(["arm-none-eabi-objcopy", "-O", "binary", "-j", ".text",
                        obj, f.name], check=True)
        return open(f.name, "rb").read()


def arm_insns(data):
    return [(4, int.from_bytes(data[k:k + 4], "little"))
            for k in range(0, len(data) - 3, 4)]


def thumb_insns(data):
    out, k = [], 0
    while k + 1 < len(data):
        hw = int.from_bytes(data[k:k + 2], "little")
        if hw >> 11 in (0x1D, 0x1E, 0x1F) and k + 3 < len(data):
            out.append((4, hw << 16 | int.from_bytes(data[k + 2:k + 4], "little")))
            k += 4
        else:
            out.append((2, hw))
            k += 2
    return out


def is_branch(width, word, thumb):
    if not thumb:
        return (word >> 25) & 7 == 5                     # B, BL, BLX (immediate)
    if width == 2:
        return word >> 12 == 0xD and (word >> 9) & 7 != 7 or word >> 11 == 0x1C
    return word >> 27 == 0x1E and (word >> 15) & 1 == 1  # B.W, B<c>.W, BL, BLX


def main():
    if len(sys.argv) != 4 or sys.argv[1] not in ("arm", "thumb"):
        sys.exit("usage: cmp_text.py arm|thumb OBJ1 OBJ2")
    thumb = sys.argv[1] == "thumb"
    a, b = text_bytes(sys.argv[2]), text_bytes(sys.argv[3])
    split = thumb_insns if thumb else arm_insns
    ia, ib = split(a), split(b)
    branches, other = 0, []
    for k, ((wa, xa), (wb, xb)) in enumerate(zip(ia, ib)):
        if (wa, xa) == (wb, xb):
            continue
        if wa == wb and is_branch(wa, xa, thumb) and is_branch(wb, xb, thumb):
            branches += 1
        else:
            other.append((k, wa, xa, wb, xb))
    print(f".text {len(a)} / {len(b)} bytes, {len(ia)} / {len(ib)} instructions, "
          f"{branches} branch offsets differ, {len(other)} other differences")
    for k, wa, xa, wb, xb in other[:5]:
        print(f"  instruction {k}: {xa:0{wa * 2}x} / {xb:0{wb * 2}x}")
    sys.exit(1 if other or len(a) != len(b) else 0)


if __name__ == "__main__":
    main()
