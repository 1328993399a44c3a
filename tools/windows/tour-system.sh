# What the tour does in another way on each system; this file is for Windows programs under Wine. Source it
# after tour-support.sh.
# shellcheck shell=bash
# shellcheck disable=SC2034,SC2154 # tour.sh and its chapters share their variables with this file
source "$root/tools/windows/settings.sh"

# Wine on a software renderer is slow.
pace=0.5 pause=1

# make_home <folder of the built programs>
# Makes a temporary folder in the root, with a Windows of its own for the user's files and the registry.
make_home() {
  home=$(mktemp -d "$windows_root/build/tour-home.XXXXXX")
  local folder=$home/wine/drive_c/users/root/AppData/Local
  config_folder=$folder/VORNApp data_folder=$folder log_folder=$home/wine/drive_c/ProgramData/VORNApp
  devices=$home/devices
  mkdir -p "$home/app"
  wine=(chroot "$windows_root" env -i -C "${home#"$windows_root"}/app" PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/build LANG=C.UTF-8
    "DISPLAY=$DISPLAY" LIBGL_ALWAYS_SOFTWARE=1 "WINEPREFIX=${home#"$windows_root"}/wine"
    # Wine removes QT_QUICK_BACKEND and the like; an empty name selects the renderer of the next variable.
    QMLSCENE_DEVICE= QSG_RHI_BACKEND=opengl
    "VORN_DEVICE_LIST=$(native "$devices/devices.txt")" /src/tools/windows/run-wine.sh)
  "${wine[@]}" wineboot -i >/dev/null 2>&1
  mkdir -p "$config_folder" "$devices"
  # The program keeps its settings in its own folder.
  cp -a "$1"/{VORNApp,PatchPilot}.exe "$1"/{config.json,apps,PortalHub.dll} "$home/app"
}

remove_home() {
  "${wine[@]}" wineboot -k >/dev/null 2>&1 || true
  rm -rf "$home"
}

# Prints a path as the programs expect it.
native() { printf 'Z:%s\n' "${1#"$windows_root"}"; }

# Prints a path as the system's own programs expect it.
with_backslashes() {
  local path
  path=$(native "$1")
  printf '%s\n' "${path//\//\\}"
}

# follow_log <process>   prints the log file of a program that was just started, until it ends.
follow_log() {
  local file=""
  touch "$home/started"
  until [ -n "$file" ]; do
    sleep 0.1
    kill -0 "$1" 2>/dev/null || return 0
    file=$(find "$log_folder" -name 'VORNApp*.log' -newer "$home/started" 2>/dev/null | sort | tail -n 1) || true
  done
  tail -n +1 -f -s 0.1 --pid="$1" "$file"
}

# launch <path of a program> [argument]...   replaces this shell, so call it in the background. What the program
# itself prints is its log file, since Wine keeps back what is written to standard error.
launch() {
  if [ "$1" = "$home/app/VORNApp" ]; then
    follow_log $BASHPID &
    exec >/dev/null 2>&1
  fi
  exec "${wine[@]}" "$(native "$1.exe")" "${@:2}"
}

# run_tool <path of a program> [argument]...   runs a program to its end.
run_tool() { timeout 60 "${wine[@]}" "$(native "$1.exe")" "${@:2}"; }

# Makes the simulated meeting program the one that a launch of Zoom finds. A shortcut would not do, because
# Wine has no PowerShell to read it with.
install_zoom() {
  "${wine[@]}" reg add 'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\ZoomUMX' /v DisplayIcon \
    /d "$(with_backslashes "$home/app/apps/zoom.exe")" /f >/dev/null
}

# choose_file <path>   types it into the open file dialog.
choose_file() {
  key ctrl+a
  type_text "$(with_backslashes "$1")"
  key Return
  eventually file_dialog_is_gone
  # The dialog is one of Wine, after which the focus is nowhere.
  timeout 10 xdotool windowactivate --sync "$window" || true
}

file_dialog_is_gone() { ! find_window '^Select picture$'; }

# use_tray_icon <xdotool command>...   moves the pointer to the program's icon, the only one of the tray.
use_tray_icon() {
  local tray X Y WIDTH HEIGHT
  tray=$(xdotool search --onlyvisible --name '^panel$' | head -n 1)
  eval "$(xdotool getwindowgeometry --shell "$tray" | grep -E '^(X|Y|WIDTH|HEIGHT)=[0-9]+$')"
  xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) sleep 0.1 "$@"
}

# The menu has the same title as the main window, which is visible too.
tray_menu_is_open() { [ "$(xdotool search --onlyvisible --name '^VORNApp$' | wc -l)" -ge 2 ]; }

# Ends the program by the menu of its tray icon, as a user does.
quit_program() {
  local tries=0
  # Wine does not open the menu on every click.
  until tray_menu_is_open || [ $tries -ge 10 ]; do
    use_tray_icon sleep 1 click 3 sleep 4
    tries=$((tries + 1))
  done
  shot tray-menu "The menu of the tray icon" root
  key Down Return
}

# Wine does not interrupt the read of a pipe, which ends with the next line.
quit_display() {
  display quit 0
  appears '"event":"quit"' "$out/display.jsonl"
  display help
}

# Chapters that only this system has.
system_chapters() {
  chapter "The tray, and a second start"
  mark "$out/program.log"
  click 943 21
  check "the window was hidden to the tray" appears 'hide to tray' "$out/program.log"
  check "it is gone" eventually main_window_is_gone
  shot tray "The tray and the message about it" root
  use_tray_icon click --repeat 2 --delay 80 1
  check "a double click on the icon was noticed" appears 'tray double click' "$out/program.log"
  check "the window is back" eventually place_window
  click 943 21
  check "it is gone again" eventually main_window_is_gone
  launch "$home/app/VORNApp" >"$out/second-start.log" 2>&1 &
  check "the second start ended with exit code 0" ends_with_0 $!
  check "it reached the running program" appears 'VORNApp reopen!' "$out/program.log"
  check "the window is back again" eventually place_window
  shot second-start "After the second start"
}

last_chapters() {
  chapter "A crash"
  mark "$out/program.log"
  launch "$home/app/VORNApp" >>"$out/program.log" 2>&1 &
  program=$!
  pids=("$program")
  check "the program runs" eventually place_window
  in_root x86_64-w64-mingw32-gcc -o "${home#"$windows_root"}/crash-program.exe" /src/tools/windows/crash-program.c
  check "its main thread is made to call an address without code" run_tool "$home/crash-program" VORNApp.exe
  check "it reported the crash" appears 'Dump file created successfully at:' "$out/program.log"
  eventually test ! -e "/proc/$program"
  cp "$home"/app/*.dmp "$out"
  "$root/tools/dump-to-stack.py" "$out"/*.dmp "$bin" "$windows_root$windows_qt/bin" \
    "$windows_root"/usr/lib/x86_64-linux-gnu/wine/x86_64-windows >"$out/crash.txt" || true
  check "the stack in the dump can be read" grep -q 'VORNApp.exe.*run(int&, char\*\*' "$out/crash.txt"
  pids=()
}
