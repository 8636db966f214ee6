// Loaded in front of the system's library, it lets a program that waits live through the moments of a script: ZUB_MOMENTS
// names its file, each line a local time, "2001-09-14 10:20:30", and what the shell does then before the program goes on.
// The first moment is that of the program's start, each wait ends at the next one, and behind the last the program is
// interrupted.
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace {

std::ifstream* script = nullptr;
std::time_t now = 0;

void nextMoment() {
  std::string line;
  if (!std::getline(*script, line)) {
    ::raise(SIGINT);
    return;
  }
  std::tm parts{};
  parts.tm_isdst = -1;
  const char* rest = ::strptime(line.c_str(), "%Y-%m-%d %H:%M:%S", &parts);
  if (rest == nullptr) std::abort();
  now = std::mktime(&parts);
  ::dprintf(STDOUT_FILENO, "- %s\n", line.c_str() + sizeof "2001-09-14");  // behind what the program flushed
  if (std::system(rest) != 0) std::abort();
}

__attribute__((constructor)) void begin() {
  ::unsetenv("LD_PRELOAD");
  script = new std::ifstream(std::getenv("ZUB_MOMENTS"));
  nextMoment();
}

}  // namespace

extern "C" {

int clock_gettime(clockid_t clock, timespec* time) noexcept {
  if (clock != CLOCK_REALTIME) return static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
  *time = {now, 0};
  return 0;
}

time_t time(time_t* moment) noexcept {
  if (moment != nullptr) *moment = now;
  return now;
}

int usleep(useconds_t) {
  nextMoment();
  return 0;
}

}  // extern "C"
