#!/usr/bin/env bash
# The machine and its tool know no window and no sound, the machine no clock either.
# usage: links.sh NM LIBRARY PROGRAM; prints what should not be there, fails if there is anything.
set -euo pipefail
nm=$1 library=$2 program=$3
bad=0

symbols=$("$nm" -C "$library" 2>/dev/null)
[[ $symbols ]] || { echo "$library: holds no symbols"; exit 2; }
found=$(grep -oE '\b(Q[A-Z][A-Za-z]+::|qt_[a-z_]+|SDL_[A-Za-z]+|Mix_[A-Za-z]+).*' <<<"$symbols" | sort -u || true)
[[ ! $found ]] || { echo "$library: window or sound: ${found//$'\n'/, }"; bad=1; }
found=$(grep -E ' U ' <<<"$symbols" |
  grep -oE ' (std::chrono::.*|clock_gettime|gettimeofday|time|clock|rand|getenv|pthread_create|std::random_device::.*|std::ios_base::Init::.*)(@.*)?$' |
  sort -u || true)
[[ ! $found ]] || { echo "$library: clock, chance or console of the system:${found//$'\n'/,}"; bad=1; }

needed=$(ldd "$program")
[[ $needed ]] || { echo "$program: needs no library at all?"; exit 2; }
found=$(grep -oE 'lib(Qt|SDL)[^ ]*' <<<"$needed" | sort -u || true)
[[ ! $found ]] || { echo "$program: links ${found//$'\n'/, }"; bad=1; }
exit $bad
