#!/usr/bin/env bash
# A drop of a few hundred bytes that declares a string and doubles it forty times: tabs survive
# the blank removal and each line end starts a script line. Under a limit of 1 GiB of address
# space the script must end in the run-time error line, not in an exhausted process; twenty
# doublings, well within the engine's budget, still give their answer.
source "$(dirname "$0")/lib.sh"
home=$(new_home doubling)
doubling() { python3 -c "import sys; sys.stdout.write('1\nDim\ts\tAs\tString\t=\t\"abcde\"\n' + 's\t=\ts\t+\ts\n' * $1)"; }

text=$(doubling 40)
status=0
(ulimit -v 1048576 && exec timeout 60 python3 "$here/measure.py" "$scratch/figures" "$VELMORA_CLI" --home "$home" --log "$text") \
  >"$scratch/out" 2>"$scratch/log" || status=$?
[ "$status" -le 1 ] || fail "forty doublings ended velmora-cli with status $status: $(tail -c 300 "$scratch/log")"
[ "$(tail -n 1 "$scratch/log")" = "ERROR: 109" ] || fail "the log after forty doublings ends: $(tail -c 300 "$scratch/log")"
[ ! -s "$scratch/out" ] || fail "forty doublings gave an answer: $(head -c 100 "$scratch/out")"
note "forty doublings (${#text} bytes), under ulimit -v 1048576: $(cat "$scratch/figures")"

text=$(doubling 20)
answer=$(ulimit -v 1048576 && cli "$home" "$text") || fail "twenty doublings gave no answer"
[ "$answer" = "1 " ] || fail "twenty doublings answered '$answer'"
echo "passed: string doubling"
