#!/usr/bin/env bash
# What looks wrong and is right has its tests: each row of docs/not-bugs.md names tests that there are.
# usage: notbugs.sh PROJECT-FOLDER; prints each row without a test and each name of none, fails if there is one.
set -euo pipefail
cd "$1"
[[ -f docs/not-bugs.md ]] || { echo "there is no docs/not-bugs.md"; exit 2; }
tests=$(find tests -name '*Test.cpp' -exec cat {} + | tr '\n' ' ' |
  grep -oE 'TEST(_F|_P)?\( *[A-Za-z0-9_]+, *[A-Za-z0-9_]+\)' | sed -E 's/^[^(]*\( *//; s/, */./; s/\)$//')
bad=0
while IFS= read -r row; do
  names=$(awk -F'|' '{ print $4 }' <<<"$row" | grep -oE '`[^`]+`' | tr -d '`') || { echo "no test: $row"; bad=1; }
  for name in $names; do
    grep -qxF "$name" <<<"$tests" || { echo "docs/not-bugs.md: there is no test $name"; bad=1; }
  done
done < <(grep '^|' docs/not-bugs.md | tail -n +3)
exit $bad
