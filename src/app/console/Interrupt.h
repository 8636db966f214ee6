// Signals that end the program: a wash stops between two files, saves what it did and tells it.
#pragma once

namespace zub::interrupt {

// From here on SIGINT, SIGTERM and SIGHUP, on Windows Ctrl+C, Ctrl+Break, the closing of the console and the end of
// the session, are only noted; a second SIGINT ends the program at once. A SIGHUP that is ignored stays so.
void watch();
// The number of the signal that came; 0 for none.
int signal();
// The exit status of a program that the signal ended.
inline int status() {
  return 128 + signal();
}

}  // namespace zub::interrupt
