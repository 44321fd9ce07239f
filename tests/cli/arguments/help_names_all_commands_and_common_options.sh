for word in eval check format matrix convert keys macro memory constants --angle --base --display --precision --raw --settings --help --version; do
  kavcalc --help | grep -qe "$word" || echo "$word is missing"
done
kavcalc --help >/dev/null
