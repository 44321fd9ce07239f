kavcalc macro add sq 'x^2'
find "$HOME" -name settings.toml | sed "s|$HOME||"
XDG_CONFIG_HOME=$PWD/there kavcalc macro add cube 'x^3'
find there -name settings.toml
kavcalc macro add --settings new/mine.toml half 'x/2'
for option in "" --settings=there/kav-calculator/settings.toml --settings=new/mine.toml; do
  kavcalc macro list $option
done
