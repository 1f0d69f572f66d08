#!/bin/sh
# Writes an afl-fuzz dictionary for zqasm sources to stdout: every directive
# spelling of the directive tables (upper and lower case), mnemonics and
# built-in function names when their tables have rows, well-known section
# names, operators, and the forms numbers, strings and labels take.
# Usage: make_dict.sh [SOURCE_DIR]
set -eu
src=${1:-$(cd "$(dirname "$0")/../.." && pwd)}

# One token per line in, one dictionary entry per line out; quotes and
# backslashes written as \xNN (@NL@ stands for a line end), duplicates
# dropped, overlong tokens skipped.
emit() {
  awk 'length($0) > 0 && length($0) <= 64 && !seen[$0]++' |
    sed 's/\\/\\x5c/g; s/"/\\x22/g; s/	/\\x09/g; s/@NL@/\\x0a/g; s/^/"/; s/$/"/'
}

{
  # Directive spellings: each row opens with {".NAME", in the tables.
  grep -ho '{"\.[A-Za-z_0-9$]*"' "$src"/src/driver/directive_table.cpp | sed 's/^{"//; s/"$//' |
    while read -r d; do
      lower=$(printf '%s' "$d" | tr 'A-Z' 'a-z')
      printf '%s\n%s\n' "$d" "$lower"
      # A whole statement start, so an insertion makes a directive, not a name.
      printf '@NL@\t%s \n' "$lower"
    done
  # Mnemonic and built-in function rows ({"NAME", ...), once their tables are filled.
  for f in "$src"/src/target/arm/*opcodes*.cpp "$src"/src/target/arm/*mnem*.cpp \
           "$src"/src/expr/*bif*.cpp; do
    [ -f "$f" ] || continue
    grep -ho '^ *{"[A-Za-z_0-9$.]*"' "$f" | sed 's/^ *{"//; s/"$//'
  done
  # Section names the object writer knows.
  grep -ho '{"\.[a-z_0-9.]*"' "$src"/src/ofe/elf_section_table.cpp 2>/dev/null | sed 's/^{"//; s/"$//'
  # Operators and punctuation of expressions and statements.
  for t in '+' '-' '*' '/' '%' '&' '|' '^' '~' '!' '<<' '>>' '<' '>' '<=' '>=' '==' '!=' '=' \
           '&&' '||' '(' ')' '[' ']' '{' '}' ',' ':' ';' '#' '@' '$' '.' '?' '\' '"' "'" \
           '+=' '++' '-=' '--' '*+' '||' '::' ' ' '	'; do
    printf '%s\n' "$t"
  done
  # Numbers in every form the lexer reads, edges of the 32-, 64- and 128-bit ranges.
  for n in 0 1 -1 7 8 15 16 31 32 33 63 64 65 127 128 255 256 65535 65536 \
           2147483647 2147483648 4294967295 4294967296 9223372036854775807 \
           18446744073709551615 18446744073709551616 \
           340282366920938463463374607431768211455 \
           0x0 0xFF 0x7FFFFFFF 0xFFFFFFFF 0xFFFFFFFFFFFFFFFF 0FFh 0ffffh 1010b 0b1010 \
           0777 777q 12o 9999999999999999999999999999999999999999 \
           1U 1L 1LL 1UL 1ULL 1.0 1.5e10 1e308 1e309 1e-400 .5 0.0 -0.0 1.0f \
           0x1p4 "'a'" "'ab'" "'abcd'" "'\\n'" "''" '""' '"abc"' '"\"' '"\\"' '"\x41"' '"\0"'; do
    printf '%s\n' "$n"
  done
  # Labels, local labels, substitution and symbol forms.
  for t in 'lab:' 'lab' '$1' '$$' '$1:' '?' 'lab?' '.lab' ':lab:' 'R0' 'r15' 'SP' 'LR' 'PC' \
           'A1' 'r0' '.text' '.data' '.bss' '.sect' '.usect' '$MACRO' '@' '$$LEN' '$$SYMLEN' \
           '.set' '.equ' ' .macro m a,b' ' .endm' '.loop 3' '.endloop' '.if 1' '.endif'; do
    printf '%s\n' "$t"
  done
} | emit
