#!/usr/bin/env bash
# transcript.sh NAME PROGRAM...: types what transcripts/NAME.txt tells into a shell in a fresh folder, where "zub" is the
# program, and holds all that comes against what stands there. A line "$ " is typed, "> " goes on with it; then comes what
# is printed, "! " before a line of standard error, and the status in brackets where it is not 0. Lines with "## " are
# headings. With ZUB_UPDATE_GOLDEN=1 the transcript is written anew; judge the difference before it is kept.
set -u
name=$1
shift
program=("$@")
. "$(dirname "$0")/words.sh"
approved=$tests/transcripts/$name.txt scratch=$(mktemp -d)
trap 'chmod -R u+w "$scratch"; rm -rf "$scratch"' EXIT
mkdir "$scratch/bin" "$scratch/here"
ln -s "$(realpath "${@: -1}")" "$scratch/bin/zub"
[ $# -eq 1 ] || zub() { "${program[@]}" "$@"; }
PATH=$scratch/bin:$PATH
cd "$scratch/here" || exit 1
set -o pipefail  # of what is typed

# What changes from run to run, and from Windows to Linux, by names of its own.
plain() {
  sed -E "s/\r$//; s|$scratch/here|HERE|g; s/zub-console/zub/g
    s#(Log file generated) at [0-9:]+ [AP]M on [0-9/]+#\1 at TIME on DATE#; s#(Last removal) on [0-9/]+ at [0-9:]+ [AP]M#\1 on DATE at TIME#"
}
typed=
type_it() {
  [ -n "$typed" ] || return
  printf '$ %s\n' "${typed//$'\n'/$'\n> '}"
  eval "$typed" >"$scratch/out" 2>"$scratch/err" </dev/null 3<&-
  local status=$?
  [ ! -s "$scratch/out" ] || sed '$a\' "$scratch/out"
  [ ! -s "$scratch/err" ] || sed 's/^/! /; $a\' "$scratch/err"
  [ $status -eq 0 ] || echo "[$status]"
  typed=
}
tell() {
  local _line _last=heading
  while IFS= read -r _line <&3; do
    if [[ $_line == '$ '* ]]; then
      type_it
      typed=${_line:2} _last=typed
    elif [[ $_line == '> '* && $_last == typed ]]; then
      typed+=$'\n'${_line:2}
    elif [[ $_line == '## '* ]]; then
      type_it
      [ $_last = heading ] || echo
      echo "$_line"
      _last=heading
    else
      _last=told
    fi
  done 3<"$approved"
  type_it
}
tell | plain >"$scratch/told"
if [ -n "${ZUB_UPDATE_GOLDEN:-}" ]; then cp "$scratch/told" "$approved"; fi
diff -u --label approved --label "what comes now" "$approved" "$scratch/told"
