#!/usr/bin/env bash
# tests/packages/setup.sh FOLDER: packs the setup program of this build tree, installs with it in a Windows of its own, uses
# the program, installs over it while it runs, and uninstalls. What is there then is what was there before, and what is the
# user's. ZUB_WINDOWS is that of tools/wine-run.
set -u
here=$(cd "$(dirname "$0")/../.." && pwd)
windows=${ZUB_WINDOWS:?the Windows of 32 bit}
# packed: the path of the setup program.
packed() { find "$1/package" -maxdepth 1 -name 'zubrane-*-setup.exe'; }
if [ -z "${ZUB_INSIDE:-}" ]; then
  rm -rf "$1/package"
  cpack --config "$1/CPackConfig.cmake" -G NSIS >"$1/package.log" 2>&1 || { cat "$1/package.log"; exit 1; }
  (cd "$1/package" && sha256sum --check --quiet ./*-setup.exe.sha256) || exit 1
  exec "$here/tools/system-32" "$here/tests/packages/setup.sh" "$@"
fi
setup=$(packed "$1")
export ZUB_WINEPREFIX="$here/build/wine-setup-$windows"
rm -rf "$ZUB_WINEPREFIX"
mkdir -p "$ZUB_WINEPREFIX"
work=$(mktemp -d)
pc=$ZUB_WINEPREFIX/drive_c
wine=$here/tools/wine-run
if [ -z "${DISPLAY:-}" ]; then exec xvfb-run -a "$0" "$@"; fi
trap '"$wine" --stop; rm -rf "$work"' EXIT
"$wine" --start

failures=0
fail() { echo "FAIL $*"; failures=$((failures + 1)); }
here() { [ -e "$1" ] || fail "not there: ${1#"$pc"}"; }
gone() { [ ! -e "$1" ] || fail "still there: ${1#"$pc"}"; }
# until_true COMMAND...: waits for the end of what goes on beside.
until_true() { for _ in $(seq 200); do "$@" && return; sleep 0.1; done; fail "never: $*"; }
add() { "$wine" reg add "$@" /f >/dev/null 2>&1 || fail "reg add $1"; }
# snapshot NAME: all files, and the registry, as lines; but for what Wine notes of menus and of its own, and the copy that an
# uninstaller works from, which goes when Windows starts the next time.
snapshot() {
  (cd "$pc" && find . -not -path './windows/*' -o -path './windows/tasks/*' | grep -v '/~nsu' | LC_ALL=C sort) >"$work/$1.files"
  for hive in HKLM HKCU; do
    "$wine" reg export $hive 'C:\windows\temp\exported.reg' /y >/dev/null 2>&1 || fail "reg export $hive"
    iconv -f UTF-16 -t UTF-8 "$pc/windows/temp/exported.reg"
  done | tr -d '\r' | awk '
    /^\[/ { noted = /\\Wine\\(MenuFiles|WineDbg|Temporary System Parameters)|\\FileRenameOperations|\\ServiceCurrent\]/ }
    /^"PendingFileRename/ { pending = 1 }
    !noted && !pending && !/^$/
    pending { pending = /\\$/ }' >"$work/$1.reg"
}

run='Software\Microsoft\Windows\CurrentVersion\Run'
add "HKCU\\$run" /v Other /d other.exe
add "HKLM\\$run" /v Other /d other.exe
add "HKCU\\$run-" /v Other /d other.exe
add "HKLM\\$run-" /v Other /d other.exe
snapshot before

"$wine" "$setup" /S /AllUsers || fail "the setup program: $?"
installed="$pc/Program Files/Zubrane"
console='C:\Program Files\Zubrane\zub-console.exe'
for path in zub.exe zub-console.exe License.txt "help/Zubrane User Guide.htm" Uninstall.exe; do here "$installed/$path"; done
[ "$(find "$pc" -name Zubrane.lnk | wc -l)" -eq 2 ] || fail "the links in the menu and on the desktop"
"$wine" "$console" --version >/dev/null || fail "the installed console program"

# What the program leaves in use.
for hive in HKCU HKLM; do for key in "$run" "$run-"; do add "$hive\\$key" /v Zubrane /d '"C:\Program Files\Zubrane\zub.exe" -s'; done; done
"$wine" "$console" set chkTempFolder=1 >/dev/null || fail "set"
"$wine" "$console" schedule add 2090-01-05 10:00 >"$work/out" 2>&1 || fail "schedule add: $(cat "$work/out")"
task=$(find "$pc/windows" -iname 'ZUB.job')
[ -n "$task" ] || fail "the program made no task"
echo kept >"$pc/ZUBKeepNS6.inf"
echo mine >"$installed/Plugins/Mine.zb1"
"$wine" "C:\\Program Files\\Zubrane\\zub.exe" >/dev/null 2>&1 &
runs() { "$wine" winedbg --command "info wnd" 2>/dev/null | grep -q ZubraneTray; }
until_true runs

# Over itself, while it runs: it is asked to end.
"$wine" "$setup" /S /AllUsers /NoDesktop || fail "the setup program, again: $?"
runs && fail "the running program did not end"

"$wine" "$installed/Uninstall.exe" /S /AllUsers || fail "the uninstaller: $?"
# It works from a copy of itself.
uninstalled() { [ ! -e "$installed/Uninstall.exe" ] && ! find /proc/[0-9]*/fd -lname '*/~nsu*' 2>/dev/null | grep -q .; }
until_true uninstalled
gone "$installed/zub.exe"
gone "$task"
here "$installed/Plugins/Mine.zb1"
here "$pc/ZUBKeepNS6.inf"
"$wine" reg query 'HKCU\Software\ZUB' >/dev/null 2>&1 || fail "the settings went without a word of the user"

# Once more, with all that is left.
rm -r "$installed"
"$wine" "$setup" /S /AllUsers || fail "the setup program, once more: $?"
"$wine" "$installed/Uninstall.exe" /S /AllUsers /Settings || fail "the uninstaller, once more: $?"
until_true uninstalled
snapshot after
for part in files reg; do
  diff "$work/before.$part" "$work/after.$part" >"$work/diff" || fail "what setup and uninstaller leave ($part): $(head -40 "$work/diff")"
done
[ $failures -eq 0 ] && echo "ok"
