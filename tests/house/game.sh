#!/usr/bin/env bash
# The built game as a player starts it, in a folder of its own.
# usage: game.sh GAME headless|installed|window, in a folder where it may write.
#   headless  without a display it plays the first cave's record, which wins, and leaves a picture
#   installed the same for GAME's whole build, installed into a folder; the player's own things stay outside
#   window    on a display of our own its window comes up and shows a picture, with no sound loaded yet
set -euo pipefail
game=$1
scratch=$(mktemp -d "$PWD/game.XXXXXX")
leave() {
  # shellcheck disable=SC2046  # job numbers, one a word
  kill $(jobs -p) 2>/dev/null || true
  wait
  rm -rf "$scratch"
}
trap leave EXIT
export ZORIK_HOME="$scratch/home" XDG_CONFIG_HOME="$scratch/config" XDG_RUNTIME_DIR="$scratch" SDL_AUDIODRIVER=dummy
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

if [[ $2 == installed ]]; then
  cmake --install "$(dirname "$game")/../.." --prefix "$scratch/system" >/dev/null
  [[ -f $scratch/system/share/applications/zorik.desktop ]] || { echo "There is no desktop entry."; exit 1; }
  unset ZORIK_HOME
  touch "$scratch/installed"
  sleep 0.1
  XDG_DATA_HOME="$scratch/data" "$scratch/system/games/zorik"
  find "$scratch/data/zorik/Caves" -name '*.zk' | grep -q . || { echo "The caves were not copied."; exit 1; }
  [[ -z $(find "$scratch/system" -newer "$scratch/installed") ]] ||
    { echo "The game wrote into its installation."; exit 1; }
  exit 0
fi

if [[ $2 == headless ]]; then
  # says LOCALE WORDS...: on a desktop of this language the game says so.
  says() {
    LC_ALL='' LC_MESSAGES='' LANG=$1 "$game" >"$scratch/words"
    grep -qF "$2" "$scratch/words" || { echo "With LANG=$1 it does not say $2 but:"; cat "$scratch/words"; exit 1; }
    find "$ZORIK_HOME" -name '*.png' -size +1k -delete -print | grep -q . || { echo "There is no picture."; exit 1; }
  }
  says C 'Není tu žádná obrazovka'
  says cs_CZ.UTF-8 'záznam dovedl Zoríka do cíle, skóre'
  says en_US.UTF-8 'the record led Zorík to the finish, score'
  # A display that is named and not there is none. What a save that was killed has left in the folder is swept.
  left="$ZORIK_HOME/.zorik-999999999-0.tmp"
  touch -d '10 minutes ago' "$left"
  DISPLAY=:4711 "$game"
  [[ ! -e $left ]] || { echo "What a killed save has left was not swept."; exit 1; }
  find "$ZORIK_HOME" -name '*.png' -size +1k | grep -q . || { echo "There is no picture."; exit 1; }
  exit 0
fi

# Somebody who has played before is not asked for the language.
mkdir -p "$XDG_CONFIG_HOME/Ortvan"
printf '[General]\nSkin=Default\n' >"$XDG_CONFIG_HOME/Ortvan/Zorik2.ini"

# The display keeps its picture in a file: black at first.
mkdir "$scratch/screen"
Xvfb -displayfd 3 -screen 0 1280x960x24 -fbdir "$scratch/screen" 3>"$scratch/display" 2>/dev/null &
lit() { tr -d '\0\377' <"$scratch/screen/Xvfb_screen0" | wc -c; }
for ((i = 0; i < 100; ++i)); do
  [[ -s $scratch/display && -s $scratch/screen/Xvfb_screen0 ]] && break
  sleep 0.1
done
[[ -s $scratch/display ]] || { echo "The display did not start."; exit 1; }
before=$(lit)

DISPLAY=":$(<"$scratch/display")" "$game" &
player=$!
for ((i = 0; i < 200; ++i)); do
  kill -0 $player 2>/dev/null || { echo "The game has ended by itself."; exit 1; }
  # A tenth of the screen's three million bytes of colour is more than any empty window has.
  if [[ $(($(lit) - before)) -gt 400000 ]]; then
    # Sound is for the first cave: its libraries would keep the start screen waiting.
    ! grep -o 'libSDL.*' /proc/$player/maps || { echo "It is there before any sound is due."; exit 1; }
    exit 0
  fi
  sleep 0.1
done
echo "The screen stayed empty: $before bytes of colour before, $(lit) after."
exit 1
