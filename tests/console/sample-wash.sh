#!/usr/bin/env bash
# One wash of the sample PC: the report, the progress, and every line of samples/expected.txt against the disk and the
# saved registry. Then a second wash, which finds nothing to free.
. "$(dirname "$0")/check.sh"
pc=$work/pc
"$root/tools/sample-copy" "$pc"
expected=$root/samples/expected.txt

files() { (cd "$pc" && find [A-Z] -type f | sort); }
# The lines of the expectation for a word and a pattern, without the word.
listed() { grep -E "^$1 $2" "$expected" | cut -d' ' -f2-; }
keyPattern=HKEY_
diskPattern='[A-Z]:'
asHost() { sed 's|\\|/|g; s|^\([A-Z]\):|\1|'; }

files >"$work/files before"
registry "$pc" >"$work/registry before"
while read -r path; do here "$(host "$path")"; done < <(listed '(gone|stays)' "$diskPattern")
comm -13 "$work/registry before" <(listed '(gone|stays)' "$keyPattern" | sort) >"$work/missing"
check "the sample lacks registry entries: $(head -3 "$work/missing")" [ ! -s "$work/missing" ]

run 1 --pc "$pc" wash

# No progress where there is no terminal, only what stays; and the report, a heading for each task.
name=$(basename "${program[-1]}" .exe)
stays="$name: C:\\WINDOWS\\TEMP\\"
check "other than what stays is told" diff "$work/err" <(printf '%s\n' "$stays~DF3A21.TMP: Permission denied" \
  "$stays"VBE'\MSForms.exd: Permission denied' "$stays"'VBE: Permission denied' \
  "$name: 3 files, folders or keys could not be removed")
says Zubrone
check "the headings differ" [ "$(grep -c '^ZUB has cleaned .*, with the following results:$' "$work/out")" -eq 28 ]
locked=$(grep -c '^	Permission denied The file C:\\WINDOWS\\TEMP\\.* is locked or is on a read only drive/network' "$work/out")
check "two locked files are reported, not $locked" [ "$locked" -eq 2 ]
check "no time of removal" grep -Eq '^Last removal on [0-9/]+ at [0-9:]+ [AP]M' "$work/out"

# The disk: what is listed as gone is gone, and the other files are all there, with no new one but a keep file.
while read -r path; do gone "$(host "$path")"; done < <(listed gone "$diskPattern")
while read -r path; do here "$(host "$path")"; done < <(listed stays "$diskPattern")
listed gone "$diskPattern" | asHost | sort >"$work/gone"
{ comm -23 "$work/files before" "$work/gone"; echo C/ZUBKeepNS6.inf; } | sort >"$work/files wanted"
check "other files are there" diff "$work/files wanted" <(files)
check "the keep file is not empty" [ ! -s "$pc/C/ZUBKeepNS6.inf" ]

# The cookie that is left in each of the cookie files.
while read -r line; do
  path=${line#*left in } cookie=${line##*: }
  path=${path%: *}
  left=$(grep -v '^#' "$(host "$path")" | tr -d '\r' | grep . | cut -f1,6 | tr '\t' ' ')
  check "cookies of $path: $left" [ "$left" = "$cookie" ]
done < <(grep '^# Only this cookie' "$expected")

# The registry. What the wash adds are the program's own values, and the names of the empty hives.
registry "$pc" >"$work/registry"
comm -12 "$work/registry" <(listed gone "$keyPattern" | sort) >"$work/left"
check "registry entries are there: $(head -3 "$work/left")" [ ! -s "$work/left" ]
comm -13 "$work/registry" <(listed stays "$keyPattern" | sort) >"$work/lost"
check "registry entries are gone: $(head -3 "$work/lost")" [ ! -s "$work/lost" ]
comm -13 "$work/registry before" "$work/registry" | grep -Ev '^HKEY_[A-Z_]+$|^HKEY_CURRENT_USER\\Software\\ZUB -> ' >"$work/new"
check "new registry entries: $(head -3 "$work/new")" [ ! -s "$work/new" ]

# Two profiles share what their keep files hold after a wash, so their cookies are left out, and the times of the
# folders in which files are replaced.
disk() { portrait "$pc" | grep -Ev 'ZUBKeepNS6|cookies.txt|registry.reg|changes.reg|^\./C d |\.slt d |^\. '; }
disk >"$work/disk"
run 1 --pc "$pc" wash
says "Total amount of space restored: 100 Bytes"  # the wording for none
check "the second wash removed a file" diff "$work/disk" <(disk)
check "the second wash changed the registry" diff "$work/registry" <(registry "$pc")
