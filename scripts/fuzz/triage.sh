#!/bin/sh
# Replays the crashes and hangs of a fuzz campaign with a plain sanitizer build
# and groups them by the kind of report and the first frame inside src/.
#
#   scripts/fuzz/triage.sh [FINDINGS_DIR [ZQASM]]
#
# FINDINGS_DIR defaults to build-fuzz/findings, ZQASM to build-asan/zqasm. Each
# finding's report goes to FINDINGS_DIR/triage/<name>.txt; one line per finding
# is printed: the group key, then the file.
set -u
root=$(cd "$(dirname "$0")/../.." && pwd)
out=${1:-$root/build-fuzz/findings}
zqasm=${2:-$root/build-asan/zqasm}
limit=${ZQ_TRIAGE_T:-20}
tri=$out/triage
mkdir -p "$tri/scratch"
export ASAN_OPTIONS="detect_leaks=0:symbolize=1:hard_rss_limit_mb=4096"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"

for f in "$out"/default/crashes/id:* "$out"/default/hangs/id:*; do
  [ -f "$f" ] || continue
  name=$(basename "$(dirname "$f")")-$(basename "$f" | cut -d, -f1 | tr ':' '_')
  rep=$tri/$name.txt
  if [ ! -f "$rep" ]; then
    # zqasm adds .asm to a name without an extension, as the findings' names are.
    cp "$f" "$tri/scratch/input.asm"
    (cd "$tri/scratch" && timeout -k 2 "$limit" "$zqasm" input.asm out.obj >"$rep" 2>&1 </dev/null)
    echo "exit status $?" >>"$rep"
  fi
  # Kind: the sanitizer's summary, a timeout, or the exit status.
  kind=$(sed -n 's/^SUMMARY: \([A-Za-z]*Sanitizer\): \([^ ]*\).*/\1:\2/p; s/^.*runtime error: \(.*\)/UBSan:\1/p' "$rep" | head -n 1)
  [ -n "$kind" ] || kind=$(tail -n 1 "$rep" | sed 's/exit status 124/timeout/; s/exit status 137/timeout/')
  # First stack frame in our sources: "#n 0x... in FUNCTION .../src/FILE:LINE".
  where=$(awk '/^ *#[0-9]+ 0x[0-9a-f]+ in / && $NF ~ /\/src\// && $NF !~ /support\/memory/ {
                 f = $NF; sub(/.*\/src\//, "src/", f); sub(/:[0-9]+(:[0-9]+)?$/, "", f)
                 fn = $4; sub(/\(.*/, "", fn); print f ":" fn; exit }' "$rep")
  printf '%-44.44s %-50.50s %s\n' "$kind" "${where:-?}" "$f"
done | sort
