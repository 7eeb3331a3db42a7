# shellcheck shell=bash
# What ./play and ./check share: the Debian packages that are missing, and the build folder.
# Meant to be sourced; both commands set zorik_root to the project's folder first.

zorik_packages="${zorik_root:?}/packaging/debian-packages.txt"

# packages GROUP...: the names that the list holds under these groups.
packages() {
  awk -v groups=" $* " '
    { sub(/#.*/, "") }
    /^\[/ { gsub(/[][ \t]/, ""); wanted = index(groups, " " $0 " "); next }
    wanted && NF { print $1 }' "$zorik_packages"
}

# missing_packages GROUP...: those of them that are not installed.
missing_packages() {
  local name
  local -A there=()
  # shellcheck disable=SC2016  # those are dpkg-query's own variables
  # It fails as soon as one name is unknown to it; its output is right all the same.
  while read -r name; do
    there[$name]=1
  done < <(packages "$@" | xargs dpkg-query -W -f '${db:Status-Status} ${Package}\n' 2>/dev/null |
    awk '$1 == "installed" { print $2 }')
  while read -r name; do
    [[ ${there[$name]:-} ]] || echo "$name"
  done < <(packages "$@")
}

# install_packages REASON GROUP...: installs what is missing, as root or by sudo, and says so before.
# Returns 1, with a word of advice, when that cannot be done.
install_packages() {
  local reason=$1 log="$zorik_root/build/packages.log"
  local -a missing as_root=()
  shift
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This is no Debian system: please see to it yourself that the counterparts of these are there:"
    packages "$@" | paste -sd ' '
    return 0
  fi
  mapfile -t missing < <(missing_packages "$@")
  [[ ${#missing[@]} -gt 0 ]] || return 0

  echo "$reason needs Debian packages that are not here yet: ${missing[*]}."
  if [[ $(id -u) -ne 0 ]]; then
    if ! command -v sudo >/dev/null || ! sudo -v; then
      echo "Only root may install them, and sudo does not help here. Please run this as root, then try again:"
      echo "  apt-get update && apt-get install --no-install-recommends ${missing[*]}"
      return 1
    fi
    as_root=(sudo)
    echo "They are installed now by sudo apt-get, which may take a few minutes."
  else
    echo "They are installed now by apt-get, which may take a few minutes."
  fi

  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
  mkdir -p "${log%/*}"
  # A foreign source that cannot be reached spoils the update, yet seldom the installation.
  "${as_root[@]}" update >"$log" 2>&1 </dev/null ||
    echo "The package lists could not all be brought up to date; trying with what is there."
  if ! "${as_root[@]}" install --no-install-recommends "${missing[@]}" >>"$log" 2>&1 </dev/null; then
    tail -n 20 "$log"
    echo "The packages could not be installed; the whole output is in build/packages.log. Once you have"
    echo "put that right, or installed them by hand, start again: ${missing[*]}"
    return 1
  fi
}

# configure PRESET [CMAKE-ARGUMENT...]: makes build/PRESET ready, anew if it was made for another folder.
configure() {
  local dir="$zorik_root/build/$1"
  local -a fresh=()
  if [[ -e $dir/CMakeCache.txt ]] &&
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$zorik_root" "$dir/CMakeCache.txt"; then
    fresh=(--fresh)
  fi
  (cd "$zorik_root" && cmake --preset "$1" "${fresh[@]}" "${@:2}")
}
