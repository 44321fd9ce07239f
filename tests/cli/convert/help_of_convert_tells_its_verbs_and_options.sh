kavcalc convert --help | grep -oE 'convert user (list|add|remove)\b|--list' | LC_ALL=C sort -u
kavcalc convert user --help | head -1
kavcalc --list 1+1; echo $?
ls -A "$HOME"
