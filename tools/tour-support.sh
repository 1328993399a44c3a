# What the tour is made of: a home of its own, checks, pictures, the pointer and the keyboard. To be
# sourced after common.sh.

# A home of its own keeps what is shown away from the user's files and from a running instance, but not
# from the user's screen.
make_home() { # make_home <folder of the built programs>
  home=$(mktemp -d)
  export XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
  case ${WAYLAND_DISPLAY:-/} in
  /*) ;;
  *) export WAYLAND_DISPLAY=${XDG_RUNTIME_DIR:-}/$WAYLAND_DISPLAY ;;
  esac
  export HOME=$home XDG_STATE_HOME=$home/state XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  export XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/run TMPDIR=$home/tmp
  export VORN_PORTALHUB_SOCKET=$home/run/portalhub VORN_SYSFS_ROOT=$home/sys
  mkdir -m 700 "$XDG_RUNTIME_DIR" "$TMPDIR"
  mkdir -p "$home/app" "$XDG_CONFIG_HOME/VORNApp" "$VORN_SYSFS_ROOT"
  # The program keeps its settings beside itself.
  cp -a "$1"/{VORNApp,PatchPilot,config.json} "$1"/apps "$1"/libPortalHub.so* "$home/app"
}

# Has the program, when it starts, ask the simulated account service, which has told where it listens.
use_account_service() { # use_account_service <file of the simulator's events>
  printf '[Server]\nurl=%s\n' \
    "$(sed -n 's/.*"account-listening".*"url":"\([^"]*\)".*/\1/p' "$1" | head -n 1)" >"$home/app/config.ini"
}

clean_up() {
  [ ${#pids[@]} -gt 0 ] && kill -KILL "${pids[@]}" 2>/dev/null || true
  cp -r "$XDG_STATE_HOME" "$out/state" 2>/dev/null || true
  rm -rf "$home"
  write_index
}

checks=0
chapter_title=""
chapter() {
  step "$1"
  chapter_title=$1
  printf '<h2>%s</h2>\n' "$1" >>"$out/index.body"
}

check() { # check <what> <command...>
  local what=$1
  shift
  if ! "$@"; then
    printf '  [ ] %s\n' "$what"
    printf '<p class="bad">&#10007; %s</p>\n' "$what" >>"$out/index.body"
    import -window root "$out/failed.png" 2>/dev/null || true
    fail "the tour: $what" "look at $out/failed.png, $out/program.log and $out/display.jsonl"
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

# Until the file holds a line that matches after those that were there at the last mark.
declare -A marks=()
mark() { marks[$1]=$(wc -l <"$1"); }
since_mark() { tail -n "+$((${marks[$2]:-0} + 1))" "$2" | grep -qE -- "$1"; }
appears() { eventually since_mark "$1" "$2"; }
count_since_mark() { tail -n "+$((${marks[$2]:-0} + 1))" "$2" | grep -cE -- "$1" || true; }
appears_times() { # appears_times <number> <pattern> <file>: that often and no more
  appears "$2" "$3" && [ "$(count_since_mark "$2" "$3")" = "$1" ]
}

# 60 s at most.
ends_with_0() { timeout 60 tail --pid="$1" -s 0.05 -f /dev/null && wait "$1"; }

# A picture of the main window, or of another; waits until two in a row are alike, so that no
# animation is caught half way (a moving picture is taken as it is, after a while).
shot() { # shot <name> <caption> [<window>]
  local target=${3:-$window} tries=0 before="" now
  while [ $tries -lt 12 ]; do
    now=$(import -window "$target" rgb:- 2>/dev/null | md5sum)
    [ "$now" = "$before" ] && break
    before=$now
    tries=$((tries + 1))
    sleep 0.15
  done
  import -window "$target" "$out/$1.png"
  show "$1" "$2"
}

# Takes a picture of the folder into the index.
show() { # show <name> <caption>
  printf '<figure><img src="%s.png" alt=""><figcaption>%s</figcaption></figure>\n' "$1" "$2" >>"$out/index.body"
}

find_window() { # find_window <name>: sets `found`
  found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1)
  [ -n "$found" ]
}

# A window that was hidden is another one of the window system when it comes back.
place_window() {
  find_window '^VORNApp$' && window=$found && xdotool windowmove --sync "$window" 150 100 && is_painted "$window"
}

# Positions are those in the main window.
click() { xdotool mousemove --window "$window" "$1" "$2" sleep 0.05 click 1; }
point() { xdotool mousemove --window "$window" "$1" "$2"; }
type_text() { xdotool type --delay 15 "$1"; }
key() { xdotool key --delay 20 "$@"; }

# A command for the simulated display.
display() { printf '%s\n' "$*" >&"$display_input"; }
