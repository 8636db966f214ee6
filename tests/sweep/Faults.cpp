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

// A call that fails as a whole, by the name that the library has for it: its parameters, and how it tells a failure.
#define CALL(Result, name, failure, parameters, ...)           \
  Result faulty_##name parameters asm(#name);                  \
  Result faulty_##name parameters {                            \
    static auto* const call = next<Result parameters>(#name);  \
    return faultAt(#name) > 0 ? (failure) : call(__VA_ARGS__); \
  }
// One that may do a part of what is asked for.
#define TRANSFER(name, Buffer)                                                           \
  ssize_t faulty_##name(int file, Buffer buffer, size_t size, off_t offset) asm(#name);  \
  ssize_t faulty_##name(int file, Buffer buffer, size_t size, off_t offset) {            \
    const int fault = faultAt(#name);                                                    \
    if (fault > 0) return -1;                                                            \
    if (fault == Zero) return 0;                                                         \
    if (fault == Short) size = (size + 1) / 2;                                           \
    return next<ssize_t(int, Buffer, size_t, off_t)>(#name)(file, buffer, size, offset); \
  }

extern "C" {

CALL(int, open, -1, (const char* path, int flags, mode_t mode), path, flags, mode)
CALL(int, openat, -1, (int folder, const char* path, int flags, mode_t mode), folder, path, flags, mode)
CALL(int, fstat, -1, (int file, struct stat* facts), file, facts)
CALL(int, fstatat, -1, (int folder, const char* path, struct stat* facts, int flags), folder, path, facts,
     flags)
CALL(DIR*, fdopendir, nullptr, (int folder), folder)
CALL(dirent*, readdir, nullptr, (DIR * folder), folder)
TRANSFER(pread, void*)
TRANSFER(pwrite, const void*)
CALL(int, fsync, -1, (int file), file)
CALL(int, fdatasync, -1, (int file), file)
CALL(int, ftruncate, -1, (int file, off_t size), file, size)
CALL(int, flock, -1, (int file, int how), file, how)
CALL(int, unlinkat, -1, (int folder, const char* path, int flags), folder, path, flags)
CALL(int, renameat, -1, (int from, const char* old, int to, const char* path), from, old, to, path)
CALL(int, mkdirat, -1, (int folder, const char* path, mode_t mode), folder, path, mode)
CALL(int, fchmodat, -1, (int folder, const char* path, mode_t mode, int flags), folder, path, mode, flags)
CALL(int, fchownat, -1, (int folder, const char* path, uid_t user, gid_t group, int flags), folder, path,
     user, group, flags)

void* __libc_malloc(size_t size);

void* malloc(size_t size) noexcept {
  if (allocationFails()) {
    errno = ENOMEM;
    return nullptr;
  }
  return __libc_malloc(size);
}

}  // extern "C"
