#include "base/RuntimeError.h"

#include <new>
#include <utility>

namespace zub {

std::string_view descriptionOf(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::BadFileName:
      return "Bad file name or number";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::DeviceIo:
      return "Device I/O error";
    case ErrorNumber::DiskFull:
      return "Disk full";
    case ErrorNumber::TooManyFiles:
      return "Too many files";
    case ErrorNumber::PermissionDenied:
      return "Permission denied";
    case ErrorNumber::DiskNotReady:
      return "Disk not ready";
    case ErrorNumber::PathFileAccess:
      return "Path/File access error";
    case ErrorNumber::PathNotFound:
      return "Path not found";
    case ErrorNumber::InvalidPropertyValue:
      return "Invalid property value";
    case ErrorNumber::Automation:
      return "Automation error";
  }
  return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(ErrorNumber number) : number_(number), description_(descriptionOf(number)) {}

RuntimeError::RuntimeError(ErrorNumber number, std::string description)
    : number_(number), description_(std::move(description)) {}

const char* textOfFailure() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return "Out of memory";
  } catch (const std::exception& failure) {
    return failure.what();
  } catch (...) {
    return "Internal error";
  }
}

}  // namespace zub
