#!/usr/bin/env bash
# The set-up of ./play and ./check against stand-ins for the system's commands: nothing is installed here.
# usage: setup-test.sh PROJECT-FOLDER, in a folder where it may write.
# shellcheck disable=SC2016  # the stand-ins expand these themselves
set -euo pipefail
project=$(realpath "$1")
scratch=$(mktemp -d "$PWD/setup.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
failures=0

# What the stand-ins do: INSTALLED lists the packages that are there, USER_ID is who asks, CALLS collects
# what is asked of apt-get and sudo, and APT and SUDO are their answers.
mkdir -p "$scratch"/{bin,project/packaging}
cat >"$scratch/project/packaging/debian-packages.txt" <<'LIST'
# a list
[play]
hammer    # knocks
nails-dev # hold

[check]
ruler     # measures
LIST
stand_in() {
  printf '#!/bin/bash\n%s\n' "$2" >"$scratch/bin/$1"
  chmod +x "$scratch/bin/$1"
}
stand_in id 'echo "$USER_ID"'
stand_in dpkg-query 'for name in "${@:4}"; do
  if [[ " $INSTALLED " == *" $name "* ]]; then echo "installed $name"; else unknown=1; fi
done
exit "${unknown:-0}"'
stand_in apt-get 'echo "apt-get $*" >>"$CALLS"; [[ $* != *" $APT"* ]]'
stand_in sudo 'echo "sudo $*" >>"$CALLS"; [[ $SUDO == yes ]] || exit 1; [[ $1 == -v ]] || exec "$@"'

# try INSTALLED USER_ID SUDO APT GROUP...: one set-up; its words, its status and its calls stay behind.
try() {
  export INSTALLED=$1 USER_ID=$2 SUDO=$3 APT=$4 CALLS="$scratch/calls"
  : >"$CALLS"
  status=0
  words=$(PATH="$scratch/bin:$PATH" zorik_root="$scratch/project" \
    bash -c 'source "$0/tools/setup.sh"; install_packages "The test" "$@"' "$project" "${@:5}" 2>&1) || status=$?
  calls=$(<"$CALLS")
}
holds() {
  [[ $2 == *"$3"* ]] && return
  echo "$1: \"$3\" is not in: $2"
  failures=$((failures + 1))
}
equals() {
  [[ $2 == "$3" ]] && return
  echo "$1: \"$3\" expected, but it is: $2"
  failures=$((failures + 1))
}

never='nothing fails'
try "hammer nails-dev" 0 yes "$never" play
equals "all is there: status" "$status" 0
equals "all is there: words" "$words" ""
equals "all is there: calls" "$calls" ""

try "hammer" 0 yes "$never" play check
equals "root: status" "$status" 0
holds "root: says what is missing" "$words" "needs Debian packages that are not here yet: nails-dev ruler."
holds "root: fresh lists first" "$calls" "update"$'\n'"apt-get"
holds "root: installs the missing ones alone" "$calls" "install --no-install-recommends nails-dev ruler"
[[ $calls != *sudo* ]] || equals "root: needs no sudo" "$calls" ""

try "hammer ruler" 1000 yes "$never" play
equals "by sudo: status" "$status" 0
holds "by sudo: says so" "$words" "by sudo apt-get"
holds "by sudo: installs" "$calls" "sudo env DEBIAN_FRONTEND=noninteractive apt-get"

try "" 1000 no "$never" play
equals "nobody may: status" "$status" 1
holds "nobody may: tells the way out" "$words" "apt-get install --no-install-recommends hammer nails-dev"
[[ $calls != *apt-get* ]] || equals "nobody may: apt-get is left alone" "$calls" ""

try "hammer" 0 yes update play
equals "old lists: status" "$status" 0
holds "old lists: goes on" "$calls" "install"

try "hammer" 0 yes install play
equals "apt fails: status" "$status" 1
holds "apt fails: says where to look" "$words" "build/packages.log"

# The real list: names as Debian writes them, each with its reason, none twice.
list="$project/packaging/debian-packages.txt"
strange=$(grep -vE '^($|#|\[(play|check|package|web)\]$|[a-z0-9][a-z0-9+.-]+ +# .+)' "$list" || true)
equals "lines of the list that are none" "$strange" ""
twice=$(grep -oE '^[a-z0-9][a-z0-9+.-]+' "$list" | sort | uniq -d)
equals "packages listed twice" "$twice" ""

exit $((failures > 0))
