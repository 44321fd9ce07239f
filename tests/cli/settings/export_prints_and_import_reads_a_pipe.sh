kavcalc memory store 1 42 >stored
kavcalc settings export | HOME=$PWD/elsewhere kavcalc settings import
HOME=$PWD/elsewhere kavcalc memory list | head -n 1
