# Faults of the desktop session: screen, compositor, D-Bus and tray. Source this file after support.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154 # support.sh sets the variables

# ends_by_itself   whether the program ends within five seconds.
ends_by_itself() { timeout 5 tail --pid="$program" -s 0.05 -f /dev/null; }

# Selects BYOD, so that the end has a registry value to take back.
select_byod() {
  display source byod
  eventually registry_has 'disable_local_dev=1'
}

fault_x_server() {
  begin x-server "X server gone"
  launch
  holds "the PC's devices are replaced" select_byod
  kill -KILL "${screen_pids[0]}"
  holds "it ends within five seconds" ends_by_itself
  holds "the PC's devices are back" registry_has 'disable_local_dev=0'
  holds "there is no crash report" left_no_dump
  holds "the log has the reason" in_log_file 'ended from outside'
  end "the end of the session" "\`ended from outside, without quitting\`" "nothing: what a quit does is done"
}

fault_compositor() {
  begin compositor "Compositor gone"
  # It needs a seat: Qt 6.4 crashes under a compositor that has none.
  weston --backend=x11-backend.so --use-pixman --socket=faulty --idle-time=0 >"$out/weston.log" 2>&1 &
  local compositor=$!
  pids+=("$compositor")
  eventually test -S "$XDG_RUNTIME_DIR/faulty"
  export QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=$XDG_RUNTIME_DIR/faulty
  launch
  holds "the PC's devices are replaced" select_byod
  kill -KILL "$compositor"
  holds "it ends within five seconds" ends_by_itself
  holds "the PC's devices are back" registry_has 'disable_local_dev=0'
  holds "there is no crash report" left_no_dump
  unset QT_QPA_PLATFORM WAYLAND_DISPLAY
  end "the end of the session" "the message of Qt; \`ended from outside, without quitting\`" \
    "nothing: what a quit does is done"
}

fault_dbus() {
  begin dbus "D-Bus gone"
  local address
  dbus-daemon --session --nofork --print-address=3 3>"$out/bus" >/dev/null 2>&1 &
  local bus=$!
  pids+=("$bus")
  eventually test -s "$out/bus"
  address=$(head -n 1 "$out/bus")
  launch DBUS_SESSION_BUS_ADDRESS="$address"
  kill -KILL "$bus"
  sleep 1
  holds "it lives" lives
  holds "messages of the display arrive" takes_volume 55
  holds "the window answers" answers
  sign_in
  holds "a sign-in works" signed_in
  holds "it quits in order" quits
  end "nothing; a tray that uses D-Bus ends with it" "nothing" "nothing"
}

# Windows of the program: the main window and the icon in the tray.
has_windows() { [ "$(xwininfo -root -tree | grep -c '"VORNApp": ("VORNApp"')" -eq "$1" ]; }

fault_tray() {
  begin tray "Tray restarted"
  launch
  holds "the icon is in the tray" eventually has_windows 2
  kill -KILL "${screen_pids[2]}"
  holds "the icon goes with the tray" eventually has_windows 1
  holds "it lives without a tray" lives
  holds "messages of the display arrive" takes_volume 55
  holds "the window answers" answers
  trayer --edge bottom --align right --widthtype request --height 32 >/dev/null 2>&1 &
  screen_pids+=($!)
  holds "the icon comes back" eventually has_windows 2
  holds "it quits in order" quits
  end "the icon goes, and comes back with the tray" "nothing" "nothing"
}
