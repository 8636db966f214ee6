#!/usr/bin/env bash
# A wash that is killed, at the start of each of many tasks, in the midst of a removal and while it saves: the
# registry text is the old one or the new one, whole, and a later wash works. One that is interrupted ends by itself.
. "$(dirname "$0")/check.sh"
pc=$work/pc
files=1000
values=10000
tasks=(chkDocHistory chkFindHistory chkRunHistory chkTempFolder chkScanDisk chkRecycleBin chkOfficeMRU chkWMP)

left() { find "$pc/C/WINDOWS/TEMP" -name 'work*.tmp' | wc -l; }
# The text without the time of the wash, which may go over several lines.
timeless() { LC_ALL=C awk '/^"lblLastRemoval"/ { skip = 1 } !skip; !/\\\r?$/ { skip = 0 }' "$1"; }

run 0 new "$work/first"
{
  printf '\n[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RunMRU]\n"a"="private"\n'
  printf '\n[HKEY_CURRENT_USER\\Software\\Many]\n'
  seq -f '"Value%g"="some text that makes the registry long enough for a kill while it is saved"' $values
} >>"$work/first/registry.reg"
run 0 --pc "$work/first" set "${tasks[@]/%/=1}"
(cd "$work/first/C/WINDOWS/TEMP" && seq -f 'work%g.tmp' $files | xargs touch)
makePc() { rm -rf "$pc" && cp -R "$work/first" "$pc"; }

makePc
run 0 --pc "$pc" wash
timeless "$pc/registry.reg" >"$work/new"
check "the wash has not emptied the folder" [ "$(left)" -eq 0 ]

# begin WORD...: starts a wash on a terminal, which shows its progress; that is in $work/progress.
begin() {
  rm -f "$work/progress" "$work/process"
  script -qefc "echo \$\$ >'$work/process'; exec $(printf '%q ' "${program[@]}" --pc "$pc" "$@")" "$work/progress" \
    >/dev/null </dev/null &
  terminal=$!
  until_true test -s "$work/process"
  process=$(cat "$work/process")
}
running() { kill -0 "$process" 2>/dev/null; }
# tasksBegun NUMBER [OF]: in a wash of so many tasks.
tasksBegun() { grep -aq "$1 of ${2:-${#tasks[@]}}: " "$work/progress" || ! running; }
fewerFiles() { [ "$(left)" -lt "$1" ] || ! running; }
besides() { compgen -G "$pc/registry.reg.*.new" >/dev/null; }
saving() { besides || ! running; }

pause=0
hits=0
for moment in "tasksBegun 1" "tasksBegun 4" "tasksBegun 5" "tasksBegun 8" \
  "fewerFiles $files" "fewerFiles $((files / 2))" saving saving saving; do
  makePc
  begin wash
  # shellcheck disable=SC2086
  until_true $moment
  kill -9 "$process" 2>/dev/null
  wait $terminal 2>/dev/null
  [ $? -eq 137 ] && hits=$((hits + 1))
  if ! cmp -s "$pc/registry.reg" "$work/first/registry.reg"; then
    timeless "$pc/registry.reg" | cmp -s - "$work/new" || fail "the registry is neither old nor new after $moment"
  fi
  run 0 --pc "$pc" wash
  check "the later wash has not emptied the folder" [ "$(left)" -eq 0 ]
  check "the later wash has another registry" cmp <(timeless "$pc/registry.reg") "$work/new"
  check "a file beside the registry stays" eval "! besides"
done
# A wash may end before the kill comes, but not most of them.
check "only $hits of 9 washes were killed" [ $hits -ge 4 ]

# Of two washes in one start the first is saved before the second begins.
makePc
run 0 --pc "$pc" set chkRunStarted=1
begin start /STARTUP /SCHEDULER
secondBegun() { grep -aq "${#tasks[@]} of ${#tasks[@]}: .*1 of ${#tasks[@]}: " "$work/progress" || ! running; }
until_true secondBegun
kill -9 "$process" 2>/dev/null
wait $terminal 2>/dev/null
check "the first wash was not saved" [ "$(grep -c RunMRU "$pc/registry.reg")" -eq 0 ]

# A signal ends a wash behind the file that is being shredded, before the next task; what was done is saved and told.
run 0 --pc "$work/first" set chkBleach=1 cmbShredder=8
started() { [ "$(head -c 4096 "$pc/C/WINDOWS/TEMP/long.tmp" | tr -d '\0' | wc -c)" -eq 0 ]; }
for signal in INT:130 TERM:143 HUP:129; do
  makePc
  yes | head -c 64M >"$pc/C/WINDOWS/TEMP/long.tmp"
  echo lost >"$pc/C/FILE0000.CHK"
  "${program[@]}" --pc "$pc" wash >"$work/out" 2>"$work/err" </dev/null &
  process=$!
  until_true started
  kill -"${signal%:*}" $process
  wait $process
  check "SIG$signal ends it with $?" [ $? -eq "${signal#*:}" ]
  gone "$pc/C/WINDOWS/TEMP/long.tmp"
  here "$pc/C/FILE0000.CHK"
  says "	Shredding file long.tmp"
  says "The wash was interrupted. Space restored so far: 67,108,864 Bytes"
  check "the registry was not saved" [ "$(grep -c RunMRU "$pc/registry.reg")" -eq 0 ]
done
