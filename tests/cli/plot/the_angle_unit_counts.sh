last() { tail -n 1 | cut -f 3; }
kavcalc plot 'tan(x)' | last
kavcalc plot --angle rad 'tan(x)' | last
printf '[Config]\n"Angle Type" = 2\n' >settings.toml
kavcalc plot --settings settings.toml 'tan(x)' | last
kavcalc plot --settings settings.toml --angle deg 'TAN(X)' | last
