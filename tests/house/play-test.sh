#!/usr/bin/env bash
# What ./play does with its argument, with stand-ins for the build and the game: nothing is built here.
# usage: play-test.sh PROJECT-FOLDER DOWNLOADER, in a folder where it may write.
# shellcheck disable=SC2016  # the stand-ins expand these themselves
set -euo pipefail
project=$(realpath "$1")
scratch=$(mktemp -d "$PWD/play.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
failures=0
app="$scratch/project/build/release/src/app"
here="$scratch/a folder"
mkdir -p "$scratch"/{bin,run,project/{tools,packaging}} "$app" "$here"
cp "$project/play" "$scratch/project"
cp "$project/tools/setup.sh" "$scratch/project/tools"
: >"$scratch/project/packaging/debian-packages.txt"
cp "$2" "$app/downloader"
stand_in() {
  printf '#!/bin/bash\n%s\n' "$2" >"$1"
  chmod +x "$1"
}
stand_in "$scratch/bin/cmake" 'echo cmake >>"$CALLS"'
# The game tells in one piece how it was started.
stand_in "$app/zorik" 'echo "arguments $#, file ${ZORIK_OPEN-none}" >"$CALLS.new"; mv "$CALLS.new" "$GAME"'
export CALLS="$scratch/calls" GAME="$scratch/game" XDG_RUNTIME_DIR="$scratch/run" ZORIK_HOME="$scratch/home"
export PATH="$scratch/bin:$PATH"
chmod 700 "$scratch/run"
unset ZORIK_OPEN

# play STATUS [ARGUMENT...]: starts it in the folder with the files; what it says and what the game is told stay
# behind. The game may be a moment late, since nobody waits for it.
play() {
  local status=0
  rm -f "$CALLS" "$GAME"
  words=$(cd "$here" && "$scratch/project/play" "${@:2}" 2>&1) || status=$?
  if [[ $status -ne $1 ]]; then
    echo "./play ${*:2}: status $status, expected $1; it says: $words"
    failures=$((failures + 1))
  fi
  for ((i = 0; i < 100 && status == 0; ++i)); do
    [[ -e $GAME || ${2-} == -h* || ${2-} == --help ]] && break
    sleep 0.05
  done
  told=$(cat "$GAME" 2>/dev/null || echo "no game")
}
equals() {
  [[ $2 == "$3" ]] && return
  echo "$1: \"$3\" expected, but it is: $2"
  failures=$((failures + 1))
}

touch "$here"/{x.zk,"two words.zkr",-dash.zk,--help,"file:x.zk",'$(touch oops) "q".zk'}
mkdir "$here/folder"

play 0
equals "without an argument" "$told" "arguments 0, file none"
for name in x.zk "two words.zkr" -dash.zk "file:x.zk" '$(touch oops) "q".zk'; do
  play 0 "$name"
  equals "a file beside" "$told" "arguments 0, file $here/$name"
  play 0 "$here/$name"
  equals "a file by its whole path" "$told" "arguments 0, file $here/$name"
done
play 0 ../"a folder"/x.zk
equals "a file elsewhere" "$told" "arguments 0, file $here/x.zk"
play 0 -- --help
equals "a file that looks like an option" "$told" "arguments 0, file $here/--help"
[[ ! -e $here/oops ]] || equals "a file that looks like a command" "obeyed" "opened"

for argument in none.zk --no-such-option ""; do
  play 1 "$argument"
  equals "a file that is not there: words" "$words" "There is no file \"$argument\". ./play --help tells more."
  equals "a file that is not there: the game" "$told" "no game"
  [[ ! -e $CALLS ]] || equals "a file that is not there: the build" "done" "not done"
done
play 1 folder
equals "a folder" "$words" '"folder" is no file that can be read.'
play 2 x.zk x.zk
equals "two files: the game" "$told" "no game"
for option in --help -h; do
  play 0 $option
  [[ $words == *"./play FILE"* ]] || equals "help" "$words" "./play FILE ..."
  equals "help: the game" "$told" "no game"
done
exit $((failures > 0))
