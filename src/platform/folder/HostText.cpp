#include "platform/folder/HostText.h"

#include <unistd.h>

#include "platform/folder/HostFailure.h"
#include "platform/folder/PcError.h"

namespace zub {
namespace {

constexpr int MostTries = 100;  // of names beside
constexpr std::string_view BesideEnd = ".new";

// "is larger than 512 MiB".
std::string tooLarge(const char* verb) {
  return std::string(verb) + " larger than " + std::to_string(MostTextBytes >> 20) + " MiB";
}

// A name that nobody has: a file of somebody else's stays as it is.
HostError makeBeside(HostDir& folder, const std::string& name, std::string& beside,
                     std::unique_ptr<HostFile>& file) {
  const std::string own = name + "." + std::to_string(::getpid());
  HostError error = HostError::Exists;
  for (int number = 0; error == HostError::Exists && number < MostTries; ++number) {
    beside = own + (number == 0 ? "" : "-" + std::to_string(number)) + std::string(BesideEnd);
    error = folder.openFile(beside, HostOpen::New, file);
  }
  return error;
}

bool isBeside(std::string_view entry, std::string_view name) {
  if (!entry.starts_with(name) || !entry.ends_with(BesideEnd)) return false;
  entry.remove_prefix(name.size());
  if (entry.size() < BesideEnd.size() + 2 || entry[0] != '.') return false;
  entry = entry.substr(1, entry.size() - 1 - BesideEnd.size());
  return entry.find_first_not_of("0123456789-") == std::string_view::npos;
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
    if (length > MostTextBytes) throw PcError(name, 0, tooLarge("is"));
    text.resize(static_cast<std::size_t>(length));
    error = file->read(0, text, done);
  }
  if (error != HostError::None) throw PcError(name, 0, "cannot be read: " + reasonOf(error));
  if (done != length) throw PcError(name, 0, "was changed while it was read: try again");
  return text;
}

HostError replaceHostFile(HostDir& folder, const std::string& name, std::string_view bytes) {
  std::string beside;
  std::unique_ptr<HostFile> file;
  HostError error = makeBeside(folder, name, beside, file);
  if (error == HostError::Exists) return error;
  if (error == HostError::None) error = file->write(0, bytes);
  if (error == HostError::None) error = file->sync();
  file.reset();
  if (error == HostError::None) error = folder.rename(beside, name);
  if (error == HostError::None) return folder.sync();
  folder.removeFile(beside);
  return error;
}

void replaceHostText(HostDir& folder, const std::string& name, std::string_view text) {
  if (text.size() > MostTextBytes) throw PcError(name, 0, "cannot be saved: " + tooLarge("it would be"));
  const HostError error = replaceHostFile(folder, name, text);
  if (error != HostError::None) throw PcError(name, 0, "cannot be saved: " + reasonOf(error));
}

void removeLeftBeside(HostDir& folder, const std::string& name) {
  std::unique_ptr<HostList> listing;
  if (folder.list(listing) != HostError::None) return;
  HostEntry entry;
  while (listing->next(entry)) {
    if (isBeside(entry.name, name)) folder.removeFile(entry.name);
  }
}

}  // namespace zub
