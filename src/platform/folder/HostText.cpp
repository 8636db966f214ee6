#include "platform/folder/HostText.h"

#include <unistd.h>

#include "platform/folder/PcError.h"
#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr int MostTries = 100;  // of names beside
constexpr std::string_view BesideEnd = ".new";

// "is larger than 512 MiB".
std::string tooLarge(const char* verb) {
  return std::string(verb) + " larger than " + std::to_string(MostTextBytes >> 20) + " MiB";
}

// The file beside. It goes unless it has been put in place, whatever happens.
class Beside {
 public:
  Beside(HostDir& folder, const std::string& name) : folder_(folder), name_(name) {}
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  ~Beside() {
    file_.reset();
    if (made_) folder_.removeFile(beside_);
  }

  HostError write(std::string_view bytes) {
    HostError error = make();
    if (error == HostError::None) error = file_->write(0, bytes);
    if (error == HostError::None) error = file_->sync();
    file_.reset();
    return error;
  }
  HostError putInPlace() {
    const HostError error = folder_.rename(beside_, name_);
    made_ = error != HostError::None;
    return error;
  }

 private:
  // Under a name that nobody has: a file of somebody else's stays as it is.
  HostError make() {
    const std::string own = name_ + "." + std::to_string(::getpid());
    HostError error = HostError::Exists;
    for (int number = 0; error == HostError::Exists && number < MostTries; ++number) {
      beside_ = own + (number == 0 ? "" : "-" + std::to_string(number)) + std::string(BesideEnd);
      made_ = true;  // also where the call fails after that
      error = folder_.openFile(beside_, HostOpen::New, file_);
      if (error == HostError::Exists) made_ = false;
    }
    return error;
  }

  HostDir& folder_;
  const std::string& name_;
  std::string beside_;
  std::unique_ptr<HostFile> file_;
  bool made_ = false;
};

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

std::optional<std::string> readHostTextAt(const std::string& path) {
  const auto end = path.find_last_of("/\\") + 1;
  const auto folder = openHostDir(end == 0 ? "." : path.substr(0, end));
  return folder ? readHostText(*folder, path.substr(end)) : std::nullopt;
}

HostError replaceHostFile(HostDir& folder, const std::string& name, std::string_view bytes) {
  removeLeftBeside(folder, name);
  Beside beside(folder, name);
  HostError error = beside.write(bytes);
  if (error == HostError::None) error = beside.putInPlace();
  return error == HostError::None ? folder.sync() : error;
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
