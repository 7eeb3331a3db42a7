#!/usr/bin/env bash
# The table of the given names tells what is there: each name stands in the files that the table names, the table is
# sorted, and a file that has such a name says what it is.
# usage: names.sh PROJECT-FOLDER; prints each row or file that is wrong, fails if there is one.
set -euo pipefail
export LC_ALL=C
cd "$1"
table=docs/names.md
[[ -f $table && -d src ]] || { echo "there is no $table or no src in $1"; exit 2; }

# name|file for each file of each row; empty lines part the tables.
rows() {
  awk '
    !/^\| `/ { print ""; next }
    {
      split($0, cells, " [|] ?")
      name = cells[1]
      gsub(/[|` ]/, "", name)
      count = split(cells[3], files, /, */)
      for (i = 1; i <= count; i++) { gsub(/[` |]/, "", files[i]); print name "|" files[i] }
      if (!count || files[1] == "") print name "|"
    }' "$table"
}

# What a file is stands in its first line, or right above the class or function of its name.
says_what_it_is() {
  awk -v name="$2" '
    NR == 1 && /^\/\/ / { found = 1; exit }
    $0 ~ "^(class|struct|enum class) " name "( |$)|^[a-zA-Z].*[ &*]" name "\\(" && before ~ /^\/\/ / { found = 1; exit }
    { before = $0 }
    END { exit !found }' "$1"
}

bad=0
seen=0
before=
declare -A told
while IFS='|' read -r name file; do
  [[ $name ]] || { before=; continue; }
  seen=1
  told[$name]=1
  if [[ ! -f src/$file ]]; then
    echo "$table: $name: there is no file src/$file"
    bad=1
  elif [[ $(basename "${file%.*}") != "$name" ]] && ! grep -qE "(^|[^A-Za-z0-9_])$name([^A-Za-z0-9]|$)" "src/$file"; then
    echo "$table: $name: src/$file knows no such name"
    bad=1
  fi
  if [[ $before > ${name,,} ]]; then
    echo "$table: $name does not stand in its place, behind $before"
    bad=1
  fi
  before=${name,,}
done < <(rows)
[[ $seen -eq 1 ]] || { echo "$table tells of no name"; exit 1; }

while IFS= read -r file; do
  name=$(basename "${file%.*}")
  [[ ${told[$name]-} ]] || continue
  [[ $file == *.cpp && -f ${file%.cpp}.h ]] && continue
  says_what_it_is "$file" "$name" || { echo "$file: does not say what it is"; bad=1; }
done < <(find src -name '*.h' -o -name '*.cpp' | sort)
exit $bad
