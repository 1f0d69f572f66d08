#!/bin/sh
# Coverage-guided fuzzing of the command-line assembler with AFL++.
#
#   scripts/fuzz.sh [SECONDS]        (default 600)
#
# Builds an instrumented zqasm with ASan and UBSan in build-fuzz/, gathers the
# test sources as seeds, writes a dictionary from the directive tables and runs
# afl-fuzz for SECONDS on `zqasm <input> <scratch>/out.obj`. Runs again with the
# same output directory resume the campaign where it stopped.
#
# Environment:
#   ZQ_FUZZ_OUT   findings directory (default build-fuzz/findings)
#   ZQ_FUZZ_NICE  niceness of the whole run (default 19)
#   ZQ_FUZZ_RSS   memory limit of one run of zqasm in MB (default 2048)
#   ZQ_FUZZ_T     time limit of one run in ms (default 2000)
#   ZQ_FUZZ_SEED_MAX  seeds are cut to this many bytes (default 4096)
#   ZQ_FUZZ_ARGS  options put before the source, e.g. "--endian=big" (use its
#                 own ZQ_FUZZ_OUT: a campaign resumes with the options it began with)
set -eu

# The whole run is one function, read before it starts, so the script can be
# edited while a campaign runs.
main() {
  root=$(cd "$(dirname "$0")/.." && pwd)
  secs=${1:-600}
  nice_level=${ZQ_FUZZ_NICE:-19}
  if [ "${ZQ_FUZZ_NICED:-}" != 1 ] && [ "$nice_level" != 0 ]; then
    ZQ_FUZZ_NICED=1 exec nice -n "$nice_level" "$0" "$@"
  fi

  build=$root/build-fuzz
  out=${ZQ_FUZZ_OUT:-$build/findings}
  rss=${ZQ_FUZZ_RSS:-2048}
  tlimit=${ZQ_FUZZ_T:-2000}
  seed_max=${ZQ_FUZZ_SEED_MAX:-4096}
  args=${ZQ_FUZZ_ARGS:-}
  work=$out/work

  for tool in afl-clang-fast++ afl-fuzz afl-cmin cmake ninja; do
    command -v "$tool" >/dev/null || { echo "fuzz.sh: $tool not found (the afl++ package provides afl-*)" >&2; exit 2; }
  done

  mkdir -p "$out" "$work/scratch"
  echo "== building instrumented zqasm in $build"
  # ZQ_LTO off: the instrumenting clang cannot read the objects g++ LTO makes.
  # ZQ_WERROR off where the option exists; cxx.sh also appends -Wno-error.
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_CXX_COMPILER="$root/scripts/fuzz/cxx.sh" -DZQ_SANITIZE=ON -DZQ_LTO=OFF \
    -DZQ_WERROR=OFF --no-warn-unused-cli >"$work/cmake.log" 2>&1 ||
    { cat "$work/cmake.log" >&2; exit 2; }
  ninja -C "$build" -j "${ZQ_FUZZ_JOBS:-2}" zqasm
  zqasm=$build/zqasm

  "$root/scripts/fuzz/make_dict.sh" "$root" >"$work/zqasm.dict"

  # The sanitizers stop at the first report, with an abort afl-fuzz sees as a
  # crash; no symbolising and no leak check while fuzzing, for speed.
  export ASAN_OPTIONS="abort_on_error=1:symbolize=0:detect_leaks=0:allocator_may_return_null=1:hard_rss_limit_mb=$rss:malloc_limit_mb=$rss:detect_stack_use_after_return=0"
  export UBSAN_OPTIONS="halt_on_error=1:abort_on_error=1:symbolize=0:print_stacktrace=0"
  export AFL_SKIP_CPUFREQ=1 AFL_I_DONT_CARE_ABOUT_MISSING_CRASHES=1 AFL_NO_AFFINITY=1
  export AFL_NO_UI=1 AFL_SKIP_CRASHES=1
  # zqasm catches SIGSEGV, SIGABRT and the like and exits with status 2, so
  # afl-fuzz never sees the signal: status 2 is what marks a crash.
  export AFL_CRASH_EXITCODE=2
  # Objects and listings zqasm writes stay in the scratch directory; no file
  # larger than 1 GiB is written even when a source asks for a huge section.
  cd "$work/scratch"
  ulimit -f 2097152 2>/dev/null || true

  if [ -f "$out/default/fuzzer_stats" ]; then
    echo "== resuming the campaign in $out"
    input=-
  else
    echo "== gathering seeds"
    rm -rf "$work/seeds.raw" "$work/seeds"
    mkdir -p "$work/seeds.raw"
    n=0
    for f in $(find "$root/tests/asm" "$root/tests/fuzz" -name '*.asm' 2>/dev/null | sort); do
      n=$((n + 1))
      seed=$work/seeds.raw/$n-$(basename "$f")
      head -c "$seed_max" "$f" >"$seed"
      # A seed that already crashes or hangs (a finding not fixed yet) would
      # stop afl-fuzz before it starts.
      st=0
      timeout -k 1 $((tlimit / 1000 + 1)) "$zqasm" $args "$seed" "$work/scratch/out.obj" \
        >/dev/null 2>&1 </dev/null || st=$?
      if [ "$st" -gt 1 ]; then
        echo "   seed $f left out (exit status $st)"
        rm -f "$seed"
      fi
    done
    # Keep only the seeds that add coverage.
    AFL_NO_UI=1 afl-cmin -i "$work/seeds.raw" -o "$work/seeds" \
      -m none -t "$tlimit" -- \
      "$zqasm" $args @@ "$work/scratch/out.obj" >"$work/cmin.log" 2>&1 ||
      { echo "(afl-cmin failed, see $work/cmin.log; using all seeds)"; cp -r "$work/seeds.raw" "$work/seeds"; }
    echo "   $n sources, $(ls "$work/seeds" | wc -l) seeds kept"
    input=$work/seeds
  fi

  echo "== fuzzing zqasm $args for $secs s; findings in $out/default"
  set +e
  # The input stays afl-fuzz's own .cur_input: zqasm takes ".cur_input" for a
  # name with an extension and reads it as it is.
  afl-fuzz -i "$input" -o "$out" -x "$work/zqasm.dict" -m none -t "$tlimit" -V "$secs" -- \
    "$zqasm" $args @@ "$work/scratch/out.obj"
  rc=$?
  set -e

  stats=$out/default/fuzzer_stats
  stat() { sed -n "s/^$1 *: *//p" "$stats" 2>/dev/null | head -n 1; }
  echo
  echo "== summary (afl-fuzz exit status $rc)"
  if [ -f "$stats" ]; then
    echo "   run time     $(stat run_time) s (campaign so far)"
    echo "   execs        $(stat execs_done) ($(stat execs_per_sec)/s)"
    echo "   paths        $(stat corpus_count)"
    echo "   crashes      $(stat saved_crashes)"
    echo "   hangs        $(stat saved_hangs)"
    echo "   coverage     $(stat bitmap_cvg)"
  fi
  echo "   crashes in   $out/default/crashes"
  echo "   hangs in     $out/default/hangs"
  echo "   replay them: scripts/fuzz/triage.sh $out   (needs build-asan/zqasm)"
  exit "$rc"
}

main "$@"
exit
