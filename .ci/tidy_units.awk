# Reads compile_commands.json and writes to FOLDER units of several sources below SOURCES one after the
# other, with a compile_commands.json of their own, and beside each unit UNIT.sources, a line for each
# source: how many lines of the unit come before it, and its path. Included instead, they would count as
# headers, which the analyzer and some checks pass over.
#
# A unit holds sources that are compiled alike. What an anonymous namespace of one of them defines gets
# a name of its own where that name stands in another source as well: so each means what it means alone.
# As all of ours is formatted, such a definition begins at the beginning of a line, and nothing else does
# in there.

# The name that a line defines; none where it only defines a member of a class.
function name_in(line) {
  while (gsub(/<[^<>]*>/, "", line)) continue
  sub(/ *([[(={;].*| final( .*)?$|: .*)/, "", line)
  if (line ~ /::[A-Za-z0-9_]*$/) return ""
  sub(/.*[^A-Za-z0-9_]/, "", line)
  return line
}

# Notes which words each kind of sources has in more than one of them, and what the anonymous namespace
# of this one defines.
function read_source(source,    line, inside, deeper, list, count, i) {
  while ((getline line < source) > 0) {
    if (line ~ /^namespace {$/) inside = 1
    if (line ~ /^}  \/\/ namespace$/) inside = 0
    sub(/\/\/.*/, "", line)
    count = split(line, list, /[^A-Za-z0-9_]+/)
    for (i = 1; i <= count; ++i) {
      if (!((kind, list[i]) in word_of)) word_of[kind, list[i]] = source
      else if (word_of[kind, list[i]] != source) is_shared[kind, list[i]]
    }
    if (inside && line ~ /^namespace [a-z_]+ {$/) deeper = 1
    if (line ~ /^}  \/\/ namespace [a-z_]+$/) deeper = 0
    if (inside && !deeper && line ~ /^[A-Za-z]/ &&
        line !~ /^(namespace|template|static_assert|using enum)/)
      names_of[source] = names_of[source] " " name_in(line)
  }
  close(source)
}

# A line with those names of its source's own in it, each followed by the number of the source, unless
# it is that of a member.
function with_own_names(line, number,    out, word, before) {
  while (match(line, /[A-Za-z_][A-Za-z0-9_]*/)) {
    word = substr(line, RSTART, RLENGTH)
    before = substr(line, 1, RSTART - 1)
    out = out before word
    if (word in own_names && out !~ /(\.|->|::)[A-Za-z0-9_]*$/) out = out "Of" number
    line = substr(line, RSTART + RLENGTH)
  }
  return out line
}

# What sources before it have included is not included again: that would look like a slip. To include
# the same twice in one source is one.
function append(source, unit, number,    line, own, list, count, i) {
  split("", own_names)
  count = split(names_of[source], list, " ")
  for (i = 1; i <= count; ++i) if ((kind_of[source], list[i]) in is_shared) own_names[list[i]]
  print lines[unit] + 0, source > (path_of(unit) ".sources")
  while ((getline line < source) > 0) {
    if (line ~ /^#include / && (unit, line) in included && !(line in own)) {
      own[line]
      line = ""
    } else if (line ~ /^#include /) {
      own[line]
      included[unit, line]
    } else {
      line = with_own_names(line, number)
    }
    print line > path_of(unit)
    ++lines[unit]
  }
  close(source)
}

# The unit that the next source of that kind goes into; a new one where the last is full.
function unit_for_it(kind) {
  if (!(kind in last_unit) || held[last_unit[kind]] >= most) last_unit[kind] = ++units
  ++held[last_unit[kind]]
  return last_unit[kind]
}

function path_of(unit) {
  return sprintf("%s/unit_%02d.cpp", folder, unit)
}

BEGIN { most = 50 }

/^ *"directory": / { directory = $0 }

/^ *"command": / {
  kind = command = $0
  sub(/ -o .*/, "", command)
  gsub(/ -o .*| -falign-[^ ]*/, "", kind)
}

/^ *"file": / {
  source = $0
  gsub(/^ *"file": "|",?$/, "", source)
  if (index(source, sources) != 1) next
  kind_of[source] = kind
  command_of[source] = command
  directory_of[source] = directory
  order[++count] = source
  read_source(source)
}

END {
  for (i = 1; i <= count; ++i) {
    source = order[i]
    unit = unit_for_it(kind_of[source])
    unit_directory[unit] = directory_of[source]
    unit_command[unit] = command_of[source]
    append(source, unit, i)
  }
  database = folder "/compile_commands.json"
  for (i = 1; i <= units; ++i) {
    printf "%s{\n%s\n%s -c %s\",\n  \"file\": \"%s\"\n}", (i > 1 ? ",\n" : "[\n"), unit_directory[i],
      unit_command[i], path_of(i), path_of(i) > database
  }
  print "\n]" > database
}
