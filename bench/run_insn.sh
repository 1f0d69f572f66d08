#!/bin/sh
# Assembles generated instruction sources (bench/gen_insn.py) in ARM state
# (v7-A) and Thumb-2 (v7E-M) with zqasm, arm-none-eabi-as and llvm-mc, and
# reports wall time, processor time, lines per second and peak memory of each,
# with the ratios of zqasm to the other two. Each tool runs REPS times
# (default 3); the best wall and processor times and the largest peak are
# kept. Checks that zqasm's .text matches as's instruction for instruction.
# Sources are deleted after each size; outputs go to build/bench ($BENCH_OUT).
#
#   bench/run_insn.sh [ZQASM] [LINES...]   default: build/zqasm 100000 1000000 4000000
#   STATES="arm thumb" REPS=3
set -e
ROOT=$(cd "$(dirname "$0")/.." && pwd)
ZQASM=${1:-$ROOT/build/zqasm}
[ $# -gt 0 ] && shift
SIZES=${*:-"100000 1000000 4000000"}
STATES=${STATES:-"arm thumb"}
REPS=${REPS:-3}
GAS=${GAS:-arm-none-eabi-as}
MC=${MC:-llvm-mc}
OUT=${BENCH_OUT:-$ROOT/build/bench}
TIME=/usr/bin/time

[ -x "$ZQASM" ] || { echo "no zqasm at $ZQASM" >&2; exit 1; }
[ -x "$TIME" ] || { echo "install the package 'time' for $TIME" >&2; exit 1; }
command -v "$GAS" >/dev/null || { echo "no $GAS" >&2; exit 1; }
command -v "$MC" >/dev/null || { echo "no $MC" >&2; exit 1; }
mkdir -p "$OUT"

# measure NAME COMMAND...: runs the command REPS times under time -v and
# prints "wall cpu kbytes" (best wall, best user + system, largest peak), or
# "failed" if the command failed (the head of its messages is in NAME.time.out).
measure() {
  log="$OUT/$1.time"
  shift
  best=""
  i=0
  while [ $i -lt "$REPS" ]; do
    # The tool's messages are capped: a refused program can print hundreds
    # of megabytes of them (and is stopped when the cap is reached). Failure
    # is read from time's report.
    "$TIME" -v -o "$log" "$@" 2>&1 | head -c 100000 >"$log.out"
    if grep -q -e 'Command exited with non-zero status' -e 'Command terminated by signal' "$log"; then
      echo failed
      return
    fi
    sed -n -e 's/.*Elapsed (wall clock) time (h:mm:ss or m:ss): //p' \
        -e 's/.*User time (seconds): //p' -e 's/.*System time (seconds): //p' \
        -e 's/.*Maximum resident set size (kbytes): //p' "$log" | tr '\n' ' '
    echo
    i=$((i + 1))
  done | awk '
    $1 == "failed" { print "failed"; failed = 1; exit }
    { n = split($3, t, ":"); w = 0; for (k = 1; k <= n; k++) w = w * 60 + t[k]
      c = $1 + $2
      if (NR == 1 || w < bw) bw = w
      if (NR == 1 || c < bc) bc = c
      if ($4 > bm) bm = $4 }
    END { if (!failed) printf "%.3f %.3f %d\n", bw, bc, bm }'
}

printf '%-6s %-8s %-9s %8s %8s %11s %10s\n' state lines tool wall cpu lines/s "peak KiB"
for state in $STATES; do
  if [ "$state" = arm ]; then
    zopt=-v7A8 gopt=-march=armv7-a triple=armv7a-none-eabi
  else
    zopt=-v7M4 gopt="-mthumb -march=armv7e-m" triple=thumbv7em-none-eabi
  fi
  for n in $SIZES; do
    python3 "$ROOT/bench/gen_insn.py" "$state" "$n" "$OUT"
    src="$OUT/insn_${state}_$n"
    z=$(measure "zqasm_${state}_$n" "$ZQASM" $zopt "$src.asm" "$src.obj")
    g=$(measure "gas_${state}_$n" "$GAS" $gopt "$src.s" -o "$src.o")
    m=$(measure "mc_${state}_$n" "$MC" -triple=$triple -filetype=obj "$src.s" -o "$src.mc.o")
    echo "$z|$g|$m" | awk -F'|' -v n="$n" -v st="$state" '
      function row(tool, f) {
        if (f == "failed") { printf "%-6s %-8d %-9s %8s\n", st, n, tool, "failed"; return 0 }
        split(f, v, " ")
        printf "%-6s %-8d %-9s %8.2f %8.2f %11.0f %10d\n", st, n, tool, v[1], v[2], (v[1] > 0 ? n / v[1] : 0), v[3]
        return 1
      }
      function ratio(name, a, b) {
        split(a, x, " "); split(b, y, " ")
        if (y[1] > 0 && y[2] > 0 && y[3] > 0)
          printf "%-6s %-8d %-9s %8.2f %8.2f %11s %10.2f\n", st, n, name, x[1] / y[1], x[2] / y[2], "", x[3] / y[3]
      }
      { okz = row("zqasm", $1); okg = row("as", $2); okm = row("llvm-mc", $3)
        if (okz && okg) ratio("zq/as", $1, $2)
        if (okz && okm) ratio("zq/mc", $1, $3) }'
    if [ "$z" = failed ]; then
      head -c 2000 "$OUT/zqasm_${state}_$n.time.out" >&2
    elif [ "$g" != failed ]; then
      python3 "$ROOT/bench/cmp_text.py" "$state" "$src.obj" "$src.o" || true
    fi
    rm -f "$src.asm" "$src.s" "$src.obj" "$src.o" "$src.mc.o" "$OUT"/*.time "$OUT"/*.time.out
  done
done
