# Which of the options each help names, and what it says of standard input.
for command in eval check format matrix stats plot convert keys macro memory constants; do
  help=$(kavcalc "$command" --help)
  echo "$command:" $(grep -oE -e '^  --[^ ]+' <<<"$help")
  grep -q 'of standard' <<<"${help//$'\n'/ }" || echo "  reads no lines"
done
kavcalc constants --angle rad --base hex speed light vacuum
