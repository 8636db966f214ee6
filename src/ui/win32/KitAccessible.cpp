#include "ui/win32/KitAccessible.h"

#include "platform/host/win32/LoadedCall.h"
#include "platform/win32/Text.h"
#include "ui/controls/CaptionLabel.h"

namespace zub {
namespace {

BSTR systemText(const std::string& text) {
  const std::wstring wide = wideFromAnsi(text);
  return SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

HRESULT answer(const std::string& text, BSTR* result) {
  *result = text.empty() ? nullptr : systemText(text);
  return text.empty() ? S_FALSE : S_OK;
}

HRESULT answer(LONG number, VARIANT* result) {
  result->vt = VT_I4;
  result->lVal = number;
  return S_OK;
}

LONG roleOf(controls::Role role) {
  constexpr LONG Roles[] = {ROLE_SYSTEM_GRAPHIC,  ROLE_SYSTEM_PUSHBUTTON, ROLE_SYSTEM_CHECKBUTTON,
                            ROLE_SYSTEM_GROUPING, ROLE_SYSTEM_LIST,       ROLE_SYSTEM_LISTITEM,
                            ROLE_SYSTEM_CLOCK};  // by Role
  return Roles[static_cast<std::size_t>(role)];
}

}  // namespace

// A bare Windows 98 has no such library.
KitAccessible* KitAccessible::make(HWND window, controls::Control& control) {
  static const auto create =
      loadedCall<decltype(&CreateStdAccessibleObject)>("oleacc.dll", "CreateStdAccessibleObject");
  void* system = nullptr;
  if (create == nullptr || FAILED(create(window, OBJID_CLIENT, __uuidof(IAccessible), &system)))
    return nullptr;
  return new KitAccessible(window, control, static_cast<IAccessible*>(system));
}

LRESULT KitAccessible::handOut(WPARAM wParam) {
  static const auto hand = loadedCall<decltype(&LresultFromObject)>("oleacc.dll", "LresultFromObject");
  return hand == nullptr ? 0 : hand(__uuidof(IAccessible), wParam, this);
}

bool KitAccessible::finds(const VARIANT& child, int& part) const {
  if (control_ == nullptr || child.vt != VT_I4 || child.lVal < 0 || child.lVal > control_->parts())
    return false;
  part = child.lVal == CHILDID_SELF ? Itself : static_cast<int>(child.lVal) - 1;
  return true;
}

controls::Described KitAccessible::described(int part) const {
  return part == Itself ? control_->described() : control_->describedPart(part);
}

int KitAccessible::selectedPart() const {
  for (int part = 0; control_ != nullptr && part < control_->parts(); ++part)
    if (control_->describedPart(part).selected) return part;
  return Itself;
}

STDMETHODIMP KitAccessible::QueryInterface(REFIID id, void** object) {
  *object = nullptr;
  if (id != __uuidof(IUnknown) && id != __uuidof(IDispatch) && id != __uuidof(IAccessible))
    return E_NOINTERFACE;
  *object = static_cast<IAccessible*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) KitAccessible::Release() {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP KitAccessible::Invoke(DISPID member, REFIID, LCID language, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* failure, UINT* argument) {
  ITypeInfo* info = nullptr;
  const HRESULT found = system_->GetTypeInfo(0, language, &info);
  if (FAILED(found)) return found;
  const HRESULT done =
      info->Invoke(static_cast<IAccessible*>(this), member, flags, parameters, result, failure, argument);
  info->Release();
  return done;
}

STDMETHODIMP KitAccessible::get_accChildCount(LONG* count) {
  if (control_ == nullptr || control_->parts() == 0) return system_->get_accChildCount(count);
  *count = control_->parts();
  return S_OK;
}

STDMETHODIMP KitAccessible::get_accChild(VARIANT child, IDispatch** object) {
  if (control_ == nullptr || control_->parts() == 0) return system_->get_accChild(child, object);
  *object = nullptr;
  return S_FALSE;  // a part has no object of its own
}

STDMETHODIMP KitAccessible::get_accName(VARIANT child, BSTR* name) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  return answer(controls::withoutAmpersands(described(part).name).text, name);
}

STDMETHODIMP KitAccessible::get_accRole(VARIANT child, VARIANT* role) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  return answer(roleOf(described(part).role), role);
}

STDMETHODIMP KitAccessible::get_accState(VARIANT child, VARIANT* state) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  VARIANT itself{};
  itself.vt = VT_I4;
  VARIANT windows{};
  const HRESULT asked = system_->get_accState(itself, &windows);
  if (FAILED(asked)) return asked;
  LONG flags = windows.vt == VT_I4 ? windows.lVal : 0;
  const controls::Described what = described(part);
  if (what.checked) flags |= STATE_SYSTEM_CHECKED;
  if (part != Itself) {
    flags |= STATE_SYSTEM_SELECTABLE;
    if (what.selected)
      flags |= STATE_SYSTEM_SELECTED;
    else
      flags &= ~LONG{STATE_SYSTEM_FOCUSED};
  }
  return answer(flags, state);
}

STDMETHODIMP KitAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  const controls::AccessText name = controls::withoutAmpersands(described(part).name);
  if (name.underlined < 0) return answer(std::string(), shortcut);
  return answer(std::string("Alt+") + name.text[static_cast<std::size_t>(name.underlined)], shortcut);
}

STDMETHODIMP KitAccessible::get_accDefaultAction(VARIANT child, BSTR* action) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  const controls::Described what = described(part);
  if (what.checkable) return answer(what.checked ? "Uncheck" : "Check", action);
  return answer(what.role == controls::Role::Button ? "Press" : "", action);
}

// In the message loop, as a click would be: a button may run a whole wash, and whoever asked waits.
STDMETHODIMP KitAccessible::accDoDefaultAction(VARIANT child) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  if (IsWindowEnabled(GetAncestor(window_, GA_ROOT)) == 0)
    return DISP_E_MEMBERNOTFOUND;  // a modal window is there
  PostMessageA(window_, BM_CLICK, static_cast<WPARAM>(part) + 1, 0);
  return S_OK;
}

STDMETHODIMP KitAccessible::get_accFocus(VARIANT* child) {
  const int part = selectedPart();
  return part == Itself || GetFocus() != window_ ? system_->get_accFocus(child) : answer(part + 1, child);
}

STDMETHODIMP KitAccessible::get_accSelection(VARIANT* children) {
  const int part = selectedPart();
  return part == Itself ? system_->get_accSelection(children) : answer(part + 1, children);
}

STDMETHODIMP KitAccessible::accSelect(LONG flags, VARIANT child) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  if ((flags & SELFLAG_TAKEFOCUS) != 0) SetFocus(window_);
  if (part != Itself && (flags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)) != 0)
    control_->selectPart(part);
  return S_OK;
}

STDMETHODIMP KitAccessible::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
  int part;
  if (!finds(child, part)) return E_INVALIDARG;
  if (part == Itself) return system_->accLocation(left, top, width, height, child);
  const controls::Box place = control_->partPlace(part);
  POINT corner{place.left, place.top};
  ClientToScreen(window_, &corner);
  *left = corner.x;
  *top = corner.y;
  *width = place.width;
  *height = place.height;
  return S_OK;
}

STDMETHODIMP KitAccessible::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
  int part;
  if (!finds(start, part)) return E_INVALIDARG;
  const int last = control_->parts() - 1;
  int to = Itself;
  if (part == Itself && direction == NAVDIR_FIRSTCHILD) to = last < 0 ? Itself : 0;
  if (part == Itself && direction == NAVDIR_LASTCHILD) to = last;
  if (part != Itself && (direction == NAVDIR_NEXT || direction == NAVDIR_RIGHT))
    to = part < last ? part + 1 : Itself;
  if (part != Itself && (direction == NAVDIR_PREVIOUS || direction == NAVDIR_LEFT)) to = part - 1;
  if (to != Itself) return answer(to + 1, end);
  if (part == Itself) return system_->accNavigate(direction, start, end);
  end->vt = VT_EMPTY;
  return S_FALSE;
}

STDMETHODIMP KitAccessible::accHitTest(LONG left, LONG top, VARIANT* child) {
  POINT at{left, top};
  ScreenToClient(window_, &at);
  for (int part = 0; control_ != nullptr && part < control_->parts(); ++part)
    if (control_->partPlace(part).contains(static_cast<float>(at.x), static_cast<float>(at.y)))
      return answer(part + 1, child);
  return system_->accHitTest(left, top, child);
}

void tellAccessible(DWORD event, HWND window, LONG child) {
  static const auto notify = loadedCall<decltype(&NotifyWinEvent)>("user32.dll", "NotifyWinEvent");
  if (notify != nullptr) notify(event, window, OBJID_CLIENT, child);
}

}  // namespace zub
