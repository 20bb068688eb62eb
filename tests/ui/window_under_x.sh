#!/usr/bin/env bash
# Opens the program's window on an X server of its own, with a window manager, and closes it the
# ways a user does. Usage: window_under_x.sh path/to/vrel [screenshot.png]
set -euo pipefail

program=$(realpath "$1")
examples=$(realpath "$(dirname "$0")/../../examples")
screenshot=${2:+$(realpath "$2")}
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

# Waits until a command succeeds, for a minute at most: a busy machine may take its time.
await() {
  for ((i = 0; i < 600; ++i)); do
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

manager_is_there() {
  xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'
}

start_server() {
  Xvfb -displayfd 3 -screen 0 1000x700x24 3>"$work/display" 2>"$work/xvfb.log" &
  server=$!
  await test -s "$work/display" || fail "no X server: $(cat "$work/xvfb.log")"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  openbox >/dev/null 2>"$work/openbox.log" &
  manager=$!
  await manager_is_there || fail "no window manager"
}

window_is_there() {
  window=$(xdotool search --onlyvisible --name "^$1\$" | tail -1)
  [[ -n $window ]]
}

visible_titles() {
  local each
  for each in $(xdotool search --onlyvisible --name .); do
    printf "'%s' " "$(xdotool getwindowname "$each")"
  done
}

window_is_maximised() {
  xprop -id "$window" _NET_WM_STATE | grep -q _NET_WM_STATE_MAXIMIZED_VERT
}

window_has_focus() {
  [[ $(xdotool getactivewindow) == "$window" ]]
}

# The host stays at the other end of the program's input, so that the end of its input is not what
# ends the program.
open_editor() {  # title argument or nothing, window title
  local ui=ui
  [[ -z $1 ]] || ui="ui $1"
  "$program" "${table[@]}" "$ui" >"$work/output" 2>&1 <&"$host" &
  editor=$!
  await window_is_there "$2" || fail "no window titled '$2' among: $(visible_titles)" \
    "(program: $(ps -o stat= -p "$editor"), output: $(cat "$work/output"))"
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

# The keys go to the program one after the other, so that they need no waiting in between.
choose() {  # menu's letter, entry's letter
  xdotool key "alt+$1"
  xdotool key "$2"
}

closes_with_the_file_menu() {
  open_editor "/models/#0057eek12.dat" "Output of: /models/Week12.dat"
  if [[ -n $screenshot ]]; then
    sleep 0.5
    import -window root "$screenshot"
  fi
  choose f c
  expect_end "File, Close" 0
}

# With diagnostics on the console, the window's own come through, in order.
tells_what_it_does() {
  export QNT_ENABLE_CONSOLE_DEBUG_INFO=
  open_editor "" "Data Editor"
  unset QNT_ENABLE_CONSOLE_DEBUG_INFO
  xdotool key alt+F4
  expect_end "closing the window" 0
  local told
  told=$(grep -xE 'CreateUI\(\)|Entering app event loop' "$work/output") || true
  expect "diagnostics" $'CreateUI()\nEntering app event loop' "$told"
}

closes_with_the_window() {
  open_editor "" "Data Editor"
  xdotool key alt+F4
  expect_end "closing the window" 0
}

await_question() {
  await window_is_there "Data Editor" || fail "no question about unsaved changes"
  await window_has_focus || fail "the question is not active"
}

asks_before_changes_are_lost() {
  open_editor "/models/week12.dat" "Output of: /models/week12.dat"
  local main=$window
  choose c s
  choose f c
  await_question
  xdotool key Escape
  await eval '! window_is_there "Data Editor"' || fail "Escape does not close the question"
  kill -0 "$editor" || fail "cancelling the question ended the program"
  window=$main
  await window_has_focus || fail "the window is not active after the question"
  choose f c
  await_question
  xdotool key alt+n
  expect_end "answering No" 0
}

# The message file that the n-th announcement names.
message() {  # n
  cat "$work/$(sed -n 's/^DEI//p' "$work/output" | sed -n "$1p")"
}

announced() {  # n
  [[ $(grep -c '^DEI' "$work/output") == "$1" ]]
}

expect_message() {  # what, n, text
  await announced "$2" || fail "$1: message $2 is not announced: $(cat "$work/output")"
  expect "$1" "$3" "$(message "$2")"
}

# The cursor starts on the first data cell, a demand; below it stands a supply, which can be edited.
edits_reach_the_host() {
  table=("readTable $examples/plan.tbl" "readView $examples/plan.view")
  open_editor "plan.tbl" "Output of: plan.tbl"
  local main=$window first second
  xdotool key Down
  xdotool type 150
  xdotool key Return
  first='plan/0001/supply "150.00000000000"'
  expect_message "typing a number" 1 "$first"
  xdotool type '2*('
  xdotool key Return
  await window_is_there "Expression Error" || fail "no reason why the text is refused"
  await window_has_focus || fail "the reason is not active"
  xdotool key Return
  await eval '! window_is_there "Expression Error"' || fail "Enter does not close the reason"
  window=$main
  await window_has_focus || fail "the window is not active after the reason"
  xdotool key Escape
  xdotool key ctrl+c
  xdotool key Right
  xdotool key ctrl+v
  second='plan/0002/supply "150.00000000000"'
  expect_message "pasting it beside" 2 "$second"
  xdotool key ctrl+z
  expect_message "taking it back" 3 "${second/150./600.}"
  xdotool key ctrl+z
  expect_message "taking the first back" 4 "${first/150./0.}"
  xdotool key ctrl+y
  expect_message "doing it again" 5 "$first"
  # While a text is typed the same key belongs to the text.
  xdotool type 7
  xdotool key ctrl+y
  xdotool key Return
  expect_message "typing after that" 6 "${first/150./7.}"
  choose f c
  await_question
  xdotool key alt+n
  expect_end "answering No" 0
  announced 6 || fail "more than six messages: $(cat "$work/output")"
}

is_exported() {  # name
  [[ -s "$work/$1" ]]
}

export_as() {  # main window, name without ending, keys that choose the type...
  window=$1
  await window_has_focus || fail "the window is not active before the export"
  choose f a
  await window_is_there "Export As" || fail "no dialog for the export"
  await window_has_focus || fail "the dialog for the export is not active"
  xdotool type "$2"
  xdotool key "${@:3}" Return
}

exports_the_report() {
  open_editor "" "Data Editor"
  local main=$window
  printf 'FieldNames:\tA\na\n' >"$work/qnt.smart"
  export_as "$main" plan
  await is_exported plan.xml || fail "no graph document is exported"
  export_as "$main" plan Tab Down
  await is_exported plan.html || fail "no web page is exported"
  expect "tables of the web page" "1" "$(grep -c '<table border>' "$work/plan.html")"
  expect "rows of the web page" "36" "$(grep -c '^<tr align=right>' "$work/plan.html")"
  window=$main
  await window_has_focus || fail "the window is not active after the export"
  rm "$work/plan.html"
  choose f e
  await is_exported plan.html || fail "nothing is exported again"
  choose f c
  expect_end "File, Close" 0
}

opens_dialog() {  # window title, menu's letter, entry's letter
  choose "$2" "$3"
  await window_is_there "$1" || fail "no dialog '$1'"
  await window_has_focus || fail "the dialog '$1' is not active"
}

# By keyboard: the first field of the rows becomes one of page tabs, and a field stays hidden.
configures_the_report() {
  open_editor "" "Data Editor"
  local main=$window
  opens_dialog Layout c o
  xdotool key ctrl+Right Escape
  window=$main
  await window_has_focus || fail "the window is not active after the layout dialog"
  opens_dialog Display c d
  xdotool key alt+h
  # A button that is pressed by its letter goes down for a tenth of a second.
  sleep 0.3
  xdotool key Return
  window=$main
  await window_has_focus || fail "the window is not active after the display dialog"
  opens_dialog "Save View As" f v
  xdotool type "$work/configured.view"
  xdotool key Return
  await eval '[[ -s $work/configured.view ]]' || fail "the view is not saved"
  expect "rows of the saved view" 'definexfields "1" "2" ' \
    "$(grep definexfields "$work/configured.view")"
  expect "tabs of the saved view" 'definezfields "0" ' \
    "$(grep definezfields "$work/configured.view")"
  expect "data of the saved view" 'definedatafields "4" ' \
    "$(grep definedatafields "$work/configured.view")"
  window=$main
  await window_has_focus || fail "the window is not active after saving"
  choose f c
  expect_end "File, Close" 0
}

# Where an installation has the user's language: menus and dialogs have other letters then.
speaks_german() {
  mkdir -p "$work/korv/logs"
  cp -r "$(dirname "$program")/i18n" "$work/korv"
  echo "setlanguage German" >"$work/qnt.startup"
  export KORVHOME=$work/korv
  open_editor "" "Dateneditor"
  opens_dialog Layout k l
  xdotool key Escape
  await eval '! window_is_there Layout' || fail "Escape does not close the layout dialog"
  expect "the remembered language" "German, de" "$(cat "$work/korv/i18n/languageSet.txt")"
  unset KORVHOME
  rm "$work/qnt.startup"
  xdotool key alt+F4
  expect_end "closing the window" 0
}

# To a file in a folder that is not there: the dialog comes back to have its name put right.
prints_the_report() {
  open_editor "" "Data Editor"
  local main=$window
  choose f p
  await window_is_there "Print Options" || fail "no dialog for the print"
  await window_has_focus || fail "the dialog for the print is not active"
  xdotool key alt+l alt+n
  xdotool type "$work/missing/plan.ps"
  xdotool key Return
  await eval "window_is_there 'Data Editor' && [[ \$window != $main ]]" ||
    fail "no box tells of the print that failed"
  xdotool key Return
  await window_is_there "Print Options" || fail "the dialog does not come back"
  await window_has_focus || fail "the dialog that came back is not active"
  xdotool key alt+n ctrl+a
  xdotool type "$work/plan.ps"
  xdotool key Return
  await is_exported plan.ps || fail "nothing is printed"
  expect "announced pages" "%%Pages: $(grep -c '^%%Page: ' "$work/plan.ps")" \
    "$(grep '^%%Pages: ' "$work/plan.ps")"
  window=$main
  await window_has_focus || fail "the window is not active after the print"
  choose f c
  expect_end "File, Close after a print" 0
}

# The children's windows come one after the other.
shows_the_sections_of_a_file() {
  { echo "# Start of output of model: First"; cat "$work/plan.tbl"
    echo "# Start of output of model: Second"; cat "$work/plan.tbl"; } >"$work/plan.mgt"
  "$program" "smart $work/plan.mgt" >"$work/output" 2>&1 <&"$host" &
  editor=$!
  local title
  for title in First Second; do
    await window_is_there "Output of: $title" || fail "no section $title: $(cat "$work/output")"
    await window_has_focus || fail "the section $title is not active"
    choose f c
    await eval "! window_is_there 'Output of: $title'" || fail "the section $title stays"
  done
  expect_end "the last section" 0
  expect "section files left behind" "" "$(find "$work" -name 'dd?????????')"
}

ends_with_the_termination_signal() {
  open_editor "" "Data Editor"
  rm -f '~last_data.view'
  kill -TERM "$editor"
  expect_end "the termination signal" 0
  [[ -s '~last_data.view' ]] || fail "the termination signal does not save the view"
}

says_when_there_is_no_display() {  # variable=value
  local output status=0
  output=$(env -u DISPLAY "$1" timeout 60 \
    "$program" "readTable $work/plan.tbl" "exitOnCmdError y" ui 2>&1 </dev/null) || status=$?
  [[ $output == *"cidUI: cannot open a display."* ]] || fail "without display '$1': $output"
  expect "exit status without display '$1'" 254 "$status"
}

for tool in Xvfb openbox xdotool xprop ${screenshot:+import}; do
  command -v $tool >/dev/null || fail "$tool is not installed; run scripts/setup"
done
# Its display server is this script's own, whatever the caller uses.
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QNT_ENABLE_CONSOLE_DEBUG_INFO KORVHOME KORVLOGDIR
export HOME=$work
cd "$work"
write_table
table=("readTable $work/plan.tbl")
mkfifo host
exec {host}<>host
says_when_there_is_no_display DISPLAY=
says_when_there_is_no_display DISPLAY=:9999
says_when_there_is_no_display WAYLAND_DISPLAY=none
says_when_there_is_no_display QT_QPA_PLATFORM=xcb
says_when_there_is_no_display QT_QPA_PLATFORM=nonsense
start_server
closes_with_the_file_menu
closes_with_the_window
tells_what_it_does
asks_before_changes_are_lost
ends_with_the_termination_signal
exports_the_report
prints_the_report
configures_the_report
speaks_german
shows_the_sections_of_a_file
edits_reach_the_host
echo "all went well"
