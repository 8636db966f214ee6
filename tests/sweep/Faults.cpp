// Loaded in front of the system's library, it lets one call of the program fail. For tools/sweep.
//
//   ZUB_FAULT_AT      the number of the call, from 1; the calls are those below
//   ZUB_FAULT         what happens there: the number of an error; "short": half of what was asked for is done;
//                     "zero": nothing is, without an error; "kill": the process is killed before the call;
//                     "signal15": it gets that signal before the call, which goes on
//   ZUB_FAULT_LOG     a file that gets the name of every call, a line each
//   ZUB_FAULT_MEMORY  the number of the allocation that fails, from 1; with a "+" behind it all later ones too
//   ZUB_FAULT_COUNT   a file that gets the number of allocations when the process ends
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int Short = -1;
constexpr int Zero = -2;
constexpr int Kill = -3;
constexpr int Signal = -100;  // less the number of the signal

long number(const char* name) {
  const char* text = std::getenv(name);
  return text == nullptr ? 0 : std::atol(text);
}

int faultNamed(const char* text) {
  if (text == nullptr) return 0;
  if (std::strcmp(text, "short") == 0) return Short;
  if (std::strcmp(text, "zero") == 0) return Zero;
  if (std::strcmp(text, "kill") == 0) return Kill;
  if (std::strncmp(text, "signal", 6) == 0) return Signal - std::atoi(text + 6);
  return std::atoi(text);
}

// Read when the library is loaded; before that nothing fails.
struct Plan {
  bool ready = false;
  long failingCall = 0;
  int fault = 0;
  int log = -1;
  long failingAllocation = 0;
  bool allLater = false;
  const char* count = nullptr;
  long calls = 0;
  long allocations = 0;
} plan;

template <class Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

__attribute__((constructor)) void begin() {
  plan.failingCall = number("ZUB_FAULT_AT");
  plan.fault = faultNamed(std::getenv("ZUB_FAULT"));
  plan.failingAllocation = number("ZUB_FAULT_MEMORY");
  const char* memory = std::getenv("ZUB_FAULT_MEMORY");
  plan.allLater = memory != nullptr && std::strchr(memory, '+') != nullptr;
  plan.count = std::getenv("ZUB_FAULT_COUNT");
  if (const char* log = std::getenv("ZUB_FAULT_LOG")) {
    plan.log = next<int(const char*, int, ...)>("open")(log, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  }
  plan.ready = true;
}

__attribute__((destructor)) void end() {
  if (plan.count == nullptr) return;
  plan.ready = false;
  if (FILE* file = std::fopen(plan.count, "w")) {
    std::fprintf(file, "%ld\n", plan.allocations);
    std::fclose(file);
  }
}

// What is to happen at this call: an error (errno is set), Short, Zero, or 0 for the call itself.
int faultAt(const char* name) {
  if (!plan.ready) return 0;
  ++plan.calls;
  if (plan.log >= 0) dprintf(plan.log, "%s\n", name);
  if (plan.calls != plan.failingCall) return 0;
  if (plan.fault == Kill) ::kill(::getpid(), SIGKILL);
  if (plan.fault < Signal) {
    ::raise(Signal - plan.fault);
    return 0;
  }
  if (plan.fault > 0) errno = plan.fault;
  return plan.fault;
}

bool allocationFails() {
  if (!plan.ready) return false;
  ++plan.allocations;
  if (plan.failingAllocation == 0 || plan.allocations < plan.failingAllocation) return false;
  return plan.allLater || plan.allocations == plan.failingAllocation;
}

}  // namespace

#define FAILS(name) (faultAt(name) > 0)

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = va_arg(rest, mode_t);
  va_end(rest);
  return FAILS("open") ? -1 : next<int(const char*, int, ...)>("open")(path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const auto mode = va_arg(rest, mode_t);
  va_end(rest);
  return FAILS("openat") ? -1 : next<int(int, const char*, int, ...)>("openat")(folder, path, flags, mode);
}

int fstat(int file, struct stat* facts) noexcept {
  return FAILS("fstat") ? -1 : next<int(int, struct stat*)>("fstat")(file, facts);
}

int fstatat(int folder, const char* path, struct stat* facts, int flags) noexcept {
  return FAILS("fstatat")
             ? -1
             : next<int(int, const char*, struct stat*, int)>("fstatat")(folder, path, facts, flags);
}

DIR* fdopendir(int folder) {
  return FAILS("fdopendir") ? nullptr : next<DIR*(int)>("fdopendir")(folder);
}

struct dirent* readdir(DIR* folder) {
  static auto* const call = next<struct dirent*(DIR*)>("readdir");
  return FAILS("readdir") ? nullptr : call(folder);
}

ssize_t pread(int file, void* buffer, size_t size, off_t offset) {
  const int fault = faultAt("pread");
  if (fault > 0) return -1;
  if (fault == Zero) return 0;
  if (fault == Short) size = (size + 1) / 2;
  return next<ssize_t(int, void*, size_t, off_t)>("pread")(file, buffer, size, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  const int fault = faultAt("pwrite");
  if (fault > 0) return -1;
  if (fault == Zero) return 0;
  if (fault == Short) size = (size + 1) / 2;
  return next<ssize_t(int, const void*, size_t, off_t)>("pwrite")(file, bytes, size, offset);
}

int fsync(int file) {
  return FAILS("fsync") ? -1 : next<int(int)>("fsync")(file);
}

int fdatasync(int file) {
  return FAILS("fdatasync") ? -1 : next<int(int)>("fdatasync")(file);
}

int ftruncate(int file, off_t size) noexcept {
  return FAILS("ftruncate") ? -1 : next<int(int, off_t)>("ftruncate")(file, size);
}

int flock(int file, int how) noexcept {
  return FAILS("flock") ? -1 : next<int(int, int)>("flock")(file, how);
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  return FAILS("unlinkat") ? -1 : next<int(int, const char*, int)>("unlinkat")(folder, path, flags);
}

int renameat(int from, const char* old, int to, const char* path) noexcept {
  return FAILS("renameat") ? -1
                           : next<int(int, const char*, int, const char*)>("renameat")(from, old, to, path);
}

int mkdirat(int folder, const char* path, mode_t mode) noexcept {
  return FAILS("mkdirat") ? -1 : next<int(int, const char*, mode_t)>("mkdirat")(folder, path, mode);
}

int fchmodat(int folder, const char* path, mode_t mode, int flags) noexcept {
  return FAILS("fchmodat") ? -1
                           : next<int(int, const char*, mode_t, int)>("fchmodat")(folder, path, mode, flags);
}

int fchownat(int folder, const char* path, uid_t user, gid_t group, int flags) noexcept {
  return FAILS("fchownat")
             ? -1
             : next<int(int, const char*, uid_t, gid_t, int)>("fchownat")(folder, path, user, group, flags);
}

void* __libc_malloc(size_t size);

void* malloc(size_t size) noexcept {
  if (allocationFails()) {
    errno = ENOMEM;
    return nullptr;
  }
  return __libc_malloc(size);
}

}  // extern "C"
