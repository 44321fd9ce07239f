kavcalc evl 1+1; echo $?
kavcalc statz f.txt; echo $?
kavcalc Plot x; echo $?
kavcalc --json mtrix 2 2>&1 >/dev/null | sed 's/^/told: /'
kavcalc stast --two f.txt; echo $?
kavcalc help
kavcalc --precision 3 VERSION
# No such mistake: a value, another word, a place where no command can stand, a line of standard input.
kavcalc pi; kavcalc zzz; kavcalc eval statz; kavcalc -- statz; kavcalc 1 statz
echo statz | kavcalc
