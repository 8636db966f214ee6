#include "app/console/FoundPc.h"

#include <algorithm>
#include <vector>

#include "app/console/RegistryLook.h"
#include "base/Text.h"

namespace zub {
namespace {

constexpr std::string_view NtKey = "Software\\Microsoft\\Windows NT\\CurrentVersion";
constexpr std::string_view WindowsKey = "Software\\Microsoft\\Windows\\CurrentVersion";
constexpr std::string_view NtUser = "S-1-5-";
constexpr std::string_view Person = "S-1-5-21-";
constexpr std::string_view Default = ".DEFAULT";

// A text that holds a line end would be several facts of pc.txt.
bool hasControls(std::string_view text) {
  return std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) < 32; });
}

bool isPath(std::string_view text) {
  return text.size() > 2 && text[1] == ':' && text[2] == '\\' && !hasControls(text);
}

bool namesCookies(Registry& registry, const std::string& branch) {
  return !textOfUser(registry, branch, shellFolders, "Cookies").empty();
}

FoundFact familyOf(Registry& registry) {
  if (!textOf(registry, Hive::LocalMachine, NtKey, "SystemRoot").empty())
    return {"nt", "the registry is that of an NT"};
  if (!textOf(registry, Hive::LocalMachine, WindowsKey, "SystemRoot").empty()) {
    return {"9x", "the registry is that of a Windows 95 to ME"};
  }
  for (const std::string& branch : keysOf(registry, Hive::Users, "")) {
    if (branch.starts_with(NtUser)) return {"nt", "assumed: the users have names as on an NT"};
  }
  if (!keysOf(registry, Hive::CurrentUser, NtKey).empty())
    return {"nt", "assumed: the user has settings of an NT"};
  return {"9x", "assumed: nothing tells of an NT"};
}

FoundFact windowsOf(Registry& registry) {
  for (const std::string_view key : {NtKey, WindowsKey}) {
    const std::string folder = textOf(registry, Hive::LocalMachine, key, "SystemRoot");
    if (isPath(folder)) return {folder, "the registry tells it"};
  }
  return {"C:\\WINDOWS", "assumed: the registry does not tell it"};
}

FoundFact userOf(Registry& registry, const std::string& chosen) {
  if (!chosen.empty()) return {chosen, "as chosen"};
  if (namesCookies(registry, {})) return {"", "the HKEY_CURRENT_USER of the export"};
  std::vector<std::string> found;
  for (const std::string& branch : keysOf(registry, Hive::Users, "")) {
    const bool isPerson = branch.starts_with(Person) || (!branch.starts_with(NtUser) && branch != Default);
    if (isPerson && !hasControls(branch) && namesCookies(registry, branch)) found.push_back(branch);
  }
  if (found.empty() && namesCookies(registry, std::string(Default))) found.emplace_back(Default);
  if (found.size() == 1) return {found.front(), "the only one whose folders the registry tells"};
  return {"", found.empty() ? "not known: the registry tells the folders of no user"
                            : "to be chosen: the registry has several users, whom \"users\" lists"};
}

FoundFact tempOf(Registry& registry, const FoundPc& pc) {
  if (pc.family.value == "9x") return {JoinPath(pc.windows.value, "TEMP"), "as the family has it"};
  const std::string profile = profileOf(registry, pc.user.value, pc.windows.value);
  for (const std::string_view name : {"TEMP", "TMP"}) {
    std::string folder = textOfUser(registry, pc.user.value, "Environment", name);
    if (!profile.empty()) folder = withValue(std::move(folder), "%USERPROFILE%", profile);
    if (isPath(folder)) return {folder, "the registry tells it"};
  }
  if (isPath(profile)) return {JoinPath(profile, "Local Settings\\Temp"), "assumed: in the user's folder"};
  return {JoinPath(pc.windows.value, "TEMP"), "assumed: the registry does not tell it"};
}

}  // namespace

FoundPc findPc(Registry& registry, const std::string& user) {
  FoundPc pc;
  pc.family = familyOf(registry);
  pc.windows = windowsOf(registry);
  pc.user = userOf(registry, user);
  pc.temp = tempOf(registry, pc);
  return pc;
}

}  // namespace zub
