#!/usr/bin/env bash
# What the tests of the console program say of a PC in a folder.
export LC_ALL=C.UTF-8 TZ=UTC
tests=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$tests/../.." && pwd)

# A fresh sample PC in a folder.
sample() { "$root/tools/sample-copy" "$1"; }
# with LIBRARY COMMAND...: runs it with a library before all others, whose path may hold blanks.
with() { LD_LIBRARY_PATH=$(dirname "$1") LD_PRELOAD=$(basename "$1") "${@:2}"; }
# The registry of a PC as sorted lines "KEY" and "KEY -> NAME".
registry() { LC_ALL=C awk -f "$tests/registry.awk" "$1/registry.reg" | sort; }
# Everything about the files in a folder, to be compared.
portrait() { (cd "$1" && find . -printf '%p %y %m %s %T@ %l\n' | sort && find . -type f -exec cksum {} + | sort); }
# The names of the files and folders of a PC, and its registry.
contents() { (cd "$1" && find . -mindepth 1 -printf '%P\n' | sort) && registry "$1"; }
# A text made of the words, a line each, in a file that may need its folders.
text() {
  local file=$1
  shift
  mkdir -p "$(dirname "$file")"
  printf '%s\r\n' "$@" >"$file"
}
# changed BEFORE [AFTER]: the lines that went and came, from a text to another one or to standard input.
changed() { sed "1,2d; /^@/d" <(diff -U0 "$1" "${2:-/dev/stdin}"); }
# A report with the lines below each heading sorted, for a disk has an order of its own.
by_task() {
  tr -d '\r' | awk '/^[^\t]/ { ++part } { print part "\t" (/^[^\t]/ ? 1 : /^\t/ ? 2 : 3) "\t" $0 }' | LC_ALL=C sort -s -k1,1n -k2,2n -k3 | cut -f3-
}
# on_terminal WIDTH COMMAND: what a terminal of this width shows, each state of a line that is drawn over itself as a line.
on_terminal() {
  script -qec "stty cols $1; $2" /dev/null | sed 's/\r$//' |
    awk -F '\r' '{ shown = ""; for (i = 1; i <= NF; ++i) { shown = $i substr(shown, length($i) + 1); if (i > 1) print shown } } NF < 2' |
    sed 's/ *$//'
}
