#include <sys/ioctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "app/console/Interrupt.h"
#include "app/console/Terminal.h"

namespace zub {
namespace {

std::FILE* fileOf(terminal::Stream stream) {
  return stream == terminal::Stream::Output ? stdout : stderr;
}

volatile std::sig_atomic_t noted = 0;

void note(int signal) {
  noted = signal;
  if (signal == SIGINT) std::signal(SIGINT, SIG_DFL);
}

}  // namespace

void terminal::write(Stream stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), fileOf(stream));
}

bool terminal::isTerminal(Stream stream) {
  return isatty(fileno(fileOf(stream))) != 0;
}

std::size_t terminal::width(Stream stream) {
  constexpr std::size_t Usual = 80;
  winsize size{};
  if (ioctl(fileno(fileOf(stream)), TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return Usual;
  return size.ws_col;
}

std::vector<std::string> terminal::commandWords(int count, char** words) {
  return {words, words + count};
}

void interrupt::watch() {
  std::signal(SIGINT, note);
  std::signal(SIGTERM, note);
  if (std::signal(SIGHUP, note) == SIG_IGN) std::signal(SIGHUP, SIG_IGN);
}

int interrupt::signal() {
  return noted;
}

}  // namespace zub
