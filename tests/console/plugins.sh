#!/usr/bin/env bash
# Plugins: the list with its ticks, what a plugin removes, and what in a plugin file can never work.
. "$(dirname "$0")/check.sh"
pc=$work/pc
plugins="C/Program Files/Zubrane/Plugins"
run 0 new "$pc"
run 0 --pc "$pc" plugins
says 'Custom plugins in C:\Program Files\Zubrane\Plugins:'

text "$plugins/Garden Planner.zb1" 'C:\Garden\Plan.bak' 'C:\Garden\*.tmp >plus subdirectories< ' 'C:\Gard?n\a.txt'
text "$plugins/Garden Planner.zb2" 'HKey_Current_User\Software\Garden\Recent- Key*' 'HKey_Nobody\Software\Nothing- Key*'
text "$plugins/Garden Planner.zb3" 'Cleans the garden.' ''
for file in Plan.bak a.tmp Beds/b.tmp Beds/Roses.txt; do text "C/Garden/$file" x; done
printf '\r\n[HKEY_CURRENT_USER\\Software\\Garden\\Recent]\r\n"1"="Plan"\r\n' >>"$pc/registry.reg"

run 0 --pc "$pc" set "ZUBPlugin Garden Planner=1" "ZUBStandardPlugin Windows Paint=1"
run 0 --pc "$pc" plugins
silent err
run 0 --pc "$pc" set "ZUBStandardPlugin GetRight 3.x=1" "ZUBStandardPlugin WinRAR (all versions)=1"
check "not one row is warned of" [ "$(grep -c 'This plugin' "$work/err")" -eq 1 ]
tells 'GetRight 3.x: This plugin cleans'
run 0 --pc "$pc" set "ZUBStandardPlugin GetRight 3.x=0" "ZUBStandardPlugin WinRAR (all versions)=0"
silent err
run 0 --pc "$pc" plugins
for row in '  [x] Garden Planner' '  [x] Windows Paint' '  [ ] WinRAR (all versions)'; do says "$row"; done

run 0 --pc "$pc" plugin show "Windows Paint"
says '     Removes the value File1 of the key HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List; once the wash has wiped any key, all of it'
run 0 --pc "$pc" plugin show "Garden Planner"
says '     Removes the file C:\GARDEN\PLAN.BAK'
cp "$work/out" "$work/shown"
# The check of a file, by its name in the plugin folder and by its path, says the same.
run 1 --pc "$pc" plugin check "Garden Planner.zb1"
check "show and check differ" [ "$(sed -n '/^Files:/,/^Registry:/p' "$work/shown" | sed '1d;$d')" = "$(cat "$work/out")" ]
check "the third line is not marked" diff <(grep -n '^   ! Never works' "$work/out" | cut -d: -f1) <(echo 6)
run 0 --pc "$pc" plugin check 'C:\Program Files\Zubrane\Plugins\garden planner.ZB2'
check "the second line is not marked" diff <(grep -n '^   ! Removes' "$work/out" | cut -d: -f1) <(echo 4)
# Files of the host, several at once; those of one plugin are read as one.
cp "$pc/$plugins/Garden Planner".zb? "$work"
printf '*.tmp\n' >"$work/Stops.zb1"
printf 'HKEY_USERS\\a- Key*\n' >"$work/Stops.zb2"
run 1 --pc "$pc" plugin check "$work/Stops.zb1" "$work/Stops.zb2" "$work/Garden Planner.zb2"
check "not all lines are told" [ "$(grep -c 'Is not read' "$work/out")/$(grep -c 'Removes the key' "$work/out")" = 1/2 ]
refused 'None.zb1: Path not found' --pc "$pc" plugin check "$work/None.zb1"
refused 'reads .zb1 and .zb2 files' --pc "$pc" plugin check "$work/Garden Planner.zb3"
# What is dangerous, and what the folders are on this PC.
run 0 --pc "$pc" plugin show "Windows Recent Network Drive List"
check "the danger is not marked" grep -q '^   ! Removes .*the hive HKEY_CURRENT_USER itself' "$work/out"
run 0 --pc "$pc" plugin show "Norton AntiVirus 2000"
says '   ! Removes the file \Activity.log (its folder cannot be read from the registry)'
rm "$pc/$plugins/Garden Planner.zb2"
run 0 --pc "$pc" plugin show "Garden Planner"
check "the end of the run is not told" grep -q '^   ! A run ends here, and the plugin is not counted' "$work/out"
cp "$work/Garden Planner.zb2" "$pc/$plugins"

run 0 --pc "$pc" wash
says 'ZUB has cleaned Garden Planner , with the following results:'
for file in Plan.bak a.tmp Beds/b.tmp; do gone "$pc/C/Garden/$file"; done
here "$pc/C/Garden/Beds/Roses.txt"
check "the key is there" [ -z "$(registry "$pc" | grep 'Garden.Recent')" ]
