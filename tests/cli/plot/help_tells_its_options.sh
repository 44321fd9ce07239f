for word in 'plot [OPTION]... [--] [EQUATION]...' '--range XMIN XMAX YMIN YMAX' '--area TOP BOTTOM' --angle; do
  kavcalc plot --help | grep -q -F -e "$word" || echo "$word is missing"
done
kavcalc eval --help | grep -c -e --range -e --area
kavcalc --help | grep '^  plot '
