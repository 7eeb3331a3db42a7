#!/usr/bin/env bash
# No text of a file, a folder or a player is ever taken for markup: what can read it is used in one place each.
# usage: markup.sh PROJECT-FOLDER; prints each line that has it elsewhere, fails if there is one.
set -euo pipefail
cd "$1"
[[ -d src ]] || { echo "there is no src in $1"; exit 2; }

# What, the files that may have it, and what is to be used.
rules='
\bsetToolTip\b|src/screens/Hint.cpp|SetHint
\bQToolTip::showText\b|src/screens/Hint.cpp|ShowHint
\bQMessageBox\b|src/screens/Hint.cpp|Tell and Ask
\bset(StatusTip|WhatsThis)\b|none|SetHint
\bnew +QLabel\b|src/screens/PlainText.cpp|NewLabel
^\s*(static\s+)?QLabel\s+\w|none|NewLabel
\bQTextEdit\b|src/screens/FrmDialog2.cpp src/screens/FrmDialog2.h|QPlainTextEdit
\bmake_unique<QLabel>|none|NewLabel
\bsetTextFormat\b|src/screens/PlainText.cpp src/screens/Hint.cpp src/screens/FrmAbout.cpp src/screens/Toast.cpp src/screens/BoxNote.cpp|NewLabel
\b(Qt::)?(RichText|AutoText|MarkdownText)\b|src/screens/FrmAbout.cpp|NewLabel
\b(setHtml|insertHtml|appendHtml|fromHtml|setMarkdown|setAcceptRichText)\b|none|plain text
\btoHtmlEscaped\b|src/screens/Hint.cpp src/screens/FrmAbout.cpp|SetHint or NewLabel
\bQ(ErrorMessage|InputDialog|ProgressDialog|StaticText|SplashScreen|WhatsThis|TextBrowser|SystemTrayIcon|Wizard)\b|none|a window of the game
\bQFileDialog::(get|save)\w+\(|none|AskForFile
\bsetWindowTitle\b|src/screens/PlainText.cpp|SetTitle
'
bad=0
while IFS='|' read -r rule; do
  [[ $rule ]] || continue
  use=${rule##*|}
  rest=${rule%|*}
  allowed=${rest##*|}
  what=${rest%|*}
  while IFS= read -r found; do
    file=${found%%:*}
    [[ " $allowed " == *" $file "* ]] && continue
    line=${found#*:}
    echo "$file:${line%%:*}: could take a text for markup or a sign of the toolkit; use $use"
    bad=1
  done < <(grep -rnP --include='*.cpp' --include='*.h' -- "$what" src || true)
done <<<"$rules"
exit $bad
