#include <doctest/doctest.h>

#include "platform/folder/FolderRegistry.h"
#include "settings/INIFile.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";
using Texts = std::vector<std::string>;

std::string padded(std::string text, std::size_t length) {
  text.resize(length, '\0');
  return text;
}
const std::string On = padded("1", 2);
const std::string Off = padded("0", 2);

struct Settings {
  TestPc pc;
  Options options;

  int put() { return INIFile(pc.platform(), options).PutInfo(); }
  int get() { return INIFile(pc.platform(), options).GetInfo(); }
  int get2() { return INIFile(pc.platform(), options).GetInfo2(); }
  void store(std::string_view name, const std::string& data) { pc.value(Store, name, 1, data); }
  std::string stored(std::string_view name) { return pc.data(Store, name).value_or("none"); }
};

const Texts icons = {"chkIE",       "chkWMP",        "chkOfficeMRU",  "chkRecycleBin", "chkScanDisk",
                     "chkNetscape", "chkRunHistory", "chkDocHistory", "chkTempFolder", "chkFindHistory"};
struct Flag {
  const char* name;
  CheckOption Options::*option;
};
const std::vector<Flag> flags = {{"chkIECache", &Options::chkIECache},
                                 {"chkIECookies", &Options::chkIECookies},
                                 {"chkIEPrograms", &Options::chkIEProgram},
                                 {"chkIEIndex", &Options::chkIEIndex},
                                 {"chkIEAutocomplete", &Options::chkIEAutocomplete},
                                 {"chkNSCache", &Options::chkNSCache},
                                 {"chkNSCookie", &Options::chkNSCookies},
                                 {"chkNSMail", &Options::chkNSMail},
                                 {"chkNSHistory", &Options::chkNSHistory},
                                 {"chkLoadStartup", &Options::chkLoadStartUp},
                                 {"chkCloseAfterWash", &Options::chkCloseAfterWash},
                                 {"chkBleach", &Options::chkBleach},
                                 {"chkSkipPlugins", &Options::chkSkipPlugins},
                                 {"chkSkipMessages", &Options::chkSkipMessages},
                                 {"chkRunStarted", &Options::chkRunStarted},
                                 {"chkRunShutDown", &Options::chkRunShutDown},
                                 {"chkRunAuto", &Options::chkRunAuto}};

// Writes down the names of the values that are read and written.
struct Recorder : FolderRegistry {
  using FolderRegistry::FolderRegistry;
  std::string calls;

  RegistryStatus query(RegistryKey key, std::string_view name, std::uint32_t& type, std::uint8_t* data,
                       std::uint32_t& length) override {
    calls.append("?").append(name).append(" ");
    return FolderRegistry::query(key, name, type, data, length);
  }
  RegistryStatus set(RegistryKey key, std::string_view name, std::uint32_t type,
                     std::span<const std::uint8_t> data) override {
    CHECK(type == 1);
    calls.append(name).append(" ");
    return FolderRegistry::set(key, name, type, data);
  }
};

}  // namespace

TEST_CASE("every option is kept under its own name and comes back from it") {
  // One option on at a time, so that no two can be exchanged.
  for (std::size_t on = 0; on < icons.size() + flags.size(); ++on) {
    Settings pc;
    const bool isIcon = on < icons.size();
    const std::string name = isIcon ? icons[on] : flags[on - icons.size()].name;
    CAPTURE(name);
    if (isIcon) {
      pc.options.LstIcons.Check(static_cast<int>(on), 1);
    } else {
      (pc.options.*flags[on - icons.size()].option).Value(1);
    }
    CHECK(pc.put() == 0);
    for (const std::string& icon : icons) CHECK(pc.stored(icon) == (icon == name ? On : Off));
    for (const Flag& flag : flags) CHECK(pc.stored(flag.name) == (flag.name == name ? On : Off));

    Options fresh;
    CHECK(INIFile(pc.pc.platform(), fresh).GetInfo() == 0);
    for (std::size_t row = 0; row < icons.size(); ++row) {
      CHECK(fresh.LstIcons.Check(static_cast<int>(row)) == (row == on ? 1 : 0));
    }
    for (const Flag& flag : flags) CHECK((fresh.*flag.option).Value() == (flag.name == name ? 1 : 0));
  }
}

TEST_CASE("texts, digits and plugin rows are written byte for byte") {
  Settings pc;
  pc.options.lblLastRemoval.Caption = "  padded ";
  pc.options.cmbShredder.ListIndex(8);
  pc.options.ComboInterval.type("every now and then");
  for (const char* row : {" Custom one ", "   ", "Custom two"}) pc.options.lstFiles.AddItem(row);
  pc.options.lstFiles.selectAll(true);
  pc.options.lstFiles.Selected(2, false);
  for (const char* row : {"Adobe Photoshop 6.x", ""}) pc.options.standardlist.AddItem(row);
  pc.options.standardlist.selectAll(true);
  CHECK(pc.put() == 0);
  struct {
    const char* name;
    std::string bytes;
  } const rows[] = {{"ZUBPath", "C:\\Program Files\\Zubrane"},
                    {"lblLastRemoval", padded("padded", 9)},
                    {"cmbShredder", padded("8", 2)},
                    {"ComboInterval", "-1"},
                    {"ZUBPlugin  Custom one ", On},
                    {"ZUBPlugin Custom two", Off},
                    {"ZUBStandardPlugin Adobe Photoshop 6.x", On}};
  for (const auto& [name, bytes] : rows) CHECK(pc.stored(name) == bytes);
  CHECK(pc.pc.valueNames(Store).size() == icons.size() + flags.size() + std::size(rows));
}

TEST_CASE("values are written in one order and read in another") {
  const std::string writtenIcons =
      "chkIE chkWMP chkOfficeMRU chkRecycleBin chkScanDisk chkNetscape chkRunHistory chkDocHistory "
      "chkTempFolder "
      "chkFindHistory ";
  const Texts readIcons = {"chkDocHistory", "chkFindHistory", "chkRunHistory", "chkTempFolder", "chkScanDisk",
                           "chkRecycleBin", "chkOfficeMRU",   "chkWMP",        "chkNetscape",   "chkIE"};
  std::string rest;
  std::string repaired = "?lblLastRemoval lblLastRemoval ";
  for (const std::string& icon : readIcons) repaired += "?" + icon + " " + icon + " ";
  for (const Flag& flag : flags) rest += flag.name + std::string(" ");
  for (const char* name : {"cmbShredder", "ComboInterval", "ZUBPlugin A"}) rest.append(name).append(" ");
  for (const Flag& flag : flags)
    repaired.append("?").append(flag.name).append(" ").append(flag.name).append(" ");
  for (const char* name : {"cmbShredder", "ComboInterval", "ZUBPlugin A"}) {
    repaired.append("?").append(name).append(" ").append(name).append(" ");
  }

  TestPc pc;
  RegistryTree tree;
  const FolderRegistry::Rules rules;
  Recorder recorder(tree, rules);
  const Platform& p = pc.platform();
  const Platform recorded{p.codePage, recorder,  p.files,  p.drives,   p.folders, p.restart, p.shell,
                          p.clock,    p.process, p.events, p.messages, p.tray,    p.tasks};
  Options options;
  options.lstFiles.AddItem("A");
  options.standardlist.AddItem("S");
  CHECK(INIFile(recorded, options).GetInfo() == 0);
  CHECK(std::exchange(recorder.calls, {}) == repaired);
  CHECK(INIFile(recorded, options).GetInfo2() == 0);
  CHECK(std::exchange(recorder.calls, {}) == "?ZUBStandardPlugin S ZUBStandardPlugin S ");
  CHECK(INIFile(recorded, options).PutInfo() == 0);
  CHECK(recorder.calls == "ZUBPath lblLastRemoval " + writtenIcons + rest + "ZUBStandardPlugin S ");
}

TEST_CASE("the first read on a clean PC turns all off and stores every default") {
  Settings pc;
  pc.options.LstIcons.Check(3, 1);
  pc.options.cmbShredder.ListIndex(4);
  for (const Flag& flag : flags) (pc.options.*flag.option).Value(1);
  CHECK(pc.get() == 0);
  CHECK(pc.options.lblLastRemoval.Caption.empty());
  CHECK(pc.options.LstIcons.Check(3) == 0);
  for (const Flag& flag : flags) CHECK((pc.options.*flag.option).Value() == 0);
  CHECK(pc.options.cmbShredder.Text() == "1");
  CHECK(pc.options.ComboInterval.Text() == "Every Hour");
  CHECK(pc.stored("lblLastRemoval") == padded("", 2));
  const Texts names = pc.pc.valueNames(Store);
  CHECK(names.size() == icons.size() + flags.size() + 3);
  for (const std::string& name : names)
    CHECK(pc.stored(name) == (name == "lblLastRemoval" ? padded("", 2) : Off));
}

TEST_CASE("a flag is on by its first character alone, and data without room is repaired") {
  struct {
    std::string stored;
    int value;
    std::string after;
  } const rows[] = {{On, 1, On}, {"1", 1, "1"}, {"1x", 1, "1x"},          {Off, 0, Off},
                    {"", 0, ""}, {"2", 0, "2"}, {padded("1", 3), 0, Off}, {"yes", 0, Off}};
  for (const auto& row : rows) {
    CAPTURE(row.stored);
    Settings pc;
    pc.store("CHKBLEACH", row.stored);  // names are found without regard to case
    pc.get();
    CHECK(pc.options.chkBleach.Value() == row.value);
    CHECK(pc.stored("chkBleach") == row.after);
  }
}

TEST_CASE("a digit chooses its row; no digit is row 0, and one beyond the rows keeps the present one") {
  struct {
    std::string stored;
    int index;
    std::string after;
  } const rows[] = {{padded("2", 2), 2, padded("2", 2)}, {"-1", 0, "-1"}, {"x", 0, "x"},   {"", 0, ""},
                    {padded("3", 2), 1, padded("3", 2)}, {"9", 1, "9"},   {"12", 1, "12"}, {"10 ", 0, Off}};
  for (const auto& row : rows) {
    CAPTURE(row.stored);
    Settings pc;
    pc.options.ComboInterval.ListIndex(1);
    pc.options.lstFiles.AddItem("Mine");
    pc.store("ZUBPlugin Mine", On);
    pc.store("ComboInterval", row.stored);
    CHECK(pc.get() == 0);
    CHECK(pc.options.ComboInterval.ListIndex() == row.index);
    CHECK(pc.stored("ComboInterval") == row.after);
    CHECK(pc.options.lstFiles.Selected(0));
  }
}

TEST_CASE("a text is cut at its NUL, and one of more than 256 bytes is lost") {
  struct {
    std::string stored;
    std::string text;
    std::string after;
  } const rows[] = {{"Last removal", "Last removal", "Last removal"},
                    {padded("Last", 9), "Last", padded("Last", 9)},
                    {std::string("a\0b", 3), "a", std::string("a\0b", 3)},
                    {std::string(256, 'x'), std::string(256, 'x'), std::string(256, 'x')},
                    {std::string(257, 'x'), "", padded("", 2)}};
  for (const auto& row : rows) {
    CAPTURE(row.stored);
    Settings pc;
    pc.store("lblLastRemoval", row.stored);
    pc.get();
    CHECK(pc.options.lblLastRemoval.Caption == row.text);
    CHECK(pc.stored("lblLastRemoval") == row.after);
  }
}

TEST_CASE("a plugin's mark follows its name; the standard rows wait for their own call") {
  Settings pc;
  for (const char* row : {"A", "  ", "B"}) pc.options.lstFiles.AddItem(row);
  pc.options.standardlist.AddItem("A");
  pc.options.lstFiles.selectAll(true);
  pc.store("ZUBPlugin B", On);
  pc.store("ZUBStandardPlugin A", On);
  pc.get();
  CHECK_FALSE(pc.options.lstFiles.Selected(0));
  CHECK(pc.options.lstFiles.Selected(1));  // a blank row has no value, in either direction
  CHECK(pc.options.lstFiles.Selected(2));
  CHECK_FALSE(pc.options.standardlist.Selected(0));
  pc.get2();
  CHECK(pc.options.standardlist.Selected(0));
}

TEST_CASE("a read runs the handlers of all options, in their order and with their new values") {
  Settings pc;
  std::string ran;
  std::string expected;
  for (const Flag& flag : flags) {
    CheckOption& option = pc.options.*flag.option;
    option.Click = [&ran, &option, flag] {
      ran.append(flag.name).append(option.Value() == 1 ? " on " : " off ");
    };
    const bool on = flag.option == &Options::chkRunAuto || flag.option == &Options::chkIECache;
    pc.store(flag.name, on ? On : Off);
    expected.append(flag.name).append(on ? " on " : " off ");
  }
  pc.options.cmbShredder.Click = [&] { ran += "cmbShredder "; };
  pc.options.ComboInterval.Click = [&] { ran += "ComboInterval "; };
  pc.get();
  CHECK(ran == expected + "cmbShredder ComboInterval ");
}

TEST_CASE("a store that cannot be opened answers -1 and changes nothing") {
  Settings pc;
  pc.options.chkBleach.Value(1);
  pc.options.chkBleach.Click = [] { FAIL_CHECK("a handler ran"); };
  pc.pc.failKey(TestPc::KeyCall::Create, Store, status::AccessDenied);
  CHECK(pc.put() == -1);
  CHECK(pc.get() == -1);
  CHECK(pc.get2() == -1);
  CHECK(pc.options.chkBleach.Value() == 1);
  CHECK(pc.options.lblLastRemoval.Caption == "Last removal on : NEVER USED");
  CHECK(pc.pc.messages.empty());
}

TEST_CASE("values that can be neither read nor written are off, and nothing is told") {
  Settings pc;
  pc.store("chkBleach", On);
  pc.options.chkRunShutDown.Value(1);
  pc.pc.failKey(TestPc::KeyCall::Set, Store, status::AccessDenied);
  pc.pc.failKey(TestPc::KeyCall::Query, Store, status::AccessDenied);
  CHECK(pc.put() == 0);
  CHECK(pc.get() == 0);
  CHECK(pc.options.chkBleach.Value() == 0);
  CHECK(pc.options.chkRunShutDown.Value() == 0);
  CHECK(pc.stored("chkBleach") == On);
  CHECK(pc.pc.messages.empty());
}
