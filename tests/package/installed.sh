#!/usr/bin/env bash
# The game as cmake installs it for a system, in a folder that stands for the root.
# usage: installed.sh layout|manual|desktop|types|software PROJECT-FOLDER BUILD-FOLDER, in a folder where it may write.
#   layout    every file is where systems look for its kind, and is one that the build has made
#   manual    each program has its page, which names all that the program's own help and the sources name
#   desktop   desktop-file-validate is content with the entries, and every icon is there in its size
#   types     the desktop's database takes the types of files, and each type has its icon
#   software  appstreamcli is content with the page of the software centres
# It ends with 77 where the program that it asks is not installed.
set -euo pipefail
mode=$1 project=$(realpath "$2") build=$(realpath "$3")
scratch=$(mktemp -d "$PWD/installed.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
usr="$scratch/usr" data="$scratch/usr/share/games/zorik"
failures=0

wrong() {
  printf '%s\n' "$*"
  failures=$((failures + 1))
}
needs() {
  command -v "$1" >/dev/null || { echo "$1 is not installed, so this is not checked."; exit 77; }
}
# same WHAT EXPECTED FOUND: two lists of lines.
same() {
  [[ -n $2 && $2 == "$3" ]] || wrong "$1, expected and found:" "$(diff -U 0 <(echo "$2") <(echo "$3") | sed -n '4,$p')"
}
below() { (cd "$1" && find . "${@:2}" -printf '%P\n' | sort); }

DESTDIR="$scratch" cmake --install "$build" --prefix /usr >/dev/null

layout() {
  local folder words
  # Nothing anywhere else, and nothing that not everybody may read.
  same "the folders" "$(printf '%s\n' games share share/{applications,games,icons,man,metainfo,mime})" \
    "$(below "$usr" -mindepth 1 -maxdepth 2 -type d -not -path './games/*')"
  same "the root" usr "$(below "$scratch" -mindepth 1 -maxdepth 1)"
  words=$(printf '%s\n' downloader zktool zorik; [[ ! -e $build/tools/zkpaint ]] || echo zkpaint)
  same "the programs" "$(sort <<<"$words")" "$(below "$usr/games" -type f -perm 755)"
  same "the data" "$(printf '%s\n' Caves Help Replays Skins)" "$(below "$data" -mindepth 1 -maxdepth 1 -type d)"
  [[ -z $(find "$usr/share" -type f -not -perm 644) ]] || wrong "These are for some only: $(find "$usr/share" -type f -not -perm 644)"

  # What a player has put into the build folder is his own.
  words=$(for folder in "$project"/caves/*/; do
    [[ -f $folder/collection.txt ]] && echo "$(basename "$folder")-cs"
    [[ -f $folder/english.txt ]] && echo "$(basename "$folder")-en"
  done | sort)
  same "the caves" "$words" "$(below "$data/Caves" -type f | sed 's/[.]zk$//')"
  same "the records" "$words" "$(below "$data/Replays" -mindepth 1 -maxdepth 1)"
  for folder in "$project"/caves/*/records; do
    same "the records of $folder" "$(below "$folder" -name '*.zkr')" \
      "$(below "$data/Replays/$(basename "$(dirname "$folder")")-cs" -type f)"
  done
  same "the skins" "$(printf '%s\n' Default English error.bmp)" "$(below "$data/Skins" -mindepth 1 -maxdepth 1)"
  same "the pages" "$(below "$project/help" -name '*.html')" "$(below "$data/Help" -name '*.html')"
  for folder in Default/Game Default/Menu Default/Sound English/Menu; do
    [[ -n $(below "$data/Skins/$folder" -maxdepth 1 -type f) ]] || wrong "There is nothing in $folder."
  done
}

# A manual page without the marks of its form.
plain() { sed -E 's/\\f[BIR]//g; s/\\-/-/g; s/\\e/\\/g; s/\\&//g' "$usr/share/man/man6/$1.6"; }

# names PAGE WORD...: the page has each of them as a word.
names() {
  local page word
  page=$(plain "$1")
  [[ $# -gt 1 ]] || wrong "There is nothing to look for in $1(6)."
  for word in "${@:2}"; do
    grep -qE -- "(^|[^A-Za-z_-])$word([^A-Za-z_-]|\$)" <<<"$page" || wrong "$1(6) does not tell of $word."
  done
}

manual() {
  local zktool="$usr/games/zktool" name
  local -a commands words
  same "the pages" "$(below "$usr/games" -type f)" "$(below "$usr/share/man/man6" -type f | sed 's/[.]6$//')"
  mapfile -t commands < <("$zktool" --help | sed -nE 's/^  ([a-z]+) .*/\1/p')
  for name in "${commands[@]}"; do
    [[ $(plain zktool) == *$'\n'".SS $name"$'\n'* ]] || wrong "zktool(6) has no chapter on $name."
    mapfile -t words < <("$zktool" "$name" --help | grep -oE -- '(^|[[ ])--?[a-z][a-z-]*' | tr -d '[ ' | sort -u)
    names zktool "$name" "${words[@]}"
  done
  mapfile -t words < <("$zktool" --help | sed -nE '/^Exit codes/,$s/^ +[0-9]+  ([a-z-]+) .*/\1/p')
  names zktool --help --version "${words[@]}"
  mapfile -t words < <("$usr/games/downloader" 2>&1 | sed -nE 's/^usage: downloader //p' | tr ' ' '\n')
  names downloader "${words[@]}"
  # The game has no usage; what it is told comes from the environment.
  mapfile -t words < <(grep -rhoE '\b(getenv|Variable|IsSet)\("[A-Z_]+"\)|= "ZORIK_[A-Z_]+"' "$project/src" |
    grep -oE '[A-Z_]{4,}' | sort -u)
  names zorik "${words[@]}"
  command -v groff >/dev/null || return 0
  for name in "$usr"/share/man/man6/*; do
    words=("$(groff -man -ww -K utf8 -T utf8 -z "$name" 2>&1)")
    [[ -z ${words[0]} ]] || wrong "${words[0]}"
  done
}

# icon_in_all_sizes NAME GROUP
icon_in_all_sizes() {
  local size file found
  [[ -s $usr/share/icons/hicolor/scalable/$2/$1.svg ]] || wrong "There is no drawing of $1."
  for size in 16 22 24 32 48 64 128 256; do
    file="$usr/share/icons/hicolor/${size}x$size/$2/$1.png"
    # Behind 16 bytes a picture of this kind has its width and height.
    found=$(od -An -t u1 -j 16 -N 8 "$file" | awk '{ print $3 * 256 + $4 "x" $7 * 256 + $8 }')
    [[ $found == "${size}x$size" ]] || wrong "$file is $found."
  done
}

desktop() {
  local entry words
  needs desktop-file-validate
  for entry in "$usr"/share/applications/*.desktop; do
    words=$(desktop-file-validate "$entry" 2>&1) || true
    [[ -z $words ]] || wrong "$words"
    icon_in_all_sizes "$(sed -n 's/^Icon=//p' "$entry")" apps
    [[ -x $usr/games/$(sed -nE 's/^Exec=([^ ]+).*/\1/p' "$entry") ]] || wrong "$entry starts nothing that is there."
  done
}

types() {
  local name
  local -a names
  needs update-mime-database
  update-mime-database "$usr/share/mime" >"$scratch/log" 2>&1 || wrong "$(<"$scratch/log")"
  same "the names" "$(printf '%s\n' 'cave:*.zk' 'data:*.zkd' 'record:*.zkr')" \
    "$(sed -n 's/^50:application\/x-morvek-//p' "$usr/share/mime/globs2" | sort)"
  mapfile -t names < <(sed -nE 's/.*<mime-type type="(.*)".*/\1/p' "$usr/share/mime/packages/zorik.xml")
  same "the entry's types" "$(printf '%s\n' "${names[@]}" | sort)" \
    "$(sed -n 's/^MimeType=//p' "$usr/share/applications/zorik-open.desktop" | tr ';' '\n' | grep . | sort)"
  for name in "${names[@]}"; do
    # A type without an icon of its own has another one's.
    name=$(grep "^$name:" "$usr/share/mime/icons" | cut -d : -f 2 || echo "$name")
    icon_in_all_sizes "${name//\//-}" mimetypes
  done
}

# findings FILE: the words by which the validator knows what it finds, but for mere hints.
findings() { appstreamcli validate --no-net --no-color "$1" | sed -nE 's/^[EW]: [^ ]+ ([a-z-]+).*/\1/p' | sort; }

software() {
  local page="$usr/share/metainfo/zorik.metainfo.xml" told="$scratch/told.metainfo.xml"
  local -a open=(cid-desktopapp-is-not-rdns)
  needs appstreamcli
  # Only who publishes the game has an address that its name could be made of, and chooses licences.
  grep -q '<metadata_license>' "$page" || open+=(metadata-license-missing)
  same "what is wrong" "$(printf '%s\n' "${open[@]}")" "$(findings "$page")"
  # Once that is told, nothing else is left.
  cmake -D METAINFO="$told" -D ZORIK_HOMEPAGE='https://localhost/?a&b' -D ZORIK_SCREENSHOTS=https://localhost/pictures \
    -D ZORIK_LICENSE=MIT -D ZORIK_METADATA_LICENSE=CC0-1.0 -P "$project/packaging/Metainfo.cmake"
  grep -qF '<image>https://localhost/pictures/game.png</image>' "$told" || wrong "No picture is told."
  grep -qF '<url type="homepage">https://localhost/?a&amp;b</url>' "$told" || wrong "No page is told."
  same "what is wrong with all told" cid-desktopapp-is-not-rdns "$(findings "$told")"
}

"$mode"
exit $((failures > 0))
