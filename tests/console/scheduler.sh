#!/usr/bin/env bash
# The scheduler in the foreground says what comes next, lets other commands at the PC, and ends cleanly on a signal.
. "$(dirname "$0")/check.sh"
pc=$work/pc
run 0 new "$pc"

for signal in INT TERM; do
  "${program[@]}" --pc "$pc" scheduler >"$work/said" 2>"$work/told" </dev/null &
  process=$!
  until_true grep -q "^Next" "$work/said"
  run 0 --pc "$pc" set chkBleach=1
  begun=${EPOCHREALTIME/./} status=0
  kill "-$signal" $process
  wait $process || status=$?
  check "SIG$signal ends it with $status" [ $status -eq 0 ]
  # Within a second; on a busy machine within two.
  check "SIG$signal ends it late" [ $((${EPOCHREALTIME/./} - begun)) -lt 2000000 ]
  check "something is told" [ ! -s "$work/told" ]
  check "what comes next is not said" diff <(echo "Next dated wash: none") "$work/said"
done
