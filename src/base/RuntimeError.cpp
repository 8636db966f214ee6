#include "base/RuntimeError.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <utility>

namespace zub {
namespace {

struct Description {
  ErrorNumber number;
  std::string_view text;
};
constexpr Description Descriptions[] = {
    {ErrorNumber::InvalidCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::BadFileName, "Bad file name or number"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIo, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::TooManyFiles, "Too many files"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::DiskNotReady, "Disk not ready"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ErrorNumber::Automation, "Automation error"},
};

}  // namespace

std::string_view descriptionOf(ErrorNumber number) {
  const auto* row = std::ranges::find(Descriptions, number, &Description::number);
  return row == std::end(Descriptions) ? "Application-defined or object-defined error" : row->text;
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
