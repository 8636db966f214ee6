# Sourced by what starts Wine, whose programs may change read-only files as root only.

# as_root COMMAND...: goes on as this command, by a user who is not root as the root of a user namespace of its own. Does nothing
# where that is not needed, or not allowed.
as_root() {
  if [ "$(id -u)" -ne 0 ] && unshare --user --map-root-user true 2>/dev/null; then
    exec unshare --user --map-root-user "$@"
  fi
}
