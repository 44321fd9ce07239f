kavcalc --settings "$FILES/macros.toml" 'sin(pi/2)' <&-
