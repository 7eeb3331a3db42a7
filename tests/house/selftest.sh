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
  mkdir -p "$tree"/{src/{core,rules,data,flow,skin,screens,editors,platform,app},tools/zktool,fuzz}
  printf '#pragma once\n#include <array>\n#include "data/Bytes.h"\n' >"$tree/src/core/Hra.h"
  printf '#include "rules/Slime.h"\n#include "core/Hra.h"\n' >"$tree/src/rules/Slime.cpp"
  printf '#pragma once\n#include <string>\n' >"$tree/src/data/Bytes.h"
  printf '#include "core/Hra.h"\n#include "data/Bytes.h"\n' >"$tree/src/flow/Flow.cpp"
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

expect "a build in which a failure can be ignored" 1 "this should not compile: Act();" \
  "$here/failures.sh" "$here/../.." "$cxx" -Wall
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
fault src/flow/Flow.cpp '#include "screens/Start.h"' "flow may not include screens"
fault src/flow/Flow.cpp '#include "platform/Sound.h"' "flow may not include platform"
fault src/flow/Flow.cpp '#include <QString>' "flow may not know <QString>"
fault src/data/Bytes.h '#include "flow/Flow.h"' "data may not include flow"
fault src/skin/Painter.cpp '#include "flow/Flow.h"' "skin may not include flow"
fault src/skin/Painter.cpp '#include "screens/Start.h"' "skin may not include screens"
fault src/skin/Painter.cpp '#include <SDL_audio.h>' "only platform knows <SDL_audio.h>"
fault src/skin/Painter.cpp '#include "Painter.h"' 'the path of "Painter.h" does not start at src'
fault src/skin/Painter.cpp '#include "../core/Hra.h"' 'the path of "../core/Hra.h" does not start at src'
fault src/platform/Sound.cpp '#include "skin/Painter.h"' "platform may not include skin"
fault tools/zktool/Main.cpp '#include "platform/Sound.h"' "tools may not include platform"
fault fuzz/cave.cpp '#include "screens/Start.h"' "fuzz may not include screens"
fault src/attic/Old.h '#include <array>' "nothing is said about the folder attic"

# names WHAT STATUS TEXT: the table of names is found to be so.
names() { expect "$1" "$2" "$3" "$here/names.sh" "$tree"; }
table_of_names() {
  sound_tree
  mkdir -p "$tree/docs"
  printf '# Names\n\n| Name | Meaning | Where |\n|---|---|---|\n| `Hra` | the game | `core/Hra.h` |\n' >"$tree/docs/names.md"
  printf '| `Kocka` | the cat, `she` | `core/Hra.h`, `rules/Kocka.cpp` |\n' >>"$tree/docs/names.md"
  printf '#pragma once\nstruct Hra;\n\n// The game.\nstruct Hra {};\n\n// The cat.\nvoid Kocka(Hra& hra);\n' >"$tree/src/core/Hra.h"
  printf '// The cat.\n#include "core/Hra.h"\nvoid Kocka(Hra&) {}\n' >"$tree/src/rules/Kocka.cpp"
}
table_of_names
names "a table of names" 0 ""
sed -i 's/Kocka/Macka/' "$tree/src/core/Hra.h"
names "a name that has gone" 1 "Kocka: src/core/Hra.h knows no such name"
table_of_names
sed -i 's/Kocka/KockaEvent/' "$tree/src/core/Hra.h"
names "a part of a name" 1 "Kocka: src/core/Hra.h knows no such name"
table_of_names
rm "$tree/src/rules/Kocka.cpp"
names "a file that has gone" 1 "Kocka: there is no file src/rules/Kocka.cpp"
table_of_names
echo '| `Dopad` | impact | `core/Hra.h` |' >>"$tree/docs/names.md"
names "a name out of its place" 1 "Dopad does not stand in its place, behind kocka"
table_of_names
sed -i 1d "$tree/src/rules/Kocka.cpp"
names "a file without a head" 1 "src/rules/Kocka.cpp: does not say what it is"
table_of_names
sed -i 's|^// The game.$||' "$tree/src/core/Hra.h"
names "a class without a word" 1 "src/core/Hra.h: does not say what it is"
table_of_names
sed -i '/^| `/d' "$tree/docs/names.md"
names "an empty table" 1 "tells of no name"
expect "no table" 2 "there is no docs/names.md" "$here/names.sh" "$scratch"
sound_tree
mkdir -p "$tree"/{docs,tests/rules}
printf 'TEST(Slime, Waits) {\nTEST_F(Fly,\n       Turns) {\n' >"$tree/tests/rules/SlimeTest.cpp"
printf '| What | Where | Test |\n|---|---|---|\n| It waits. | `a.cpp` | `Slime.Waits`, `Fly.Turns` |\n' >"$tree/docs/not-bugs.md"
expect "rows with tests" 0 "" "$here/notbugs.sh" "$tree"
printf '| It sleeps. | `a.cpp` | `Slime.Sleeps` |\n' >>"$tree/docs/not-bugs.md"
expect "a row with a test that is gone" 1 "there is no test Slime.Sleeps" "$here/notbugs.sh" "$tree"
sed -i '$s/.*/| It sleeps. | `a.cpp` | |/' "$tree/docs/not-bugs.md"
expect "a row without a test" 1 "no test: | It sleeps." "$here/notbugs.sh" "$tree"

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

captions_tree() {
  sound_tree
  mkdir -p "$tree"/{skins/{Default,English}/Menu,docs,help/en}
  printf 'constexpr StartWords kYes{"caption.dialog.yes"};\nskin.Caption("caption.loading");\n' >"$tree/src/screens/Words.h"
  for skin in Default English; do
    printf 'start:\nclose.left=1\ncaption:\ndialog.yes=Ano\nloading=A=B\nhelp:\nfolder=en\n' >"$tree/skins/$skin/Menu/skindata.txt"
  done
  printf '### Keys\n| `other` |\n### caption:\n\n| Keys | What for |\n| `loading`, `dialog.yes` | not `this` |\n' >"$tree/docs/skins.md"
  for page in help/vzhledy.html help/en/vzhledy.html; do
    printf '<tr><td><code>other</code></td></tr>\n<h2 id="captions">W</h2>\n<tr><td><code>loading</code>, <code>dialog.yes</code></td><td><code>this</code></td></tr>\n' >"$tree/$page"
  done
}

# captions FILE WHAT COMMAND...: after this change to the sound tree the fault is found in the file.
captions() {
  captions_tree
  (cd "$tree" && "${@:3}")
  expect "captions after ${*:3}" 1 "$1: $2" "$here/captions.sh" "$tree"
}

captions_tree
expect "captions in their places" 0 "" "$here/captions.sh" "$tree"
for skin in Default English; do
  captions "skins/$skin/Menu/skindata.txt" 'loading is missing' sed -i '/^loading/d' "skins/$skin/Menu/skindata.txt"
  captions "skins/$skin/Menu/skindata.txt" 'loading is there twice' sed -i 's/^loading.*/&\n&/' "skins/$skin/Menu/skindata.txt"
  captions "skins/$skin/Menu/skindata.txt" 'nobody asks for old' sed -i 's/^loading.*/&\nold=x/' "skins/$skin/Menu/skindata.txt"
  captions "skins/$skin/Menu/skindata.txt" 'loading is missing' sed -i 's/^caption:/words:/' "skins/$skin/Menu/skindata.txt"
done
captions docs/skins.md 'dialog.yes is missing' sed -i 's/, `dialog.yes`//' docs/skins.md
captions docs/skins.md 'nobody asks for old' sed -i 's/`loading`/&, `old`/' docs/skins.md
for page in help/vzhledy.html help/en/vzhledy.html; do
  captions "$page" 'dialog.yes is missing' sed -i 's/, <code>dialog.yes<.code>//' "$page"
  captions "$page" 'nobody asks for old' sed -i 's/<code>loading/<code>old<\/code>&/' "$page"
done
captions src 'the key caption.dialog. is put together' sed -i 's/"caption.dialog.yes"/std::string("caption.dialog.") + name/' src/screens/Words.h
captions skins/English/Menu/skindata.txt 'dialog.no is missing' sed -i 's/"caption.dialog.yes"/& "caption.dialog.no"/' src/screens/Words.h
expect "no captions" 2 "nobody asks for a caption" "$here/captions.sh" "$scratch"

# czech FILE LINE: this one line more in the sound tree is found, with its place.
czech() {
  sound_tree
  printf '%s\n' "$2" >>"$tree/$1"
  expect "$1 with $2" 1 "$1:$(wc -l <"$tree/$1"): " "$here/czech.sh" "$tree"
}

sound_tree
printf 'constexpr auto kWords = "Složku nelze vytvořit.";\n' >"$tree/src/app/HeadlessWords.cpp"
printf '%s\n' '// "žluťoučký" kůň' 'Say("Zorík"); // kůň' 'Say("http://x"); // "kůň"' "Say('\"'); // ůň" 'Say("„?1?“ × 2 …");' >"$tree/src/screens/Other.cpp"
expect "Czech in its places" 0 "" "$here/czech.sh" "$tree"
czech src/screens/Other.cpp 'Say("Složka");'
czech src/screens/Other.cpp 'Say("http://x/ů");'
czech src/core/Hra.h 'Say("a \" b", "ň"); // c'
czech src/app/Main.cpp 'Say("Zorík už běží");'
expect "no sources" 2 "there is no src" "$here/czech.sh" "$scratch"

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

# A build of three outputs, two of which are made of the rule.
cat >ninja <<'BUILD'
#!/bin/sh
case $5 in
  src/app/zorik | spoilt.wav) echo objects/Slime.cpp.o ;;
  sound.wav) echo recipes/Slime.cpp.oak ;;
esac
BUILD
chmod +x ninja
expect "a sound of its recipe" 0 "" "$here/reasons.sh" ./ninja . Slime.cpp.o sound.wav
expect "a sound of a rule" 1 "Slime.cpp.o: a reason to make spoilt.wav anew" "$here/reasons.sh" ./ninja . Slime.cpp.o sound.wav spoilt.wav
expect "a sound of nothing" 2 "none.wav: is made of nothing" "$here/reasons.sh" ./ninja . Slime.cpp.o none.wav
expect "a rule of nothing" 2 "Fly.cpp.o: no reason for anything" "$here/reasons.sh" ./ninja . Fly.cpp.o sound.wav

exit $((failures > 0))
