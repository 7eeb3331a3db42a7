#!/usr/bin/env bash
# The checks of the house can fail: each meets a small tree that is sound, then one with a single fault.
# usage: selftest.sh CXX NM, in a folder where it may write.
set -euo pipefail
cxx=$1 nm=$2
here=$(dirname "$(realpath "$0")")
scratch=$(mktemp -d "$PWD/house.XXXXXX")
trap 'rm -rf "$scratch"' EXIT
tree="$scratch/tree"
failures=0

sound_tree() {
  rm -rf "$tree"
  mkdir -p "$tree"/{src/{core,rules,data,skin,screens,editors,platform,app},tools/zktool,fuzz}
  printf '#pragma once\n#include <array>\n#include "data/Bytes.h"\n' >"$tree/src/core/Hra.h"
  printf '#include "rules/Slime.h"\n#include "core/Hra.h"\n' >"$tree/src/rules/Slime.cpp"
  printf '#pragma once\n#include <string>\n' >"$tree/src/data/Bytes.h"
  printf '#include <QImage>\n#include "core/Hra.h"\n#include "platform/Sound.h"\n' >"$tree/src/skin/Painter.cpp"
  printf '#include <SDL.h>\n#include "platform/Sound.h"\n' >"$tree/src/platform/Sound.cpp"
  printf '#include "screens/Start.h"\n#include "editors/Cave.h"\n#include "Main.moc"\n' >"$tree/src/app/Main.cpp"
  printf '#include <iostream>\n#include "core/Hra.h"\n#include "trace/Trace.h"\n' >"$tree/tools/zktool/Main.cpp"
  printf '#include "data/Bytes.h"\n' >"$tree/fuzz/cave.cpp"
}

# expect WHAT STATUS TEXT COMMAND...: the command ends with this status and its output holds the text.
expect() {
  local status=0 output
  output=$("${@:4}" 2>&1) || status=$?
  if [[ $status -ne $2 || $output != *"$3"* ]]; then
    echo "$1: status $status, expected $2; output, expected to hold \"$3\":"
    echo "$output"
    failures=$((failures + 1))
  fi
}

# fault FILE LINE MESSAGE: this one line more in the sound tree is found, with its place.
fault() {
  sound_tree
  mkdir -p "$tree/${1%/*}"
  printf '%s\n' "$2" >>"$tree/$1"
  expect "$1 with $2" 1 "$1:$(wc -l <"$tree/$1"): $3" "$here/includes.sh" "$tree"
}

sound_tree
expect "a sound tree" 0 "" "$here/includes.sh" "$tree"
fault src/core/Hra.h '#include "rules/Slime.h"' "core may not include rules"
fault src/core/Hra.h '#include <chrono>' "core may not know <chrono>"
fault src/core/Hra.h '#  include <QString>  // letters' "core may not know <QString>"
fault src/rules/Slime.cpp '#include "skin/Painter.h"' "rules may not include skin"
fault src/rules/Slime.cpp '#include "data/Bytes.h"' "rules may not include data"
fault src/rules/Slime.cpp '#include <iostream>' "rules may not know <iostream>"
fault src/data/Bytes.h '#include "core/Hra.h"' "data may not include core"
fault src/data/Bytes.h '#include <thread>' "data may not know <thread>"
fault src/skin/Painter.cpp '#include "screens/Start.h"' "skin may not include screens"
fault src/skin/Painter.cpp '#include <SDL_audio.h>' "only platform knows <SDL_audio.h>"
fault src/skin/Painter.cpp '#include "Painter.h"' 'the path of "Painter.h" does not start at src'
fault src/skin/Painter.cpp '#include "../core/Hra.h"' 'the path of "../core/Hra.h" does not start at src'
fault src/platform/Sound.cpp '#include "skin/Painter.h"' "platform may not include skin"
fault tools/zktool/Main.cpp '#include "platform/Sound.h"' "tools may not include platform"
fault fuzz/cave.cpp '#include "screens/Start.h"' "fuzz may not include screens"
fault src/attic/Old.h '#include <array>' "nothing is said about the folder attic"

sound_tree
expect "short files" 0 "" "$here/lengths.sh" "$tree"
seq 500 | sed 's|^|// |' >"$tree/src/rules/Long.cpp"
expect "500 lines" 0 "" "$here/lengths.sh" "$tree"
echo "// one more" >>"$tree/src/rules/Long.cpp"
expect "501 lines" 1 "src/rules/Long.cpp: 501 lines" "$here/lengths.sh" "$tree"

# long WHERE WHAT TEXT: a function of 40 lines passes, one of 41 is found. WHAT is its head, of one line or more.
long() {
  local count
  for count in 40 41; do
    sound_tree
    { printf '%b\n' "$2"; seq $((count - 1 - $(printf '%b\n' "$2" | wc -l))) | sed 's|.*|    if (a) {\n    }|' |
      head -n $((count - 1 - $(printf '%b\n' "$2" | wc -l))); printf '%s\n' "$3"; } >"$tree/src/screens/Long.cpp"
    if [[ $count -eq 40 ]]; then
      expect "40 lines: $1" 0 "" "$here/functions.sh" "$tree"
    else
      expect "41 lines: $1" 1 "src/screens/Long.cpp:1: 41 lines, more than 40" "$here/functions.sh" "$tree"
    fi
  done
}
long "a function" 'void Long(int a) {' '}'
long "a method" 'bool Cave::Long(int a) const override {' '}'
long "a head of two lines" 'void Long(int a,\n          int b) {' '}'
long "a list of members" 'Long::Long(int a)\n    : a_(a) {' '}'

sound_tree
{ echo 'constexpr std::array kRows{{'; seq 60 | sed 's|.*|    {1, 2},|'; echo '}};'; } >"$tree/src/screens/Long.cpp"
expect "a long table" 0 "" "$here/functions.sh" "$tree"
{ echo 'class Long {'; seq 60 | sed 's|.*|  void Do(int a);|'; echo '};'; } >"$tree/src/screens/Long.cpp"
expect "a long class" 0 "" "$here/functions.sh" "$tree"
{ echo 'class Long {'; echo '  void Do(int a) {'; seq 39 | sed 's|.*|    a;|'; echo '  }'; echo '};'; } >"$tree/src/screens/Long.cpp"
expect "a long function in a class" 1 "src/screens/Long.cpp:2: 41 lines" "$here/functions.sh" "$tree"

sound_tree
mkdir -p "$tree/tests/rules"
touch "$tree/tests/rules/SlimeTest.cpp"
printf '[{\n  "file": "%s"\n}]\n' "$tree/tests/rules/SlimeTest.cpp" >"$tree/commands.json"
expect "a compiled test" 0 "" "$here/compiled.sh" "$tree" "$tree/commands.json"
touch "$tree/tests/rules/FlyTest.cpp"
expect "a forgotten test" 1 "tests/rules/FlyTest.cpp: no program is built of it" "$here/compiled.sh" "$tree" "$tree/commands.json"

# markup FILE LINE USE: this one line more in the sound tree is found, with its place and what to use.
markup() {
  sound_tree
  mkdir -p "$tree/${1%/*}"
  printf '%s\n' "$2" >>"$tree/$1"
  expect "$1 with $2" 1 "$1:$(wc -l <"$tree/$1"): could take a text for markup or a sign of the toolkit; use $3" \
    "$here/markup.sh" "$tree"
}

sound_tree
printf 'widget.setToolTip(text);\nQToolTip::showText(place, text);\n' >"$tree/src/screens/Hint.cpp"
printf 'auto* label = new QLabel(parent);\nlabel->setTextFormat(Qt::PlainText);\n' >"$tree/src/screens/PlainText.cpp"
printf 'QToolTip::hideText();\nvoid Show(QLabel* label);\nQPlainTextEdit* box;\n' >"$tree/src/screens/Other.cpp"
expect "markup in its places" 0 "" "$here/markup.sh" "$tree"
markup src/screens/Start.cpp '  button->setToolTip(name);' SetHint
markup src/editors/Cave.cpp '  QToolTip::showText(place, name);' ShowHint
markup src/app/Main.cpp 'QMessageBox::warning(nullptr, title, name);' 'Tell and Ask'
markup src/editors/Cave.h '  QLabel name_;' NewLabel
markup src/editors/Cave.cpp '  name_ = new QLabel(this);' NewLabel
markup src/screens/Hint.cpp '  name_ = new QLabel(this);' NewLabel
markup src/editors/Cave.cpp '  label->setTextFormat(Qt::RichText);' NewLabel
markup src/editors/Cave.cpp '  box->setHtml(name);' 'plain text'
markup src/editors/Cave.cpp '  QTextEdit* box_;' QPlainTextEdit
markup src/editors/Cave.cpp '  text = name.toHtmlEscaped();' 'SetHint or NewLabel'
markup src/editors/Cave.cpp '  setWindowTitle(name);' SetTitle
markup src/screens/Start.cpp '  path = QFileDialog::getOpenFileName(this);' AskForFile
expect "no sources" 2 "there is no src" "$here/markup.sh" "$scratch"

compile() { "$cxx" -x c++ - "$@"; }
cd "$scratch"
compile -shared -fPIC -o libSDL2-sample.so <<<'int sample() { return 0; }'
compile -o plain <<<'int main() { return 0; }'
compile -c -o sound.o <<<'int quiet() { return 0; }'
compile -c -o window.o <<<'struct QString { QString(); }; void show() { QString text; }'
compile -c -o noise.o <<<'extern "C" int SDL_Init(unsigned); int noise() { return SDL_Init(0); }'
compile -c -o clock.o <<<'extern "C" long time(long*); long now() { return time(nullptr); }'
printf 'int sample();\nint main() { return sample(); }\n' >loud.cpp
"$cxx" -o loud loud.cpp -L. -lSDL2-sample -Wl,-rpath,"$scratch"
expect "a quiet library" 0 "" "$here/links.sh" "$nm" sound.o plain
expect "a library that knows Qt" 1 "window or sound: QString::QString" "$here/links.sh" "$nm" window.o plain
expect "a library that knows SDL" 1 "window or sound: SDL_Init" "$here/links.sh" "$nm" noise.o plain
expect "a library that knows the time" 1 "clock, chance or console of the system: time" "$here/links.sh" "$nm" clock.o plain
expect "a program that links SDL" 1 "links libSDL2-sample.so" "$here/links.sh" "$nm" sound.o loud

exit $((failures > 0))
