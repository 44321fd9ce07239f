kavcalc matrix 1/3 'sin(30)' 'M:half(5)' '2*M:half(inverse(1))'
kavcalc matrix --angle rad --display fixed --precision 2 'sin(30)' 2^10
kavcalc matrix --raw 0.1+0.2
kavcalc matrix --settings "$FILES/macros.toml" 'M:F(3)' 'M:wave(30)'
