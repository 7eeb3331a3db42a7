#!/usr/bin/env bash
# A test that no program holds is never run, and nobody would notice.
# usage: compiled.sh PROJECT-FOLDER COMPILE-COMMANDS; prints each file of tests that is not compiled, fails if there is one.
set -euo pipefail
cd "$1"
commands=$2
find tests -name '*Test.cpp' | sort |
  awk -v commands="$commands" '
    BEGIN {
      while ((getline line < commands) > 0)
        if (match(line, /"file": ".*\/tests\/[^"]*"/)) {
          sub(/.*\/tests\//, "tests/", line)
          sub(/".*/, "", line)
          compiled[line] = 1
        }
    }
    { seen = 1 }
    !($0 in compiled) { print $0 ": no program is built of it"; bad = 1 }
    END { if (!seen) print "there are no tests"; exit bad || !seen }'
