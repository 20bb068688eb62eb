#!/usr/bin/env bash
# Opens the program's window on an X server of its own, with a window manager, and closes it the
# ways a user does. Usage: window_under_x.sh path/to/vrel [screenshot.png]
set -euo pipefail

program=$1
screenshot=${2:-}
work=$(mktemp -d)
server=
manager=
editor=

finish() {
  for process in $editor $manager $server; do
    kill "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap finish EXIT

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

expect() {  # what, expected, actual
  [[ $2 == "$3" ]] || fail "$1: expected '$2', got '$3'"
}

# Waits up to ten seconds until a command succeeds.
await() {
  for ((i = 0; i < 100; ++i)); do
    if "$@" >/dev/null 2>&1; then
      return 0
    fi
    sleep 0.1
  done
  return 1
}

write_table() {
  {
    printf 'FieldNames:\tItem\tPlace\tWeek\tDemand\tSupply\t\n'
    printf 'FieldTypes:\tString\tString\tPeriod\tNumber\tNumber\t\n'
    printf 'PeriodValues:\tW1\tW2\tW3\t\n'
    for item in Bolt Gear Pump; do
      for place in Lyon Oslo; do
        for week in W1 W2 W3; do
          printf '%s\t%s\t%s\t%d\t%d\n' $item $place $week 1200 34
        done
      done
    done
  } >"$work/plan.tbl"
}

start_server() {
  Xvfb -displayfd 3 -screen 0 1000x700x24 3>"$work/display" 2>"$work/xvfb.log" &
  server=$!
  await test -s "$work/display" || fail "no X server: $(cat "$work/xvfb.log")"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  openbox 2>"$work/openbox.log" &
  manager=$!
  await xprop -root _NET_SUPPORTING_WM_CHECK || fail "no window manager"
}

window_is_there() {
  window=$(xdotool search --onlyvisible --name "^$1\$" | tail -1)
  [[ -n $window ]]
}

window_is_maximised() {
  xprop -id "$window" _NET_WM_STATE | grep -q _NET_WM_STATE_MAXIMIZED_VERT
}

window_has_focus() {
  [[ $(xdotool getactivewindow) == "$window" ]]
}

open_editor() {  # title argument or nothing, window title
  local ui=ui
  [[ -z $1 ]] || ui="ui $1"
  "$program" "readTable $work/plan.tbl" "$ui" >"$work/output" 2>&1 </dev/null &
  editor=$!
  await window_is_there "$2" || fail "no window titled '$2': $(cat "$work/output")"
  await window_is_maximised || fail "the window is not maximised"
  await window_has_focus || fail "the window is not active"
}

expect_end() {  # how it was asked to end, expected status
  local status=0
  await eval "! kill -0 $editor" || fail "$1 does not end the program"
  wait "$editor" || status=$?
  editor=
  expect "exit status after $1" "$2" "$status"
}

closes_with_the_file_menu() {
  open_editor "/models/week12.dat" "Output of: /models/week12.dat"
  if [[ -n $screenshot ]]; then
    sleep 0.5
    import -window root "$screenshot"
  fi
  xdotool key alt+f
  xdotool key c
  expect_end "File, Close" 0
}

closes_with_the_window() {
  open_editor "" "Data Editor"
  xdotool key alt+F4
  expect_end "closing the window" 0
}

asks_before_changes_are_lost() {
  open_editor "/models/week12.dat" "Output of: /models/week12.dat"
  local main=$window
  xdotool key alt+c
  xdotool key s
  xdotool key alt+F4
  await window_is_there "Data Editor" || fail "no question about unsaved changes"
  xdotool key Escape
  await eval '! window_is_there "Data Editor"' || fail "Escape does not close the question"
  kill -0 "$editor" || fail "cancelling the question ended the program"
  window=$main
  await window_has_focus || fail "the window is not active after the question"
  xdotool key alt+F4
  await window_is_there "Data Editor" || fail "no second question about unsaved changes"
  xdotool key alt+n
  expect_end "answering No" 0
}

ends_with_the_termination_signal() {
  open_editor "" "Data Editor"
  kill -TERM "$editor"
  await eval "! kill -0 $editor" || fail "the termination signal does not end the program"
  editor=
}

says_when_there_is_no_display() {  # display
  local output status=0
  output=$(env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY="$1" \
    "$program" "readTable $work/plan.tbl" "exitOnCmdError y" ui 2>&1 </dev/null) || status=$?
  [[ $output == *"cidUI: cannot open a display."* ]] || fail "without display '$1': $output"
  expect "exit status without display '$1'" 254 "$status"
}

for tool in Xvfb openbox xdotool xprop ${screenshot:+import}; do
  command -v $tool >/dev/null || fail "$tool is not installed; run scripts/setup"
done
# Its display server is this script's own, whatever the caller uses.
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QNT_ENABLE_CONSOLE_DEBUG_INFO
export HOME=$work
cd "$work"
write_table
says_when_there_is_no_display ""
says_when_there_is_no_display ":9999"
start_server
closes_with_the_file_menu
closes_with_the_window
asks_before_changes_are_lost
ends_with_the_termination_signal
echo "all went well"
