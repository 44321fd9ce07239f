mkdir -p "$HOME/.config/kav-calculator"
cp "$FILES/macros.toml" "$HOME/.config/kav-calculator/settings.toml"
kavcalc 'sin(pi/2)' 'M:F(3)'
XDG_CONFIG_HOME=$PWD kavcalc 'sin(90)'
