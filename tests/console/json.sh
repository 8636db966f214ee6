#!/usr/bin/env bash
# What --json writes: whole documents of the schema, with the values that the same command tells in words.
. "$(dirname "$0")/check.sh"
pc=$work/pc
"$root/tools/sample-copy" "$pc"
# A name of the host that is no Unicode, beside one that is; and a site that would steer the terminal.
touch "$pc/C/WINDOWS/TEMP/ā.tmp" "$pc/C/WINDOWS/TEMP/"$'bad\xe9.tmp'
printf 'evil\033.example\tTRUE\t/\tFALSE\t1072915200\tx"\\\t1\n' >>"$pc/C/WINDOWS/Application Data/Mozilla/Profiles/kids/77dhm0ab.slt/cookies.txt"
run 0 --pc "$pc" schedule add 12/24/2031 18:00

# document STATUS PART... -- WORD...: the command writes one line that holds these parts.
documents=0
document() {
  local wanted=$1 parts=() part
  shift
  while [ "$1" != -- ]; do parts+=("$1") && shift; done
  shift
  run "$wanted" --pc "$pc" "$@" --json
  check "\"$*\" writes $(wc -l <"$work/out") lines" [ "$(wc -l <"$work/out")" -eq 1 ]
  for part in "${parts[@]}"; do check "\"$*\" lacks: $part" grep -Fq -e "$part" "$work/out"; done
  cp "$work/out" "$work/document.$((++documents))"
}
document 0 '{"name":"passes","value":1,"lowest":1,"highest":9,"does":"how often files are overwritten"}' -- options
document 0 '{"command":"plugins","folder":"C:\\Program Files\\Zubrane\\Plugins","custom":[{"name":"Card Shop Deluxe","ticked":true}' -- plugins
document 0 '{"command":"schedule","washes":[{"number":1,"when":"At 6:00 PM on 12/24/2031"}]}' -- schedule
document 0 '"kept":true,"shown":"zoé@boutique.example[1].txt"' -- cookies ie keep 1
document 0 '"shown":"evil\u001b.example"' 'x\"\\\t1' -- cookies netscape
document 1 '"left":[{"what":"C:\\WINDOWS\\TEMP\\~DF3A21.TMP","why":"Permission denied","unread":false},' -- preview --only temp
document 1 '{"kind":"file","path":"C:\\WINDOWS\\TEMP\\ā.tmp"}' 'bad�.tmp' '{"kind":"value","path":"HKEY_' -- preview --list
cp -r "$pc" "$work/again"
document 1 '{"command":"wash","washed":true,"interrupted":false,"bytes":' '"report":["' '"\tDeleting file ā.tmp"' -- wash
# A wash whose end fails is told all the same; nothing but the document is said.
rm -rf "$pc" && mv "$work/again" "$pc"
echo 'no rights = HKEY_CURRENT_USER\Software' >>"$pc/pc.txt"
document 2 '"error":"the settings cannot be changed: no rights to their key"}' -- wash --quiet
# A refusal writes no document.
refused "there is no plugin" --pc "$pc" wash --plugin polish --json

if python3 -c 'import jsonschema' 2>/dev/null; then
  python3 - "$root/docs/output.schema.json" "$work"/document.* <<'END' || fail "a document is not of the schema"
import json, sys, jsonschema
schema, *documents = [json.load(open(name, encoding="utf-8")) for name in sys.argv[1:]]
validator = jsonschema.Draft7Validator(schema)
validator.check_schema(schema)
errors = [(document["command"], error) for document in documents for error in validator.iter_errors(document)]
assert {document["command"] for document in documents} == {kind["properties"]["command"]["const"] for kind in schema["oneOf"]}
for command, error in errors:
    best = jsonschema.exceptions.best_match([error])
    print(command, list(best.absolute_path), best.message[:300])
sys.exit(bool(errors))
END
else
  echo "skipped: the schema, for there is no python3-jsonschema"
fi
