#include "platform/folder/HostText.h"

#include "platform/folder/HostFailure.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

constexpr std::uint64_t MostBytes = std::uint64_t{1} << 28;

std::string reasonOf(HostError error) {
  return std::string(descriptionOf(errorNumberOf(error)));
}

HostError writeNew(HostDir& folder, const std::string& name, std::string_view text) {
  // What a process that was killed while it saved has left.
  const HostError removed = folder.removeFile(name);
  if (removed != HostError::None && removed != HostError::NotFound) return removed;
  std::unique_ptr<HostFile> file;
  HostError error = folder.openFile(name, HostOpen::New, file);
  if (error == HostError::None) error = file->write(0, text);
  if (error == HostError::None) error = file->sync();
  return error;
}

}  // namespace

std::optional<std::string> readHostText(HostDir& folder, const std::string& name) {
  std::unique_ptr<HostFile> file;
  const HostError opened = folder.openFile(name, HostOpen::Read, file);
  if (opened == HostError::NotFound) return std::nullopt;
  std::uint64_t length = 0;
  std::size_t done = 0;
  std::string text;
  HostError error = opened;
  if (error == HostError::None) error = file->length(length);
  if (error == HostError::None) {
    if (length > MostBytes) throw PcError(name, 0, "is larger than 256 MiB");
    text.resize(static_cast<std::size_t>(length));
    error = file->read(0, text, done);
  }
  if (error != HostError::None) throw PcError(name, 0, "cannot be read: " + reasonOf(error));
  text.resize(done);
  return text;
}

void replaceHostText(HostDir& folder, const std::string& name, std::string_view text) {
  const HostError error = replaceHostFile(folder, name, text, name + ".new");
  if (error != HostError::None) throw PcError(name, 0, "cannot be saved: " + reasonOf(error));
}

HostError replaceHostFile(HostDir& folder, const std::string& name, std::string_view bytes,
                          const std::string& beside) {
  HostError error = writeNew(folder, beside, bytes);
  if (error == HostError::None) error = folder.rename(beside, name);
  if (error == HostError::None)
    folder.sync();
  else
    folder.removeFile(beside);
  return error;
}

}  // namespace zub
