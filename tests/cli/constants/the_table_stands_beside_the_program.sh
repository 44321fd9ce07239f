cp -- "$(readlink -f -- "$(command -v kavcalc)")" .
{
  printf 'a comment without marks;[group one]first=1;\r\n[Zwei]zw\366lf (m)= 12 ;[x]no value=;[x]=no name;'
  printf 'a=b]c;[y]two\nlines\tand a tab=1\r\n2\t3;[z]last=4\xb5; [z]unfinished=5'
} >constable.dat
./kavcalc constants
echo
./kavcalc constants ZW$'\303\226'LF
./kavcalc constants group
