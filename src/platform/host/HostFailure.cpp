#include "platform/host/HostFailure.h"

namespace zub {

ErrorNumber errorNumberOf(HostError error) {
  switch (error) {
    case HostError::NotFound:
      return ErrorNumber::FileNotFound;
    case HostError::NotAFolder:
      return ErrorNumber::PathNotFound;
    case HostError::NotAFile:
    case HostError::Exists:
    case HostError::NotEmpty:
    case HostError::NoRights:
      return ErrorNumber::PathFileAccess;
    case HostError::InUse:
    case HostError::ReadOnlyDisk:
      return ErrorNumber::PermissionDenied;
    case HostError::DiskFull:
      return ErrorNumber::DiskFull;
    case HostError::TooManyOpen:
      return ErrorNumber::TooManyFiles;
    case HostError::BadName:
      return ErrorNumber::BadFileName;
    case HostError::None:
    case HostError::DeviceFailure:
      break;
  }
  return ErrorNumber::DeviceIo;
}

std::string reasonOf(HostError error) {
  return std::string(descriptionOf(errorNumberOf(error)));
}

void check(HostError error) {
  if (error != HostError::None) throw RuntimeError(errorNumberOf(error));
}

}  // namespace zub
