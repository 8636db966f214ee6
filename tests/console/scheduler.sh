#!/usr/bin/env bash
# The scheduler in the foreground: it goes on when the tasks file changes or is damaged, lets other commands at the PC, and
# ends cleanly on a signal.
. "$(dirname "$0")/check.sh"
pc=$work/pc
run 0 new "$pc"
run 0 --pc "$pc" schedule add 1/1/2035 1:00
sed -i s/2035/2020/ "$pc/tasks.txt"  # it is over now
cp "$pc/tasks.txt" "$work/tasks"

# begin: starts the scheduler and waits until it catches both signals.
begin() {
  "${program[@]}" --pc "$pc" scheduler >"$work/said" 2>"$work/told" </dev/null &
  process=$!
  until_true catches
}
catches() {
  local mask
  [ "/proc/$process/exe" -ef "${program[0]}" ] || return
  mask=$(sed -n 's/^SigCgt:\s*//p' "/proc/$process/status")
  [ $((16#$mask & 0x4002)) -eq $((0x4002)) ]  # bits of SIGINT and SIGTERM
}
# stop SIGNAL: it ends with status 0 within a second; on a busy machine within two.
stop() {
  local begun=${EPOCHREALTIME/./} status=0
  kill "-$1" $process
  wait $process || status=$?
  check "SIG$1 ends it with $status" [ $status -eq 0 ]
  check "SIG$1 ends it late" [ $((${EPOCHREALTIME/./} - begun)) -lt 2000000 ]
}
# Times that the scheduler has waited so far.
waits() { sed -n 's/^voluntary_ctxt_switches:\s*//p' "/proc/$process/status"; }
waited() { [ "$(waits)" -ge "$1" ]; }
told() { grep -Fq -e "$1" "$work/told"; }

for signal in INT TERM; do
  begin
  stop $signal
  check "something is told" [ ! -s "$work/told" ]
  check "what comes next is not said" diff <(echo "Next dated wash: none") "$work/said"
done

run 0 --pc "$pc" set chkRunAuto=1
begin
first=$(wc -l <"$work/tasks")
{ cat "$work/tasks"; echo "trigger = 0 2030-02-31 10:00"; } >"$pc/tasks.txt"
until_true told "tasks.txt: line $((first + 1)): a trigger is told as"
until_true waited $(($(waits) + 3))
check "the damage is told again" [ "$(wc -l <"$work/told")" -eq 1 ]
echo "colour = blue" >"$pc/tasks.txt"
until_true told "tasks.txt: line 1: stands before the first task"
{ cat "$work/tasks"; echo "trigger = 0 2030-02-28 10:00"; } >"$pc/tasks.txt"
until_true waited $(($(waits) + 2))
# Other commands work on the PC meanwhile.
run 0 --pc "$pc" schedule
says "2 At 10:00 AM on 2/28/2030"
run 0 --pc "$pc" set chkBleach=1
stop TERM
for line in "Next dated wash: 2/28/2030 10:00:00 AM" "Next wash by the interval: [0-9][0-9]:"; do
  check "$line is not said" grep -q -e "^$line" "$work/said"
done
run 0 --pc "$pc" set chkRunAuto=0
check "more than the two damages is told" [ "$(wc -l <"$work/told")" -eq 2 ]
check "something was washed" [ "$(grep -vc '^Next ' "$work/said")" -eq 0 ]
