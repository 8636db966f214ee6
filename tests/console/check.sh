#!/usr/bin/env bash
# The checks of the console tests; a test begins with `. check.sh`. Its words are those that start the program.
set -u
export LC_ALL=C.UTF-8 TZ=UTC
program=("$@")
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$tests/../.." && pwd)
work=$(mktemp -d)
failures=0

finish() {
  local status=$?
  [ $BASHPID = $$ ] || return  # a job that was killed before its program began
  jobs -p | while read -r job; do kill -9 "$job" 2>/dev/null; done
  chmod -R u+w "$work"
  rm -rf "$work"
  [ "$failures" -gt 0 ] && echo "$failures checks failed" && exit 1
  exit "$status"
}
trap finish EXIT

fail() {
  echo "FAILED, line ${BASH_LINENO[-2]}: $*"
  failures=$((failures + 1))
}
# check WHAT COMMAND...: the command succeeds.
check() {
  local what=$1
  shift
  "$@" || fail "$what"
}
# zub WORD...: runs the program; what it says is in $work/out and $work/err, where Windows ends lines with CR LF.
zub() {
  local status=0
  "${program[@]}" "$@" >"$work/out" 2>"$work/err" </dev/null || status=$?
  [[ ${program[-1]} != *.exe ]] || sed -i 's/\r$//' "$work/out" "$work/err"
  return $status
}
# run STATUS WORD...: the program ends with this status.
run() {
  local wanted=$1 status=0
  shift
  zub "$@" || status=$?
  [ "$status" -eq "$wanted" ] && return
  fail "\"$*\" ended with $status, not $wanted"
  tail -5 "$work/err"
}
# Lines of standard output, and parts of standard error.
says() { grep -Fxq -e "$1" "$work/out" || { fail "does not say: $1"; head -20 "$work/out"; }; }
tells() { grep -Fq -e "$1" "$work/err" || { fail "does not tell: $1"; head -5 "$work/err"; }; }
silent() { [ ! -s "$work/$1" ] || { fail "something is on std$1"; head -5 "$work/$1"; }; }
# refused TEXT WORD...: wrong usage or an unusable PC, told with this text, and nothing else said.
refused() {
  local text=$1
  shift
  run 2 "$@"
  tells "$text"
  silent out
}

here() { [ -e "$1" ] || [ -L "$1" ] || fail "is gone: ${1#"$work"/}"; }
gone() { [ ! -e "$1" ] && [ ! -L "$1" ] || fail "is there: ${1#"$work"/}"; }
# until_true COMMAND...: waits for a condition, 30 seconds at most; looks every $pause seconds.
pause=0.02
until_true() {
  local end=$((SECONDS + 30))
  until "$@" 2>/dev/null; do
    [ "$SECONDS" -lt "$end" ] || { fail "waited in vain for: $*"; return 1; }
    sleep $pause
  done
}

# A host path of a path of the PC in $pc.
host() { local path=${1//\\//}; echo "$pc/${path/:/}"; }
# The registry of the PC as sorted lines "KEY" and "KEY -> NAME".
registry() { LC_ALL=C awk -f "$tests/registry.awk" "$1/registry.reg" | sort; }
# Everything about the files in a folder, to be compared.
portrait() { (cd "$1" && find . -printf '%p %y %m %s %T@ %l\n' | sort && find . -type f -exec cksum {} + | sort); }
# A text made of the words, a line each, under a name below the PC.
text() {
  local file=$pc/$1
  shift
  mkdir -p "$(dirname "$file")"
  printf '%s\r\n' "$@" >"$file"
}
