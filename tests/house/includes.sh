#!/usr/bin/env bash
# Which folder of the sources may include which.
# usage: includes.sh PROJECT-FOLDER; prints a line for every include that breaks a rule, fails if there is one.
set -euo pipefail
cd "$1"
[[ -d src ]] || { echo "there is no src in $1"; exit 2; }

# The first word is the folder, the rest are the folders that its files may include.
arrows="
core      core data
rules     rules core
data      data
flow      flow core data
solve     solve core data
run       run solve core data
view      view core data
skin      skin view core data platform
screens   screens run solve skin view platform flow rules core data
editors   editors screens run solve skin view platform flow rules core data
platform  platform core data
app       app editors screens run solve skin view platform flow rules core data
web       run solve view core data
tools     run solve core rules data view skin
fuzz      core rules data skin
bench     run solve core rules data view skin editors screens
"

# A record must play the same everywhere and for ever: no window, no sound, no clock, no threads in here; and
# the way to it can be walked without them.
machine='core|rules|data|solve|run|view|flow'
alien='Q[A-Za-z]+|Qt[A-Za-z]*/.*|SDL.*|chrono|ctime|time\.h|sys/time\.h|iostream|thread|mutex|future|condition_variable'

folders=()
for folder in src web tools fuzz bench; do
  [[ -d $folder ]] && folders+=("$folder")
done
find "${folders[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) -exec grep -nHE '^\s*#\s*include' {} + | sort |
  awk -v arrows="$arrows" -v machine="^($machine)$" -v alien="^<($alien)>" '
    BEGIN {
      n = split(arrows, lines, "\n")
      for (i = 1; i <= n; i++) {
        m = split(lines[i], words, " ")
        if (m) known[words[1]] = 1
        for (j = 2; j <= m; j++) may[words[1], words[j]] = 1
      }
    }
    function broken(why) { print place ": " why; bad = 1 }
    {
      split($0, parts, ":")
      place = parts[1] ":" parts[2]
      split(parts[1], path, "/")
      inside = path[1] == "src"
      folder = inside ? path[2] : path[1]
      name = $0
      sub(/^[^:]*:[^:]*:[ \t]*#[ \t]*include[ \t]*/, "", name)
      sub(/[ \t]*(\/\/.*)?$/, "", name)

      if (!(folder in known)) { broken("nothing is said about the folder " folder); next }
      if (name ~ /^</) {
        if (inside && folder ~ machine && name ~ alien) broken(folder " may not know " name)
        else if (name ~ /^<SDL/ && folder != "platform") broken("only platform knows " name)
        next
      }
      gsub(/"/, "", name)
      if (name ~ /\.moc$/) next
      split(name, target, "/")
      if (inside && (name !~ /\// || !(target[1] in known)))
        broken("the path of \"" name "\" does not start at src")
      else if (target[1] in known && target[1] != folder && !((folder, target[1]) in may))
        broken(folder " may not include " target[1])
    }
    END {
      if (!NR) print "there are no includes"
      exit bad || !NR
    }'
