# shellcheck shell=bash
# What the scripts share: installing Debian packages that are missing. Sourced, never run.

# Runs a command as root: as it is for root, through sudo for anybody else.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Asks once whether that will work; sudo says itself why not.
can_be_root() {
  [ "$(id -u)" -eq 0 ] || { command -v sudo >/dev/null && sudo true; }
}

# Installs the named packages. An index that changes on the mirror while it is being read makes
# apt-get fail, and so does another apt-get at work: hence a fresh index and a new try. Scripts that
# run side by side install one after the other, and find what the one before has brought.
# Standard output stays free for the script; on failure, one line says what is missing.
install_packages() {
  local try log lock status=1
  if ! command -v apt-get >/dev/null || ! can_be_root; then
    echo "missing here, please install: $*" >&2
    return 1
  fi
  exec {lock}>"${TMPDIR:-/tmp}/zeph-install.$(id -u).lock"
  flock "$lock"
  echo "installing: $*" >&2
  log=$(mktemp)
  for try in 1 2 3; do
    as_root apt-get update -qq >"$log" 2>&1 || true
    if as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
      -o DPkg::Lock::Timeout=120 "$@" >>"$log" 2>&1; then
      status=0
      break
    fi
    [ "$try" -eq 3 ] || sleep 5
  done
  exec {lock}>&-
  if [ "$status" -ne 0 ]; then
    tail -n 5 "$log" >&2
    echo "missing here, and apt-get could not install: $*" >&2
  fi
  rm -f "$log"
  return "$status"
}

# need_packages PACKAGE...
# Makes sure that the Debian packages are installed. Returns 1, after a line on standard error that
# names what is missing, if they are not and cannot be.
need_packages() {
  local package missing=()
  for package in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
      missing+=("$package")
  done
  [ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
}

# need_tools COMMAND=PACKAGE...
# As need_packages, but asks for commands: a command that is there is taken, whoever installed it.
need_tools() {
  local pair missing=()
  for pair in "$@"; do
    command -v "${pair%%=*}" >/dev/null || missing+=("${pair#*=}")
  done
  [ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
}
