// A PC that pretends, over one of the others, in the contract suite. What the others tell past their platform, such as a
// file's bytes, is here what the platform shows: the PC beneath does not change, but where a test sets it up. At the end of
// each case every file, folder, key, value and task of the PC beneath is as it was set up, with its times.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "base/RuntimeError.h"
#include "platform/BeneathState.h"
#include "platform/Sharing.h"
#include "platform/folder/CodePage1252.h"
#include "platform/pretend/PretendPc.h"

namespace zub {

template <class Base>
class Pretending : public Base {
 public:
  Pretending() = default;
  Pretending(const Pretending&) = delete;
  Pretending& operator=(const Pretending&) = delete;
  ~Pretending() {
    for (const std::string& path : held_) Base::unlock(path);
    CHECK(state_.changes() == "");
    tidyUp();
  }
  Platform& platform() { return platform_; }
  Platform& beneath() { return Base::platform(); }

  void file(const std::string& path, std::string_view bytes) {
    const std::string folder = path.substr(0, path.rfind('\\'));
    makeBeneath(folder);
    Base::file(path, bytes);
    if (!path.starts_with(Base::folder())) elsewhere_.insert(path);
    state_.take(path);
    state_.take(folder);
  }
  void readOnly(const std::string& path) {
    Base::readOnly(path);
    state_.take(path);
  }
  void hide(const std::string& path) {
    Base::hide(path);
    state_.take(path);
  }
  void lock(const std::string& path) {
    Base::lock(path);
    held_.insert(path);
  }
  bool hold(const std::string& path, Sharing sharing) {
    if (!Base::hold(path, sharing)) return false;
    held_.insert(path);
    return true;
  }
  void unlock(const std::string& path) {
    Base::unlock(path);
    held_.erase(path);
  }
  void wide(std::u16string_view name, bool folder) {
    Base::wide(name, folder);
    state_.take();
  }
  void wideKey(std::u16string_view name) {
    Base::wideKey(name);
    state_.take();
  }
  bool link(const std::string& path, const std::string& target) {
    makeBeneath(path.substr(0, path.rfind('\\')));
    makeBeneath(target);
    const bool made = Base::link(path, target);
    state_.take();
    return made;
  }

  std::string bytes(const std::string& path) {
    const auto channel = platform_.files->open(path, OpenMode::Input);
    std::string bytes(static_cast<std::size_t>(channel->length()), '\0');
    return bytes.substr(0, channel->read(bytes));
  }
  // Beneath it stays; here a told name leads to it or not.
  bool hasWide(std::u16string_view name) const {
    return Base::hasWide(name) && const_cast<Pretending*>(this)->tells(name);
  }

  // Tasks that are saved here stay as they are.
  bool deviates(std::string_view name) const { return name != "no triggers" && Base::deviates(name); }

 private:
  // What was pretended to go is still there, under names that no clean-up of the host may know. What cannot go here,
  // such as a folder in use, is the base's to remove.
  void tidyUp() {
    try {
      for (const std::string& path : elsewhere_) beneath().files->grip(path)->remove();
      beneath().files->deleteFolder(Base::folder());
    } catch (const RuntimeError&) {
    }
  }
  bool tells(std::u16string_view name) {
    FoundFile found;
    for (const auto search = platform_.files->find(Base::folder() + "\\*"); search && search->next(found);) {
      if (utf16FromAnsi(found.name) == name) return true;
    }
    return false;
  }
  // A folder that may have been made in pretence only.
  void makeBeneath(const std::string& folder) {
    if (beneath().files->folderExists(folder)) return;
    makeBeneath(folder.substr(0, folder.rfind('\\')));
    beneath().files->createFolder(folder);
    state_.take(folder);
    state_.take(folder.substr(0, folder.rfind('\\')));
  }

  PretendPc pretend_{Base::platform()};
  Platform platform_{pretend_.platform(*Base::platform().events, *Base::platform().messages)};
  BeneathState state_{Base::platform(), Base::folder(), Base::key(),  // as it was set up
                      [this](const std::string& path) { return Base::times(path); }};
  std::set<std::string> held_;       // open for others
  std::set<std::string> elsewhere_;  // files that were set up outside the scratch folder
};

}  // namespace zub
