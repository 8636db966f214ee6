// The one failure type of the logic: a run-time error with the number and the description of the classic
// runtime. It is thrown by the platform or a helper and absorbed where a routine says so.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace zub {

enum class ErrorNumber : int {
  InvalidCall = 5,
  Overflow = 6,
  TypeMismatch = 13,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceIo = 57,
  DiskFull = 61,
  TooManyFiles = 67,
  PermissionDenied = 70,
  DiskNotReady = 71,
  PathFileAccess = 75,
  PathNotFound = 76,
  InvalidPropertyValue = 380,
  Automation = 440,
};

// The runtime's own text for an error, such as "Permission denied".
std::string_view descriptionOf(ErrorNumber number);

class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number);
  RuntimeError(ErrorNumber number, std::string description);

  ErrorNumber number() const { return number_; }
  const std::string& description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  ErrorNumber number_;
  std::string description_;
};

// What the user is told of the exception that is being handled, whatever it is. The text is the exception's own.
const char* textOfFailure();

// Unwinds the stack when the process ends in the midst of something. No failure: no error path may catch it,
// only the program's outermost frame (and, on a window system, the frame that hands events to the program).
struct EndOfProcess {};

}  // namespace zub
