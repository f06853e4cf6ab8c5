# For scripts that use the windows on a virtual screen: sourced, not run. Sets up an empty home and a
# screen of its own, all gone when the script ends.
work=$(mktemp -d)
screen_pid=
manager_pid=
cleanup() {
  [ -z "$manager_pid" ] || kill "$manager_pid" 2>/dev/null || true
  [ -z "$screen_pid" ] || kill "$screen_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

fail() {
  printf 'FAILED: %s\n' "$1" >&2
  cat "$work"/*.log >&2
  exit 1
}

# wait_for SECONDS COMMAND...: until the command succeeds.
wait_for() {
  tries=$(($1 * 20))
  shift
  while ! "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ "$tries" -gt 0 ] || return 1
    sleep 0.05
  done
}

# Without -noreset the screen starts anew whenever the last window is gone.
start_screen() {
  Xvfb -noreset -displayfd 3 -screen 0 1280x900x24 3>"$work/display" 2>"$work/screen.log" &
  screen_pid=$!
  wait_for 20 test -s "$work/display" || fail "no virtual screen"
  DISPLAY=:$(cat "$work/display")
  mkdir -m 700 "$work/home" "$work/run"
  export DISPLAY HOME="$work/home" XDG_CONFIG_HOME="$work/home/.config" XDG_RUNTIME_DIR="$work/run"
  unset QT_QPA_PLATFORM WAYLAND_DISPLAY || true
}

start_window_manager() {
  openbox >"$work/manager.log" 2>&1 &
  manager_pid=$!
  wait_for 20 has_window_manager || fail "no window manager"
}
has_window_manager() { xdotool get_num_desktops; }
