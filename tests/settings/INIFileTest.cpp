#include <doctest/doctest.h>

#include "base/Text.h"
#include "settings/INIFile.h"
#include "support/Golden.h"
#include "support/WashFixture.h"

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

  // An act under a title: its calls, the handlers that run, what the store and the options have come to.
  std::string text;
  template <class Action>
  void act(std::string_view title, Action action) {
    text.append("\n# ").append(title) += '\n';
    pc.onCall = [this](const std::string& call) { text += call + "\n"; };
    for (const FlagName& flag : flagNames) {
      CheckOption& option = options.*flag.option;
      option.Click = [this, &option, flag] {
        text += joined({"    ", flag.stored, option.Value() == 1 ? " on\n" : " off\n"});
      };
    }
    options.cmbShredder.Click = [this] { text += "    cmbShredder " + options.cmbShredder.Text() + "\n"; };
    options.ComboInterval.Click = [this] {
      text += "    ComboInterval " + options.ComboInterval.Text() + "\n";
    };
    const std::string before = pc.snapshot();
    text += "answers " + std::to_string(action()) + "\n";
    text += pc.diffSince(before) + "lblLastRemoval [" + options.lblLastRemoval.Caption + "], icons ";
    for (int row = 0; row < IconChecks::Count; ++row) text += std::to_string(options.LstIcons.Check(row));
    text += ", custom " + ticksOf(options.lstFiles) + ", standard " + ticksOf(options.standardlist) + "\n";
  }
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

TEST_CASE("the calls of saving and reading, the handlers that run, and what is stored and shown") {
  Settings pc;
  pc.options.lblLastRemoval.Caption = "  padded ";
  pc.options.cmbShredder.ListIndex(8);
  pc.options.ComboInterval.type("every now and then");
  pc.options.LstIcons.Check(3, 1);
  for (const char* row : {" Custom one ", "   ", "Custom two"}) pc.options.lstFiles.AddItem(row);
  for (const char* row : {"Adobe Photoshop 6.x", "", "Other"}) pc.options.standardlist.AddItem(row);
  pc.options.lstFiles.Selected(0, true);
  pc.options.standardlist.Selected(2, true);
  pc.act("Saving", [&] { return pc.put(); });
  pc.options.lstFiles.selectAll(true);  // a blank row has no value, in either direction
  pc.options.standardlist.selectAll(true);
  pc.act("Reading; the standard rows wait for their own call", [&] { return pc.get(); });
  pc.act("Reading the standard rows", [&] { return pc.get2(); });

  Settings first;
  first.options.cmbShredder.ListIndex(4);
  first.options.LstIcons.Check(3, 1);
  first.act("Reading a store where nothing is", [&] { return first.get(); });
  first.pc.fail("open or make " + Store, status::AccessDenied);
  first.act("A store that cannot be opened: saving", [&] { return first.put(); });
  first.act("Reading", [&] { return first.get(); });
  first.act("Reading the standard rows", [&] { return first.get2(); });
  first.pc.clearFaults();
  first.pc.fail("set value " + Store, status::AccessDenied);
  first.pc.fail("look at value " + Store, status::AccessDenied);
  first.options.LstIcons.Check(3, 1);
  first.act("Values that can be neither written nor read: reading", [&] { return first.get(); });

  // The 9x family stores nothing behind the first NUL.
  Settings old("9x");
  old.options.lblLastRemoval.Caption = "  padded ";
  old.put();
  CHECK(old.stored("lblLastRemoval") == padded("padded", 7));
  checkGolden("settings.txt", pc.text + first.text);
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
