coproc kavcalc
for question in 1+1 '(1' 3!; do
  echo "$question" >&"${COPROC[1]}"
  IFS= read -r -t 20 answer <&"${COPROC[0]}" && echo "$answer"
done
