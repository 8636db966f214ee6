#include "platform/host/WatchedDir.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/host/HostFailure.h"

namespace zub {
namespace {

constexpr std::size_t MostTexts = 100;

// Those that tell what is there, or that nothing is. A name that no host can have leads nowhere by mistake.
constexpr HostError NoFailures[] = {HostError::None,     HostError::NotFound, HostError::NotAFolder,
                                    HostError::NotAFile, HostError::Exists,   HostError::NotEmpty};

bool isFailure(HostError error) {
  return std::ranges::find(NoFailures, error) == std::end(NoFailures);
}

// A place below the watched folder.
struct Watch {
  HostFailures& failures;
  std::string path;

  HostError note(HostError error) const {
    if (isFailure(error)) failures.add(path, reasonOf(error));
    return error;
  }
  Watch at(const std::string& name) const { return {failures, path.empty() ? name : path + '/' + name}; }
  // The path of an entry costs nothing where all is well.
  HostError note(const std::string& name, HostError error) const {
    return isFailure(error) ? at(name).note(error) : error;
  }
};

class WatchedFile : public HostFile {
 public:
  WatchedFile(std::unique_ptr<HostFile> file, Watch watch)
      : file_(std::move(file)), watch_(std::move(watch)) {}

  HostError length(std::uint64_t& bytes) override { return watch_.note(file_->length(bytes)); }
  HostError read(std::uint64_t offset, std::span<char> buffer, std::size_t& done) override {
    return watch_.note(file_->read(offset, buffer, done));
  }
  HostError write(std::uint64_t offset, std::string_view bytes) override {
    return watch_.note(file_->write(offset, bytes));
  }
  HostError sync() override { return watch_.note(file_->sync()); }

 private:
  std::unique_ptr<HostFile> file_;
  Watch watch_;
};

class WatchedList : public HostList {
 public:
  WatchedList(std::unique_ptr<HostList> listing, Watch watch)
      : listing_(std::move(listing)), watch_(std::move(watch)) {}

  bool next(HostEntry& entry) override {
    const bool found = listing_->next(entry);
    if (!found) watch_.note(listing_->failure());
    return found;
  }
  HostError failure() const override { return listing_->failure(); }
  void complete(HostEntry& entry) override {
    listing_->complete(entry);
    watch_.note(entry.name, listing_->failure());
  }

 private:
  std::unique_ptr<HostList> listing_;
  Watch watch_;
};

class WatchedDir : public HostDir {
 public:
  WatchedDir(HostDir& folder, Watch watch) : folder_(folder), watch_(std::move(watch)) {}
  WatchedDir(std::unique_ptr<HostDir> folder, Watch watch)
      : own_(std::move(folder)), folder_(*own_), watch_(std::move(watch)) {}

  HostError openDir(const std::string& name, std::unique_ptr<HostDir>& child) override {
    std::unique_ptr<HostDir> opened;
    const HostError error = watch_.note(name, folder_.openDir(name, opened));
    if (error == HostError::NotAFolder && isLink(name))
      watch_.failures.add(watch_.at(name).path, "a link, which is not entered");
    if (error == HostError::None) child = std::make_unique<WatchedDir>(std::move(opened), watch_.at(name));
    return error;
  }
  HostError list(std::unique_ptr<HostList>& listing) override {
    std::unique_ptr<HostList> opened;
    const HostError error = watch_.note(folder_.list(opened));
    if (error == HostError::None) listing = std::make_unique<WatchedList>(std::move(opened), watch_);
    return error;
  }
  HostError stat(const std::string& name, HostStat& result) override {
    return watch_.note(name, folder_.stat(name, result));
  }
  HostError shortNames(std::vector<ShortName>& names) override {
    return watch_.note(folder_.shortNames(names));
  }
  HostError openFile(const std::string& name, HostOpen mode, std::unique_ptr<HostFile>& file) override {
    std::unique_ptr<HostFile> opened;
    const HostError error = watch_.note(name, folder_.openFile(name, mode, opened));
    if (error == HostError::None) file = std::make_unique<WatchedFile>(std::move(opened), watch_.at(name));
    return error;
  }
  HostError removeFile(const std::string& name) override { return folder_.removeFile(name); }
  HostError mayRemove(const std::string& name) override { return folder_.mayRemove(name); }
  HostError removeDir(const std::string& name) override { return folder_.removeDir(name); }
  HostError makeDir(const std::string& name) override { return watch_.note(name, folder_.makeDir(name)); }
  HostError setReadOnly(const std::string& name, bool readOnly) override {
    return watch_.note(name, folder_.setReadOnly(name, readOnly));
  }
  HostError rename(const std::string& from, const std::string& to) override {
    return watch_.note(to, folder_.rename(from, to));
  }
  HostError sync() override { return watch_.note(folder_.sync()); }
  HostError take() override { return folder_.take(); }

 private:
  // A drive's own name that is a link is no drive, and nothing to tell.
  bool isLink(const std::string& name) {
    HostStat found;
    return !watch_.path.empty() && folder_.stat(name, found) == HostError::None &&
           found.kind == HostKind::Link;
  }

  std::unique_ptr<HostDir> own_;
  HostDir& folder_;
  Watch watch_;
};

}  // namespace

void HostFailures::add(const std::string& path, std::string_view reason) {
  if (texts_.size() == MostTexts) {
    ++more_;
  } else {
    texts_.insert(path + ": " + std::string(reason));
  }
}

std::unique_ptr<HostDir> watched(HostDir& folder, HostFailures& failures) {
  return std::make_unique<WatchedDir>(folder, Watch{failures, {}});
}

std::unique_ptr<HostDir> watched(std::unique_ptr<HostDir> folder, std::string path, HostFailures& failures) {
  return std::make_unique<WatchedDir>(std::move(folder), Watch{failures, std::move(path)});
}

}  // namespace zub
