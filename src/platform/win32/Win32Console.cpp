#include "platform/win32/Win32Console.h"

#include <algorithm>

#include "platform/host/win32/Utf8.h"
#include "platform/win32/Text.h"

namespace zub::console {
namespace {

HANDLE handleOf(Stream stream) {
  switch (stream) {
    case Stream::Input:
      return GetStdHandle(STD_INPUT_HANDLE);
    case Stream::Output:
      return GetStdHandle(STD_OUTPUT_HANDLE);
    case Stream::Errors:
      break;
  }
  return GetStdHandle(STD_ERROR_HANDLE);
}

constexpr int Interrupt = 2;
constexpr int Terminate = 15;
constexpr int HangUp = 1;
constexpr DWORD TimeToSave = 20000;  // milliseconds; the system waits less

void (*noteEnd)(int signal) = nullptr;

// When it returns from the closing of the console or the end of the session, the system ends the program.
BOOL WINAPI handleEnd(DWORD event) {
  switch (event) {
    case CTRL_C_EVENT:
    case CTRL_BREAK_EVENT:
      noteEnd(Interrupt);
      return TRUE;
    case CTRL_CLOSE_EVENT:
      noteEnd(HangUp);
      break;
    case CTRL_LOGOFF_EVENT:
    case CTRL_SHUTDOWN_EVENT:
      noteEnd(Terminate);
      break;
    default:
      return FALSE;
  }
  Sleep(TimeToSave);
  return TRUE;
}

// One word from the command line, as the run-time library splits it: an even number of backslashes before a quote are
// half of them, an odd number half and a quote; two quotes within quotes are one.
std::wstring takeWord(std::wstring_view& line) {
  std::wstring word;
  bool quoted = false;
  std::size_t place = 0;
  for (;; ++place) {
    std::size_t slashes = 0;
    for (; place < line.size() && line[place] == L'\\'; ++place) ++slashes;
    if (place < line.size() && line[place] == L'"') {
      word.append(slashes / 2, L'\\');
      const bool twice = quoted && line.substr(place).starts_with(L"\"\"");
      if (slashes % 2 == 1 || twice) {
        word += L'"';
        if (slashes % 2 == 0) ++place;
      } else {
        quoted = !quoted;
      }
      continue;
    }
    word.append(slashes, L'\\');
    if (place == line.size() || (!quoted && (line[place] == L' ' || line[place] == L'\t'))) break;
    word += line[place];
  }
  line.remove_prefix(std::min(line.find_first_not_of(L" \t", place), line.size()));
  return word;
}

// The program's own name may hold no quote: backslashes before one are no matter.
std::wstring takeProgram(std::wstring_view& line) {
  const bool quoted = line.starts_with(L'"');
  const std::size_t begin = quoted ? 1 : 0;
  const std::size_t end = std::min(line.find_first_of(quoted ? L"\"" : L" \t", begin), line.size());
  std::wstring name(line.substr(begin, end - begin));
  line.remove_prefix(std::min(line.find_first_not_of(L" \t\"", end), line.size()));
  return name;
}

}  // namespace

bool isConsole(Stream stream) {
  DWORD mode = 0;
  return GetConsoleMode(handleOf(stream), &mode) != 0;
}

// The 9x family has no wide writing: there the text goes in the console's own code page.
void write(Stream stream, std::string_view text) {
  const HANDLE handle = handleOf(stream);
  std::wstring wide = wideFromUtf8(text);
  constexpr std::size_t most = 8000;  // units that a console takes at once
  for (std::wstring_view rest = wide; !rest.empty();) {
    const std::wstring_view part = rest.substr(0, most);
    rest.remove_prefix(part.size());
    DWORD done = 0;
    if (isNtFamily()) {
      WriteConsoleW(handle, part.data(), static_cast<DWORD>(part.size()), &done, nullptr);
      continue;
    }
    std::string bytes(part.size() * 2, '\0');
    const int length = WideCharToMultiByte(CP_OEMCP, 0, part.data(), static_cast<int>(part.size()),
                                           bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    WriteFile(handle, bytes.data(), static_cast<DWORD>(length), &done, nullptr);
  }
}

int width(Stream stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (GetConsoleScreenBufferInfo(handleOf(stream), &info) == 0) return 0;
  return info.srWindow.Right - info.srWindow.Left + 1;
}

// The run-time library hands over what the code page holds of them.
std::vector<std::string> words() {
  const std::wstring whole = isNtFamily() ? std::wstring(GetCommandLineW()) : wideFromAnsi(GetCommandLineA());
  std::wstring_view line = whole;
  std::vector<std::string> result{utf8FromWide(takeProgram(line))};
  while (!line.empty()) result.push_back(utf8FromWide(takeWord(line)));
  return result;
}

void onEnd(void (*note)(int signal)) {
  noteEnd = note;
  SetConsoleCtrlHandler(handleEnd, TRUE);
}

}  // namespace zub::console
