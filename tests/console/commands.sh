#!/usr/bin/env bash
# The commands that make a PC, tell about the program and change settings, and what they refuse.
. "$(dirname "$0")/check.sh"
pc=$work/pc

run 0 --version
check "no version" grep -Eq '^Zubrane [0-9]+(\.[0-9]+)+' "$work/out"
run 0 --help
for command in wash start options set plugins "plugin show" "plugin check" cookies schedule scheduler; do
  check "the help lacks $command" grep -q "^  $command" "$work/out"
done

# What the shells complete, by the program's own words: a command, an option, a plugin with blanks in its name.
"${program[@]}" completion bash >"$work/completion"
while IFS='|' read -r line wanted; do
  check "\"$line\" is not completed" grep -Fxq -e "$wanted" <(
    # shellcheck disable=SC1091
    . "$work/completion"
    eval "COMP_WORDS=($line)"
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMPREPLY=()
    _zub
    printf '%s\n' "${COMPREPLY[@]}")
done <<'END'
zub --pc x sched|scheduler
zub schedule a|add
zub wash --on|--only
zub wash --plugin 'windows\ p'|Windows\ Paint
zub plugin show Windows\ Pai|Windows\ Paint
END
run 0 manual
check "the manual page lacks a command" [ "$(grep -c '^Example:' "$work/out")" -eq "$("${program[@]}" help | sed -n '/^Commands:/,/^$/p' | grep -c '^  [a-z]')" ]
run 0 new "$pc"
here "$pc/C/WINDOWS/TEMP"
portrait "$pc" >"$work/new"
run 0 --pc "$pc" options
says "lblLastRemoval="
says "chkTempFolder=0"
for listing in plugins schedule "plugin show ACDSee" "cookies netscape" users preview; do zub --pc "$pc" $listing; done
zub --pc "$pc" cookies ie
check "a listing changed the PC" diff "$work/new" <(portrait "$pc")

# A new PC has nothing to wash: all that was tried went.
run 0 --pc "$pc" wash
check "the report of a wash of nothing differs" diff <(sed -E 's| on [0-9/]+||; s| at [0-9:]+ [AP]M||' "$work/out") - <<'END'
Zubrone

Log file generated

Total amount of space restored: 100 Bytes
Number of tasks competed: 0
Last removal
END
silent err

# Settings by the names that are listed; a value with "=" in its name too.
chmod 600 "$pc/registry.reg"
run 0 --pc "$pc" set chkTempFolder=1 cmbShredder=8 ComboInterval=2 "ZUBStandardPlugin Windows Paint=1"
run 0 --pc "$pc" options
for line in chkTempFolder=1 cmbShredder=8 ComboInterval=2 "ZUBStandardPlugin Windows Paint=1" chkBleach=0; do
  says "$line"
done
check "others can read the registry now" [ "$(stat -c %a "$pc/registry.reg")" = 600 ]
check "the settings are not in the store" grep -aq '^"cmbShredder"="8"' "$pc/registry.reg"
echo old >"$pc/C/WINDOWS/TEMP/old.tmp"
run 0 --pc "$pc" start /STARTUP
here "$pc/C/WINDOWS/TEMP/old.tmp"
run 0 --pc "$pc" set chkRunStarted=1
run 0 --pc "$pc" get CHKloadstartup
says 1
run 0 --pc "$pc" get passes
says 9
run 0 --pc "$pc" set PASSES=2
run 0 --pc "$pc" options
for line in passes=2 cmbShredder=1 "    how often files are overwritten (1 to 9)"; do says "$line"; done
run 0 --pc "$pc" start /STARTUP
gone "$pc/C/WINDOWS/TEMP/old.tmp"
says "	Deleting file old.tmp"

# Wrong usage is told in one line, and nothing is changed by it.
mkdir "$work/empty"
run 0 --pc "$pc" schedule
portrait "$pc" >"$work/before"
while IFS='|' read -r text words; do
  eval "refused '$text' $words"
done <<'END'
wash takes no arguments|--pc "$work/nowhere" wash now
there is no Windows here to work on: give a PC in a folder with --pc FOLDER|wash
nowhere: is no folder that can be opened|--pc "$work/nowhere" wash
empty: is no PC|--pc "$work/empty" wash
is not empty|new "$pc"
nowhere/: is no folder that can be opened|new "$work/nowhere/pc"
there is no setting "chkBleech": did you mean "chkBleach"?|--pc "$pc" set chkBleech=1
"passes" takes 1 to 9, not "0"|--pc "$pc" set passes=0
there is no task "tmp": did you mean "temp"?|--pc "$pc" wash --only recycle,tmp
there is no plugin "Café"|--pc "$pc" wash --plugin Café
"chkBleach" takes 0 to 1, not "2"|--pc "$pc" set chkBleach=2
"ComboInterval" takes 0 to 2, not "10"|--pc "$pc" set ComboInterval=10
there is no setting "chkPolish"|--pc "$pc" set chkBleach=1 chkPolish=1
there is no plugin "Café"|--pc "$pc" plugin show Café
C:\polish.zb1: File not found|--pc "$pc" plugin check C:\\polish.zb1
there is no dated wash 1x|--pc "$pc" schedule remove 1x
END
gone "$work/nowhere"

# A wash of one task and one plugin leaves the ticks and all else as they are; the report goes to a file, too.
printf '\n[%s]\n"File1"="x"\n' 'HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List' \
  'HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU' >>"$pc/registry.reg"
run 0 --pc "$pc" set chkRunHistory=1 "ZUBStandardPlugin Windows Paint=0" chkSkipPlugins=1
run 0 --pc "$pc" options
cp "$work/out" "$work/options"
touch "$pc/C/WINDOWS/TEMP/old.tmp" "$pc/C/FILE0000.CHK"
run 0 --pc "$pc" preview --only scandisk --plugin "Windows Paint"
says "Would go: 1 file of 0 bytes, 0 folders, 0 registry keys, 1 value"
run 0 --pc "$pc" wash --only scandisk --plugin "Windows Paint" --quiet --report "$work/report"
silent out
check "the report is not in the file" grep -Fq "Deleting file FILE0000.CHK" "$work/report"
gone "$pc/C/FILE0000.CHK"
here "$pc/C/WINDOWS/TEMP/old.tmp"
check "the plugin did not run, or a task" [ "$(registry "$pc" | grep -cE 'Paint.*-> File1|RunMRU -> File1')" -eq 1 ]
run 0 --pc "$pc" options
check "the ticks are others" diff <(grep -v '^lblLast' "$work/options") <(grep -v '^lblLast' "$work/out")
run 2 --pc "$pc" wash --report "$work/nowhere/report"
tells "its folder cannot be opened"
gone "$pc/C/WINDOWS/TEMP/old.tmp"
run 0 --pc "$pc" schedule
portrait "$pc" >"$work/before"

# While another program is at work, every command that changes the PC is to be tried again later; others work.
exec 9<"$pc"
flock 9
for words in wash "start /STARTUP" "set chkBleach=1" "schedule add 1/1/2031 1:00" "schedule remove 1" "cookies ie keep 1"; do
  # shellcheck disable=SC2086
  refused "another Zubrane is at work on this PC: try again" --pc "$pc" $words 9<&-
done
for words in options plugins schedule "plugin show Windows\\ Paint"; do
  eval "run 0 --pc '$pc' $words 9<&-"
done
exec 9<&-
check "a refused command changed the PC" diff "$work/before" <(portrait "$pc")

# What cannot be written is told, and the report of a wash all the same.
# The line of the last wash changes in any case, also where that was in this second.
echo old >"$pc/C/WINDOWS/TEMP/old.tmp"
sed -i 's/^"lblLastRemoval"=.*/"lblLastRemoval"="never"\r/' "$pc/registry.reg"
(cd "$pc" && cksum ./*.*) >"$work/texts"
for words in wash "set chkBleach=1" "schedule add 1/1/2031 1:00"; do
  # shellcheck disable=SC2086
  (ulimit -f 0; "${program[@]}" --pc "$pc" $words 2>&1; echo "ends with $?") </dev/null | cat >"$work/out"
  check "no failure is told: $words" grep -Eq '^zub: (registry.reg|tasks.txt): cannot be saved: Disk full' "$work/out"
  says "ends with 2"
  [ "$words" != wash ] || says "	Deleting file old.tmp"
done
gone "$pc/C/WINDOWS/TEMP/old.tmp"
check "a text was changed, or a file stays beside it" diff "$work/texts" <(cd "$pc" && cksum ./*.*)
"${program[@]}" --pc "$pc" options >/dev/full 2>"$work/err"
check "a full disk ends with $?" [ $? -eq 2 ]
tells "zub: the output could not be written"
# A reader that goes away does not stop a wash.
echo old >"$pc/C/WINDOWS/TEMP/old.tmp"
exec 8> >(:)
wait $!
"${program[@]}" --pc "$pc" wash >&8 2>"$work/err"
check "a closed pipe ends with $?" [ $? -eq 2 ]
exec 8>&-
tells "zub: the output could not be written"
gone "$pc/C/WINDOWS/TEMP/old.tmp"

# A tree that is deeper than the files that may be open at once.
deep=$(printf 'd/%.0s' {1..400})
mkdir -p "$pc/C/WINDOWS/TEMP/$deep"
touch "$pc/C/WINDOWS/TEMP/d/d/high.tmp" "$pc/C/WINDOWS/TEMP/$deep/low.tmp"
(ulimit -n 60; "${program[@]}" --pc "$pc" wash >"$work/out" 2>"$work/err"; echo $? >"$work/status")
check "the wash of a deep tree ends with $(cat "$work/status")" [ "$(cat "$work/status")" -eq 0 ]
gone "$pc/C/WINDOWS/TEMP/d"

# A folder of the shell whose text lacks its NUL loses its last letter: that is told, and only the other folder is washed.
run 0 --pc "$pc" set chkDocHistory=1
mkdir -p "$pc/C/Recent" "$pc/C/Recen"
touch "$pc/C/Recent/kept.lnk" "$pc/C/Recen/old.lnk"
cat >>"$pc/registry.reg" <<'END'
[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders]
"Recent"=hex(1):43,3a,5c,52,65,63,65,6e,74
"AppData"="C:\\Data"
END
for words in preview wash; do
  here "$pc/C/Recen/old.lnk"
  run 0 --pc "$pc" "$words"
  tells 'zub: the shell'"'"'s folder "Recent" is stored without its end: a wash looks for C:\Recen'
done
check "another folder is told" [ "$(grep -c "the shell" "$work/err")" -eq 1 ]
here "$pc/C/Recent/kept.lnk"
gone "$pc/C/Recen/old.lnk"

# Settings whose key the user may not change.
echo 'no rights = HKEY_CURRENT_USER\Software' >>"$pc/pc.txt"
for words in "set chkBleach=1" wash; do
  # shellcheck disable=SC2086
  run 2 --pc "$pc" $words
  tells "zub: the settings cannot be changed: no rights to their key"
done
