kavcalc <.
