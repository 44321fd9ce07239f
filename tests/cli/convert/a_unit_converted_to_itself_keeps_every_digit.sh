kavcalc convert --raw 7 AU AU 0.1 3.3333333333333335 1e308 5e-324
kavcalc convert --raw 4 'Electron Volts' 'electron volts' 1.1 1e-300
