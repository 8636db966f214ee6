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
text 'C/Garden/Plan.bak' bak
text 'C/Garden/a.tmp' tmp
text 'C/Garden/Beds/b.tmp' tmp
text 'C/Garden/Beds/Roses.txt' roses
printf '%s\r\n' '' '[HKEY_CURRENT_USER\Software\Garden\Recent]' '"1"="Plan"' '' '[HKEY_CURRENT_USER\Software\Garden\View]' \
  '"Zoom"=dword:00000001' >>"$pc/registry.reg"

run 0 --pc "$pc" plugins
says '  [ ] Garden Planner'
run 0 --pc "$pc" set "ZUBPlugin Garden Planner=1" "ZUBStandardPlugin Windows Paint=1"
run 0 --pc "$pc" plugins
says '  [x] Garden Planner'
says '  [x] Windows Paint'
says '  [ ] WinRAR (all versions)'

run 0 --pc "$pc" plugin show "Windows Paint"
says 'Standard plugin Windows Paint'
says '  registry: HKey_Current_User\Software\Microsoft\Windows\CurrentVersion\Applets\Paint\Recent File List+ Value`= File1'
run 0 --pc "$pc" plugin show "Garden Planner"
says 'Custom plugin Garden Planner'
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
gone "$pc/C/Garden/Plan.bak"
gone "$pc/C/Garden/a.tmp"
gone "$pc/C/Garden/Beds/b.tmp"
here "$pc/C/Garden/Beds/Roses.txt"
check "the registry differs" diff <(registry "$pc" | grep Garden) - <<'END'
HKEY_CURRENT_USER\Software\Garden
HKEY_CURRENT_USER\Software\Garden\View
HKEY_CURRENT_USER\Software\Garden\View -> Zoom
HKEY_CURRENT_USER\Software\ZUB -> ZUBPlugin Garden Planner
END
