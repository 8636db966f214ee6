#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "platform/ContractPc.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

namespace zub {
namespace {

// Calls that tell what they are answered, one line each.
class Story {
 public:
  // `base` is a path that is told as "it".
  Story(Platform& pc, std::string base) : registry_(*pc.registry), base_(std::move(base)) {}

  RegistryKey open(RegistryKey parent, const std::string& path, bool make = false,
                   std::uint32_t rights = access::All) {
    RegistryKey key = Untouched;
    const RegistryStatus status =
        make ? registry_.create(parent, path, rights, key) : registry_.open(parent, path, rights, key);
    CHECK((status == status::Success) == (key != Untouched));
    const bool isBase = path.starts_with(base_);
    tell((make ? "make " : "open ") + (isBase ? "it" + path.substr(base_.size()) : path), status);
    return status == status::Success ? key : 0;
  }
  RegistryKey make(RegistryKey parent, const std::string& path) { return open(parent, path, true); }
  void close(RegistryKey key) { tell("close", registry_.close(key)); }
  void set(RegistryKey key, const std::string& which, ValueType type, std::string_view data) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(data.data());
    tell("set " + which + " to " + dataText(type, data),
         registry_.set(key, which, type, {bytes, data.size()}));
  }
  void query(RegistryKey key, const std::string& which, std::uint32_t room = 1024) {
    ValueType type{};
    const RegistryStatus status = registry_.query(key, which, type, buffer_, room);
    tell("query " + which, status, [&] { return dataText(type, {reinterpret_cast<char*>(buffer_), room}); });
    if (status == status::MoreData) told += "  which needs " + std::to_string(room) + '\n';
  }
  void removeValue(RegistryKey key, const std::string& which) {
    tell("remove value " + which, registry_.deleteValue(key, which));
  }
  void remove(RegistryKey key, const std::string& path) {
    tell("remove key " + path, registry_.deleteKey(key, path));
  }
  // All subkeys, or all values with their data, sorted; they stand in one order, and nothing is behind them.
  void keys(RegistryKey key) {
    list(
        "keys", [&](std::uint32_t index) { return subkey(key, index); }, [] { return std::string(); });
  }
  void values(RegistryKey key) {
    list(
        "values", [&](std::uint32_t index) { return value(key, index); },
        [&] {
          return '=' + dataText(type_, {reinterpret_cast<char*>(buffer_), length_});
        });
  }
  RegistryStatus subkey(RegistryKey key, std::uint32_t index, std::uint32_t room = 256) {
    return registry_.enumKey(key, index, name, room);
  }
  RegistryStatus value(RegistryKey key, std::uint32_t index, std::uint32_t nameRoom = 256,
                       std::uint32_t dataRoom = 1024) {
    length_ = dataRoom;
    return registry_.enumValue(key, index, name, nameRoom, type_, buffer_, length_);
  }

  std::string told;
  char name[256] = "";

 private:
  static constexpr RegistryKey Untouched = 77;
  static std::string dataText(ValueType type, std::string_view data) {
    return std::to_string(static_cast<std::uint32_t>(type)) + ':' + printable(data);
  }
  void tell(const std::string& call, RegistryStatus status, const std::function<std::string()>& result = {}) {
    told += call + ": ";
    told += status != status::Success ? std::to_string(status) : result ? result() : "done";
    told += '\n';
  }
  template <class Next, class Detail>
  void list(const char* what, Next next, Detail detail) {
    std::vector<std::string> entries, again;
    for (std::vector<std::string>* all : {&entries, &again}) {
      while (next(static_cast<std::uint32_t>(all->size())) == status::Success)
        all->push_back(name + detail());
      CHECK(next(static_cast<std::uint32_t>(all->size())) == status::NoMoreItems);
      CHECK(next(16000) == status::NoMoreItems);
    }
    CHECK(entries == again);
    std::ranges::sort(entries);
    told += std::string(what) + ':';
    for (const std::string& entry : entries) told += ' ' + entry + ';';
    told += '\n';
  }

  Registry& registry_;
  std::string base_;
  std::uint8_t buffer_[1024] = {};
  ValueType type_{};
  std::uint32_t length_ = 0;
};

}  // namespace

TEST_CASE_TEMPLATE("registry: what each call answers, on each family", Pc, CONTRACT_PCS) {
  using namespace std::string_literals;
  Pc pc;
  Story it(pc.platform(), pc.key());
  const RegistryKey user = pc.platform().registry->hive(Hive::CurrentUser);
  it.told = "== keys are made with those on the way, names have no case, the empty path is the key itself\n";
  it.open(user, pc.key());
  it.close(it.make(user, pc.key() + "\\One\\Two"));
  const RegistryKey key = it.open(user, pc.key() + "\\");
  const RegistryKey one = it.open(key, "ONE"), same = it.make(key, "one"), itself = it.open(same, "");
  it.set(one, "kept", ValueType::Text, "");
  it.removeValue(itself, "KEPT");
  it.remove(itself, "two");
  for (const RegistryKey opened : {one, same, itself, RegistryKey{0}}) it.close(opened);
  CHECK(pc.platform().registry->hive(Hive::None) == 0);
  it.open(0, "Software");
  it.make(0, "Software");

  it.told += "== subkeys are told as written\n";
  for (const char* name : {"Alpha", "beta", "gAMMA", "delta x", "ALPHA\\below", "One"})
    it.close(it.make(key, name));
  it.keys(key);
  // The room counts the NUL: one less than the name needs is refused, and nothing is written.
  REQUIRE(it.subkey(key, 0) == status::Success);
  const std::string first = std::exchange(it.name[0], '?') + std::string(it.name + 1);
  const auto length = static_cast<std::uint32_t>(first.size());
  CHECK(it.subkey(key, 0, length) == status::MoreData);
  CHECK(it.name[0] == '?');
  CHECK(it.subkey(key, 0, length + 1) == status::Success);
  CHECK(it.name == first);

  it.told += "== a value keeps its type and its bytes, a text as its family stores it\n";
  const auto keep = [&](ValueType type, const std::vector<std::string>& all) {
    for (const std::string& bytes : all) {
      it.set(key, "v", type, bytes);
      it.query(key, "V");
    }
  };
  keep(ValueType::Text, {"C:\\Temp\0"s, "no NUL"s, "one\0two\0"s, "one\0tw"s, "\xE9\xDF\xFC\x80\0"s, ""s});
  keep(ValueType::ExpandText, {"%TEMP%\0"s, "%TEMP%"s});
  keep(ValueType::Binary, {"\0\1\xFF\0"s, ""s});
  keep(ValueType::Number, {"\1\2\3\4"s});
  keep(ValueType::SeveralTexts, {"a\0b\0\0"s});
  keep(ValueType::None, {"xyz"s});
  it.query(key, "v", 3);
  it.query(key, "v", 2);
  for (const char* missing : {"missing", ""}) it.query(key, missing);

  it.told += "== values are replaced, told and removed; the unnamed one is no other's\n";
  it.removeValue(key, "v");
  it.values(key);
  for (const char* name : {"Name", "NAME", "", " blank"}) it.set(key, name, ValueType::Binary, name + "!"s);
  it.values(key);
  for (const char* name : {"", " BLANK", "", " blank", "[Default]"}) it.removeValue(key, name);
  it.values(key);
  CHECK(it.value(key, 0, 5, 5) == status::Success);
  CHECK(it.value(key, 0, 4, 5) == status::MoreData);
  CHECK(it.value(key, 0, 5, 4) == status::MoreData);

  it.told += "== a key with subkeys goes on the 9x family and stays on NT\n";
  it.close(it.make(key, "Alpha\\below\\deeper"));
  const RegistryKey inner = it.open(key, "beta");
  it.remove(inner, "");
  it.close(inner);
  for (const char* name : {"missing", "ONE", "Alpha"}) it.remove(key, name);
  it.keys(key);
  it.remove(key, "");
  it.close(key);
  it.close(it.open(user, pc.key() + "\\Alpha\\below\\deeper"));
  checkGolden(isNt(pc) ? "registry-nt.txt" : "registry-9x.txt", it.told);
}

TEST_CASE_TEMPLATE("registry: each told name leads back to its own key", Pc, CONTRACT_PCS) {
  Pc pc;
  // A real Windows of the 9x family has no calls that reach such names.
  if (pc.followsLinks() && !isNt(pc)) return;
  for (const char16_t* name : {u"a", u"\u0101", u"\uFF0E\uFF3C", u"<0101>"}) pc.wideKey(name);
  Story it(pc.platform(), pc.key());
  const RegistryKey key = it.open(pc.platform().registry->hive(Hive::CurrentUser), pc.key());
  it.keys(key);
  for (const char* gone : {"<0101>", "<FF0EFF3C>", "<003C>0101>"}) it.remove(key, gone);
  it.keys(key);
  it.close(key);
  checkGolden("registry-names.txt", it.told);
}

// With keys that can only be read, which a test cannot make elsewhere.
template <bool ofNt>
struct Closed : FolderContractPc {
  Closed()
      : FolderContractPc(ofNt ? "nt" : "9x",
                         "REGEDIT4\n[HKEY_USERS\\Closed]\n\"v\"=\"x\"\n[HKEY_USERS\\Closed\\Below]\n"
                         "[HKEY_USERS\\Open\\Closed\\Below]\n",
                         "no rights = HKEY_USERS\\Closed\nno rights = HKEY_USERS\\open\\closed") {}
};

TEST_CASE_TEMPLATE("registry: what is refused where rights are missing, and by a key that was deleted", Pc,
                   Closed<false>, Closed<true>, Pretending<Closed<false>>, Pretending<Closed<true>>) {
  Pc pc;
  Story it(pc.platform(), pc.key());
  const RegistryKey users = pc.platform().registry->hive(Hive::Users);
  for (const char* path : {"closed", "Closed\\Below", "Open\\Closed", "Open"}) it.close(it.open(users, path));
  for (const char* path : {"Closed\\New", "Closed2"}) it.close(it.make(users, path));
  const RegistryKey read = it.open(users, "Closed", false, access::QueryValue | access::EnumerateSubKeys);
  it.keys(read);
  it.values(read);
  it.set(read, "v", ValueType::Text, "");
  it.removeValue(read, "v");
  it.make(read, "New");
  for (const char* path : {"Closed\\Below", "Open", "Closed2"}) it.remove(users, path);
  it.close(read);
  const RegistryKey blind = it.open(users, "Open", false, access::SetValue);
  it.query(blind, "v");
  CHECK(it.subkey(blind, 0) == status::AccessDenied);
  CHECK(it.value(blind, 0) == status::AccessDenied);
  it.remove(users, "Open\\Closed");
  it.close(blind);

  it.told += "== a key that was deleted\n";
  const RegistryKey gone = it.make(users, "Gone");
  it.remove(users, "Gone");
  it.removeValue(gone, "v");
  it.remove(gone, "");
  it.open(gone, "x");
  it.make(gone, "");
  it.query(gone, "v");
  CHECK(it.subkey(gone, 0) == status::KeyDeleted);
  for (int again = 0; again < 2; ++again) it.close(gone);
  checkGolden("refusals.txt", it.told);
}

// Its user is a branch of all users, and its classes are a part of the machine.
struct JoinedPc : FolderContractPc {
  JoinedPc()
      : FolderContractPc("nt",
                         "REGEDIT4\n[HKEY_USERS\\S-1\\Software]\n[HKEY_LOCAL_MACHINE\\Software\\Classes]\n",
                         "user = S-1") {}
  void wideKey(std::u16string_view name) {
    TestPc::key("HKEY_USERS\\S-1\\" + key() + '\\' + std::string(name.begin(), name.end()));
  }
};
using PretendingJoined = Pretending<JoinedPc>;
#ifdef _WIN32
#define JOINED_PCS JoinedPc, PretendingJoined, Win32ContractPc, PretendingWin32
#else
#define JOINED_PCS JoinedPc, PretendingJoined
#endif

TEST_CASE_TEMPLATE("registry: what a hive shows of another one is the same by both names", Pc, JOINED_PCS) {
  Pc pc;
  Registry& registry = *pc.platform().registry;
  // The key of a path that begins with its hive's name: whether it is there, and it removed.
  const auto at = [&](const std::string& path, bool removed) {
    const auto end = path.find('\\');
    const auto row = std::ranges::find(HiveNames, path.substr(0, end), &HiveName::name);
    REQUIRE(row != HiveNames.end());
    const std::string below = path.substr(end + 1);
    return (removed ? registry.deleteKey(registry.hive(row->hive), below)
                    : OpenKey(registry).open(row->hive, below, access::Read)) == status::Success;
  };
  for (const bool user : {true, false}) {
    CAPTURE(user);
    if (user && !isNt(pc) && pc.deviates("user's branch")) continue;
    const Hive hive = user ? Hive::CurrentUser : Hive::ClassesRoot;
    const std::string scratch = "\\" + (user ? pc.key() : "ZubraneTest");
    const std::vector<std::string> shown = registry.shownBy(hive);
    REQUIRE_FALSE(shown.empty());
    // Of several keys that it shows the last one is where a key is made by its name.
    const std::string byHive = (user ? "HKEY_CURRENT_USER" : "HKEY_CLASSES_ROOT") + scratch;
    const std::string byOther = shown.back() + scratch;
    for (const std::string& name : {byHive, byOther}) {
      if (user && name == byHive)
        pc.wideKey(u"a");  // also by a PC that pretends to remove what is there
      else if (OpenKey(registry).create(hive, scratch.substr(1) + "\\a", access::All) != status::Success)
        continue;  // no rights to the machine's classes
      for (const std::string& each : {byHive, byOther}) CHECK(at(each + "\\a", false));
      CHECK(at(name + "\\a", true));
      for (const std::string& each : {byHive, byOther}) CHECK_FALSE(at(each + "\\a", false));
    }
    at(byHive, true);
    CHECK_FALSE(at(byOther, false));
  }
}

// What is there anew does not count, nor a value that only became another one.
TEST_CASE("registry: what a PC that pretends has lost is told by the names that its hives show") {
  JoinedPc pc;
  for (const char* name : {"gone", "anew", "changed", "stays"})
    pc.value("HKEY_USERS\\S-1\\Software\\A", name, "x");
  pc.value("HKEY_USERS\\S-1\\Software\\B\\C", "v", "x");
  pc.value("HKEY_LOCAL_MACHINE\\Software\\Classes\\.txt", "", "x");
  for (const char* name : {"gone", "stays"}) pc.value("HKEY_LOCAL_MACHINE\\Software\\Plain", name, "x");
  pc.value("HKEY_LOCAL_MACHINE\\Software\\Plain\\Below\\Deep", "v", "x");
  PretendPc pretend(pc.platform());
  Platform platform = pretend.platform(*pc.platform().events, *pc.platform().messages);
  const RegistryKey user = platform.registry->hive(Hive::CurrentUser),
                    users = platform.registry->hive(Hive::Users),
                    machine = platform.registry->hive(Hive::LocalMachine);
  Story it(platform, "it");
  const RegistryKey a = it.open(user, "Software\\A"), plain = it.open(machine, "Software\\Plain");
  for (const char* name : {"gone", "anew"}) it.removeValue(a, name);
  for (const char* name : {"changed", "anew"}) it.set(a, name, ValueType::Binary, "y");
  for (const char* path : {"S-1\\Software\\B\\C", "S-1\\Software\\B"}) it.remove(users, path);
  it.remove(machine, "Software\\Classes\\.txt");
  for (const char* path : {"Below\\Deep", "Below", ""}) it.remove(plain, path);
  const RegistryKey anew = it.make(machine, "Software\\Plain");
  it.set(anew, "stays", ValueType::Binary, "y");
  it.close(it.make(anew, "Below"));
  for (const RegistryKey key : {a, plain, anew}) it.close(key);
  CHECK(pretend.removals() == 8);
  it.told += "== what is lost\n";
  pretend.registry.eachRemoved([&](const PretendRegistry::Removed& lost) {
    it.told += lost.key + (lost.value == nullptr ? "" : " \"" + *lost.value + '"') + '\n';
  });
  checkGolden("lost.txt", it.told);
}

}  // namespace zub
