#!/usr/bin/env bash
# What the build makes anew when one file changes.
# usage: reasons.sh NINJA BUILD FILE OUTPUT...; FILE is no reason to make any OUTPUT anew.
set -euo pipefail
ninja=$1 build=$2 file=$3
shift 3
bad=0
# uses OUTPUT: whether it is made of FILE.
uses() {
  local inputs
  inputs=$("$ninja" -C "$build" -t inputs "$1")
  [[ $inputs ]] || { echo "$1: is made of nothing"; exit 2; }
  grep -qE "(^|/)$file$" <<<"$inputs"
}

# Were the program itself made without the file, nothing would be looked at here.
uses src/app/zorik || { echo "$file: no reason for anything"; exit 2; }
for output; do
  ! uses "$output" || { echo "$file: a reason to make $output anew"; bad=1; }
done
exit $bad
