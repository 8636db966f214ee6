// A PC that pretends, over one of the others, in the contract suite. What the others tell past their platform, such as a
// file's bytes, is here what the platform shows: the PC beneath does not change.
#pragma once

#include <string>
#include <string_view>

#include "base/RuntimeError.h"
#include "platform/folder/CodePage1252.h"
#include "platform/pretend/PretendPc.h"

namespace zub {

template <class Base>
class Pretending : public Base {
 public:
  Pretending() = default;
  Pretending(const Pretending&) = delete;
  Pretending& operator=(const Pretending&) = delete;
  // What was pretended to go is still there, under names that no clean-up of the host may know.
  ~Pretending() {
    try {
      beneath().files->deleteFolder(Base::folder());
    } catch (const RuntimeError& error) {
      MESSAGE("the scratch folder stays: " << error.description());
    }
  }
  Platform& platform() { return platform_; }
  Platform& beneath() { return Base::platform(); }

  std::string bytes(const std::string& path) {
    const auto channel = platform_.files->open(path, OpenMode::Input);
    std::string bytes(static_cast<std::size_t>(channel->length()), '\0');
    bytes.resize(channel->read(bytes));
    return bytes;
  }
  // Beneath it stays; here a told name leads to it or not.
  bool hasWide(std::u16string_view name) const {
    return Base::hasWide(name) && const_cast<Pretending*>(this)->tells(name);
  }

  // Beneath, with the folders that were made here.
  bool link(const std::string& path, const std::string& target) {
    for (const std::string& folder : {path.substr(0, path.rfind('\\')), target}) {
      if (!beneath().files->folderExists(folder)) beneath().files->createFolder(folder);
    }
    return Base::link(path, target);
  }

 private:
  bool tells(std::u16string_view name) {
    FoundFile found;
    for (const auto search = platform_.files->find(Base::folder() + "\\*"); search && search->next(found);) {
      if (utf16FromAnsi(found.name) == name) return true;
    }
    return false;
  }

  PretendPc pretend_{Base::platform()};
  Platform platform_{pretend_.platform(*Base::platform().events, *Base::platform().messages)};
};

}  // namespace zub
