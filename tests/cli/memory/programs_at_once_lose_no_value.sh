# Five at a time: a program that waits for the others longer than two seconds gives up.
for i in {1..20}; do
  kavcalc memory store "$i" "$i*$i" >"answer$i" &
  ((i % 5)) || wait
done
kavcalc memory list | awk '{ if ($3 != NR * NR) print "lost: " $0 }'
cat answer* | LC_ALL=C sort | cmp - <(kavcalc memory list)
kavcalc memory list | tail -1
