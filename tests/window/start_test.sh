#!/bin/sh
# Starts the program on a display of its own, and looks at what it shows.
#     start_test.sh PROGRAM FOLDER
# Leaves the picture of the window in FOLDER/window.png.
set -eu
program=$1
work=$2
rm -rf "$work"
mkdir -p "$work/files" "$work/config"
for name in one.txt two.jpg three.mp3; do
    echo "$name" > "$work/files/$name"
done

cat > "$work/inside.sh" <<'INSIDE'
#!/bin/sh
XDG_CONFIG_HOME=$work/config "$program" "$work/files" &
tavo=$!
# The picture is asked for until there is something in it: the display is black
# before the window comes.
tries=0
shades=1
while [ "$tries" -lt 100 ] && [ "$shades" -lt 20 ] && kill -0 "$tavo"; do
    import -window root "$work/window.png"
    shades=$(identify -format '%k' "$work/window.png")
    tries=$((tries + 1))
done
kill -0 "$tavo" || exit 1
xwininfo -root -tree | grep -q '"Tavo": ("tavo" ' || exit 1
kill "$tavo"
wait "$tavo" || true
echo "$shades shades after $tries looks"
[ "$shades" -ge 20 ]
INSIDE
program=$program work=$work xvfb-run -a -s "-screen 0 1280x800x24" sh "$work/inside.sh"
[ -d "$work/config/tavo" ]
