#!/usr/bin/env bash
# A wash of a whole Windows: the registry and the disk of a Wine prefix of the test's own, without a way to the host's
# disk. The program is installed in it, and what it is to wash is put there with files and the system's own "reg".
. "$(dirname "$0")/check.sh"
# Kept between runs, for it takes a while to make; one for each Windows of tools/wine-run.
export ZUB_WINEPREFIX=${ZUB_WINEPREFIX:?the prefix of this test}${ZUB_WINDOWS:+-$ZUB_WINDOWS}
prefix=$ZUB_WINEPREFIX
emulator=${program[0]}
# The user's folders of a new prefix, and its recycle bin, are links to the home folder.
export HOME=$prefix/home
mkdir -p "$HOME"
"$emulator" --start || exit 1
rm -f "$prefix/dosdevices/z:"
pc=$prefix/drive_c
cd "$pc" || exit 1

installed="$pc/Program Files/Zubrane"
rm -rf "$installed"
mkdir -p "$installed/Plugins"
cp "${program[1]}" "$installed"
check "the system would send writes elsewhere" grep -aFq 'level="asInvoker"' "${program[1]}"
program=("$emulator" 'C:\Program Files\Zubrane\zub-console.exe')

# exported KEY: the registry below a key as sorted lines. An export fails where a key goes while it is read, as some do while
# the system starts.
exported() {
  rm -f "$pc/exported.reg"
  for _ in 1 2 3; do "$emulator" reg export "$1" 'C:\exported.reg' /y >/dev/null 2>&1 && break; done
  iconv -f UTF-16 -t UTF-8 "$pc/exported.reg" | tr -d '\r' >"$work/exported.reg"
  LC_ALL=C awk -f "$tests/registry.awk" "$work/exported.reg" | sort
}
explorer='HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Explorer'
exported "$explorer\\Shell Folders" >/dev/null
# folder NAME: the path below C: of a folder of the user.
folder() { sed -n "s/^\"$1\"=\"C:\\(.*\\)\"\$/\\1/p" "$work/exported.reg" | sed 's/\\\\/\//g'; }
recent=$(folder Recent) cookies=$(folder Cookies) appData=$(folder AppData)
temp=$("$emulator" cmd /c 'echo %TEMP%' 2>/dev/null | tr -d '\r' | sed -n 's/^C://; s/\\/\//gp')
# None of them may be empty: what is removed below would be the drive.
for path in "$recent" "$cookies" "$appData" "$temp"; do [ -n "$path" ] || { fail "a folder of the user is not known"; exit 1; }; done

# What is to go, and what is to stay.
traces=("$explorer\\RecentDocs" "$explorer\\StreamMRU" "$explorer\\Doc Find Spec MRU" "$explorer\\RunMRU"
  'HKEY_CURRENT_USER\Software\Microsoft\MediaPlayer\Player\RecentFileList'
  'HKEY_CURRENT_USER\Software\Microsoft\Internet Explorer\TypedURLs'
  'HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List'
  'HKEY_CURRENT_USER\Software\Garden\Recent')
decoys=("$explorer\\RunMRU backup" "$explorer\\FindComputerMRU" 'HKEY_CURRENT_USER\Software\Microsoft\MediaPlayer\Setup'
  'HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\View' 'HKEY_CURRENT_USER\Software\Garden\View')
run='Software\Microsoft\Windows\CurrentVersion\Run'
{
  printf 'REGEDIT4\n\n[-HKEY_CURRENT_USER\\Software\\ZUB]\n\n'
  for key in "${traces[@]}" "${decoys[@]}"; do printf '[-%s]\n\n[%s]\n"File1"="C:\\\\Diary.txt"\n\n' "$key" "$key"; done
  for hive in HKEY_CURRENT_USER HKEY_LOCAL_MACHINE; do
    for key in "$run" "$run-"; do printf '[%s\\%s]\n"Zubrane"=-\n"Other"="other.exe"\n\n' $hive "$key"; done
  done
} >"$pc/seed.reg"
"$emulator" reg import 'C:\seed.reg' >/dev/null 2>&1 || fail "the registry cannot be seeded"

going=("$temp/old.tmp" "$temp/deep/deeper/old.tmp" "$temp/read-only.tmp" "$recent/Diary.lnk" "$recent/hidden/Letter.lnk"
  "$appData/Microsoft/Office/Recent/Letter.LNK" "$cookies/user@shop.example[1].txt" /scandisk.log /FILE0000.CHK
  /recycled/DC1.TXT /Garden/a.bak /Garden/Beds/b.bak)
staying=("$appData/Microsoft/Office/Word.qat" "$cookies/user@news.example[1].txt" "$cookies/recipes.rtf" /Diary.txt
  /FILE0000.TXT /Temp/old.tmp /Garden/Roses.txt "/Recycled paper/DC1.TXT" "$recent kept/Diary.lnk")
chmod -R u+w "$pc$temp"
rm -rf "${pc:?}/Garden" "$pc$cookies"
for path in "${going[@]}" "${staying[@]}"; do
  mkdir -p "$(dirname "$pc$path")"
  echo "something private" >"$pc$path"
done
chmod a-w "$pc$temp/read-only.tmp"
printf '%s\r\n' 'C:\Garden\*.bak >plus subdirectories< ' >"$installed/Plugins/Garden.zb1"
printf '%s\r\n' 'HKey_Current_User\Software\Garden\Recent- Key*' >"$installed/Plugins/Garden.zb2"
printf '%s\r\n' 'Cleans the garden.' '' >"$installed/Plugins/Garden.zb3"

run 0 --version
# Listing writes nothing, not even the settings that are missing.
for words in options plugins "get passes" "plugin show Garden" schedule "cookies ie" preview; do
  # shellcheck disable=SC2086
  zub $words
done
exported 'HKEY_CURRENT_USER\Software' >"$work/registry"
check "a listing wrote settings" [ "$(grep -c 'Software\\ZUB' "$work/registry")" -eq 0 ]
run 0 set chkDocHistory=1 chkFindHistory=1 chkRunHistory=1 chkTempFolder=1 chkScanDisk=1 chkRecycleBin=1 chkOfficeMRU=1 \
  chkWMP=1 chkIE=1 chkIECookies=1 chkIEAutocomplete=1 chkLoadStartup=1 "ZUBPlugin Garden=1" \
  "ZUBStandardPlugin Windows Paint=1"
refused 'there is no setting "chkPolish"' set chkPolish=1
run 0 cookies ie
kept=$(grep -F 'user@news.example[1].txt' "$work/out" | sed 's/ .*//')
run 0 cookies ie keep "$kept"
run 0 options
says "chkTempFolder=1"
says "chkNetscape=0"
says "ZUBStandardPlugin Windows Paint=1"

# A preview of it changes nothing, and what it lists is what the wash then removes.
whole() {
  exported 'HKEY_CURRENT_USER\Software' >"$work/keys"
  cat "$work/exported.reg"
  find "$pc" -mindepth 1 ! -name exported.reg -printf '%P %s %m %T@\n' | sort
}
whole >"$work/before"
cp "$work/keys" "$work/keys before"
run 0 preview --list
mv "$work/out" "$work/listed"
whole >"$work/after"
check "a preview changes the PC: $(diff "$work/before" "$work/after" | head -5)" cmp -s "$work/before" "$work/after"
for path in "${going[@]}"; do
  grep -Fixq -e "file	C:${path//\//\\}" "$work/listed" || fail "the preview does not list $path"
done

refused "nobody can be asked here: wash this PC with --yes" wash
# answered ANSWER TEXT: a wash at a terminal, where somebody answers when asked, tells this text. The terminal has not been
# tried through the system of the 32-bit Windows.
answered() {
  [ -z "${ZUB_WINDOWS:-}" ] || return
  rm -f "$work/answers" "$work/said"
  mkfifo "$work/answers"
  exec 5<>"$work/answers"
  timeout 60 script -qefc "stty raw -echo cols 200; ${program[*]@Q} wash" "$work/said" <"$work/answers" >/dev/null 2>&1 &
  until grep -aq 'Remove .*y/N' "$work/said" 2>/dev/null || ! kill -0 $! 2>/dev/null; do :; done
  printf '%s\r' "$1" >&5
  wait $!
  check "the wash that was answered with $1 does not tell: $2" grep -aqF "$2" "$work/said"
}
answered n "Nothing has been removed."
for path in "${going[@]}"; do here "$pc$path"; done
run 0 wash --yes
for text in "	Deleting file old.tmp" "	Deleting file read-only.tmp" "	Deleting file Diary.lnk" "	Deleting file FILE0000.CHK" \
  "ZUB has cleaned Garden , with the following results:" "ZUB has cleaned Windows Paint , with the following results:"; do
  says "$text"
done
for path in "${going[@]}"; do gone "$pc$path"; done
for path in "${staying[@]}"; do here "$pc$path"; done
for path in "$temp" "$recent" "$appData/Microsoft/Office/Recent"; do
  check "$path is not there, or not empty" [ -d "$pc$path" ]
  check "$path is not empty" [ -z "$(ls -A "$pc$path")" ]
done

exported 'HKEY_CURRENT_USER\Software' >"$work/registry"
for key in "${traces[@]}"; do ! grep -Fxq -e "$key" "$work/registry" || fail "is there: $key"; done
comm -23 "$work/keys before" "$work/registry" | grep -v '^HKEY_CURRENT_USER\\Software\\ZUB' >"$work/removed"
sed -nE 's/^key\t//p; s/^value\t(.*)\t/\1 -> /p' "$work/listed" | sort | diff - "$work/removed" >"$work/differs" ||
  fail "other keys and values go than the preview lists: $(head -5 "$work/differs")"
sed -nE 's/^(file|folder)\tC://p' "$work/listed" | tr '\\' / >"$work/paths"
while read -r path; do gone "$pc$path"; done <"$work/paths"
for key in "${decoys[@]}"; do grep -Fxq -e "$key -> File1" "$work/registry" || fail "is gone: $key"; done
for line in '"chkTempFolder"="1"' '"chkNetscape"="0"' '"ZUBPlugin Garden"="1"' '"ZUBPath"="C:\\Program Files\\'; do
  grep -Fq -e "$line" "$work/exported.reg" || fail "is not stored: $line"
done

# The entries that start the program with Windows are in the one key or in the other, in both hives.
inRun() {
  local hive
  for hive in HKEY_CURRENT_USER HKEY_LOCAL_MACHINE; do
    exported "$hive\\Software\\Microsoft\\Windows\\CurrentVersion" >"$work/registry"
    grep -Fxq -e "$hive\\$1 -> Zubrane" "$work/registry" || fail "is not in $hive\\$1"
    ! grep -Fxq -e "$hive\\$2 -> Zubrane" "$work/registry" || fail "is in $hive\\$2"
    grep -Fxq -e "$hive\\$1 -> Other" "$work/registry" || fail "another program is gone from $hive\\$1"
  done
}
inRun "$run" "$run-"
run 0 set chkLoadStartup=0
inRun "$run-" "$run"
run 0 wash --yes
says "Total amount of space restored: 100 Bytes"  # the wording for none
answered yes "Total amount of space restored: 100 Bytes"

# A dated wash starts the program with windows, which lies beside this one. A listing does not even make the task.
job=$pc/windows/tasks/ZUB.job
rm -f "$job"
run 0 schedule
silent out
[ ! -e "$job" ] || fail "a listing made the task"
run 0 schedule add 12/24/2031 "6:30 PM"
run 0 schedule
check "the dated wash is not listed" grep -q '12/24/2031' "$work/out"
tr -d '\0' <"$job" >"$work/job"
check "the task starts another program" grep -aFq 'C:\Program Files\Zubrane\zub' "$work/job"
! grep -aFq 'zub-console' "$work/job" || fail "the task starts the console program"
rm -f "$job"

# The words of the command line come in the system's code page.
rm -rf "${pc:?}/Café"
run 0 new 'C:\Café'
here "$pc/Café/pc.txt"
run 0 --pc 'C:\Café' set chkTempFolder=1
run 0 --pc 'C:\Café' wash

"$emulator" --stop

# The registry of a PC that is not running, and back: what a wash of its export changed is taken by the PC's own regedit.
"$emulator" reg import 'C:\seed.reg' >/dev/null 2>&1 || fail "the registry cannot be seeded again"
exported HKEY_CURRENT_USER >"$work/registry"
for key in "${traces[@]}"; do grep -Fxq -e "$key" "$work/registry" || fail "is not seeded: $key"; done
cp "$pc/exported.reg" "$pc/Café/registry.reg"
run 0 --pc 'C:\Café' set chkDocHistory=1 chkFindHistory=1 chkRunHistory=1 chkWMP=1 chkIE=1 chkIEAutocomplete=1 \
  "ZUBStandardPlugin Windows Paint=1"
run 0 --pc 'C:\Café' wash
here "$pc/Café/registry.reg.before"
"$emulator" regedit /S 'C:\Café\changes.reg' >/dev/null 2>&1 || fail "regedit does not take the changes"
exported HKEY_CURRENT_USER >"$work/registry"
for key in "${traces[@]}"; do
  [[ $key == *Garden* ]] || ! grep -Fxq -e "$key" "$work/registry" || fail "is there after the import: $key"
done
for key in "${decoys[@]}"; do grep -Fxq -e "$key -> File1" "$work/registry" || fail "went with the import: $key"; done
