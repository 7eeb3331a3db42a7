#!/usr/bin/env bash
# What README says about collections as text, done to the letter: its two examples are written into files, and its
# commands of zktool are obeyed one after another, and its table names every command.
# usage: readme.sh ZKTOOL README, in a folder where it may write.
set -euo pipefail
tool=$(realpath "$1") readme=$(realpath "$2")
scratch=$(mktemp -d "$PWD/readme.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
mkdir -p my-caves build/release/{tools,src/app/Caves}
ln -s "$tool" build/release/tools/zktool

# block WORD: the block of code that has this entry in it.
block() {
  awk -v word="$1" '/^```/ { if (inside && held) printf "%s", text; inside = !inside; text = held = ""; next }
    inside { text = text $0 "\n"; if (index($0, word) == 1) held = 1 }' "$readme"
}
block "cave: pod-balvanem.txt" >my-caves/collection.txt
block "name: Pod balvanem" >my-caves/pod-balvanem.txt
[[ -s my-caves/collection.txt && -s my-caves/pod-balvanem.txt ]] || { echo "README has no example."; exit 1; }
"$tool" pack --strict my-caves strict.zk

cp -r my-caves before
mapfile -t commands < <(grep -E '^build/release/tools/zktool (pack|unpack) ' "$readme")
[[ ${#commands[@]} -ge 2 ]] || { echo "README has no commands that pack and unpack."; exit 1; }
for command in "${commands[@]}"; do
  echo "$command"
  read -ra words <<<"$command"
  "${words[@]}"
done
diff -r before my-caves || { echo "The author's files are not what they were."; exit 1; }
cmp strict.zk build/release/src/app/Caves/my-caves.zk
"$tool" pack my-caves-again again.zk
cmp strict.zk again.zk

# Its table of commands leaves none out.
for name in $("$tool" --help | sed -nE 's/^  ([a-z]+) .*/\1/p'); do
  grep -qE "^\|.*\`$name\`.*\|" "$readme" || { echo "README does not tell of zktool $name."; exit 1; }
done
