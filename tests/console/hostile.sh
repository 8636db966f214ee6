#!/usr/bin/env bash
# PCs that were made to lead a wash out of their folder: by links, by the paths in the registry, in plugins, in browser
# files and in the facts. What lies beside the PC stays as it is, to the byte, also with the shredder on.
. "$(dirname "$0")/check.sh"
pc=$work/pc
outside=$work/outside

mkdir -p "$outside/Cache/sub" "$outside/TEMP"
for name in old.tmp Cache/sub/cookie.txt Cache/index.dat TEMP/old.tmp scandisk.log FILE0000.CHK INFO2 x.slt; do
  echo "belongs to somebody else" >"$outside/$name"
done
printf 'REGEDIT4\n\n[HKEY_CURRENT_USER\\Software\\ZUB]\n"chkTempFolder"="1"\n' >"$outside/registry.reg"
echo 'family = nt' >"$outside/pc.txt"
echo 'task = ZUB' >"$outside/tasks.txt"
portrait "$outside" >"$work/outside before"
untouched() { check "what lies outside was changed: $1" diff "$work/outside before" <(portrait "$outside"); }

everything=(chkDocHistory chkFindHistory chkRunHistory chkTempFolder chkScanDisk chkRecycleBin chkOfficeMRU chkWMP chkIE
  chkNetscape chkIECache chkIECookies chkIEPrograms chkIEIndex chkIEAutocomplete chkNSCache chkNSCookie chkNSMail
  chkNSHistory chkBleach)
run 0 new "$work/first"
run 0 --pc "$work/first" set "${everything[@]/%/=1}"
newPc() { rm -rf "$pc" && cp -R "$work/first" "$pc"; }
# A wash that ends by itself, with any status of a wash.
wash() {
  local status=0
  zub --pc "$pc" wash || status=$?
  [ $status -le "${worst:-1}" ] || fail "the wash ended with $status: $(tail -1 "$work/err")"
}

# Links in place of the folders of the PC, of a drive and of the texts that hold the PC.
for place in C/WINDOWS/TEMP C/WINDOWS C/RECYCLED C D "C/Program Files/Zubrane/Plugins" "C/Program Files"; do
  newPc
  rm -rf "${pc:?}/$place"
  mkdir -p "$(dirname "$pc/$place")"
  ln -s "$outside" "$pc/$place"
  worst=$([ "$place" = C ] && echo 2 || echo 1) wash  # refused without any drive
  untouched "$place is a link"
  check "the link is gone: $place" [ -L "$pc/$place" ]
done
for name in registry.reg pc.txt tasks.txt; do
  newPc
  rm -f "$pc/$name"
  ln -s "$outside/$name" "$pc/$name"
  refused "zub: $name: cannot be read" --pc "$pc" wash
  refused "zub: $name: cannot be read" --pc "$pc" set chkBleach=0
  untouched "$name is a link"
done

# Paths that lead out, wherever a path can stand. $1 in each is a folder or file outside, with backslashes.
up='..\..\..\..\..\..'
fromHere=${outside//\//\\}
leadsOut=("C:\\$up\\outside" "$up\\outside" 'C:\WINDOWS\..\..\outside' 'C:\WINDOWS\TEMP\..\..\..\..\outside' "C:..\\outside"
  "$fromHere" "C:$fromHere" "Z:$fromHere" "\\\\server\\share" "\\\\?\\C:$fromHere" "\\\\.\\C:\\..\\outside" "$outside"
  "C:/../outside" 'C:\LINK' 'C:\LINK\..\outside' 'D:\' 'C:\WINDOWS\./../../outside' 'C:\outside:stream')

plugins="C/Program Files/Zubrane/Plugins"
shell='Software\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders'
hostilePc() {
  newPc
  ln -s "$outside" "$pc/C/LINK"
  ln -s "$outside" "$pc/D"
}
# In the registry, as many at once as it has folders.
for ((at = 0; at < ${#leadsOut[@]}; at += 6)); do
  hostilePc
  escaped=("${leadsOut[@]:at:6}")
  escaped=("${escaped[@]//\\/\\\\}")
  {
    printf '\n[HKEY_CURRENT_USER\\%s]\n' "$shell"
    for name in Recent Cache Cookies History AppData; do
      printf '"%s"="%s"\n' $name "${escaped[0]}"
      escaped=("${escaped[@]:1}" "${escaped[0]}")
    done
    printf '\n[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\5.0\\Cache\\Content]\n'
    printf '"CachePath"="%s"\n' "${escaped[0]}"
  } >>"$pc/registry.reg"
  wash
  untouched "folders from the path $at on"
done
# In a plugin, and where a browser's own file names the folder: a profile with a cookie file.
hostilePc
printf '\n[HKEY_CURRENT_USER\\%s]\n"AppData"="C:\\\\Data"\n' "$shell" >>"$pc/registry.reg"
mkdir -p "$pc/C/Data/Mozilla"
printf '%s\\x.slt\0' "${leadsOut[@]}" "${leadsOut[@]/%/.slt}" >"$pc/C/Data/Mozilla/Registry.dat"
text "$pc/$plugins/Out.zb1" "${leadsOut[@]/%/\\old.tmp}" "${leadsOut[@]/%/\\*.*}" \
  "${leadsOut[@]/%/\\*.tmp >plus subdirectories< }" "${leadsOut[@]}" 'C:\last.tmp'
text "$pc/C/last.tmp" x
text "$pc/$plugins/Out.zb2" 'No entries.'
text "$pc/$plugins/Out.zb3" '' ''
run 0 --pc "$pc" set "ZUBPlugin Out=1"
wash
untouched "paths in a plugin and profiles"
gone "$pc/C/last.tmp"

# A PC whose facts lead out is washed within its folder.
newPc
sed -i 's|^temp = .*|temp = C:\\..\\..\\outside\\TEMP|' "$pc/pc.txt"
wash
untouched "the temp folder of the facts"

# A plugin's name is part of the paths of its files.
newPc
refused 'there is no plugin' --pc "$pc" plugin show "..\\..\\..\\..\\outside\\old"
zub --pc "$pc" plugin check "C:\\..\\..\\outside\\x.zb1"
check "a file outside was read" [ "$(grep -c 'somebody else' "$work/out")" -eq 0 ]
untouched "plugins named with a path"
