# With a sanitizer, no program can start in so little memory.
{ (ulimit -v 60000 && kavcalc --version >/dev/null); } 2>/dev/null && ulimit -v 60000
yes $'12.5\t2' | head -n 3000000 | kavcalc stats - | head -n 3
