#include <functional>
#include <set>
#include <vector>

#include "app/console/Commands.h"
#include "app/console/CookieChoice.h"
#include "app/console/Json.h"
#include "base/Text.h"
#include "cleaners/IECookies.h"
#include "cleaners/NetscapeCookies.h"
#include "engine/Engine.h"

namespace zub {
namespace {

// What the arguments ask for. Nothing chosen: list the cookies.
struct Wanted {
  bool keep = false;
  std::vector<CookieChoice> choices;
  bool list() const { return choices.empty(); }
};

Wanted parse(const std::vector<std::string>& arguments) {
  Wanted wanted;
  if (arguments.size() == 1) return wanted;
  if ((arguments[1] != "keep" && arguments[1] != "drop") || arguments.size() < 3) {
    throw UsageError("cookies takes \"keep\" or \"drop\" and numbers of the list, ranges or sites");
  }
  wanted.keep = arguments[1] == "keep";
  for (std::size_t word = 2; word < arguments.size(); ++word) wanted.choices.emplace_back(arguments[word]);
  return wanted;
}

std::string rowText(int number, const CookieRow& row) {
  std::string text = std::to_string(number) + (row.kept ? " [x] " : " [ ] ") + std::string(trim(row.shown));
  if (row.detail != row.shown) text += "  " + std::string(trim(row.detail));
  return text;
}

// One list of cookies as the disk has it.
struct List {
  std::string profile;  // of Netscape; empty for Internet Explorer
  std::string folder;
  CookieRows rows;
  std::function<void(const CookieRows&)> save;
  bool changed = false;
};

void print(const CommandContext& context, const std::vector<List>& lists) {
  int number = 0;
  for (const List& list : lists) {
    if (!list.profile.empty()) context.print("Profile " + list.profile + ", " + list.folder);
    for (const CookieRow& row : list.rows) context.print(rowText(++number, row));
  }
}

void printJson(const CommandContext& context, std::string_view browser, const std::vector<List>& lists) {
  Json json(context, "cookies");
  json.utf8("browser", browser);
  int number = 0;
  json.array("lists", [&] {
    for (const List& list : lists) {
      json.object([&] {
        json.text("profile", list.profile);
        json.text("folder", list.folder);
        json.array("cookies", [&] {
          for (const CookieRow& row : list.rows) {
            json.object([&] {
              json.number("number", ++number);
              json.flag("kept", row.kept);
              json.text("shown", trim(row.shown, " \t"));
              json.text("detail", trim(row.detail, " \t"));
            });
          }
        });
      });
    }
  });
  json.write();
}

// The cookies are numbered through all lists, from 1. Nothing is changed where one of the choices is none.
void change(const CommandContext& context, const Wanted& wanted, std::vector<List>& lists) {
  std::vector<CookieRow*> rows;
  std::vector<List*> listOfRow;
  for (List& list : lists) {
    for (CookieRow& row : list.rows) {
      rows.push_back(&row);
      listOfRow.push_back(&list);
    }
  }
  std::vector<std::size_t> chosen;
  for (const CookieChoice& choice : wanted.choices) {
    for (const std::size_t place : choice.of(rows, *context.pc.platform().codePage)) chosen.push_back(place);
  }
  for (const std::size_t place : chosen) {
    rows[place]->kept = wanted.keep;
    listOfRow[place]->changed = true;
  }
  for (const List& list : lists) {
    if (list.changed) list.save(list.rows);
  }
}

std::vector<List> internetExplorerLists(Engine& engine) {
  const std::string folder = cookiesFolder(engine);
  if (folder == "\\") {
    throw RuntimeError(ErrorNumber::PathNotFound, "the registry of this PC names no folder of cookies");
  }
  List list;
  list.folder = folder;
  readIECookies(engine.pc, folder, list.rows);
  list.save = [&engine, folder](const CookieRows& rows) { saveIEKeepList(engine.pc, folder, rows); };
  return {list};
}

// The browser's registry file may name a profile more than once. A profile whose cookies cannot be read fails.
std::vector<List> netscapeLists(Engine& engine) {
  Files& files = *engine.pc.files;
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
    if (!seen.insert(engine.pc.codePage->upper(profile.folder)).second) continue;
    List list;
    list.profile = profile.name;
    list.folder = profile.folder;
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

void checkCookies(const Given& given) {
  const std::vector<std::string>& arguments = given.arguments;
  if (arguments.empty() || (arguments[0] != "ie" && arguments[0] != "netscape")) {
    throw UsageError("cookies takes \"ie\" or \"netscape\"");
  }
  parse(arguments);
}

int cookiesCommand(CommandContext& context) {
  const std::vector<std::string>& arguments = context.given.arguments;
  const Wanted wanted = parse(arguments);
  if (!wanted.list()) context.needAlone();
  Options options;
  Engine engine(context.pc.platform(), options);
  const bool netscape = arguments[0] == "netscape";
  std::vector<List> lists = netscape ? netscapeLists(engine) : internetExplorerLists(engine);
  if (!wanted.list()) change(context, wanted, lists);
  if (context.given.has("--json")) {
    printJson(context, arguments[0], lists);
  } else if (!wanted.list()) {
    return exitStatus::Done;
  } else if (netscape && lists.empty()) {
    context.print("Cannot find a copy of Netscape 6.x");
  } else {
    print(context, lists);
  }
  return exitStatus::Done;
}

}  // namespace zub
