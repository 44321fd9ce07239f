for type in floating fixed scientific thousands engineering; do
  kavcalc format --display $type 1234567.5 0 0.05 -1000
done
