for type in floating fixed scientific thousands engineering; do
  kavcalc --display $type --precision 3 12345.678
done
