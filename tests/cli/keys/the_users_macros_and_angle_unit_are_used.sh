kavcalc keys --settings "$FILES/macros.toml" '"2*M:F( 3 )"' =
kavcalc keys --settings "$FILES/macros.toml" '"sin(pi/2)"' =
kavcalc keys --settings "$FILES/macros.toml" 1 / 3 =
