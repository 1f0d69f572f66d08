#!/bin/sh
# Assembles generated data-only sources of 100k and 1M lines with zqasm and
# with arm-none-eabi-as, and reports wall time, lines per second and peak
# memory of each, with their ratios. Also checks that both wrote the same
# .data bytes.
#
#   bench/run.sh [ZQASM] [LINES...]     default: build/zqasm 100000 1000000
set -e
ROOT=$(cd "$(dirname "$0")/.." && pwd)
ZQASM=${1:-$ROOT/build/zqasm}
[ $# -gt 0 ] && shift
SIZES=${*:-"100000 1000000"}
GAS=${GAS:-arm-none-eabi-as}
OUT=${BENCH_OUT:-$ROOT/build/bench}
TIME=/usr/bin/time

[ -x "$ZQASM" ] || { echo "no zqasm at $ZQASM" >&2; exit 1; }
[ -x "$TIME" ] || { echo "install the package 'time' for $TIME" >&2; exit 1; }
command -v "$GAS" >/dev/null || { echo "no $GAS" >&2; exit 1; }
mkdir -p "$OUT"

# measure NAME COMMAND...: runs the command under time -v, prints "seconds kbytes".
measure() {
  log="$OUT/$1.time"
  shift
  "$TIME" -v "$@" >"$log.out" 2>"$log" || { cat "$log.out" "$log" >&2; exit 1; }
  wall=$(sed -n 's/.*Elapsed (wall clock) time (h:mm:ss or m:ss): //p' "$log" |
         awk -F: '{ s = 0; for (i = 1; i <= NF; i++) s = s * 60 + $i; print s }')
  rss=$(sed -n 's/.*Maximum resident set size (kbytes): //p' "$log")
  echo "$wall $rss"
}

printf '%-9s %-7s %9s %12s %10s %10s\n' lines tool seconds lines/s "peak KiB" "object KiB"
for n in $SIZES; do
  python3 "$ROOT/bench/gen.py" "$n" "$OUT"
  src="$OUT/data_$n"
  set -- $(measure "zqasm_$n" "$ZQASM" "$src.asm" "$src.obj")
  zt=$1 zm=$2
  set -- $(measure "gas_$n" "$GAS" "$src.s" -o "$src.o")
  gt=$1 gm=$2
  zk=$(( $(stat -c %s "$src.obj") / 1024 ))
  gk=$(( $(stat -c %s "$src.o") / 1024 ))
  awk -v n="$n" -v zt="$zt" -v zm="$zm" -v zk="$zk" -v gt="$gt" -v gm="$gm" -v gk="$gk" 'BEGIN {
    zr = (zt > 0) ? n / zt : 0; gr = (gt > 0) ? n / gt : 0
    tr = (gt > 0) ? zt / gt : 0; mr = (gm > 0) ? zm / gm : 0
    printf "%-9d %-7s %9.2f %12.0f %10d %10d\n", n, "zqasm", zt, zr, zm, zk
    printf "%-9d %-7s %9.2f %12.0f %10d %10d\n", n, "gas", gt, gr, gm, gk
    printf "%-9d %-7s %9.2f %12s %10.2f\n", n, "zq/gas", tr, "", mr
  }'
  arm-none-eabi-objcopy -O binary -j .data "$src.obj" "$src.zq.bin"
  arm-none-eabi-objcopy -O binary -j .data "$src.o" "$src.gas.bin"
  cmp -s "$src.zq.bin" "$src.gas.bin" || echo "warning: the .data bytes of the two objects differ" >&2
done
