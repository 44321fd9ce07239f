before=$(ls /dev/null*)
mkdir folder
mkfifo pipe
ln -s loop loop
for name in folder pipe loop new/ /dev/null; do
  kavcalc memory store --settings "$name" 1 5 | cut -d. -f1
done
kavcalc memory store --settings $'pipe/\e[31mname\n' 1 5
ls
[[ $(ls /dev/null*) == "$before" ]]
