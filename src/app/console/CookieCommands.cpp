#include <vector>

#include "app/console/Commands.h"
#include "base/Text.h"
#include "cleaners/frmIECookieKeep.h"
#include "cleaners/frmNSCookieKeep.h"
#include "engine/Engine.h"

namespace zub {
namespace {

// What the arguments ask for: cookies by their numbers in the list, from 1. Nothing asked: list them.
struct Wanted {
  bool list = true;
  bool keep = false;
  std::vector<int> numbers;
};

Wanted parse(const std::vector<std::string>& arguments) {
  Wanted wanted;
  if (arguments.size() == 1) return wanted;
  if ((arguments[1] != "keep" && arguments[1] != "drop") || arguments.size() < 3) {
    throw UsageError("cookies takes \"keep\" or \"drop\" and the numbers of the list");
  }
  wanted.list = false;
  wanted.keep = arguments[1] == "keep";
  for (std::size_t word = 2; word < arguments.size(); ++word) {
    const int number = rowNumber(arguments[word]);
    if (number < 1) throw UsageError("\"" + arguments[word] + "\" is no number of the list");
    wanted.numbers.push_back(number);
  }
  return wanted;
}

std::string rowText(int number, bool kept, std::string_view row, std::string_view detail) {
  std::string text = std::to_string(number) + (kept ? " [x] " : " [ ] ") + std::string(trim(row));
  if (!detail.empty() && detail != row) text += "  " + std::string(trim(detail));
  return text;
}

// Lists or ticks the rows on show; `first` is the number of the first one. Returns the number behind the
// last.
int serveRows(const CommandContext& context, const Wanted& wanted, ListRows& rows, const ListRows& details,
              int first) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (wanted.list)
      context.print(rowText(first + row, rows.Selected(row), rows.List(row), details.List(row)));
    for (const int number : wanted.numbers) {
      if (number == first + row) rows.Selected(row, wanted.keep);
    }
  }
  return first + rows.ListCount();
}

void checkNumbers(const Wanted& wanted, int behindLast) {
  for (const int number : wanted.numbers) {
    if (number >= behindLast) throw UsageError("there is no cookie " + std::to_string(number));
  }
}

void serveInternetExplorer(const CommandContext& context, const Wanted& wanted, Engine& engine) {
  frmIECookieKeep form(engine);
  form.LoadValues();
  checkNumbers(wanted, form.lstDelete.ListCount() + 1);
  serveRows(context, wanted, form.lstDelete, form.lstFiles, 1);
  if (!wanted.list) form.cmdOK_Click();
}

void serveNetscape(const CommandContext& context, const Wanted& wanted, Engine& engine) {
  frmNSCookieKeep form(engine);
  form.Load();
  int number = 1;
  for (int profile = 0; profile < form.cmbProfile.ListCount(); ++profile) {
    form.cmbProfile.ListIndex(profile);
    number += form.lstDelete.ListCount();
  }
  checkNumbers(wanted, number);
  number = 1;
  for (int profile = 0; profile < form.cmbProfile.ListCount(); ++profile) {
    form.cmbProfile.ListIndex(profile);
    if (wanted.list) {
      context.print("Profile " + form.cmbProfile.List(profile) + ", " + form.cmbSelect.List(profile));
    }
    number = serveRows(context, wanted, form.lstDelete, form.lstCookies, number);
    if (!wanted.list) form.SaveNS6(form.cmbSelect.List(profile));
  }
  if (wanted.list && form.cmbProfile.ListCount() == 0) context.print(form.lblKeep[1].Caption);
}

}  // namespace

int cookiesCommand(CommandContext& context) {
  const std::vector<std::string>& arguments = context.arguments;
  if (arguments.empty() || (arguments[0] != "ie" && arguments[0] != "netscape")) {
    throw UsageError("cookies takes \"ie\" or \"netscape\"");
  }
  const Wanted wanted = parse(arguments);
  if (!wanted.list) context.needAlone();
  Options options;
  Engine engine(context.pc.platform(), options);
  if (arguments[0] == "ie") {
    serveInternetExplorer(context, wanted, engine);
  } else {
    serveNetscape(context, wanted, engine);
  }
  return exitStatus::Done;
}

}  // namespace zub
