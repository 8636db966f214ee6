#!/usr/bin/env bash
# Whose PC it is, and where its drives are: a PC that a wash would not understand is refused with the remedy, and
# nothing on it is touched.
. "$(dirname "$0")/check.sh"
pc=$work/pc

# A full export as of a disk with two users and nobody logged on.
branch='HKEY_USERS\S-1-5-21-7\Software\Microsoft\Windows\CurrentVersion\Explorer'
mkdir -p "$pc/C/Cookies" "$pc/C/RECYCLER/S-1-5-21-7" "$pc/C/RECYCLER/S-1-5-21-8" "$work/disk"
for file in root.txt Cookies/a.txt RECYCLER/S-1-5-21-7/Dc1.txt RECYCLER/S-1-5-21-8/Dc1.txt; do echo x >"$pc/C/$file"; done
cat >"$pc/registry.reg" <<END
REGEDIT4

[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\S-1-5-21-7]
"ProfileImagePath"="%SystemDrive%\\\\Documents and Settings\\\\lena"

[$branch\\Shell Folders]
"Cookies"="C:\\\\Cookies"

[$branch\\RunMRU]
"a"="private"

[HKEY_USERS\\.DEFAULT\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders]
"Desktop"="C:\\\\Default\\\\Desktop"

[HKEY_USERS\\S-1-5-21-7_Classes]
END
echo 'family = nt' >"$pc/pc.txt"
portrait "$pc" >"$work/before"
for words in wash "start /STARTUP" preview scheduler "--user .DEFAULT wash"; do
  # shellcheck disable=SC2086
  refused "choose a user with --user NAME" --pc "$pc" $words
done
refused '"S-1-5-21-8"; its branches: .DEFAULT, S-1-5-21-7, S-1-5-21-7_Classes' --pc "$pc" --user S-1-5-21-8 users
run 0 --pc "$pc" users
tells 'zub: C:\Recycler: no recycle bin in it is emptied'
check "the users differ" diff "$work/out" <(printf '%s\t%s\n' .DEFAULT 'C:\Default' S-1-5-21-7 'C:\Documents and Settings\lena')
check "a refused command changed the PC" diff "$work/before" <(portrait "$pc")

echo 'user = S-1-5-21-7' >>"$pc/pc.txt"
run 0 --pc "$pc" set chkRecycleBin=1 chkRunHistory=1 chkIE=1 chkIECookies=1
run 0 --pc "$pc" wash
here "$pc/C/root.txt"
here "$pc/C/RECYCLER/S-1-5-21-8/Dc1.txt"
gone "$pc/C/RECYCLER/S-1-5-21-7/Dc1.txt"
gone "$pc/C/Cookies/a.txt"
check "the trace stays" [ "$(grep -c RunMRU "$pc/registry.reg")" -eq 0 ]
check "what changed is told, and the program's own settings with it" [ "$(grep -cE 'RunMRU|ZUB' "$pc/changes.reg")" -eq 1 ]

# Drives: what looks like one is told, and a drive may lie elsewhere.
mv "$pc/C" "$work/elsewhere"
mkdir "$pc/c"
ln -s ../disk "$pc/D"
refused "has no drive to wash" --pc "$pc" wash
tells 'zub: "c" is no drive: those have capital letters'
tells 'zub: "D" is a link, which is no drive; with "drive D = fixed at FOLDER" in pc.txt'
echo 'drive C = fixed at ../elsewhere' >>"$pc/pc.txt"
echo "drive D = fixed at $work/disk" >>"$pc/pc.txt"
echo x >"$work/elsewhere/Cookies/b.txt"
run 0 --pc "$pc" wash
tells "zub: drive D: is empty: is its disk mounted?"
gone "$work/elsewhere/Cookies/b.txt"
