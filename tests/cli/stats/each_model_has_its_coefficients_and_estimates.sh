# The last digits depend on the logarithms of the C library.
fit() { kavcalc stats --two "$@" | sed '1,/sum_xy/d' | cut -c -11; }
printf '1 1 1\n2 4 1\n3 9 1\n' >squares
printf '1 3 1\n2 2 1\n' >pair
printf '1 1 2\n1 1 5\n' >one_place
fit --model quadratic --x 4 --y 4 --y -4 squares
fit --model power --x 4 squares
fit --model inverse pair
fit --model logarithmic --x 1 pair
fit --model exponential one_place
fit --model quadratic --model linear squares
