# For end-to-end sessions to source: a screen of their own, and hands on it. Sets `work`, a folder that
# goes with the session, and after `start` the process `program` and its `window`.
set -euo pipefail
session=$(basename "$0")
work=$(mktemp -d)
server=
program=

cleanup() {
  [ -z "$program" ] || kill -9 "$program" 2>/dev/null || true
  [ -z "$server" ] || kill "$server" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

fail() {
  echo "$session: $*" >&2
  exit 1
}

# The X server writes its display number when it is ready. It must not begin anew when its last client
# goes: the next one may be on its way in.
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
server=$!
read -r number <"$work/display"
export DISPLAY=:$number XDG_RUNTIME_DIR=$work XDG_CONFIG_HOME=$work/config \
  XDG_STATE_HOME=$work/state
unset WAYLAND_DISPLAY QT_QPA_PLATFORM QT_SCALE_FACTOR

# Waits at most ten seconds until the command that follows says yes.
until_true() {
  for _ in $(seq 100); do
    ! "$@" || return 0
    sleep 0.1
  done
  return 1
}

# Sets `window` to the one with that title, when it comes.
find_window() {
  for _ in $(seq 150); do
    window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1 || true)
    [ -z "$window" ] || return 0
    sleep 0.2
  done
  fail "no window \"$1\" came up"
}

has_no_window() { ! xdotool search --onlyvisible --name "^$1\$" >/dev/null 2>&1; }

start() {
  "$1" &
  program=$!
  find_window Quillmere
}

# Clicks at that point of `window`, then takes the mouse out of the way.
click() {
  xdotool mousemove --window "$window" "$1" "$2"
  sleep 0.1
  xdotool click 1 mousemove 1020 760
}

is_gone() { ! kill -0 "$1" 2>/dev/null; }

# Waits for the program to end, however it does.
ended_badly() {
  until_true is_gone "$program" || fail "the program didn't end"
  wait "$program" 2>/dev/null || true
  program=
}

# Waits for the program to end, which it must do well.
ended() {
  until_true is_gone "$program" || fail "the program didn't end"
  status=0
  wait "$program" || status=$?
  program=
  [ "$status" -eq 0 ] || fail "the program ended with status $status"
}
