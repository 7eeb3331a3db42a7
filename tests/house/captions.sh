#!/usr/bin/env bash
# Every caption that the windows ask for stands in the tables of both skins and on all pages for skin makers, and none
# is there that nobody asks for.
# usage: captions.sh PROJECT-FOLDER; prints each key that is missing or dead somewhere, fails if there is one.
set -euo pipefail
cd "$1"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
bad=0

asked() {
  grep -rhoE --include='*.cpp' --include='*.h' '"caption\.[^"]*"' src | tr -d '"' | sed 's/^caption\.//' | sort -u
}

# The keys that a table or a page has, as often as it has them.
keys() {
  case $1 in
    *.txt) awk '/:$/ { inside = $0 == "caption:"; next } inside { sub(/=.*/, ""); print }' "$1" ;;
    *.md) awk '/^#/ { inside = $0 == "### caption:" } inside && /^\| `/' "$1" | cut -d '|' -f 2 |
      grep -oE '`[^`]+`' | tr -d '`' ;;
    *.html) awk '/<h2 id="(popisky|captions)">/ { inside = 1 } inside && /^<tr><td>/' "$1" | sed 's|</td>.*||' |
      grep -oE '<code>[^<]+' | sed 's/<code>//' ;;
  esac
}

asked >"$scratch/asked" || { echo "nobody asks for a caption in $1/src"; exit 2; }
while IFS= read -r key; do
  [[ $key == *. || ! $key ]] || continue
  echo "src: the key caption.$key is put together, so nobody can find it"
  bad=1
done <"$scratch/asked"

for file in skins/{Default,English}/Menu/skindata.txt docs/skins.md help/vzhledy.html help/en/vzhledy.html; do
  { keys "$file" || true; } | sort >"$scratch/there"
  uniq -d "$scratch/there" | sed "s|.*|$file: & is there twice|" >"$scratch/faults"
  sort -u -o "$scratch/there" "$scratch/there"
  comm -23 "$scratch/asked" "$scratch/there" | sed "s|.*|$file: & is missing|" >>"$scratch/faults"
  comm -13 "$scratch/asked" "$scratch/there" | sed "s|.*|$file: nobody asks for &|" >>"$scratch/faults"
  [[ -s $scratch/faults ]] || continue
  cat "$scratch/faults"
  bad=1
done
exit $bad
