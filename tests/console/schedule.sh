#!/usr/bin/env bash
# Dated washes: adding, listing, removing, and what cannot be read as a date or a time.
. "$(dirname "$0")/check.sh"
pc=$work/pc
run 0 new "$pc"
# scheduled ROW...: these are the rows of the list.
scheduled() {
  run 0 --pc "$pc" schedule
  check "the list differs" diff <(printf '%s\n' "$@") "$work/out"
}

run 0 --pc "$pc" schedule
silent out
gone "$pc/tasks.txt"
run 0 --pc "$pc" schedule add 12/24/2030 "6:00 PM"
run 0 --pc "$pc" schedule add 2/29/2032 2:20 AM
run 0 --pc "$pc" schedule add "January 1, 2031 0:05"
scheduled '1 At 6:00 PM on 12/24/2030' '2 At 2:20 AM on 2/29/2032' '3 At 12:05 AM on 1/1/2031'

cp "$pc/tasks.txt" "$work/tasks"
refused '"soon 6:00 PM" is no date and time, such as' --pc "$pc" schedule add soon "6:00 PM"
refused '"12/24/2030 25:00" is no date and time, such as' --pc "$pc" schedule add 12/24/2030 25:00
refused '"12/24/2030 12/25/2030" is no date and time' --pc "$pc" schedule add 12/24/2030 12/25/2030
refused "5 Sep 2001 14:20 is past" --pc "$pc" schedule add 5 Sep 2001 14:20
refused "there is no dated wash 4" --pc "$pc" schedule remove 4
check "a refused command changed the tasks" cmp "$pc/tasks.txt" "$work/tasks"

run 0 --pc "$pc" schedule remove 2
scheduled '1 At 6:00 PM on 12/24/2030' '2 At 12:05 AM on 1/1/2031'
