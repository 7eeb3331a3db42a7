#!/usr/bin/env bash
# Takes the help's pictures of the windows anew: starts the built game on a display of its own, plays a little and
# leaves help/windows/*.png and *.jpg in Czech, help/en/windows in English. No part of the build; the pictures are
# kept with the sources. Look at them before you keep them: what moves in a cave stands a little elsewhere each time.
#   tools/helppictures.sh             both languages
#   tools/helppictures.sh cs          one of them, cs or en
#   tools/helppictures.sh [cs] tips   only the pictures of these names; the others stay as they are
# Wants a game that is built (./play), and xvfb, openbox, xdotool, x11-utils and imagemagick.
set -euo pipefail
root=$(dirname "$(dirname "$(realpath "$0")")")
app="$root/build/release/src/app"
tool="$root/build/release/tools/zktool"
caves="$root/build/release/caves"
width=720 # of a picture that is shown as wide as the page
languages=(cs en)
case ${1-} in
  cs | en) languages=("$1"); shift ;;
esac
names=("$@") # all if there are none
for name in "${names[@]}"; do
  grep -qE "(^| )take(_| )$name( |\$)" "$0" || { sed -n '2,8s/^# //p' "$0" >&2; exit 2; }
done

for program in Xvfb openbox xdotool xwininfo import convert; do
  command -v "$program" >/dev/null || { echo "There is no $program here."; exit 1; }
done
[[ -x $app/zorik && -x $tool ]] || { echo "The game is not built; ./play builds it."; exit 1; }
for language in "${languages[@]}"; do
  [[ -e $app/Caves/1-zorikova-skola-$language.zk && -d $caves/records/1-zorikova-skola-$language ]] ||
    { echo "The game has no caves; ./play builds them."; exit 1; }
done

scratch=$(mktemp -d)
leave() {
  # shellcheck disable=SC2046  # job numbers, one a word
  kill $(jobs -p) 2>/dev/null || true
  wait 2>/dev/null || true
  rm -rf "$scratch"
}
trap leave EXIT

# The background of the display is white, for the paw is no rectangle.
Xvfb -displayfd 3 -screen 0 1280x800x24 -wr 3>"$scratch/display" 2>/dev/null &
for ((i = 0; i < 100; ++i)); do
  [[ -s $scratch/display ]] && break
  sleep 0.1
done
DISPLAY=":$(<"$scratch/display")"
export DISPLAY SDL_AUDIODRIVER=dummy QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR="$scratch/run" XDG_DATA_HOME="$scratch/data"
mkdir -m 700 "$XDG_RUNTIME_DIR"
openbox >/dev/null 2>&1 &

# record_file SCHOOL NUMBER: the name of the file in which a player keeps his record of a cave.
record_file() {
  local name title
  name=$("$tool" verify "$caves/records/$1/01.zkr" | sed -n '1s/.* collection="\([^"]*\)" .*/\1/p')
  title=$("$tool" progress "$caves/$1.zk" "$scratch/nobody" | sed -n "$2p" | cut -f 4)
  tr -d '?*\\/,;:=\t"\n' <<<"$name - $title.zkr"
}
# player COUNT LANGUAGE: one who has solved the first caves of the first collection in this language, with the records
# that came with the game.
player() {
  local school="1-zorikova-skola-$2" folder="$ZORIK_HOME/Players/Zorík" number
  mkdir -p "$folder" "$scratch/nobody"
  for ((number = 1; number <= $1; ++number)); do
    cp "$caves/records/$school/$(printf %02d "$number").zkr" "$folder/$(record_file "$school" "$number")"
  done
}
# rival NUMBER LANGUAGE: another player, who has won that cave of this collection in his own way.
rival() {
  local school="1-zorikova-skola-$2" folder="$ZORIK_HOME/Players/Žofie"
  mkdir -p "$folder"
  "$tool" fetch "$caves/$school.zk" "$1" >"$scratch/cave.txt"
  "$tool" solve "$scratch/cave.txt" --seconds 5 --shorten 0 --seed 5 --record "$scratch/rival.zkr" >/dev/null
  "$tool" carry "$scratch/rival.zkr" "$caves/$school.zk" "$1" "$folder/$(record_file "$school" "$1")" --player Žofie
}

# keys NAME...: presses them one after another, as a hand would.
keys() {
  local key
  for key in "$@"; do
    xdotool keydown "$key"
    sleep 0.12
    xdotool keyup "$key"
    sleep 0.25
  done
}
wanted() {
  [[ ${#names[@]} -eq 0 || " ${names[*]} " == *" $1 "* ]]
}
# take NAME: the window in front, no wider than the page. It is cut out of the display, for a skin may round its
# corners.
take() {
  local WIDTH HEIGHT X Y
  wanted "$1" || return 0
  sleep 0.8
  eval "$(place)"
  import -window root -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage "$scratch/window.png"
  convert "$scratch/window.png" -resize "$width>" -strip -sampling-factor 4:4:4 -quality 84 "$out/$1.jpg"
}
# Where the window in front is: assignments to WIDTH, HEIGHT, X and Y.
place() {
  xwininfo -id "$(xdotool getactivewindow)" | awk '/Absolute upper-left [XY]:/ { sub(":", "", $3); print $3 "=" $4 + 0 }
    $1 == "Width:" { print "WIDTH=" $2 + 0 } $1 == "Height:" { print "HEIGHT=" $2 + 0 }'
}
# The start screen without what lies around it.
take_start() {
  wanted start || return 0
  sleep 0.8
  import -window root "$scratch/window.png"
  convert "$scratch/window.png" -alpha set -fuzz 2% -fill none -floodfill +0+0 white -trim +repage \
    -resize 480x -strip -colors 200 "$out/start.png"
}

# pictures LANGUAGE SKIN FOLDER: what shows no words of the skin is taken in Czech alone.
pictures() {
  local game out=$3
  export ZORIK_HOME="$scratch/$1/home" XDG_CONFIG_HOME="$scratch/$1/config" LC_ALL=C.UTF-8
  mkdir -p "$out" "$XDG_CONFIG_HOME/Ortvan"
  printf '[General]\nSkin=%s\nSound=0\n' "$2" >"$XDG_CONFIG_HOME/Ortvan/Zorik2.ini"
  player 11 "$1"
  rival 8 "$1"
  "$app/zorik" >/dev/null 2>&1 &
  game=$!
  sleep 5
  [[ $1 != cs ]] || take_start
  keys F2
  take skin
  keys Escape Return
  take select
  keys Home Down Down Down Down Down Down Down Down Down Down Return # the cave of the firefly
  sleep 4
  keys Down Right Right Right
  take game
  keys F2
  take settings
  keys F2
  take keys
  keys Escape Escape alt+F4
  sleep 1
  keys Home Down Down Down Down Down Down Down # the cave of the train
  keys t
  sleep 4
  keys Right Right
  take practice
  keys Escape
  sleep 1
  keys z
  wait_for_score
  keys r space Home period period period period period period period period period period period period
  take theatre
  keys Escape
  sleep 1
  keys v Return # the other player
  sleep 2
  keys d
  take pair
  keys Escape
  keys Home z # the record of the first cave
  wait_for_score
  [[ $1 != cs ]] || take score
  keys Return
  sleep 1
  keys Escape
  sleep 1
  keys 3 Return
  sleep 1
  take collection
  xdotool mousemove --window "$(xdotool getactivewindow)" 480 60 click 1 # the list, where keys select caves
  keys End Return                                                        # the cave with the cat
  sleep 1
  take cave
  keys F4
  take properties
  keys Escape F6
  take cat
  kill $game
  wait $game 2>/dev/null || true
}

# The score's window is far smaller than that of the game.
wait_for_score() {
  local WIDTH HEIGHT X Y
  for ((i = 0; i < 300; ++i)); do
    eval "$(place)"
    [[ $WIDTH -lt 600 ]] && return
    sleep 0.1
  done
  echo "The record does not end."
  exit 1
}

for language in "${languages[@]}"; do
  case $language in
    cs) pictures cs Default "$root/help/windows" ;;
    en) pictures en English "$root/help/en/windows" ;;
  esac
done
