#!/usr/bin/env bash
# From the image of a disk with its hives to a washed one and back, with the tools and steps that docs/disk-image.md
# tells: what was private is gone from the files and from the hives, and all else is in them.
. "$(dirname "$0")/check.sh"
for tool in hivexregedit mkntfs ntfs-3g fusermount python3; do
  type -P "$tool" >/dev/null || { echo "skipped: there is no $tool"; exit 77; }
done
[ -w /dev/fuse ] || { echo "skipped: nothing can be mounted"; exit 77; }

image=$work/xp.img mount=$work/mnt pc=$work/pc user=S-1-5-21-7
mkdir "$mount"
attach() { ntfs-3g -o "${1:-rw}" "$image" "$mount" || { echo "skipped: the image cannot be mounted"; exit 77; }; }
detach() { fusermount -u "$mount"; }
trap 'detach 2>/dev/null; finish' EXIT
profile="$mount/Documents and Settings/zoé"
software="$mount/WINDOWS/system32/config/software"

# fill HIVE PREFIX LINE...: a new hive of keys and of the values behind each.
fill() {
  local hive=$1 prefix=$2 path line
  shift 2
  "$tests/make-hive" "$hive"
  {
    printf 'Windows Registry Editor Version 5.00\n'
    for line; do
      case $line in
        \"*) echo "$line" ;;
        *)
          path=
          while read -r part; do path+="\\$part" && printf '\n[%s%s]\n' "$prefix" "$path"; done <<<"${line//\\/$'\n'}" ;;
      esac
    done
  } >"$work/fill.reg"
  hivexregedit --merge --prefix "$prefix" "$hive" "$work/fill.reg" || fail "the hive cannot be made: $hive"
}
# wide TEXT: its data as the system stores it, in letters of 16 bits.
wide() { printf 'hex(1):' && printf %s "$1" | iconv -f UTF-8 -t UTF-16LE | od -An -v -tx1 | tr -s ' \n' ',' | sed 's/^,//; s/,$/,00,00/'; }
explorer='Software\Microsoft\Windows\CurrentVersion\Explorer'
caches='Microsoft\Windows\CurrentVersion\Internet Settings\5.0\Cache'
truncate -s 8M "$image"
mkntfs -Q -F -q "$image" >/dev/null 2>&1
attach
mkdir -p "$profile/Cookies" "$profile/Local Settings/Temp" "$mount/RECYCLER/$user" "$mount/RECYCLER/S-1-5-21-8" "${software%/*}"
private=("$profile/Cookies/zoe@shop.example[1].txt" "$profile/Local Settings/Temp/old.tmp" "$mount/RECYCLER/$user/Dc1.txt")
others=("$mount/boot.txt" "$profile/Letter.txt" "$mount/RECYCLER/S-1-5-21-8/Dc1.txt")
for file in "${private[@]}" "${others[@]}"; do echo x >"$file"; done
fill "$profile/NTUSER.DAT" "HKEY_USERS\\$user" "$explorer\\Shell Folders" "\"Cookies\"=$(wide 'C:\Documents and Settings\zoé\Cookies')" \
  "$explorer\\RunMRU" '"a"="private"' "$explorer\\RunMRU kept" '"a"="kept"' 'Software\Kept é' '"ü"=dword:0000002a'
fill "$software" 'HKEY_LOCAL_MACHINE\SOFTWARE' 'Microsoft\Windows NT\CurrentVersion' '"SystemRoot"="C:\\WINDOWS"' \
  'Microsoft\Windows NT\CurrentVersion\ProfileList\'$user "\"ProfileImagePath\"=$(wide '%SystemDrive%\Documents and Settings\zoé')" \
  "$caches\\Extensible Cache" '"a"="private"' "$caches\\Paths" '"a"="kept"'
# There.
exported() { hivexregedit --export --prefix "$1" "$2" '\'; }
exported "HKEY_USERS\\$user" "$profile/NTUSER.DAT" >"$work/user.reg"
exported 'HKEY_LOCAL_MACHINE\SOFTWARE' "$software" >"$work/software.reg"
run 0 import --registry "$work/user.reg" "$work/software.reg" --drive C="$mount" "$pc"
for line in 'family = nt' 'windows = C:\WINDOWS' "user = $user" 'temp = C:\Documents and Settings\zoé\Local Settings\Temp'; do says "$line"; done
run 0 --pc "$pc" set chkRunHistory=1 chkTempFolder=1 chkRecycleBin=1 chkIE=1 chkIECookies=1 chkIECache=1

# A disk that is mounted read-only is listed, and a wash of it does not begin.
detach && attach ro
run 0 --pc "$pc" cookies ie
says "1 [ ] zoe@shop.example[1].txt"
run 1 --pc "$pc" preview
refused "nothing can be removed" --pc "$pc" wash
detach && attach

# And back.
run 0 --pc "$pc" wash
check "the whole of what changed" grep -q 'RunMRU\]' "$pc/changes.reg"
check "the program's own settings are told" [ "$(grep -c 'ZUB' "$pc/changes.reg")" -eq 0 ]
merge() {
  run 0 --pc "$pc" changes "$1"
  hivexregedit --merge --prefix "$1" "$2" "$pc/changes.reg" || fail "the changes are not taken: $2"
}
merge "HKEY_USERS\\$user" "$profile/NTUSER.DAT"
merge 'HKEY_LOCAL_MACHINE\SOFTWARE' "$software"
detach && attach
for file in "${private[@]}"; do gone "$file"; done
for file in "${others[@]}"; do here "$file"; done
left() { LC_ALL=C awk '/^\[/ { part = /RunMRU\]$|Extensible Cache\]$/ } !part' "$1"; }
check "the user's hive differs" diff <(left "$work/user.reg") <(exported "HKEY_USERS\\$user" "$profile/NTUSER.DAT")
check "the hive of the programs differs" diff <(left "$work/software.reg") <(exported 'HKEY_LOCAL_MACHINE\SOFTWARE' "$software")
check "nothing was private" [ "$(grep -c 'RunMRU\]' "$work/user.reg")" -eq 1 ]
check "the export is not kept" [ -s "$pc/registry.reg.before" ]
