# Reads compile_commands.json and writes to FOLDER units of several sources below SOURCES one after the
# other, with a compile_commands.json of their own, and beside each unit UNIT.sources, a line for each
# source: how many lines of the unit come before it, and its path. Included instead, they would count as
# headers, which the analyzer and some checks pass over.
#
# A unit holds sources that are compiled alike in one folder, and in which no word is a name that an
# anonymous namespace further up has defined: so each means what it means alone. As all of ours is
# formatted, such a definition begins at the beginning of a line, and nothing else does in there.

# The name that a line defines; none where it only defines a member of a class.
function name_in(line) {
  while (gsub(/<[^<>]*>/, "", line)) continue
  sub(/ *([[(={;].*| final( .*)?$|: .*)/, "", line)
  if (line ~ /::[A-Za-z0-9_]*$/) return ""
  sub(/.*[^A-Za-z0-9_]/, "", line)
  return line
}

# Sets words and names: the words of a source, and what its anonymous namespace defines of them.
function read_source(source,    line, inside, list, count, i) {
  split("", words)
  split("", names)
  while ((getline line < source) > 0) {
    if (line ~ /^namespace {$/) inside = 1
    if (line ~ /^}  \/\/ namespace$/) inside = 0
    sub(/\/\/.*/, "", line)
    count = split(line, list, /[^A-Za-z0-9_]+/)
    for (i = 1; i <= count; ++i) words[list[i]]
    if (inside && line ~ /^[A-Za-z]/ && line !~ /^(namespace|template|static_assert)/)
      names[name_in(line)]
  }
  close(source)
  delete names[""]
}

function goes_into(unit,    word) {
  if (unit_kind[unit] != kind || held[unit] >= most) return 0
  for (word in words) if ((unit, word) in defined) return 0
  return 1
}

# The first unit that the source goes into; a new one where there is none.
function unit_for_it(    unit) {
  for (unit = 1; unit <= units; ++unit) if (goes_into(unit)) return unit
  unit_kind[++units] = kind
  unit_command[units] = command
  return units
}

# What sources before it have included is not included again: that would look like a slip. To include
# the same twice in one source is one.
function append(source, unit,    line, own) {
  print lines[unit] + 0, source > (path_of(unit) ".sources")
  while ((getline line < source) > 0) {
    if (line ~ /^#include / && (unit, line) in included && !(line in own)) {
      own[line]
      line = ""
    } else if (line ~ /^#include /) {
      own[line]
      included[unit, line]
    }
    print line > path_of(unit)
    ++lines[unit]
  }
  close(source)
}

function path_of(unit) {
  return sprintf("%s/unit_%02d.cpp", folder, unit)
}

BEGIN { most = 40 }

/^ *"directory": / { directory = $0 }

/^ *"command": / {
  kind = command = $0
  sub(/\/CMakeFiles\/.*/, "", kind)
  sub(/ -o .*/, "", command)
}

/^ *"file": / {
  source = $0
  gsub(/^ *"file": "|",?$/, "", source)
  if (index(source, sources) != 1) next
  read_source(source)
  unit = unit_for_it()
  for (name in names) defined[unit, name]
  unit_directory[unit] = directory
  ++held[unit]
  append(source, unit)
}

END {
  database = folder "/compile_commands.json"
  for (i = 1; i <= units; ++i) {
    printf "%s{\n%s\n%s -c %s\",\n  \"file\": \"%s\"\n}", (i > 1 ? ",\n" : "[\n"), unit_directory[i],
      unit_command[i], path_of(i), path_of(i) > database
  }
  print "\n]" > database
}
