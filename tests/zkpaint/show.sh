#!/usr/bin/env bash
# Pictures and movies as zktool makes them of kept records and a shipped cave, without a display.
# usage: show.sh WHAT ZKTOOL RECORDS CAVES, in a folder where it may write.
set -euo pipefail
what=$1 tool=$(realpath "$2") records=$(realpath "$3") caves=$(realpath "$4")
scratch=$(mktemp -d "$PWD/show.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM ZORIK_HOME

# equals WHAT IS SHOULD
equals() {
  [[ $2 == "$3" ]] && return
  echo "$1: $2, not $3"
  exit 1
}

# The run of this record, in pictures: one for each tick that verify has played, and one of the start.
record="$records/mix-03.zkr"
ticks=$("$tool" verify "$record" | sed -nE '1s/.* ticks=([0-9]+) .*/\1/p')
size=$("$tool" replay "$record" --ticks 0 | sed -nE '1s/.* size=([0-9]+x[0-9]+)$/\1/p')
columns=${size%x*} rows=${size#*x}
even() { echo $((($1 + 1) / 2 * 2)); }

case $what in
  picture)
    "$tool" render "$record" --tick 5 --cell 20 -o out.png
    equals "its size" "$(ffprobe -v error -show_entries stream=width,height -of csv=p=0:s=x out.png)" \
      "$((columns * 20))x$((rows * 20))"
    # The same from a pipe.
    "$tool" render /dev/stdin --tick 5 --cell 20 -o piped.png < <(cat "$record")
    cmp out.png piped.png
    "$tool" render "$caves" --cave 2 --scheme Hot -o hot.png
    "$tool" render "$caves/02-schody.txt" --scheme Hot -o alone.png
    cmp hot.png alone.png
    code=0; "$tool" render "$caves/none.txt" -o none.png || code=$?
    equals "the exit code for a file that is not there" $code 3
    ;;
  gif | mp4)
    "$tool" movie "$record" --cell 5 -o "out.$what"
    width=$((columns * 5)) height=$((rows * 5))
    [[ $what == gif ]] || width=$(even $width) height=$(even $height)
    equals "width, height and pictures" \
      "$(ffprobe -v error -count_frames -show_entries stream=width,height,nb_read_frames -of csv=p=0:s=x "out.$what")" \
      "${width}x${height}x$((ticks + 1))"
    ;;
  webp)
    "$tool" movie "$record" --cell 5 --follow -o out.webp
    # Each picture of a WebP stands in a part of this kind.
    equals "pictures" "$(grep -ao ANMF out.webp | wc -l)" $((ticks + 1))
    ;;
  without)
    # What it lacks it names, and it leaves no file behind.
    code=0; words=$(PATH=/nonexistent "$tool" movie "$record" -o out.gif 2>&1) || code=$?
    equals "the exit code without ffmpeg" $code 11
    [[ $words == *"ffmpeg cannot be started"*"package ffmpeg"* ]] || { echo "$words"; exit 1; }
    # What takes no pictures says why, not who made them.
    mkdir bin
    printf '#!/bin/sh\necho it is broken >&2\nexit 1\n' >bin/ffmpeg
    chmod +x bin/ffmpeg
    code=0; words=$(trap '' PIPE; PATH=$PWD/bin:$PATH "$tool" movie "$record" -o out.gif 2>&1) || code=$?
    equals "the exit code with a broken ffmpeg" $code 11
    [[ $words == *"ffmpeg could not make the movie: it is broken"* ]] || { echo "$words"; exit 1; }
    [[ ! -e out.gif ]] || { echo "there is a movie all the same"; exit 1; }
    ;;
esac
