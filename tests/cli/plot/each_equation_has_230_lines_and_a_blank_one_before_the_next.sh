# For each equation: how many lines have how many fields.
kavcalc plot x 'x+' 'sqrt(x)' '-1*x' |
  awk -F '\t' '$0 == "" { print lines, fields; lines = fields = 0; next }
    { lines++; fields += NF } END { print lines, fields }'
kavcalc plot x 'x+' 'sqrt(x)' >answers
echo $?
kavcalc plot x | tail -n 1
