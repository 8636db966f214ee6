#!/usr/bin/env bash
# Washes that are killed before each call that changes something. The registry text is whole:
# the old one before it is put in place, the new one from then on, also while a second wash goes on in the same start.
# A later wash does the rest.
. "$(dirname "$0")/check.sh"
pc=$work/pc
calls=$work/calls

left() { find "$pc/C/WINDOWS/TEMP" -name 'work*.tmp' | wc -l; }
# The text without the time of the wash, which may go over several lines.
timeless() { LC_ALL=C awk '/^"lblLastRemoval"/ { skip = 1 } !skip; !/\\\r?$/ { skip = 0 }' "$1"; }
makePc() { rm -rf "$pc" && cp -R "$work/first" "$pc"; }
killedAt() { ZUB_FAULT_AT=$1 ZUB_FAULT=kill ZUB_FAULT_LOG=$calls with "$faults" "${program[@]}" --pc "$pc" $words; }

run 0 new "$work/first"
printf '\n[%s\\RunMRU]\n"a"="private"\n' 'HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer' \
  >>"$work/first/registry.reg"
run 0 --pc "$work/first" set chkRunHistory=1 chkTempFolder=1 chkRunStarted=1 chkLoadStartup=1
run 0 --pc "$work/first" schedule add 1/1/2035 1:00
touch "$work/first/C/WINDOWS/TEMP"/work{1..3}.tmp

for words in wash "start /STARTUP /SCHEDULER"; do
  makePc
  : >"$calls"
  killedAt 0 >"$work/out" 2>&1 || fail "the wash does not end"
  timeless "$pc/registry.reg" >"$work/new"
  check "$words saves $(grep -c renameat "$calls") times" [ "$(grep -c renameat "$calls")" -eq 2 ]  # after the wash, at the end
  saved=$(grep -n renameat "$calls" | head -1 | cut -d: -f1)
  for at in $(grep -nE '^(unlinkat|pwrite|fsync|fdatasync|renameat|mkdirat)$' "$calls" | cut -d: -f1); do
    makePc
    (killedAt "$at") >"$work/out" 2>&1
    check "it is not killed at call $at" [ $? -eq 137 ]
    [ "$at" -le "$saved" ] && timeless "$work/first/registry.reg" >"$work/wanted" || cp "$work/new" "$work/wanted"
    check "the registry is another one at call $at of $words" cmp "$work/wanted" <(timeless "$pc/registry.reg")
    run 0 --pc "$pc" wash
    check "the later wash has not emptied the folder" [ "$(left)" -eq 0 ]
    check "the later wash has another registry" cmp <(timeless "$pc/registry.reg") "$work/new"
    check "a file beside the registry stays" eval '! compgen -G "$pc/registry.reg.*" >/dev/null'
  done
done
