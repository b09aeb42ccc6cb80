#!/usr/bin/env bash
# Makes the pictures of the help: starts the real window on a screen in memory,
# presses keys as a person would, and keeps what is seen.
#
#   tools/help_pictures.sh [PROGRAM]   the window's program; without it, ./run's
#
# Writes help/pictures/*.png. The example lies in /tmp/anna meanwhile, so that
# the pictures show short paths and nobody's own.
set -euo pipefail
self=$(readlink -f -- "${BASH_SOURCE[0]}")
root=$(dirname -- "$(dirname -- "$self")")
# shellcheck source=tools/build.sh
source "$root/tools/build.sh"

home=/tmp/anna
folder=$home/Pictures/Holiday
pictures=$root/help/pictures
tavo_pid=

# -- The example

# photo NAME HILLS SKY: a landscape; the same name gives the same one.
photo() {
    local seed sun far near
    seed=$(cksum <<<"$1" | cut -d' ' -f1)
    sun="circle $((90 + seed % 460)),110 $((125 + seed % 460)),110"
    far="M 0,$((300 + seed % 60)) C 160,$((200 + seed % 120)) 260,$((380 - seed % 90))
        400,$((270 + seed % 70)) S 560,$((220 + seed % 90)) 640,$((320 - seed % 50))
        L 640,480 L 0,480 Z"
    near="M 0,$((400 - seed % 40)) C 120,$((360 + seed % 50)) 300,$((450 - seed % 60))
        460,$((400 + seed % 30)) S 600,$((380 + seed % 40)) 640,$((420 - seed % 30))
        L 640,480 L 0,480 Z"
    convert -size 640x480 "gradient:$3-#fdf2dc" -fill '#fff6d0' -draw "$sun" \
        -fill "$2" -draw "path '$far'" -fill '#24402f' -draw "path '$near'" \
        -quality 88 "$folder/$1"
}

make_example() {
    local number hills=('#4f8a5b' '#6d7f3f' '#3f6f7f') skies=('#5fa8e0' '#e09a5f' '#7f8fd0')
    mkdir -p "$folder" "$home/Documents" "$home/Music"
    for number in {31..42}; do
        photo "IMG_20$number.jpg" "${hills[number % 3]}" "${skies[number % 3]}"
        touch -d "2024-07-04 10:$number" "$folder/IMG_20$number.jpg"
    done
    echo "What we saw" >"$folder/notes.txt"
    touch -d "2024-07-05 20:15" "$folder/notes.txt"
}

# -- The window

# start LINE...: the program on the folder, with these lines in [Settings]; the
# heading of another section may stand among them. Nothing is asked before a run,
# unless `quiet` is 0.
start() {
    local config=$home/.config/tavo
    rm -rf "$folder" "$config"
    make_example
    mkdir -p "$config"
    {
        echo "[Settings]"
        printf '%s\n' "SupWarnRen=${quiet:-1}" "SupWarnUndo=${quiet:-1}" "$@"
        printf '%s\n' "[Defaults]" nnDigits=3
        printf '%s\n' "[Position]" Main=150,150,13500,8700,0 Viewer=0,0,0,0,0
    } >"$config/Tavo.ini"
    env -u XDG_CONFIG_HOME HOME="$home" LANG=C.UTF-8 TZ=UTC QT_QPA_PLATFORM=xcb \
        "$program" "$folder" &
    tavo_pid=$!
    window_to_front '^Tavo'
}

stop() {
    if [[ -n $tavo_pid ]]; then
        kill "$tavo_pid" 2>/dev/null || true
        wait "$tavo_pid" 2>/dev/null || true
        tavo_pid=
    fi
}

# window_to_front TITLE: waits for the window and gives it the keys, which
# nobody else does on a screen without a window manager.
window_to_front() {
    local try
    for ((try = 0; try < 200; try++)); do
        kill -0 "$tavo_pid" || die "The program has ended."
        window=$(xdotool search --all --onlyvisible --pid "$tavo_pid" --name "$1" 2>/dev/null |
            tail -n 1) || true
        if [[ -n $window ]]; then
            xdotool windowraise "$window" windowfocus --sync "$window"
            settle
            return
        fi
        sleep 0.1
    done
    die "No window is called $1."
}

# settle: until two looks at the window show the same.
settle() {
    local before='' now try
    for ((try = 0; try < 100; try++)); do
        sleep 0.15
        now=$(import -window "$window" png:- | cksum)
        if [[ $now == "$before" ]]; then
            return
        fi
        before=$now
    done
    die "The window does not come to rest."
}

press() {
    xdotool key --clearmodifiers --delay 40 "$@"
    settle
}

# at X Y: the mouse, in dots from the window's corner.
at() {
    xdotool mousemove --sync --window "$window" "$1" "$2"
}

# press_tool BARS N: the N-th stop of a toolbar from the left, negative ones from
# the right; BARS tells how many toolbars from the lowest one upwards.
press_tool() {
    local step
    for ((step = 0; step < $1; step++)); do
        press shift+F6
    done
    for ((step = 0; step < $2; step++)); do
        press Right
    done
    for ((step = 0; step > $2; step--)); do
        press Left
    done
    press Return
}

# click_at X Y [BUTTON]
click_at() {
    at "$1" "$2"
    xdotool click "${3:-1}"
    settle
}

# drag X Y TOX TOY
drag() {
    at "$1" "$2"
    xdotool mousedown 1
    at "$1" $((($2 + $4) / 2))
    at "$3" "$4"
    xdotool mouseup 1
    settle
}

# write_name TEXT: into the box for the name, the first one below the toolbar.
# What stood there is selected by going there.
write_name() {
    click_at 370 114
    xdotool type --delay 20 -- "$1"
    settle
}

# shoot NAME: what the window shows, with few colours to keep the file small.
shoot() {
    at 880 560
    settle
    import -window "$window" png:- |
        convert png:- -strip -dither None -colors "${colours:-128}" "PNG8:$pictures/$1.png"
    say "$1.png: $(stat -c %s "$pictures/$1.png") bytes"
}

# -- The pictures

# filter PATTERN
filter() {
    click_at 330 40
    press Home shift+End
    xdotool type --delay 20 -- "$1"
    press Return
}

go_to_rename_list() {
    click_at 500 300
    press ctrl+a
    press_tool 2 0
}

selection() {
    start
    press_tool 2 -1 # Preview On
    drag 120 368 120 240
    click_at 500 200
    press shift+Down shift+Down shift+Down
    shoot selection
    stop
}

rename_list() {
    start
    filter '*.jpg;*.jpeg'
    go_to_rename_list
    write_name 'holiday_<#>'
    shoot rename
    press_tool 1 -1
    shoot run
    stop
}

failed_rows() {
    start actClose=1
    go_to_rename_list
    write_name 'holiday_<#>'
    rm "$folder/IMG_2033.jpg"
    echo "not in the list" >"$folder/holiday_011.jpg"
    press_tool 1 -1
    # View, Arrange Icons, by Error
    press alt+v i e
    press alt+v i e
    shoot errors
    stop
}

delete_dialog() {
    start
    go_to_rename_list
    click_at 200 240
    press Delete
    window_to_front '^Remove Selected Items'
    shoot delete
    stop
}

go_to_thumbnails() {
    local main
    go_to_rename_list
    main=$window
    click_at 307 45 # Views
    window_to_front 'Says'
    xdotool key Return
    window_to_front '^Tavo - '
    window=$main
}

thumbnails_and_viewer() {
    start
    go_to_thumbnails
    shoot thumbnails
    click_at 350 262 3
    window_to_front 'Viewer'
    colours=256 shoot viewer
    stop
}

# The options stand as at a first start, and the lists hold something.
settings_dialog() {
    quiet=0 start '[Templates]' 'Numbered=holiday_<#>:<OE>' 'Number in front=<#> <ON>:<OE>' \
        'Song=<TR> <AR> - <T>:mp3' '[CaseWordList]' 1=McDonald 2=MP3 3=DVD
    press alt+e s
    window_to_front '^Settings'
    shoot settings
    press ctrl+Tab
    shoot templates
    stop
}

export_dialog() {
    start
    press alt+f e
    window_to_front '^Export'
    shoot export
    stop
}

editor_dialog() {
    start
    go_to_thumbnails
    press alt+t e
    window_to_front '^Thumbnail Editor'
    colours=256 shoot editor
    stop
}

make_pictures() {
    mkdir -p "$pictures"
    selection
    rename_list
    failed_rows
    delete_dialog
    thumbnails_and_viewer
    settings_dialog
    export_dialog
    editor_dialog
}

if [[ ${1-} == --inside ]]; then
    program=$2
    trap stop EXIT
    make_pictures
    exit
fi
packages_install build pictures window help
program=${1-}
if [[ -z $program ]]; then
    configure_release TAVO_WINDOW TAVO_PICTURES
    build release tavo
    program=$root/build/release/tavo
fi
if [[ -e $home ]]; then
    die "$home is there already: please take it away first."
fi
trap 'rm -rf "$home"' EXIT
xvfb-run -a -s "-screen 0 1280x900x24" "$self" --inside "$(readlink -f -- "$program")"
