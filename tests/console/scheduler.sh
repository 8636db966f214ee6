#!/usr/bin/env bash
# The scheduler in the foreground: it starts washes when they are due, goes on when the tasks file changes or is damaged,
# lets other commands at the PC, and ends cleanly on a signal.
. "$(dirname "$0")/check.sh"
pc=$work/pc
run 0 new "$pc"
run 0 --pc "$pc" set chkTempFolder=1
run 0 --pc "$pc" schedule add 1/1/2035 1:00
sed -i s/2035/2020/ "$pc/tasks.txt"  # it is over now
temp=$pc/C/WINDOWS/TEMP
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
# Sets a local time in which the present lies this many seconds before the next full minute.
secondsBefore() {
  present=$(date +%s)
  local east=$((60 - $1 - present % 60))
  TZ="ZUB$([ $east -lt 0 ] && echo + || echo -)00:00:${east#-}"
}

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

# A dated wash that comes within seconds, by a local time of its own. It is added while the scheduler runs; another one, a
# minute ago, is over, the same times of another program's task are not meant, and a damage that comes later stops nothing.
reported() { grep -q '^Last removal' "$work/said"; }
echo old >"$temp/old.tmp"
secondsBefore 9
begin
when=@$((present + 60))
run 0 --pc "$pc" schedule add "$(date -d $when "+%-d %B %Y")" "$(date -d $when +%H:%M)"
date -d @$present "+trigger = 0 %Y-%m-%d %H:%M" >>"$pc/tasks.txt"
{ echo "task = Other"; echo "parameters =  /SCHEDULER"; grep '^trigger' "$pc/tasks.txt"; } >"$work/other"
cat "$work/other" >>"$pc/tasks.txt"
until_true waited $(($(waits) + 3))
echo "damaged" >>"$pc/tasks.txt"
until_true told "tasks.txt: line"
here "$temp/old.tmp"
exec 9<"$pc"  # somebody else is at work when it is due
flock 9
until_true told "another Zubrane is at work on this PC"
until_true waited $(($(waits) + 3))
here "$temp/old.tmp"
exec 9<&-
until_true reported
gone "$temp/old.tmp"
until_true waited $(($(waits) + 2))
stop INT
check "the wait and the progress of one wash are not told" [ "$(sed 1d "$work/told" | cut -c1-20)" = $'zub: another Zubrane\nTemporary Folder' ]
check "one wash is not reported" [ "$(grep -c '^Zubrone' "$work/said")" -eq 1 ]
check "the damaged tasks were written over" [ "$(tail -n 1 "$pc/tasks.txt")" = damaged ]
