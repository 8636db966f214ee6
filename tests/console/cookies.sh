#!/usr/bin/env bash
# Cookies: the lists, keeping and dropping by number, and what a wash then leaves.
. "$(dirname "$0")/check.sh"
pc=$work/pc
"$root/tools/sample-copy" "$pc"
cookies=$pc/C/WINDOWS/Cookies
profiles="$pc/C/WINDOWS/Application Data/Mozilla/Profiles"

# The number of the listed row that holds a text.
number() { grep -F -e "$1" "$work/out" | sed 's/ .*//'; }
# listed BROWSER TICK TEXT...: the rows that hold these texts have this tick.
listed() {
  local browser=$1 tick=$2 text
  shift 2
  run 0 --pc "$pc" cookies "$browser"
  for text; do grep -F -e "$text" "$work/out" | grep -q "^[0-9]* \[$tick\]" || fail "is not listed with [$tick]: $text"; done
}

listed ie ' ' 'family@shop.example[2].txt'
listed ie x 'family@news.example[1].txt' 'zoé@boutique.example[1].txt'
keep=$(number 'family@shop.example[2].txt')
drop=$(number 'family@news.example[1].txt')
run 0 --pc "$pc" cookies ie keep "$keep"
run 0 --pc "$pc" cookies ie drop "$drop"
listed ie x 'family@shop.example[2].txt' 'zoé@boutique.example[1].txt'
listed ie ' ' 'family@news.example[1].txt'

listed netscape x player
listed netscape ' ' score basket
check "the profiles are not told" [ "$(grep -c '^Profile ' "$work/out")" -eq 2 ]
player=$(number player) score=$(number score) basket=$(number basket) region=$(number region)
run 0 --pc "$pc" cookies netscape keep "$score" "$basket"
run 0 --pc "$pc" cookies netscape drop "$player" "$region"

# A number that is not listed changes nothing, also beside one that is.
for browser in ie netscape; do
  refused "there is no cookie 87654" --pc "$pc" cookies $browser keep 1 87654
  refused "there is no cookie 9032" --pc "$pc" cookies $browser keep 1-9032
  refused 'there is no cookie of "*.nowhere.example"' --pc "$pc" cookies $browser keep 1 "*.nowhere.example"
  for none in 0 - 2-1; do refused "\"$none\" is no number of the list" --pc "$pc" cookies $browser keep $none; done
done
listed ie ' ' 'family@news.example[1].txt'
listed netscape x score basket
listed netscape ' ' player region

# What is said to be kept is on the disk; what cannot be read or saved is told, and stays. A listing writes nothing.
cp "$pc/pc.txt" "$work/facts"
mv "$cookies/index.dat" "$work/index"
for fact in 'read only = C' 'locked = C:\WINDOWS\Cookies\ZUBKeep.inf'; do
  printf '%s\n' "$fact" >>"$pc/pc.txt"
  portrait "$pc" >"$work/before"
  [[ $fact == locked* ]] || run 0 --pc "$pc" cookies ie
  run 0 --pc "$pc" cookies netscape
  refused 'ZUBKeep.inf: Permission denied' --pc "$pc" cookies ie keep 1
  [[ $fact == locked* ]] || refused 'ZUBKeepNS6.inf: Permission denied' --pc "$pc" cookies netscape keep 1
  check "something was written" diff "$work/before" <(portrait "$pc")
  cp "$work/facts" "$pc/pc.txt"
done
mv "$work/index" "$cookies/index.dat"

# Ranges and sites. What a site puts into its name never steers the terminal.
run 0 --pc "$pc" cookies ie keep 2-3 'NEWS.?xample.com'
listed ie x 'family@news.example[1].txt' 'family@shop.example[1].txt'
run 0 --pc "$pc" cookies ie drop '*'
check "a cookie is still kept" [ ! -s "$cookies/ZUBKeep.inf" ]
run 0 --pc "$pc" cookies ie keep "$keep" 'zoé@*'
cookieFile=$profiles/kids/77dhm0ab.slt/cookies.txt
cp "$cookieFile" "$work/cookies"
printf 'evil\033]0;x\235.example\tTRUE\t/\tFALSE\t1072915200\tbell\a\t1\n' >>"$cookieFile"
run 0 --pc "$pc" cookies netscape
check "a control character is not replaced" grep -Fq 'evil?]0;x?.example' "$work/out"
check "a control character is said" [ "$(grep -c '[[:cntrl:]]' <(tr -d '\t' <"$work/out"))" -eq 0 ]
cp "$work/cookies" "$cookieFile"

# Of two profiles a wash keeps the ticks of each; how it writes their keep files again is another matter.
run 1 --pc "$pc" wash
for name in 'family@shop.example[2].txt' 'zoé@boutique.example[1].txt' "cookie recipes.rtf"; do here "$cookies/$name"; done
for name in 'family@shop.example[1].txt' 'family@news.example[1].txt'; do gone "$cookies/$name"; done
check "the kept cookie is not left alone" [ "$(cut -f6 "$profiles/kids/77dhm0ab.slt/cookies.txt")" = score ]
check "the kept cookie is not left alone" [ "$(cut -f6 "$profiles/default/k3v9xq2t.slt/cookies.txt")" = basket ]
