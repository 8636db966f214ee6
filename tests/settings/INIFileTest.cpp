#include <doctest/doctest.h>

#include "base/Text.h"
#include "settings/INIFile.h"
#include "support/TestPc.h"

using namespace zub;

namespace {

const std::string Store = "HKEY_CURRENT_USER\\Software\\ZUB";

std::string padded(std::string text, std::size_t length) {
  text.resize(length, '\0');
  return text;
}
const std::string On = padded("1", 2);
const std::string Off = padded("0", 2);

struct Settings {
  explicit Settings(const std::string& family = "nt") : pc({"family = " + family}) {}

  TestPc pc;
  Options options;

  int put() { return INIFile(pc.platform(), options).PutInfo(); }
  int get() { return INIFile(pc.platform(), options).GetInfo(); }
  int get2() { return INIFile(pc.platform(), options).GetInfo2(); }
  // With another type than text, as which the bytes would not be kept as they stand.
  void store(std::string_view name, const std::string& data) {
    pc.value(Store, name, ValueType::Binary, data);
  }
  std::string stored(std::string_view name) { return pc.data(Store, name).value_or("none"); }
};

}  // namespace

// The names are approved with the help texts.
TEST_CASE("every option is kept under its own name and comes back from it") {
  // One option on at a time, so that no two can be exchanged.
  for (std::size_t on = 0; on < iconNames.size() + flagNames.size(); ++on) {
    Settings pc;
    const bool isIcon = on < iconNames.size();
    const std::string_view name = isIcon ? iconNames[on].stored : flagNames[on - iconNames.size()].stored;
    CAPTURE(name);
    if (isIcon) {
      pc.options.LstIcons.Check(static_cast<int>(on), 1);
    } else {
      (pc.options.*flagNames[on - iconNames.size()].option).Value(1);
    }
    CHECK(pc.put() == 0);
    for (const IconName& icon : iconNames) CHECK(pc.stored(icon.stored) == (icon.stored == name ? On : Off));
    for (const FlagName& flag : flagNames) CHECK(pc.stored(flag.stored) == (flag.stored == name ? On : Off));

    Options fresh;
    CHECK(INIFile(pc.pc.platform(), fresh).GetInfo() == 0);
    for (std::size_t row = 0; row < iconNames.size(); ++row) {
      CHECK(fresh.LstIcons.Check(static_cast<int>(row)) == (row == on ? 1 : 0));
    }
    for (const FlagName& flag : flagNames) {
      CHECK((fresh.*flag.option).Value() == (flag.stored == name ? 1 : 0));
    }
  }
}

TEST_CASE("texts, digits and plugin rows are written byte for byte and read back") {
  for (const std::string family : {"9x", "nt"}) {
    CAPTURE(family);
    Settings pc(family);
    pc.options.lblLastRemoval.Caption = "  padded ";
    pc.options.cmbShredder.ListIndex(8);
    pc.options.ComboInterval.type("every now and then");
    for (const char* row : {" Custom one ", "   ", "Custom two"}) pc.options.lstFiles.AddItem(row);
    pc.options.lstFiles.selectAll(true);
    pc.options.lstFiles.Selected(2, false);
    for (const char* row : {"Adobe Photoshop 6.x", ""}) pc.options.standardlist.AddItem(row);
    pc.options.standardlist.selectAll(true);
    CHECK(pc.put() == 0);
    // The system stores the NUL behind a text, too, and on the 9x family nothing behind the first one.
    struct {
      const char* name;
      std::string bytes;
    } const rows[] = {{"ZUBPath", padded("C:\\Program Files\\Zubrane", 25)},
                      {"lblLastRemoval", padded("padded", family == "nt" ? 9 : 7)},
                      {"cmbShredder", padded("8", 2)},
                      {"ComboInterval", padded("-1", 3)},
                      {"ZUBPlugin  Custom one ", On},
                      {"ZUBPlugin Custom two", Off},
                      {"ZUBStandardPlugin Adobe Photoshop 6.x", On}};
    for (const auto& [name, bytes] : rows) CHECK(pc.stored(name) == bytes);
    CHECK(pc.pc.valueNames(Store).size() == iconNames.size() + flagNames.size() + std::size(rows));
    CHECK(contains(pc.pc.snapshot(), "\"chkBleach\" = 1:0%00"));  // of the text type
    CHECK(pc.get() == 0);
    CHECK(pc.options.lblLastRemoval.Caption == "padded");
    CHECK(pc.options.cmbShredder.ListIndex() == 8);
    CHECK(pc.options.ComboInterval.ListIndex() == 0);
  }
}

TEST_CASE("a stored value is read by its kind, and one that has no room is repaired") {
  const auto bleach = [](const Options& options) { return std::to_string(options.chkBleach.Value()); };
  const auto interval = [](const Options& options) {
    return std::to_string(options.ComboInterval.ListIndex());
  };
  const auto removal = [](const Options& options) { return options.lblLastRemoval.Caption; };
  const std::string longest(256, 'x');
  struct {
    const char* name;
    std::string (*seen)(const Options&);
    std::string stored, value, after;
  } const rows[] = {{"CHKBLEACH", bleach, On, "1", On},  // names are found without regard to case
                    {"chkBleach", bleach, "1x", "1", "1x"},
                    {"chkBleach", bleach, "", "0", ""},
                    {"chkBleach", bleach, "2", "0", "2"},
                    {"chkBleach", bleach, padded("1", 3), "0", Off},
                    {"ComboInterval", interval, padded("2", 2), "2", padded("2", 2)},
                    {"ComboInterval", interval, "-1", "0", "-1"},
                    {"ComboInterval", interval, "x", "0", "x"},
                    {"ComboInterval", interval, "3", "1", "3"},  // beyond the rows: the present one stays
                    {"ComboInterval", interval, "10 ", "0", Off},
                    {"lblLastRemoval", removal, "Last removal", "Last removal", "Last removal"},
                    {"lblLastRemoval", removal, std::string("a\0b", 3), "a", std::string("a\0b", 3)},
                    {"lblLastRemoval", removal, longest, longest, longest},
                    {"lblLastRemoval", removal, longest + "x", "", padded("", 2)}};
  for (const auto& row : rows) {
    CAPTURE(row.name);
    CAPTURE(row.stored);
    Settings pc;
    pc.options.ComboInterval.ListIndex(1);
    pc.options.lstFiles.AddItem("Mine");
    pc.store("ZUBPlugin Mine", On);
    pc.store(row.name, row.stored);
    CHECK(pc.get() == 0);
    CHECK(row.seen(pc.options) == row.value);
    CHECK(pc.stored(row.name) == row.after);
    CHECK(pc.options.lstFiles.Selected(0));  // what comes behind is read all the same
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

TEST_CASE("a read runs the handlers of all options in their order, and stores what is missing") {
  Settings pc;
  pc.store("chkIECache", On);
  pc.store("chkRunAuto", On);
  pc.options.LstIcons.Check(3, 1);
  pc.options.cmbShredder.ListIndex(4);
  std::string ran;
  std::string expected;
  for (const FlagName& flag : flagNames) {
    CheckOption& option = pc.options.*flag.option;
    const bool on = flag.option == &Options::chkIECache || flag.option == &Options::chkRunAuto;
    option.Value(on ? 0 : 1);
    option.Click = [&ran, &option, flag] {
      ran.append(flag.stored).append(option.Value() == 1 ? " on " : " off ");
    };
    expected.append(flag.stored).append(on ? " on " : " off ");
  }
  pc.options.cmbShredder.Click = [&] { ran += "cmbShredder "; };
  pc.options.ComboInterval.Click = [&] { ran += "ComboInterval "; };
  pc.get();
  CHECK(ran == expected + "cmbShredder ComboInterval ");
  CHECK(pc.options.lblLastRemoval.Caption.empty());
  CHECK(pc.options.LstIcons.Check(3) == 0);
  CHECK(pc.options.cmbShredder.Text() == "1");
  CHECK(pc.options.ComboInterval.Text() == "Every Hour");
  CHECK(pc.pc.valueNames(Store).size() == iconNames.size() + flagNames.size() + 3);
  CHECK(pc.stored("lblLastRemoval") == padded("", 2));
  CHECK(pc.stored("cmbShredder") == Off);
}

TEST_CASE("a store that cannot be opened answers -1 and changes nothing") {
  Settings pc;
  pc.options.chkBleach.Value(1);
  pc.options.chkBleach.Click = [] { FAIL_CHECK("a handler ran"); };
  pc.pc.fail("open or make " + Store, status::AccessDenied);
  CHECK(pc.put() == -1);
  CHECK(pc.get() == -1);
  CHECK(pc.get2() == -1);
  CHECK(pc.options.chkBleach.Value() == 1);
  CHECK(pc.options.lblLastRemoval.Caption == "Last removal on : NEVER USED");
}

TEST_CASE("values that can be neither read nor written are off, and no call fails for it") {
  Settings pc;
  pc.store("chkBleach", On);
  pc.options.chkRunShutDown.Value(1);
  pc.pc.fail("set value " + Store, status::AccessDenied);
  pc.pc.fail("look at value " + Store, status::AccessDenied);
  CHECK(pc.put() == 0);
  CHECK(pc.get() == 0);
  CHECK(pc.options.chkBleach.Value() == 0);
  CHECK(pc.options.chkRunShutDown.Value() == 0);
  CHECK(pc.stored("chkBleach") == On);
}
