#!/usr/bin/env bash
# A PC whose texts are damaged is refused with the file, the line and the reason, before anything is touched: no file of
# it is written over or removed.
. "$(dirname "$0")/check.sh"
pc=$work/pc
run 0 new "$pc"
run 0 --pc "$pc" set chkTempFolder=1
run 0 --pc "$pc" schedule add 12/24/2030 "6:00 PM"
echo old >"$pc/C/WINDOWS/TEMP/old.tmp"
mkdir "$work/whole"
cp "$pc"/{registry.reg,pc.txt,tasks.txt} "$work/whole" || exit 1

# damaged FILE TEXT: as the file stands now, every command refuses the PC with this text.
damaged() {
  local file=$1 reason=$2 words
  portrait "$pc" >"$work/before"
  for words in wash options "set chkBleach=1" "start /STARTUP" plugins "cookies ie" schedule "schedule add 1/1/2031 1:00"; do
    # shellcheck disable=SC2086
    refused "zub: $file: $reason" --pc "$pc" $words
    check "told in more than one line: $reason" [ "$(wc -l <"$work/err")" -eq 1 ]
  done
  check "the damaged PC was changed: $reason" diff "$work/before" <(portrait "$pc")
  rm -r "${pc:?}/$file"
  cp "$work/whole/$file" "$pc/$file"
}
# appended FILE TEXT LINE: this line at the end of the file is refused.
appended() {
  printf '%s\n' "$3" >>"$pc/$1"
  damaged "$1" "line $(wc -l <"$pc/$1"): $2"
}

appended registry.reg "a text is cut off: it has no closing quote" '"chkBleach"="0'
appended registry.reg "the key is in no known hive" '[HKEY_NOBODY\Software]'
: >"$pc/registry.reg"; damaged registry.reg "line 1: is no registry text"
rm "$pc/registry.reg"; mkdir "$pc/registry.reg"; damaged registry.reg "cannot be read"
appended pc.txt "\"TEMP\" is no path such as C:\\WINDOWS" 'locked = TEMP'
appended tasks.txt "a trigger is told as" 'trigger = 0 2031-02-29 02:20'

# The repaired PC works.
run 0 --pc "$pc" wash
gone "$pc/C/WINDOWS/TEMP/old.tmp"
