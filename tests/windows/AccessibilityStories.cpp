// What a screen reader finds.
#include <windows.h>
// Behind it.
#include <oleacc.h>

#include "windows/IconList.h"
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
    const HRESULT found = AccessibleObjectFromWindow(control.handle(), static_cast<DWORD>(OBJID_CLIENT),
                                                     __uuidof(IAccessible), &object);
    REQUIRE(found == S_OK);
    object_ = static_cast<IAccessible*>(object);
  }
  Told(const Told&) = delete;
  Told& operator=(const Told&) = delete;
  ~Told() { object_->Release(); }

  std::string name(LONG child = CHILDID_SELF) const {
    BSTR text = nullptr;
    object_->get_accName(number(child), &text);
    return narrow(text);
  }
  LONG role(LONG child = CHILDID_SELF) const {
    VARIANT role{};
    object_->get_accRole(number(child), &role);
    return role.lVal;
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

  const Told button(main.child("&Start Cleaning"));
  CHECK(button.role() == ROLE_SYSTEM_PUSHBUTTON);
  CHECK(button.name() == "Start Cleaning");

  const Told cache(main.child("Cache"));
  CHECK(cache.role() == ROLE_SYSTEM_CHECKBUTTON);
  CHECK(cache.name() == "Cache");
  CHECK(cache.is(STATE_SYSTEM_CHECKED));
  CHECK(cache.is(STATE_SYSTEM_FOCUSABLE));
  cache.act();
  CHECK(soon([&] { return !cache.is(STATE_SYSTEM_CHECKED); }));
  CHECK(Told(main.child("Internet Explorer")).role() == ROLE_SYSTEM_GROUPING);

  const Told list(main.child("ZubraneControl", 0));
  constexpr LONG Media = 2, Temp = 9;  // counted from 1
  CHECK(list.role() == ROLE_SYSTEM_LIST);
  CHECK(list.children() == 10);
  CHECK(list.role(Temp) == ROLE_SYSTEM_LISTITEM);
  CHECK(list.name(Temp) == "Temporary Folder");
  CHECK(list.is(STATE_SYSTEM_CHECKED, Temp));
  CHECK_FALSE(list.is(STATE_SYSTEM_CHECKED, Media));
  list.act(Media);
  CHECK(soon([&] { return list.is(STATE_SYSTEM_CHECKED, Media); }));
  IconList(main).clickPicture(1);
  CHECK(soon([&] { return list.is(STATE_SYSTEM_SELECTED, Media); }));
  CoUninitialize();
}
