echo '[[[' >bad.toml
kavcalc --settings bad.toml 'sin(30)' 'cos(60)' 'M:F(1)'
ls; cat bad.toml
