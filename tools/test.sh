#!/bin/bash
# tools/test.sh: builds and runs all tests: both builds, the installed tree, and the sanitizers.
# The last line is 'N passed, N failed' over all runs; exit status 1 if anything failed. A run that does not build,
# crashes, or finds no test counts as one failure.
set -u
cd "$(dirname "$0")/.." || exit 1

passed=0 failed=0 skipped=0
jobs=$(nproc)
logs=build/logs
mkdir -p $logs

# report NAME PASSED FAILED [SKIPPED]: adds one run to the sums.
report() {
  local name=$1 ok=$2 bad=$3 left=${4:-0}
  if [ $((ok + bad)) = 0 ]; then bad=1 && echo "$name: no test ran"; fi
  passed=$((passed + ok)) failed=$((failed + bad)) skipped=$((skipped + left))
  echo "== $name: $ok passed, $bad failed$( ((left)) && echo ", $left skipped"), ${SECONDS}s since the start"
}

# build PRESET
build() {
  echo "== building $1"
  cmake --preset "$1" >$logs/"$1"-configure.log 2>&1 && cmake --build --preset "$1" -j "$jobs" && return
  tail -n 40 $logs/"$1"-configure.log
  report "build $1" 0 1
  return 1
}

# number LOG PATTERN: what the pattern's group matched in the last line that has it, 0 without such a line.
number() { sed -nE "s/^$2.*/\1/p" "$1" | tail -n 1 | grep . || echo 0; }

# run PRESET [ARGUMENT]...: the test program, one shard for each processor.
run() {
  local preset=$1 shard log status ran good skip ok=0 bad=0 left=0 pids=()
  shift
  for ((shard = 0; shard < jobs; ++shard)); do
    GTEST_TOTAL_SHARDS=$jobs GTEST_SHARD_INDEX=$shard \
      build/"$preset"/bin/zelm_tests --gtest_brief=1 --gtest_color=no "$@" >$logs/"$preset".$shard.log 2>&1 &
    pids+=($!)
  done
  for ((shard = 0; shard < jobs; ++shard)); do
    log=$logs/$preset.$shard.log status=0
    wait "${pids[shard]}" || status=$?
    ran=$(number "$log" '\[=+\] ([0-9]+) tests? from .* ran')
    good=$(number "$log" '\[ +PASSED +\] ([0-9]+) tests?')
    skip=$(number "$log" '\[ +SKIPPED +\] ([0-9]+) tests?')
    ok=$((ok + good)) left=$((left + skip)) bad=$((bad + ran - good - skip))
    if [ $status != 0 ]; then
      tail -n 200 "$log"
      # A crash, or a sanitizer's findings behind tests that all passed.
      if [ $((ran - good - skip)) = 0 ]; then bad=$((bad + 1)) && echo "$log: ended with status $status"; fi
    fi
  done
  report "tests $preset" $ok $bad $left
}

for preset in x86_64 i386; do
  build $preset || continue
  run $preset
  log=$logs/install-$preset.log
  tests/install/run.sh $preset >$log 2>&1 || tail -n 40 $log
  report "install $preset" "$(grep -c '^PASSED' $log)" "$(grep -c '^FAILED' $log)"
done

if build asan; then
  export ASAN_OPTIONS=detect_stack_use_after_return=1 UBSAN_OPTIONS=print_stacktrace=1
  run asan
fi

# ThreadSanitizer knows nothing of the synchronisation inside libomp, which is not instrumented. Archer, the tool that
# comes with libomp, tells it; so no suppressions are needed.
if build tsan; then
  libomp=$(sed -n 's/^ZELM_LIBOMP:FILEPATH=//p' build/tsan/CMakeCache.txt)
  archer=$(dirname "$(readlink -f "$libomp")")/libarcher.so
  if [ -e "$archer" ]; then
    export OMP_TOOL_LIBRARIES=$archer TSAN_OPTIONS=ignore_noninstrumented_modules=1
    run tsan --gtest_filter='*Parallel*'
  else
    echo "no $archer: the races cannot be told from libomp's own synchronisation"
    report "tests tsan" 0 1
  fi
fi

echo "$passed passed, $failed failed$( ((skipped)) && echo ", $skipped skipped")"
[ $failed = 0 ] && [ $passed != 0 ]
