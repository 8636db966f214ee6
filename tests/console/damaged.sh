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
lines=$(wc -l <"$pc/registry.reg")
factLines=$(wc -l <"$pc/pc.txt")
taskLines=$(wc -l <"$pc/tasks.txt")

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
appended() { printf '%s\n' "$3" >>"$pc/$1"; damaged "$1" "$2"; }

next=$((lines + 1))
appended registry.reg "line $next: a text is cut off: it has no closing quote" '"chkBleach"="0'
appended registry.reg "line $next: no \"=\" stands behind the name of a value" '"chkBleach"'
appended registry.reg "line $next: is neither a key, a value nor a comment" 'chkBleach'
appended registry.reg "line $next: the name of a key is cut off" '[HKEY_CURRENT_USER\Soft'
appended registry.reg "line $next: the key is in no known hive" '[HKEY_NOBODY\Software]'
appended registry.reg "line $next: the data of a value is of no known form" '"chkBleach"=0'
sed -i 's/^REGEDIT4/RGEDIT4/' "$pc/registry.reg"; damaged registry.reg "line 1: is no registry text"
: >"$pc/registry.reg"; damaged registry.reg "line 1: is no registry text"
head -c 5000 /dev/urandom >"$pc/registry.reg"; damaged registry.reg "line 1: is no registry text"
rm "$pc/registry.reg"; mkdir "$pc/registry.reg"; damaged registry.reg "cannot be read"

next=$((factLines + 1))
appended pc.txt "line $next: unknown name \"colour\"" 'colour = blue'
appended pc.txt "line $next: is no \"name = value\"" 'locked'
appended pc.txt "line $next: the name can stand only once" 'family = nt'
appended pc.txt "line $next: \"TEMP\" is no path such as C:\\WINDOWS" 'locked = TEMP'
appended pc.txt "line $next: \"tape\" is no kind of drive" 'drive D = tape'
appended pc.txt "line $next: the drive was told before" 'drive C = fixed'
appended pc.txt "line $next: \"CD\" is no drive letter" 'read only = CD'
sed -i 's/^family.*/family = 2000/' "$pc/pc.txt"; damaged pc.txt "line 2: the family is 9x or nt"

next=$((taskLines + 1))
appended tasks.txt "line $next: a trigger is told as" 'trigger = 0 2031-02-29 02:20'
appended tasks.txt "line $next: a trigger is told as" 'trigger = tomorrow'
appended tasks.txt "line $next: unknown name \"colour\"" 'colour = blue'
appended tasks.txt "line $next: is no \"name = value\"" 'trigger'
sed -i 1d "$pc/tasks.txt"; damaged tasks.txt "line 1: stands before the first task"

# The last of the checks is that the repaired PC works.
run 0 --pc "$pc" wash
gone "$pc/C/WINDOWS/TEMP/old.tmp"
