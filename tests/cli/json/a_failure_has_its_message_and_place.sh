kavcalc --json '2+sine(30)' '(1+2' '2+' 1/0 ''; echo $?
kavcalc --json check 'x^2+y'; echo $?
kavcalc --json plot 'x*q'; echo $?
kavcalc --json memory store 12 '3*(q)'; echo $?
printf '7\t1+q\n' | kavcalc --json memory store
kavcalc --json format abc; kavcalc --json stats missing; kavcalc --json keys 7 Seven
kavcalc --json --settings none.toml macro remove nothing
kavcalc --json convert nowhere x y 1; echo $?
