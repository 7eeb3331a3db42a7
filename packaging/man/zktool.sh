#!/bin/sh
# Makes the manual page of zktool out of what zktool says of itself.
# usage: zktool.sh ZKTOOL OUT
set -eu
tool=$1 out=$2
here=$(dirname "$0")
# page AWK-VARIABLE...: a part of zktool's help, read from the standard input, as a part of the page.
page() { LC_ALL=C.UTF-8 awk -f "$here/zktool.awk" "$@"; }

mkdir -p "$(dirname "$out")"
trap 'rm -f "$out.new"' EXIT
{
  cat <<PAGE
.TH ZKTOOL 6 "" "Zorík $("$tool" --version | cut -d ' ' -f 2)" "Games Manual"
.SH NAME
zktool \- play, check and convert caves and records of Zorík without a window
.SH SYNOPSIS
.nf
PAGE
  "$tool" --help | sed -n '/^usage: /,/^$/p' | page -v part=synopsis
  cat <<PAGE
.fi
.SH DESCRIPTION
zktool is the game without a window, for authors of caves and for scripts.
PAGE
  echo .SH COMMANDS
  for name in $("$tool" --help | sed -nE 's/^  ([a-z]+) .*/\1/p'); do
    "$tool" "$name" --help | sed '$d' | page -v part=command -v name="$name"
  done
  echo .SH EXIT STATUS
  "$tool" --help | sed -n '/^Exit codes/,$p' | page -v part=exits
  cat <<PAGE
.SH SEE ALSO
.BR zorik (6),
.BR downloader (6)
PAGE
} >"$out.new"
mv "$out.new" "$out"
