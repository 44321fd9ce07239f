for word in --m1 --m2 --m3 --ans --angle 'inverse(A)' 'linearequation(A,B)'; do
  kavcalc matrix --help | grep -q -F -e "$word" || echo "$word is missing"
done
kavcalc eval --help | grep -c -e --m1
kavcalc --m1 a.txt 1+1; echo $?
