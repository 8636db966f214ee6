# Sourced by ./run and ./test: installs what is missing, or says what to install.

# need COMMAND PACKAGE...: 0 when the command is there, afterwards.
need() {
  local command=$1
  shift
  command -v "$command" >/dev/null && return 0
  install_packages "$@"
  command -v "$command" >/dev/null
}

apt_updated=
install_packages() {
  if [ "$(id -u)" -ne 0 ] || ! command -v apt-get >/dev/null; then
    echo "missing: $* (as root: apt-get install $*)" >&2
    return 1
  fi
  if [ -z "$apt_updated" ]; then
    apt-get update -qq >/dev/null 2>&1 || true
    apt_updated=yes
  fi
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" >/dev/null 2>&1
}

need_build_tools() {
  mkdir -p build
  need g++ g++ || exit 1
  need cmake cmake || exit 1
  need ninja ninja-build || exit 1
}
