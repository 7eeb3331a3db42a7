#!/usr/bin/env bash
# A failure that nobody looks at does not compile, and there is no other way to fail.
# usage: failures.sh PROJECT-FOLDER CXX OPTION...; the options are those that all code of the project is compiled with.
set -uo pipefail
cd "$1" || exit 2
cxx=$2
shift 2
failures=0

# compile BODY OPTION...: the body of a function in which all is at hand that the machine may fail in.
compile() {
  printf '%s\n' '#include "core/Hra.h"' '#include "data/Files.h"' '#include "data/Result.h"' 'using namespace zorik;' \
    'struct Reason : Failure { int number = 0; };' \
    'Result<Done> Act();' 'Result<int> Ask();' 'Result<int, Reason> AskMore();' \
    "int Try(Hra& hra) { $1 }" |
    "$cxx" -std=c++20 -fsyntax-only -Isrc "${@:2}" -x c++ - 2>&1
}

fine() {
  local output
  if ! output=$(compile "$@"); then
    echo "this should compile: $1"
    echo "$output"
    failures=$((failures + 1))
  fi
}

# broken BODY OPTION...: it fails since a result is ignored, and for no other reason.
broken() {
  local output
  if output=$(compile "$@"); then
    echo "this should not compile: $1"
    failures=$((failures + 1))
  elif [[ $output != *unused-result* || $(grep -c 'error:' <<<"$output") -ne 1 ]]; then
    echo "this should fail by its ignored result alone: $1"
    echo "$output"
    failures=$((failures + 1))
  fi
}

fine 'return Act() ? 0 : hra.Ticks;' "$@"
fine 'const Result<int> asked = Ask(); return asked ? *asked : static_cast<int>(asked.Message().size()) + hra.Ticks;' "$@"
fine 'const auto asked = AskMore(); return asked ? hra.Ticks : asked.Why().number;' "$@"
fine 'Disregard(Act()); Disregard(AskMore()); return hra.Ticks;' "$@"
fine 'return PaintCave(hra, "", RunKind::Play) && WriteWhole("a", "b") ? 0 : 1;' "$@"
broken 'Act(); return hra.Ticks;' "$@"
broken 'Ask(); return hra.Ticks;' "$@"
broken 'AskMore(); return hra.Ticks;' "$@"
broken 'PaintCave(hra, "", RunKind::Play); return 0;' "$@"
broken 'Replay(hra, ""); return 0;' "$@"
broken 'WriteWhole("a", "b"); return hra.Ticks;' "$@"

if grep -rnE 'optional<(zorik::)?Failure>|pair<bool, ?(zorik::)?Failure>|(zorik::)?Failure& ' --include='*.h' --include='*.cpp' src tools fuzz bench; then
  echo "these fail in a way of their own; Result (src/data/Result.h) is the one for all"
  failures=$((failures + 1))
fi
exit $((failures > 0))
