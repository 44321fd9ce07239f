mkdir -p usr/bin usr/share/kav-calculator
cp -- "$(readlink -f -- "$(command -v kavcalc)")" usr/bin
echo '[a]installed=1;' >usr/share/kav-calculator/constable.dat
usr/bin/kavcalc constants
echo '[a]beside=2;' >usr/bin/constable.dat
usr/bin/kavcalc constants
