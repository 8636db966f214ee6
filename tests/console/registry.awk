# A registry text as lines "KEY" and "KEY -> NAME", the unnamed value as "@". Names are unescaped.
/^\[/ {
  sub(/\r$/, "")
  key = substr($0, 2, length($0) - 2)
  print key
}
/^@=/ { print key " -> @" }
/^"/ {
  name = ""
  for (at = 2; at <= length($0); ++at) {
    letter = substr($0, at, 1)
    if (letter == "\"") break
    if (letter == "\\") letter = substr($0, ++at, 1)
    name = name letter
  }
  print key " -> " name
}
