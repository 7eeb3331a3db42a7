#!/usr/bin/env bash
# No function grows beyond what a reader keeps in his head. The sources are laid out by clang-format, so a body ends
# at the first closing brace that stands under its head.
# usage: functions.sh PROJECT-FOLDER; prints each function of src and tools that is too long, fails if there is one.
set -euo pipefail
cd "$1"
limit=40
find src tools -type f \( -name '*.h' -o -name '*.cpp' \) | sort | while IFS= read -r file; do
  awk -v limit=$limit -v file="$file" '
    function indent(line) { match(line, /^ */); return RLENGTH }
    /^ *(\/\/|#)/ { next }
    # A head may go over several lines, of which the first stands where the body ends; one of a class or a table has
    # no bracket in front of its brace, and a statement of a body stands deeper than the head that is open.
    !open {
      if (!folded && /^ *[A-Za-z_~\[]/) { head = $0; at = NR; column = indent($0) }
      folded = !/[;{}]$/ && !/^ *(public|private|protected|signals|public slots|case .*|default):$/ && !/^ *$/
      if (folded && NR != at) head = head " " $0
      if (!/\{$/) next
      if (NR != at) head = head " " $0
      if (head ~ /^ *(namespace|class|struct|enum|union|extern)\>/ && head !~ /\) (const )?(noexcept )?(override )?\{$/) next
      if (head !~ /\)/ || head ~ /=[^=()]*\{$/) next
      open = 1
      start = at
      next
    }
    indent($0) == column && /^ *\}/ {
      open = folded = 0
      if (NR - start + 1 > limit) {
        print file ":" start ": " NR - start + 1 " lines, more than " limit
        bad = 1
      }
    }
    END { exit bad }' "$file" || echo bad >&2
done 2>&1 | awk '
  $0 != "bad" { print }
  { bad = 1 }
  END { exit bad }'
[[ -n $(find src tools -name '*.cpp' -print -quit) ]] || { echo "there are no sources"; exit 1; }
