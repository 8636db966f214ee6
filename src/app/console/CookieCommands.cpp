#include <functional>
#include <set>
#include <vector>

#include "app/console/Commands.h"
#include "base/Text.h"
#include "cleaners/IECookies.h"
#include "cleaners/NetscapeCookies.h"
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

std::string rowText(int number, const CookieRow& row) {
  std::string text = std::to_string(number) + (row.kept ? " [x] " : " [ ] ") + std::string(trim(row.shown));
  if (row.detail != row.shown) text += "  " + std::string(trim(row.detail));
  return text;
}

// One list of cookies as the disk has it.
struct List {
  std::string heading;  // empty for none
  CookieRows rows;
  std::function<void(const CookieRows&)> save;
  bool changed = false;
};

// The cookies are numbered through all lists, from 1. Nothing is changed where one of the numbers is none.
void serve(const CommandContext& context, const Wanted& wanted, std::vector<List>& lists) {
  struct Place {
    List& list;
    CookieRow& row;
  };
  std::vector<Place> all;
  for (List& list : lists) {
    if (wanted.list && !list.heading.empty()) context.print(list.heading);
    for (CookieRow& row : list.rows) {
      all.push_back({list, row});
      if (wanted.list) context.print(rowText(static_cast<int>(all.size()), row));
    }
  }
  for (const int number : wanted.numbers) {
    if (number > static_cast<int>(all.size())) {
      throw UsageError("there is no cookie " + std::to_string(number));
    }
  }
  for (const int number : wanted.numbers) {
    const Place& place = all[static_cast<std::size_t>(number) - 1];
    place.row.kept = wanted.keep;
    place.list.changed = true;
  }
  for (const List& list : lists) {
    if (list.changed) list.save(list.rows);
  }
}

std::vector<List> internetExplorerLists(Engine& engine) {
  const std::string folder = cookiesFolder(engine);
  List list;
  readIECookies(engine.pc, folder, list.rows);
  list.save = [&engine, folder](const CookieRows& rows) { saveIEKeepList(engine.pc, folder, rows); };
  return {list};
}

// The browser's registry file may name a profile more than once. A profile whose cookies cannot be read fails.
std::vector<List> netscapeLists(Engine& engine) {
  Files& files = engine.pc.files;
  std::vector<NetscapeProfile> profiles;
  try {
    findNetscapeProfiles(files, netscapeRegistryFile(engine),
                         [&](NetscapeProfile profile) { profiles.push_back(std::move(profile)); });
  } catch (const RuntimeError& failure) {
    if (!isMissing(failure)) throw;
  }
  std::vector<List> lists;
  std::set<std::string> seen;
  for (const NetscapeProfile& profile : profiles) {
    if (!seen.insert(engine.pc.codePage.upper(profile.folder)).second) continue;
    List list;
    list.heading = "Profile " + profile.name + ", " + profile.folder;
    readNetscapeCookies(files, profile.folder, list.rows);
    tickNetscapeKept(files, profile.folder, list.rows);
    list.save = [&files, folder = profile.folder](const CookieRows& rows) {
      saveNetscapeKeepList(files, folder, rows);
    };
    lists.push_back(std::move(list));
  }
  return lists;
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
  const bool netscape = arguments[0] == "netscape";
  std::vector<List> lists = netscape ? netscapeLists(engine) : internetExplorerLists(engine);
  if (netscape && wanted.list && lists.empty()) context.print("Cannot find a copy of Netscape 6.x");
  serve(context, wanted, lists);
  return exitStatus::Done;
}

}  // namespace zub
