#!/usr/bin/env bash
# Cookies: the lists, keeping and dropping by number, and what a wash then leaves.
. "$(dirname "$0")/check.sh"
pc=$work/pc
"$root/tools/sample-copy" "$pc"
cookies=$pc/C/WINDOWS/Cookies
kids="$pc/C/WINDOWS/Application Data/Mozilla/Profiles/kids/77dhm0ab.slt"

# The number of the listed row that holds a text.
number() { grep -F -e "$1" "$work/out" | sed 's/ .*//'; }
row() { grep -F -e "$1" "$work/out" | grep -q "^[0-9]* \[$2\]" || fail "is not listed with [$2]: $1"; }

run 0 --pc "$pc" cookies ie
row 'family@news.example[1].txt' x
row 'zoé@boutique.example[1].txt' x
row 'family@shop.example[2].txt' ' '
keep=$(number 'family@shop.example[2].txt')
drop=$(number 'family@news.example[1].txt')
run 0 --pc "$pc" cookies ie keep "$keep"
run 0 --pc "$pc" cookies ie drop "$drop"
run 0 --pc "$pc" cookies ie
row 'family@shop.example[2].txt' x
row 'family@news.example[1].txt' ' '
row 'zoé@boutique.example[1].txt' x

run 0 --pc "$pc" cookies netscape
check "the profiles are not told" [ "$(grep -c '^Profile ' "$work/out")" -eq 2 ]
row player x
row score ' '
row basket ' '
player=$(number player) score=$(number score) basket=$(number basket) region=$(number region)
run 0 --pc "$pc" cookies netscape keep "$score" "$basket"
run 0 --pc "$pc" cookies netscape drop "$player" "$region"

# A number that is not listed changes nothing, also beside one that is.
portrait "$pc" | grep inf >"$work/before"
for browser in ie netscape; do
  refused "there is no cookie 99" --pc "$pc" cookies $browser keep 1 99
  refused '"0" is no number of the list' --pc "$pc" cookies $browser keep 0
  refused '"1x" is no number of the list' --pc "$pc" cookies $browser drop 1x
done
check "a refused command changed the keep files" \
  diff <(grep -v '^\./' "$work/before") <(portrait "$pc" | grep inf | grep -v '^\./')

run 0 --pc "$pc" cookies netscape
row score x
row basket x
row player ' '
row region ' '

# Of two profiles a wash keeps the ticks of each; how it writes their keep files again is another matter.
run 1 --pc "$pc" wash
here "$cookies/family@shop.example[2].txt"
here "$cookies/zoé@boutique.example[1].txt"
gone "$cookies/family@shop.example[1].txt"
gone "$cookies/family@news.example[1].txt"
here "$cookies/cookie recipes.rtf"
check "the kept cookie is not left alone" [ "$(cut -f6 "$kids/cookies.txt")" = score ]
check "the kept cookie is not left alone" [ "$(cut -f6 "$kids/../../default/k3v9xq2t.slt/cookies.txt")" = basket ]
