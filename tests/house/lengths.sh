#!/usr/bin/env bash
# No source file grows beyond what a reader takes in at one sitting.
# usage: lengths.sh PROJECT-FOLDER; prints each file of src and tools that is too long, fails if there is one.
set -euo pipefail
cd "$1"
limit=500
find src tools -type f \( -name '*.h' -o -name '*.cpp' \) -exec wc -l {} \; | sort -k 2 |
  awk -v limit=$limit '
    { seen = 1 }
    $1 > limit { print $2 ": " $1 " lines, more than " limit; bad = 1 }
    END { if (!seen) print "there are no sources"; exit bad || !seen }'
