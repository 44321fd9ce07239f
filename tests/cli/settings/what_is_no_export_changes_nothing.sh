kavcalc memory store 1 42
settings=$HOME/.config/kav-calculator/settings.toml
cp "$settings" before
printf 'a = 1\n' >other.toml
printf 'not toml [' >torn.toml
mkdir folder
: >empty.toml
head -c 5000000 /dev/zero >large.toml
for file in other.toml torn.toml folder empty.toml large.toml missing.toml; do
  kavcalc settings import "$file"
  echo "$?"
done
cmp "$settings" before
ls "$HOME/.config/kav-calculator"
