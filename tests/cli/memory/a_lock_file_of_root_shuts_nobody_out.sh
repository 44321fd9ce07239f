place=$(mktemp -d)
trap 'chmod 755 "$place"; rm -rf -- "$place"' EXIT
cp -- "$(readlink -f -- "$(command -v kavcalc)")" "$place"
: >"$place/mine.toml.lock"
chmod 000 "$place/mine.toml.lock"
# For root no file is closed: then another user tries it.
nobody=()
[[ $EUID != 0 ]] || { chmod 777 "$place"; nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups); }
"${nobody[@]}" "$place/kavcalc" memory store --settings "$place/mine.toml" 1 5
"${nobody[@]}" "$place/kavcalc" memory list --settings "$place/mine.toml" | head -1
