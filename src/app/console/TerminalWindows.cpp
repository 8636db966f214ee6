#include <cstdio>

#include "app/console/Interrupt.h"
#include "app/console/Terminal.h"
#include "platform/win32/Win32Console.h"

namespace zub {
namespace {

console::Stream consoleOf(terminal::Stream stream) {
  return stream == terminal::Stream::Output ? console::Stream::Output : console::Stream::Errors;
}

std::FILE* fileOf(terminal::Stream stream) {
  return stream == terminal::Stream::Output ? stdout : stderr;
}

volatile int noted = 0;

void note(int signal) {
  noted = signal;
}

}  // namespace

void terminal::write(Stream stream, std::string_view text) {
  if (isTerminal(stream)) return console::write(consoleOf(stream), text);
  std::fwrite(text.data(), 1, text.size(), fileOf(stream));
}

bool terminal::isTerminal(Stream stream) {
  return console::isConsole(consoleOf(stream));
}

std::size_t terminal::width(Stream stream) {
  constexpr int Usual = 80;
  const int width = console::width(consoleOf(stream));
  return static_cast<std::size_t>(width > 0 ? width : Usual);
}

std::vector<std::string> terminal::commandWords(int, char**) {
  return console::words();
}

void interrupt::watch() {
  console::onEnd(note);
}

int interrupt::signal() {
  return noted;
}

}  // namespace zub
