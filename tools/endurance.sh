#!/usr/bin/env bash
# Goes round, until the time is up, over what fails late or by chance only: random caves, live, replayed and damaged;
# kills while something is saved; restarts, and windows opened, closed and dragged, without growth; every fuzz target.
#   tools/endurance.sh MINUTES    with what the presets asan and fuzz have built; ./check --endurance=MINUTES builds it
# The inputs with which a fuzz target reaches most gather in build/corpus/TARGET from run to run, as few as will do.
# What finds something leaves its log and its input in build/check/endurance, and the exit code is 1 then.
# shellcheck disable=SC2317  # the parts are called by name
set -uo pipefail
root=$(dirname "$(dirname "$(realpath "$0")")")
cd "$root" || exit 2
[[ $# -eq 1 && $1 =~ ^[1-9][0-9]{0,3}$ ]] || { sed -n '2,6s/^# //p' "$0" >&2; exit 2; }
minutes=$1

folder="$root/build/check/endurance" corpus="$root/build/corpus" home="$root/build/check/home"
programs="$root/build/asan/tests/endurance"
longest_round=600  # seconds
jobs=$(nproc)
rm -rf "$folder"
mkdir -p "$folder" "$corpus" "$home"

# What a round is made of, the longest first: a name, its share, and the tests or the fuzz target that it runs.
parts() {
  local target
  echo "windows 6 zorik_enduring_windows_tests EnduringWays.*"
  echo "restarts 3 zorik_enduring_windows_tests EnduringWindows.Restart*"
  echo "sizes 3 zorik_enduring_windows_tests EnduringWindows.AreDragged*"
  echo "machine 3 zorik_enduring_machine_tests *"
  echo "records 1 zorik_enduring_saves_tests *.LeaveARecordWhole"
  echo "collections 1 zorik_enduring_saves_tests *.LeaveACollectionWhole"
  echo "edits 1 zorik_enduring_edits_tests *"
  echo "settings 1 zorik_enduring_saves_tests *.LeaveTheSettingsWhole"
  echo "first-starts 1 zorik_enduring_saves_tests EnduringFirstStart.*"
  for target in fuzz/fuzz_*.cpp; do
    target=$(basename "$target" .cpp)
    echo "$target 1 $target -"
  done
}

# run_tests PROGRAM FILTER SECONDS EVIDENCE: the tests, until the time is up; one that hangs is ended.
run_tests() {
  local seed=$SRANDOM
  echo "ENDURANCE_SEED=$seed $programs/$1 --gtest_filter='$2'"
  ENDURANCE_SECONDS=$3 ENDURANCE_SEED=$seed ENDURANCE_FOLDER=$4 \
    timeout --kill-after=10 $(($3 * 2 + 120)) "$programs/$1" --gtest_filter="$2"
}

# run_fuzzer TARGET SECONDS EVIDENCE: the target on its seeds and on what it has gathered, which is sifted afterwards.
run_fuzzer() {
  local kept="$corpus/$1" target="build/fuzz/fuzz/$1"
  mkdir -p "$kept"
  "$target" -max_total_time="$2" -timeout=10 -print_final_stats=1 -artifact_prefix="$3/" "$kept" "fuzz/seeds/$1" ||
    return
  rm -rf "$kept.fewer"
  mkdir "$kept.fewer"
  "$target" -merge=1 "$kept.fewer" "fuzz/seeds/$1" "$kept" || return
  rm -rf "$kept"
  mv "$kept.fewer" "$kept"
}

# counts LOG NAME: what was done, a line each: how often, and what.
counts() {
  awk -v name="$2" '
    sub(/^count: /, "") { print }
    /^stat::number_of_executed_units/ { print $2, "inputs of " name }' "$1"
}

# run_part NAME SECONDS PROGRAM FILTER: one part of a round. Who did nothing has failed.
run_part() {
  local evidence="$folder/$1-$rounds" status=0 did
  local log="$evidence/log"
  local -a command=(run_tests "$3" "$4" "$2" "$evidence")
  [[ $4 != - ]] || command=(run_fuzzer "$3" "$2" "$evidence")
  mkdir "$evidence"
  XDG_DATA_HOME="$home/data" XDG_CONFIG_HOME="$home/config" QT_QPA_PLATFORM=offscreen SDL_AUDIODRIVER=dummy \
    LSAN_OPTIONS="suppressions=$root/tests/lsan-suppressions.txt:print_suppressions=0" \
    "${command[@]}" >"$log" 2>&1 </dev/null || status=$?
  did=$(counts "$log" "$1")
  [[ -z $did ]] || echo "$did" >>"$folder/counts"
  if [[ $status -eq 0 && -n $did ]]; then
    rm -rf "$evidence"
  else
    echo "${evidence##*/} (exit code $status)" >>"$folder/found"
    echo "--- $1 has found something; the end of ${log#"$root/"}"
    tail -n 30 "$log"
    echo "---"
  fi
}

# account WORD: how many of each, what was found, and the exit code for it.
account() {
  printf '%s after %d min %d s and %d rounds:\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)) "$rounds"
  awk '{ times = $1; sub(/^[0-9]+ /, ""); if (!($0 in sum)) order[++n] = $0; sum[$0] += times }
    END { for (i = 1; i <= n; i++) printf "%12d %s\n", sum[order[i]], order[i] }' "$folder/counts" 2>/dev/null
  printf '%12d inputs kept in build/corpus\n' "$(find "$corpus" -type f | wc -l)"
  if [[ -s $folder/found ]]; then
    echo "found: $(wc -l <"$folder/found"), in build/check/endurance: $(paste -sd ' ' "$folder/found")"
    exit 1
  fi
  [[ -s $folder/counts ]] || { echo "found: nothing, for nothing was done"; exit 1; }
  echo "found: nothing"
  exit 0
}

mapfile -t round < <(parts)
shares=$(printf '%s\n' "${round[@]}" | awk '{ sum += $2 } END { print sum }')
export root folder corpus home programs rounds
export -f run_part run_tests run_fuzzer counts
shortest_round=40  # seconds, which all parts need to do something
rounds=0 SECONDS=0
trap 'account stopped' INT
while ((rounds == 0 || SECONDS + shortest_round < minutes * 60)); do
  rest=$((minutes * 60 - SECONDS))
  left=$(((rest + longest_round - 1) / longest_round))
  # Starting, ending and sifting take some seconds of each share.
  share=$((rest * jobs / left / shares))
  ((rounds += 1))
  # shellcheck disable=SC2016
  printf '%s\n' "${round[@]}" |
    awk -v share="$share" '{ seconds = $2 * share - 4; print $1, seconds < 2 ? 2 : seconds, $3, $4 }' |
    xargs -P "$jobs" -L 1 bash -c 'run_part "$@"' part
  echo "round $rounds, after $((SECONDS / 60)) min $((SECONDS % 60)) s: $(wc -l 2>/dev/null <"$folder/found" || echo 0) finds"
done
account endured
