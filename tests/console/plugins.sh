#!/usr/bin/env bash
# Plugins: the list with its ticks, what a plugin removes, and what in a plugin file can never work.
. "$(dirname "$0")/check.sh"
pc=$work/pc
plugins="C/Program Files/Zubrane/Plugins"
run 0 new "$pc"
run 0 --pc "$pc" plugins
says 'Custom plugins in C:\Program Files\Zubrane\Plugins:'
check "the catalogue has 84 rows" [ "$(grep -c '^  \[ \] ' "$work/out")" -eq 84 ]

text "$plugins/Garden Planner.zb1" 'C:\Garden\Plan.bak' 'C:\Garden\*.tmp >plus subdirectories< ' 'C:\Gard?n\a.txt'
text "$plugins/Garden Planner.zb2" 'HKey_Current_User\Software\Garden\Recent- Key*' 'HKey_Nobody\Software\Nothing- Key*'
text "$plugins/Garden Planner.zb3" 'Cleans the garden.' ''
for file in Plan.bak a.tmp Beds/b.tmp Beds/Roses.txt; do text "C/Garden/$file" x; done
printf '\r\n[HKEY_CURRENT_USER\\Software\\Garden\\Recent]\r\n"1"="Plan"\r\n' >>"$pc/registry.reg"

run 0 --pc "$pc" set "ZUBPlugin Garden Planner=1" "ZUBStandardPlugin Windows Paint=1"
run 0 --pc "$pc" plugins
for row in '  [x] Garden Planner' '  [x] Windows Paint' '  [ ] WinRAR (all versions)'; do says "$row"; done

run 0 --pc "$pc" plugin show "Windows Paint"
says '  registry: HKey_Current_User\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List+ Value`= File1'
run 0 --pc "$pc" plugin show "Garden Planner"
says '     Removes the file C:\Garden\Plan.bak'
cp "$work/out" "$work/shown"
# The check of a file, by its name in the plugin folder and by its path, says the same.
run 0 --pc "$pc" plugin check "Garden Planner.zb1"
check "show and check differ" [ "$(sed -n '/^Files:/,/^Registry:/p' "$work/shown" | sed '1d;$d')" = "$(cat "$work/out")" ]
check "the third line is not marked" diff <(grep -n '^   ! Never works' "$work/out" | cut -d: -f1) <(echo 6)
run 0 --pc "$pc" plugin check 'C:\Program Files\Zubrane\Plugins\garden planner.ZB2'
check "the second line is not marked" diff <(grep -n '^   ! Never works' "$work/out" | cut -d: -f1) <(echo 4)

run 0 --pc "$pc" wash
says 'ZUB has cleaned Garden Planner , with the following results:'
for file in Plan.bak a.tmp Beds/b.tmp; do gone "$pc/C/Garden/$file"; done
here "$pc/C/Garden/Beds/Roses.txt"
check "the key is there" [ -z "$(registry "$pc" | grep 'Garden.Recent')" ]
