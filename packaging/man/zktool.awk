# A part of zktool's help as a part of its manual page: paragraphs, lists of terms, and lines that stay as they are.
# part: synopsis, command (with its name) or exits.

# Text that roff takes for nothing else.
function plain(text) {
  gsub(/\\/, "\\e", text)
  gsub(/-/, "\\-", text)
  sub(/^[.']/, "\\\\\\&&", text)
  return text
}

# Options in bold, what they want in italics.
function term(text,    count, words, i, made) {
  count = split(text, words, " ")
  for (i = 1; i <= count; ++i) {
    made = made (i > 1 ? " " : "") (words[i] ~ /^[A-Z][A-Z,x]*$/ ? "\\fI" : "\\fB") plain(words[i]) "\\fR"
  }
  return made
}

# Ends lines that stay as they are, and begins some.
function verbatim(wanted) {
  if (wanted == kept) return
  print wanted ? ".PP\n.nf" : ".fi"
  kept = wanted
  if (!wanted) fresh = 1
}

# A line of a list: the term, a gap, and what is said of it, which goes on in the same column.
function listed(line,    gap) {
  match(line, /^ *[^ ]+( [^ ]+)*   */)
  gap = RLENGTH
  verbatim(0)
  print ".TP\n" term(substr(line, 1, gap)) "\n" plain(substr(line, gap + 1))
  column = gap
  fresh = 0
}

function indent(line) {
  match(line, /^ */)
  return RLENGTH
}

function body(line) {
  if (line == "") {
    if (!kept) fresh = 1
    else print ""
    blank = 1
    return
  }
  if (column && !kept && !blank && indent(line) == column) {
    print plain(substr(line, column + 1))
  } else if (line ~ /^( ? ? ? ?[^ ]+|  [^ ]+ [A-Z][^ ]*|  --[^ ]+ [^ ]+|  [0-9]+ [^ ]+)   *[^ ]/) {
    listed(line)
  } else if (column && blank && indent(line) == column) {
    verbatim(0)
    print ".IP\n" plain(substr(line, column + 1))
  } else if (indent(line)) {
    verbatim(1)
    print plain(line)
  } else {
    verbatim(0)
    if (fresh || column) print ".PP"
    print plain(line)
    column = fresh = 0
  }
  blank = 0
}

part == "synopsis" {
  sub(/^usage: /, "")
  sub(/^ +/, "")
  if ($0 != "") print term($0)
  next
}
part == "command" && NR == 1 {
  print ".SS " name
  sub(/^usage: /, "")
  print term($0)
  fresh = 1
  next
}
part == "exits" && $1 ~ /^[0-9]+$/ {
  code = $1 " " $2
  sub(/^ *[0-9]+ +[^ ]+ +/, "")
  $0 = "  " code "  " $0
}
{ body($0) }
END { if (kept) print ".fi" }
