#include <algorithm>
#include <utility>
#include <vector>

#include "platform/ContractPc.h"

namespace zub {
namespace {

// The scratch key, open, with shorter calls.
struct Scratch {
  template <class Pc>
  explicit Scratch(Pc& pc) : registry(*pc.platform().registry), path(pc.key()), key(registry) {
    REQUIRE(key.create(Hive::CurrentUser, path, access::All) == status::Success);
  }

  RegistryStatus set(std::string_view which, ValueType of, std::string_view data) {
    return registry.set(key.get(), which, of,
                        {reinterpret_cast<const std::uint8_t*>(data.data()), data.size()});
  }
  RegistryStatus make(const std::string& below) {
    return OpenKey(registry).create(Hive::CurrentUser, path + '\\' + below, access::All);
  }
  bool has(const std::string& below) {
    return OpenKey(registry).open(Hive::CurrentUser, path + '\\' + below, access::All) == status::Success;
  }
  RegistryStatus query(std::string_view which, std::uint32_t room = 1024) {
    length = room;
    return registry.query(key.get(), which, type, buffer, length);
  }
  RegistryStatus subkey(std::uint32_t index, std::uint32_t room = 256) {
    return registry.enumKey(key.get(), index, name, room);
  }
  RegistryStatus value(std::uint32_t index, std::uint32_t nameRoom = 256, std::uint32_t dataRoom = 1024) {
    length = dataRoom;
    return registry.enumValue(key.get(), index, name, nameRoom, type, buffer, length);
  }
  std::string data() const { return {reinterpret_cast<const char*>(buffer), length}; }
  // The names of the subkeys, or those of the values with their data, sorted; and that they stand in one order.
  std::string subkeys() {
    return told([&](std::uint32_t index) { return subkey(index); }, [] { return std::string(); });
  }
  std::string values() {
    return told([&](std::uint32_t index) { return value(index); }, [&] { return '=' + data(); });
  }

  Registry& registry;
  std::string path;
  OpenKey key;
  ValueType type{};
  std::uint32_t length = 0;
  std::uint8_t buffer[1024] = {};
  char name[256] = "";

 private:
  template <class Next, class Detail>
  std::string told(Next next, Detail detail) {
    std::vector<std::string> entries, again;
    for (std::vector<std::string>* all : {&entries, &again}) {
      while (next(static_cast<std::uint32_t>(all->size())) == status::Success)
        all->push_back(name + detail());
      CHECK(next(static_cast<std::uint32_t>(all->size())) == status::NoMoreItems);
      CHECK(next(16000) == status::NoMoreItems);
    }
    CHECK(entries == again);
    std::ranges::sort(entries);
    std::string text;
    for (const std::string& entry : entries) text += entry + "; ";
    return text;
  }
};

}  // namespace

TEST_CASE_TEMPLATE("registry: a key is opened, made with its parents, and refused", Pc, CONTRACT_PCS) {
  Pc pc;
  Registry& registry = *pc.platform().registry;
  const RegistryKey user = registry.hive(Hive::CurrentUser);
  RegistryKey key = 77;
  CHECK(registry.open(user, pc.key(), access::All, key) == status::FileNotFound);
  CHECK(key == 77);
  REQUIRE(registry.create(user, pc.key() + "\\One\\Two", access::All, key) == status::Success);
  CHECK(registry.close(key) == status::Success);
  // Names have no case; making what is there opens it with what it holds; the empty path is the key itself.
  RegistryKey parent = 0;
  REQUIRE(registry.open(user, pc.key() + "\\ONE", access::All, parent) == status::Success);
  CHECK(registry.set(parent, "kept", ValueType::Text, {}) == status::Success);
  RegistryKey same = 0;
  REQUIRE(registry.create(user, pc.key() + "\\one", access::All, same) == status::Success);
  RegistryKey itself = 0;
  REQUIRE(registry.open(same, "", access::All, itself) == status::Success);
  CHECK(registry.deleteValue(itself, "KEPT") == status::Success);
  CHECK(registry.deleteKey(itself, "Two") == status::Success);
  for (const RegistryKey opened : {parent, same, itself}) CHECK(registry.close(opened) == status::Success);

  CHECK(registry.hive(Hive::None) == 0);
  CHECK(registry.open(0, "Software", access::All, key) == status::InvalidHandle);
  CHECK(registry.create(0, "Software", access::All, key) == status::InvalidHandle);
  CHECK(registry.close(0) == status::InvalidHandle);
}

TEST_CASE_TEMPLATE("registry: subkeys are told as written, in a standing order, to the end", Pc,
                   CONTRACT_PCS) {
  Pc pc;
  Scratch scratch(pc);
  for (const char* name : {"Alpha", "beta", "gAMMA", "delta x", "ALPHA\\below"})
    CHECK(scratch.make(name) == status::Success);
  CHECK(scratch.subkeys() == "Alpha; beta; delta x; gAMMA; ");
  // The room counts the NUL: one less than the name needs is refused, and nothing is written.
  REQUIRE(scratch.subkey(0) == status::Success);
  const std::string first = std::exchange(scratch.name[0], '?') + std::string(scratch.name + 1);
  const auto length = static_cast<std::uint32_t>(first.size());
  CHECK(scratch.subkey(0, length) == status::MoreData);
  CHECK(scratch.name[0] == '?');
  CHECK(scratch.subkey(0, length + 1) == status::Success);
  CHECK(scratch.name == first);
}

TEST_CASE_TEMPLATE("registry: a value keeps its type and its bytes, a text as its family stores it", Pc,
                   CONTRACT_PCS) {
  using namespace std::string_literals;
  Pc pc;
  Scratch scratch(pc);
  const bool nt = isNt(pc);
  const struct {
    const char* name;
    ValueType type;
    std::string data;
    std::string stored = data;
  } rows[] = {
      {"text", ValueType::Text, "C:\\Temp\0"s},
      {"text without a NUL", ValueType::Text, "1"s, "1\0"s},
      {"text with a NUL inside", ValueType::Text, "one\0two\0"s, nt ? "one\0two\0"s : "one\0"s},
      {"text that ends inside", ValueType::Text, "one\0tw"s, nt ? "one\0tw\0"s : "one\0"s},
      {"text beyond ASCII", ValueType::Text, "\xE9\xDF\xFC\x80\0"s},
      {"no text at all", ValueType::Text, ""s, nt ? ""s : "\0"s},
      {"expand", ValueType::ExpandText, "%TEMP%\0"s},
      {"expand without a NUL", ValueType::ExpandText, "%TEMP%"s, nt ? "%TEMP%\0"s : "%TEMP%"s},
      {"binary", ValueType::Binary, "\0\1\xFF\0"s},
      {"no bytes", ValueType::Binary, ""s},
      {"number", ValueType::Number, "\1\2\3\4"s},
      {"several", ValueType::SeveralTexts, "a\0b\0\0"s},
      {"none", ValueType::None, "xyz"s},
  };
  for (const auto& row : rows) REQUIRE(scratch.set(row.name, row.type, row.data) == status::Success);
  for (const auto& row : rows) {
    CAPTURE(std::string(row.name));
    REQUIRE(scratch.query(row.name) == status::Success);
    CHECK(scratch.type == row.type);
    CHECK(scratch.data() == row.stored);
  }
  // The exact room is enough; less is told with the length that is needed.
  CHECK(scratch.query("text", 8) == status::Success);
  CHECK(scratch.query("text", 7) == status::MoreData);
  CHECK(scratch.length == 8);
  CHECK(scratch.query("missing") == status::FileNotFound);
  CHECK(scratch.query("") == status::FileNotFound);
}

TEST_CASE_TEMPLATE("registry: values are found without case, replaced, told and deleted", Pc, CONTRACT_PCS) {
  Pc pc;
  Scratch scratch(pc);
  CHECK(scratch.values() == "");
  for (const auto& [name, data] :
       {std::pair{"Name", "old"}, {"NAME", "12345678"}, {"", "unnamed"}, {" blank", "B"}})
    CHECK(scratch.set(name, ValueType::Binary, data) == status::Success);
  CHECK(scratch.values() == " blank=B; =unnamed; Name=12345678; ");
  CHECK(scratch.query("name") == status::Success);
  const auto remove = [&](const char* name) { return scratch.registry.deleteValue(scratch.key.get(), name); };
  for (const char* name : {"", " BLANK"}) CHECK(remove(name) == status::Success);
  for (const char* name : {"", " blank", "[Default]"}) CHECK(remove(name) == status::FileNotFound);
  CHECK(scratch.values() == "Name=12345678; ");
  // What does not fit is told as such.
  CHECK(scratch.value(0, 5, 8) == status::Success);
  CHECK(scratch.value(0, 4, 8) == status::MoreData);
  CHECK(scratch.value(0, 5, 7) == status::MoreData);
}

TEST_CASE_TEMPLATE("registry: a key with subkeys goes on the 9x family and stays on NT", Pc, CONTRACT_PCS) {
  Pc pc;
  Scratch scratch(pc);
  const bool nt = isNt(pc);
  const RegistryKey key = scratch.key.get();
  REQUIRE(scratch.make("Parent\\Child\\Grandchild") == status::Success);
  for (const char* name : {"Empty", "Inner"}) REQUIRE(scratch.make(name) == status::Success);
  OpenKey inner(scratch.registry);
  REQUIRE(inner.open(Hive::CurrentUser, scratch.path + "\\Inner", access::All) == status::Success);
  CHECK(scratch.registry.deleteKey(inner.get(), "") == status::Success);  // the key itself
  CHECK(scratch.registry.deleteKey(key, "Missing") == status::FileNotFound);
  CHECK(scratch.registry.deleteKey(key, "empty") == status::Success);
  CHECK(scratch.subkeys() == "Parent; ");
  const RegistryStatus refused = nt ? status::AccessDenied : status::Success;
  CHECK(scratch.registry.deleteKey(key, "Parent") == refused);
  CHECK(scratch.has("Parent\\Child\\Grandchild") == nt);
  CHECK(scratch.registry.deleteKey(key, "") == refused);
  CHECK(scratch.has("Parent") == nt);
}

TEST_CASE_TEMPLATE("registry: each told name leads back to its own key", Pc, CONTRACT_PCS) {
  Pc pc;
  // A real Windows of the 9x family has no calls that reach such names.
  if (pc.followsLinks() && !isNt(pc)) return;
  for (const char16_t* name : {u"a", u"\u0101", u"\uFF0E\uFF3C", u"<0101>"}) pc.wideKey(name);
  Scratch scratch(pc);
  CHECK(scratch.subkeys() == "<003C>0101>; <0101>; <FF0EFF3C>; a; ");
  for (const char* gone : {"<0101>", "<FF0EFF3C>", "<003C>0101>"})
    CHECK(scratch.registry.deleteKey(scratch.key.get(), gone) == status::Success);
  CHECK(scratch.subkeys() == "a; ");
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
  struct Name {
    Hive hive;
    std::string path;
    bool has(Registry& registry) const {
      return OpenKey(registry).open(hive, path, access::Read) == status::Success;
    }
  };
  // The last of the keys that a hive shows: where a key is made by the hive's name.
  const auto lastShown = [&](Hive hive) -> Name {
    const std::vector<std::string> shown = registry.shownBy(hive);
    if (shown.empty()) return {hive, {}};
    const auto end = shown.back().find('\\');
    const auto row = std::ranges::find(HiveNames, shown.back().substr(0, end), &HiveName::name);
    REQUIRE(row != HiveNames.end());
    return {row->hive, shown.back().substr(end + 1) + '\\'};
  };
  const auto deleteKey = [&](const Name& name) {
    return registry.deleteKey(registry.hive(name.hive), name.path);
  };

  for (const Hive hive : {Hive::CurrentUser, Hive::ClassesRoot}) {
    CAPTURE(static_cast<std::uint32_t>(hive));
    const bool user = hive == Hive::CurrentUser;
    if (user && !isNt(pc) && pc.deviates("user's branch")) continue;
    const std::string scratch = user ? pc.key() : "ZubraneTest";
    const Name shown = lastShown(hive);
    REQUIRE(shown.hive != hive);
    for (const bool goesByHive : {true, false}) {
      const Name byHive{hive, scratch + "\\a"};
      const Name byOther{shown.hive, shown.path + scratch + "\\a"};
      if (user && goesByHive)
        pc.wideKey(u"a");  // also by a PC that pretends to remove what is there
      else if (OpenKey(registry).create(hive, byHive.path, access::All) != status::Success)
        continue;  // no rights to the machine's classes
      CHECK(byHive.has(registry));
      CHECK(byOther.has(registry));
      CHECK(deleteKey(goesByHive ? byHive : byOther) == status::Success);
      CHECK_FALSE(byHive.has(registry));
      CHECK_FALSE(byOther.has(registry));
    }
    deleteKey({hive, scratch});
    CHECK_FALSE(Name{shown.hive, shown.path + scratch}.has(registry));
  }
}

}  // namespace zub
