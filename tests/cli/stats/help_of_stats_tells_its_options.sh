for word in --two --model --x --y quadratic sd_population_x; do
  kavcalc stats --help | grep -q -F -e "$word" || echo "$word is missing"
done
kavcalc --help | grep -c '^  stats '
