// The Windows that the tests run on: a folder of its own below the temporary folder and a key of its own,
// both removed with the object.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Sharing.h"
#include "platform/win32/Win32Platform.h"

namespace zub {

class Win32ContractPc {
 public:
  Win32ContractPc();
  Win32ContractPc(const Win32ContractPc&) = delete;
  Win32ContractPc& operator=(const Win32ContractPc&) = delete;
  ~Win32ContractPc();

  Platform& platform() { return pc_.platform(); }
  std::string folder() const { return folder_; }
  std::string key() const { return "Software\\ZubraneTest"; }
  std::string task() const { return "ZubraneTest"; }
  void file(const std::string& path, std::string_view bytes);
  std::string bytes(const std::string& path) const;
  void readOnly(const std::string& path);
  void hide(const std::string& path);
  void lock(const std::string& path);
  bool hold(const std::string& path, Sharing sharing);
  void unlock(const std::string& path);
  bool link(const std::string& path, const std::string& target);
  void wide(std::u16string_view name, bool folder);
  bool hasWide(std::u16string_view name) const;
  void wideKey(std::u16string_view name);
  std::string times(const std::string& path) const;
  bool keepsShortNames() const { return true; }
  bool followsLinks() const { return true; }
  // Only Wine deviates, and only as its table says; a name that is not in the table is a fault of the test.
  bool deviates(std::string_view name) const;

 private:
  void clean();
  void openAs(const std::string& path, unsigned long access, unsigned long sharing);

  struct NoEvents : EventLoop {
    void DoEvents() override {}
  };
  struct NoTray : Tray {
    void add(std::string_view) override {}
    void remove() override {}
  };

  NoEvents events_;
  NoTray tray_;
  Win32Platform pc_{events_, tray_, [] { return nullptr; }};
  std::string folder_;
  std::string before_;  // the current folder of the process
  std::map<std::string, void*> locks_;
  std::vector<std::string> hostLinks_;  // to be removed by the host
};

}  // namespace zub
