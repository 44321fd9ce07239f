kavcalc --settings "$FILES/macros.toml" 'sin(pi/2)'
kavcalc --settings "$FILES/macros.toml" --angle deg 'sin(90)'
