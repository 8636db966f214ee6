#!/usr/bin/env bash
# The checks of the console tests; a test begins with `. check.sh`. Its words are those that start the program.
set -u
. "$(dirname "${BASH_SOURCE[0]}")/words.sh"
program=("$@")
work=$(mktemp -d)
failures=0

finish() {
  local status=$?
  [ $BASHPID = $$ ] || return  # a job that was killed before its program began
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
