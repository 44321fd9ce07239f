place=$(mktemp -d)
trap 'chmod 755 "$place"; rm -rf -- "$place"' EXIT
cp "$FILES/macros.toml" "$place/mine.toml"
cp -- "$(readlink -f -- "$(command -v kavcalc)")" "$place"
chmod 555 "$place"
# root may write everywhere.
nobody=()
[[ $EUID != 0 ]] || nobody=(setpriv --reuid=65534 --regid=65534 --clear-groups)
"${nobody[@]}" "$place/kavcalc" macro add --settings "$place/mine.toml" sq 'x^2' | sed "s|$place|PLACE|"
"${nobody[@]}" "$place/kavcalc" macro list --settings "$place/mine.toml"
cmp "$place/mine.toml" "$FILES/macros.toml"
