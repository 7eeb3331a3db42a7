#!/usr/bin/env bash
# The Debian package in a bare Debian 12, where nothing is installed but the base system: installed, played by an
# ordinary user, removed and purged.
# usage: bare-root.sh PACKAGE.deb FOLDER, as root
# The bare system is made once, in FOLDER/bare, by mmdebstrap or debootstrap, and copied for every run; ZORIK_BARE_ROOT
# names another one. KEEP=1 keeps the copy.
set -euo pipefail
[[ $# -eq 2 ]] || { sed -n '2,6s/^# //p' "$0" >&2; exit 2; }
[[ $(id -u) -eq 0 ]] || { echo "Only root may make a bare system and work in it."; exit 1; }
package=$(realpath "$1")
mkdir -p "$2"
folder=$(realpath "$2")
bare=${ZORIK_BARE_ROOT:-$folder/bare}

make_bare() {
  rm -rf --one-file-system "$bare"
  if command -v mmdebstrap >/dev/null; then
    mmdebstrap --variant=minbase bookworm "$bare"
  else
    debootstrap --variant=minbase bookworm "$bare"
  fi >"$folder/bare.log" 2>&1 || { tail -n 20 "$folder/bare.log"; echo "There is no bare system."; exit 1; }
  # Where this machine gets its packages from, and by which way.
  if grep -q '^VERSION_CODENAME=bookworm$' /etc/os-release; then
    rm -f "$bare/etc/apt/sources.list"
    cp -r /etc/apt/sources.list.d "$bare/etc/apt"
    [[ ! -e /etc/apt/sources.list ]] || cp /etc/apt/sources.list "$bare/etc/apt"
  fi
  apt-config dump | grep -E '^Acquire::[a-z]+::Proxy' >"$bare/etc/apt/apt.conf.d/95proxy" || true
  touch "$bare/.complete"
}
[[ -e $bare/.complete ]] || make_bare

root=$(mktemp -d "$folder/root.XXXXXX")
player_pid='' display_pid=''
leave() {
  local mounted
  [[ -z $player_pid ]] || kill "$player_pid" 2>/dev/null || true
  [[ -z $display_pid ]] || kill "$display_pid" 2>/dev/null || true
  for mounted in usr tmp/.X11-unix dev/pts proc; do
    ! mountpoint -q "$root/$mounted" || umount --lazy "$root/$mounted"
  done
  if [[ ${KEEP:-} ]]; then echo "kept: $root"; else rm -rf --one-file-system "$root"; fi
}
trap leave EXIT
cp -a "$bare/." "$root/"
cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
mkdir -p "$root"/{proc,dev/pts,tmp/.X11-unix}
mount -t proc proc "$root/proc"
mount -t devpts devpts "$root/dev/pts"
cp "$package" "$root/root/zorik.deb"

fail() { printf '%s\n' "$*"; exit 1; }
# inside USER COMMAND...: in the bare system, in an environment as new as it is.
inside() {
  local user=$1 home=/home/$1 path=/usr/local/bin:/usr/bin:/bin:/usr/local/games:/usr/games
  [[ $user != root ]] || { home=/root path=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin; }
  chroot --userspec="$user:$user" "$root" /usr/bin/env -i HOME="$home" USER="$user" PATH="$path" LANG=en_US.UTF-8 LC_ALL= \
    DEBIAN_FRONTEND=noninteractive ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
    ${DISPLAY_INSIDE:+DISPLAY="$DISPLAY_INSIDE" SDL_AUDIODRIVER=dummy} sh -c 'cd; exec "$@"' inside "${@:2}"
}
apt() { inside root apt-get -q -y --no-install-recommends "$@" >>"$folder/apt.log" 2>&1 || { tail -n 30 "$folder/apt.log"; fail "apt-get $*"; }; }
field() { dpkg-deb --field "$package" "$1"; }
step() { printf '%s\n' "$*"; }
# What is installed, with its content; and what the player has.
system() {
  (cd "$root" && find etc usr opt srv var/lib -xdev \( -path var/lib/apt -o -path var/lib/dpkg \) -prune -o \
    \( -type f -exec md5sum {} + \) -o -printf '%y %p %l\n' | sort -k 2)
}
home() { (cd "$root/home/player" && find . -type f -exec md5sum {} + | sort -k 2); }

: >"$folder/apt.log"
apt update
inside root useradd --create-home --user-group player

step "installed with nothing but what it depends on"
apt satisfy "$(field Depends)"
inside root dpkg -i /root/zorik.deb >>"$folder/apt.log" 2>&1 || fail "dpkg -i"
! inside player test -w /usr/games -o -w /usr/share/games/zorik || fail "A player may write into the installation."
mount --bind "$root/usr" "$root/usr"
mount -o remount,ro,bind "$root/usr"
inside player zorik >"$folder/words" || fail "The record of the first cave: $(<"$folder/words")"
grep -q 'the record led Zorík to the finish, score [0-9]' "$folder/words" || fail "It says: $(<"$folder/words")"
tail -n 2 "$folder/words"
[[ -s $root/home/player/.local/share/zorik/last-moment.png ]] || fail "There is no picture."
caves=$(find "$root/usr/share/games/zorik/Caves" -name '*.zk' | wc -l)
[[ $caves -gt 0 && $(find "$root/home/player/.local/share/zorik/Caves" -name '*.zk' | wc -l) -eq $caves ]] ||
  fail "The player has not all caves."
inside player zktool verify /usr/share/games/zorik/Replays >"$folder/words" || fail "$(<"$folder/words")"
tail -n 1 "$folder/words"
umount "$root/usr"
inside root dpkg --purge zorik >>"$folder/apt.log" 2>&1

step "installed again, with what it recommends"
apt satisfy "$(field Recommends)"
apt install man-db
system >"$folder/before"
apt install /root/zorik.deb
for page in zorik zktool downloader; do
  inside player env LANG=C.UTF-8 man --warnings -P cat "$page" >"$folder/words" 2>"$folder/warnings" || fail "man $page"
  [[ ! -s $folder/warnings ]] || fail "man $page: $(<"$folder/warnings")"
  [[ $(wc -l <"$folder/words") -gt 20 ]] || fail "man $page shows: $(<"$folder/words")"
  step "man $page: $(wc -l <"$folder/words") lines"
done
grep -q '^50:application/x-morvek-cave:\*[.]zk$' "$root/usr/share/mime/globs2" || fail "The types of files are not known."
grep -q '^application/x-morvek-cave=zorik-open.desktop;' "$root/usr/share/applications/mimeinfo.cache" ||
  fail "Nothing opens collections."

step "a record in a window"
mkdir -p "$root/home/player/.config/Ortvan" "$root/home/player/.local/share/zorik/Players/Hana"
printf '[General]\nSkin=English\n' >"$root/home/player/.config/Ortvan/Zorik2.ini"
inside root chown -R player:player /home/player
rm -f "$folder/display"  # of an earlier run
Xvfb -displayfd 3 -screen 0 1280x800x24 3>"$folder/display" 2>/dev/null &
display_pid=$!
for ((i = 0; i < 100; ++i)); do
  [[ ! -s $folder/display ]] || break
  sleep 0.1
done
[[ -s $folder/display ]] || fail "There is no display."
display=":$(<"$folder/display")"
mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix"
mount --bind "$root/usr" "$root/usr"
mount -o remount,ro,bind "$root/usr"
DISPLAY_INSIDE=$display inside player downloader /usr/share/games/zorik/Replays/1-zorikova-skola-en/01.zkr || fail "downloader"
# The process has the copy as its root, so it is none but ours.
for ((i = 0; i < 100; ++i)); do
  player_pid=$(for process in /proc/[0-9]*; do
    [[ $(readlink "$process/root") == "$root" && $(cat "$process/comm") == zorik ]] && basename "$process"
  done || true)
  [[ ! $player_pid ]] || break
  sleep 0.1
done 2>/dev/null
[[ $player_pid ]] || fail "The game does not run."
# What the windows that show are called.
windows() {
  local window
  for window in $(DISPLAY=$display xdotool search --onlyvisible --name . 2>/dev/null); do
    DISPLAY=$display xdotool getwindowname "$window" 2>/dev/null || true
  done
}
playing() { windows | grep 'playing a record$' >/dev/null; }
# A box says before who has made the record. The window of the score has its name, too, but stands alone.
box() {
  local names
  names=$(windows)
  [[ $names == *'playing a record'* && $'\n'$names$'\n' == *$'\n'Zorík$'\n'* ]]
}
score() {
  local names
  names=$(windows)
  [[ $names == Zorík ]]
}
# until_it WORDS COMMAND...: waits for it, a minute at most.
until_it() {
  local i
  for ((i = 0; i < 300; ++i)); do
    kill -0 "$player_pid" 2>/dev/null || fail "The game has ended by itself."
    ! "${@:2}" || return 0
    sleep 0.2
  done
  fail "It never came to this: $1"
}
# Return closes the box; once the record plays it would take the run over, so it is pressed as long as there is a box.
goes_on() {
  box || return 0
  DISPLAY=$display xdotool key Return
  sleep 2
  return 1
}
until_it "the record is shown" playing
until_it "who has made it is told" box
until_it "it plays" goes_on
until_it "it has won, and its score shows" score
[[ ! -e $root/home/player/.local/share/applications/zorik-open.desktop ]] ||
  fail "The game has told the player's desktop what the system's knows."
if command -v import >/dev/null; then DISPLAY=$display import -window root "$folder/window.png"; fi
kill "$player_pid"
player_pid=''
umount --lazy "$root/usr" "$root/tmp/.X11-unix"

step "removed, and purged"
printf 'mine\n' >"$root/home/player/.local/share/zorik/Caves/mine.zk"
home >"$folder/home"
apt remove zorik
[[ ! -e $root/usr/games/zorik && ! -e $root/usr/share/games/zorik ]] || fail "It is still there."
# What has no settings of its own is gone for good by now; dpkg says so and is content.
inside root dpkg --purge zorik >>"$folder/apt.log" 2>&1 || fail "dpkg --purge"
[[ -z $(inside root dpkg-query -W -f '${db:Status-Status}' zorik 2>/dev/null) ]] || fail "The system still knows it."
diff "$folder/home" <(home) || fail "Something of the player's has changed."
step "the player keeps $(wc -l <"$folder/home") files"
diff "$folder/before" <(system) || fail "The system is not what it was before."
# The socket of a game that was killed lies in /tmp where there is no session, until the system clears that.
left=$(find "$root" -xdev \( -path "$root/home" -o -path "$root/tmp" \) -prune -o \( -iname '*zorik*' -o -iname '*morvek*' \) \
  -not -name zorik.deb -print)
[[ -z $left ]] || fail "This is left: $left"
step "the system is what it was before"
