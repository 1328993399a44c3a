# Functions of the tour: checks, pictures, pointer and keyboard. Source this file after common.sh.
# shellcheck shell=bash
# shellcheck disable=SC2154 # tour.sh sets the folders `bin` and `out`

# use_account_service <file of the simulator's events>
# Makes the program use the simulated account service: writes the address that the service has reported
# into the configuration. Call it before the program starts.
use_account_service() {
  printf '[Server]\nurl=%s\n' \
    "$(sed -n 's/.*"account-listening".*"url":"\([^"]*\)".*/\1/p' "$1" | head -n 1)" >"$home/app/config.ini"
}

clean_up() {
  if [ ${#pids[@]} -gt 0 ]; then kill -KILL "${pids[@]}" 2>/dev/null || true; fi
  cp -r "$log_folder" "$out/state" 2>/dev/null || true
  remove_home
  write_index
}

checks=0
chapter() { # chapter <title>
  step "$1"
  printf '<h2>%s</h2>\n' "$1" >>"$out/index.body"
}

check() { # check <what> <command...>
  local what=$1
  shift
  if ! "$@"; then
    printf '  [ ] %s\n' "$what"
    printf '<p class="bad">&#10007; %s</p>\n' "$what" >>"$out/index.body"
    import -window root "$out/failed.png" 2>/dev/null || true
    fail "the tour: $what" "see $out/failed.png, $out/program.log and $out/display.jsonl"
  fi
  checks=$((checks + 1))
  printf '  [x] %s\n' "$what"
  printf '<p>&#10003; %s</p>\n' "$what" >>"$out/index.body"
}

write_index() {
  {
    printf '<!doctype html><meta charset="utf-8"><title>Tour of VORNApp</title>\n'
    printf '<style>body{font-family:sans-serif;background:#282828;color:#bbc7ce;margin:2em}'
    printf 'figure{display:inline-block;margin:1em}img{max-width:640px}.bad{color:#db4747}</style>\n'
    printf '<h1>Tour of VORNApp</h1>\n'
    cat "$out/index.body"
  } >"$out/index.html"
  rm -f "$out/index.body"
}

# `mark <file>` remembers the end of the file. The functions below look at the lines after the mark.
declare -A marks=()
mark() { marks[$1]=$(wc -l <"$1"); }
since_mark() { tail -n "+$((${marks[$2]:-0} + 1))" "$2" | grep -qE -- "$1"; }
# appears <pattern> <file>   waits for a line that matches.
appears() { eventually since_mark "$1" "$2"; }
count_since_mark() { tail -n "+$((${marks[$2]:-0} + 1))" "$2" | grep -cE -- "$1" || true; }
count_is() { [ "$(count_since_mark "$2" "$3")" = "$1" ]; }
# appears_times <number> <pattern> <file>   waits until so many lines match.
appears_times() { eventually count_is "$@"; }

# ends_with_0 <process>   waits up to 60 s for a child process and compares its exit code.
ends_with_0() { timeout 60 tail --pid="$1" -s 0.05 -f /dev/null && wait "$1"; }

# shot <name> <caption> [<window>]
# Takes a picture of a window, by default the main window. Waits until two pictures in a row are equal,
# so that animations have ended, but no longer than 12 pictures. `pace` is the time between them in seconds.
shot() {
  local target=${3:-$window} tries=0 before="" now
  while [ $tries -lt 12 ]; do
    now=$(import -window "$target" rgb:- 2>/dev/null | md5sum)
    [ "$now" = "$before" ] && break
    before=$now
    tries=$((tries + 1))
    sleep "$pace"
  done
  import -window "$target" "$out/$1.png"
  show "$1" "$2"
}

# show <name> <caption>   adds a picture of the folder to the index.
show() {
  printf '<figure><img src="%s.png" alt=""><figcaption>%s</figcaption></figure>\n' "$1" "$2" >>"$out/index.body"
}

# is_green <x> <y>   whether the main window shows the green of its buttons there.
is_green() {
  [ "$(import -window "$window" -crop "1x1+$1+$2" +repage png:- 2>/dev/null |
    identify -format '%[fx:p.g>0.5 && p.g>1.5*p.r && p.g>1.5*p.b]' - 2>/dev/null)" = 1 ]
}

# find_window <name>   sets `found` to the first visible window whose name matches.
find_window() {
  found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
  [ -n "$found" ]
}

main_window_is_gone() { ! find_window '^VORNApp$'; }

# Moves the main window to a known position and sets `window`. A window that was hidden has a new
# identifier when it is shown again.
place_window() {
  find_window '^VORNApp$' && window=$found && xdotool windowmove --sync "$window" 150 100 && is_painted "$window"
}

# Positions are relative to the main window. `pause` is the time in seconds that the program is given to react.
click() { xdotool mousemove --window "$window" "$1" "$2" sleep 0.05 click 1 sleep "$pause"; }
point() { xdotool mousemove --window "$window" "$1" "$2"; }
type_text() { xdotool type --delay 15 "$1"; }
key() { xdotool key --delay 20 "$@" sleep "$pause"; }

# Sends a command to the simulated display.
display() { printf '%s\n' "$*" >&"$display_input"; }
