#include "platform/host/HostFailure.h"

namespace zub {
namespace {

struct Row {
  HostError error;
  ErrorNumber number;
};
constexpr Row Rows[] = {
    {HostError::NotFound, ErrorNumber::FileNotFound},
    {HostError::NotAFolder, ErrorNumber::PathNotFound},
    {HostError::NotAFile, ErrorNumber::PathFileAccess},
    {HostError::Exists, ErrorNumber::PathFileAccess},
    {HostError::NotEmpty, ErrorNumber::PathFileAccess},
    {HostError::NoRights, ErrorNumber::PathFileAccess},
    {HostError::InUse, ErrorNumber::PermissionDenied},
    {HostError::ReadOnlyDisk, ErrorNumber::PermissionDenied},
    {HostError::DiskFull, ErrorNumber::DiskFull},
    {HostError::TooManyOpen, ErrorNumber::TooManyFiles},
    {HostError::BadName, ErrorNumber::BadFileName},
};

}  // namespace

ErrorNumber errorNumberOf(HostError error) {
  for (const Row& row : Rows) {
    if (row.error == error) return row.number;
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
