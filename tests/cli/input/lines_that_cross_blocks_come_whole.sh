for i in {1..40000}; do echo "$i+0.5"; done >lines
kavcalc <lines | cmp - <(for i in {1..40000}; do echo "$i.5"; done) && echo same
