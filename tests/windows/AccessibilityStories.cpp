// What a screen reader finds.
#include <windows.h>
// Behind it.
#include <oleacc.h>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

VARIANT number(LONG value) {
  VARIANT variant{};
  variant.vt = VT_I4;
  variant.lVal = value;
  return variant;
}

std::string narrow(BSTR text) {
  char narrow[256] = "";
  if (text != nullptr) WideCharToMultiByte(CP_ACP, 0, text, -1, narrow, sizeof narrow, nullptr, nullptr);
  SysFreeString(text);
  return narrow;
}

// A control, as its program tells it to others.
class Told {
 public:
  explicit Told(const Window& control) {
    void* object = nullptr;
    REQUIRE(AccessibleObjectFromWindow(control.handle(), static_cast<DWORD>(OBJID_CLIENT),
                                       __uuidof(IAccessible), &object) == S_OK);
    object_ = static_cast<IAccessible*>(object);
  }
  Told(const Told&) = delete;
  Told& operator=(const Told&) = delete;
  ~Told() { object_->Release(); }

  // "role NUMBER, NAME"
  std::string text(LONG child = CHILDID_SELF) const {
    VARIANT role{};
    BSTR name = nullptr;
    object_->get_accRole(number(child), &role);
    object_->get_accName(number(child), &name);
    return "role " + std::to_string(role.lVal) + ", " + narrow(name);
  }
  bool is(LONG flag, LONG child = CHILDID_SELF) const {
    VARIANT state{};
    object_->get_accState(number(child), &state);
    return (state.lVal & flag) != 0;
  }
  LONG children() const {
    LONG count = 0;
    object_->get_accChildCount(&count);
    return count;
  }
  void act(LONG child = CHILDID_SELF) const { CHECK(object_->accDoDefaultAction(number(child)) == S_OK); }

 private:
  IAccessible* object_ = nullptr;
};

}  // namespace

TEST_CASE(
    "a screen reader finds what the kit's controls are, what they are called and whether they are ticked") {
  REQUIRE(SUCCEEDED(CoInitialize(nullptr)));
  const Story story;
  pc::option("chkIECache");
  pc::option("chkTempFolder");
  const Zub zub;
  const Window main = zub.main();

  const auto called = [](int role, const char* name) { return "role " + std::to_string(role) + ", " + name; };

  CHECK(Told(main.child("&Start Cleaning")).text() == called(ROLE_SYSTEM_PUSHBUTTON, "Start Cleaning"));
  CHECK(Told(main.child("Internet Explorer")).text() == called(ROLE_SYSTEM_GROUPING, "Internet Explorer"));
  const Told cache(main.child("Cache"));
  CHECK(cache.text() == called(ROLE_SYSTEM_CHECKBUTTON, "Cache"));
  CHECK(cache.is(STATE_SYSTEM_CHECKED));
  CHECK(cache.is(STATE_SYSTEM_FOCUSABLE));
  cache.act();
  CHECK(soon([&] { return !cache.is(STATE_SYSTEM_CHECKED); }));

  const Told list(icons::list(main));
  constexpr LONG Media = 2, Temp = 9;  // counted from 1
  CHECK(list.text().starts_with(called(ROLE_SYSTEM_LIST, "")));
  CHECK(list.children() == 10);
  CHECK(list.text(Temp) == called(ROLE_SYSTEM_LISTITEM, "Temporary Folder"));
  CHECK(list.is(STATE_SYSTEM_CHECKED, Temp));
  CHECK_FALSE(list.is(STATE_SYSTEM_CHECKED, Media));
  list.act(Media);
  CHECK(soon([&] { return list.is(STATE_SYSTEM_CHECKED, Media); }));
  icons::clickPicture(main, 1);
  CHECK(soon([&] { return list.is(STATE_SYSTEM_SELECTED, Media); }));
  CoUninitialize();
}
