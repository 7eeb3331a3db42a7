#!/usr/bin/env bash
# The shipped records as zktool sees them.
# usage: records.sh verify|progress|repack ZKTOOL CAVES, in a folder where it may write; CAVES holds the packed
# collections and their records.
#   verify    every record of every collection wins with the score that it stores
#   repack    every collection, unpacked and packed again, is the same to the byte, and nothing in it looks wrong
#   progress  a player who has all records of a collection has solved all its caves
set -euo pipefail
tool=$2
caves=$3

# A record is kept under the names of its collection and its cave, without what no file name may hold.
record_name() {
  tr -d '?*\\/,;:=\t"' <<<"$1 - $2.zkr"
}

# solved COLLECTION RECORDS: the progress of a player with these records. The names of the caves come from a
# player who has none.
solved() {
  local folder name number title
  folder=$(mktemp -d "$scratch/XXXXXX")
  mkdir "$folder/Zorík" "$folder/nobody"
  "$tool" unpack "$1" "$folder/texts"
  name=$(sed -n 's/^name: //p' "$folder/texts/collection.txt")
  "$tool" progress "$1" "$folder/nobody" | sed '$d' >"$folder/caves"
  while IFS=$'\t' read -r number _ _ title; do
    cp "$2/$(printf %02d "$number").zkr" "$folder/Zorík/$(record_name "$name" "$title")"
  done <"$folder/caves"
  "$tool" progress "$1" "$folder/Zorík"
}

collections=("$caves"/*.zk)
[[ -e ${collections[0]} ]] || { echo "There is no collection in $caves."; exit 1; }
scratch=$(mktemp -d "$PWD/records.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
for collection in "${collections[@]}"; do
  records="$caves/records/$(basename "$collection" .zk)"
  if [[ $1 == verify ]]; then
    "$tool" verify "$records"
    continue
  fi
  if [[ $1 == repack ]]; then
    "$tool" unpack "$collection" "$scratch/texts"
    "$tool" pack --strict "$scratch/texts" "$scratch/again.zk"
    cmp "$collection" "$scratch/again.zk"
    rm -r "$scratch/texts"
    continue
  fi
  progress=$(solved "$collection" "$records")
  echo "$progress"
  [[ $progress == *" rest=0" ]] || { echo "There are caves left to solve."; exit 1; }
  # An open bonus cave leaves no rest either, so the state of each cave counts.
  awk -F '\t' 'NF == 4 && $2 != 2 { exit 1 }' <<<"$progress" || { echo "A cave is not solved."; exit 1; }
done
