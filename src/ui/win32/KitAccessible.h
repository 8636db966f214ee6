// A control of the kit as screen readers and automation find it: what it is, its name, whether it is ticked, and
// its parts. All else (place, parent, children, focus) the system's own object for a window answers.
#pragma once

#include "platform/host/win32/WindowsHeader.h"
#include "ui/controls/Control.h"
// Behind it.
#include <oleacc.h>

namespace zub {

class KitAccessible final : public IAccessible {
 public:
  // With one reference, the caller's. Null where the system has no accessibility of this kind.
  static KitAccessible* make(HWND window, controls::Control& control);
  KitAccessible(const KitAccessible&) = delete;
  KitAccessible& operator=(const KitAccessible&) = delete;

  // The answer to WM_GETOBJECT.
  LRESULT handOut(WPARAM wParam);
  // The control goes; who still holds the object finds nothing.
  void disconnect() { control_ = nullptr; }

  STDMETHODIMP QueryInterface(REFIID id, void** object) override;
  STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
  STDMETHODIMP_(ULONG) Release() override;

  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return system_->GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT number, LCID language, ITypeInfo** info) override {
    return system_->GetTypeInfo(number, language, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override {
    return system_->GetIDsOfNames(id, names, count, language, ids);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID id, LCID language, WORD flags, DISPPARAMS* parameters,
                      VARIANT* result, EXCEPINFO* failure, UINT* argument) override;

  STDMETHODIMP get_accParent(IDispatch** parent) override { return system_->get_accParent(parent); }
  STDMETHODIMP get_accChildCount(LONG* count) override;
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
  STDMETHODIMP get_accValue(VARIANT, BSTR* value) override { return none(value); }
  STDMETHODIMP get_accDescription(VARIANT, BSTR* description) override { return none(description); }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
  STDMETHODIMP get_accHelp(VARIANT, BSTR* help) override { return none(help); }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT, LONG*) override { return none(file); }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
  STDMETHODIMP get_accFocus(VARIANT* child) override;
  STDMETHODIMP get_accSelection(VARIANT* children) override;
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override;
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
  STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
  STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override;
  STDMETHODIMP accDoDefaultAction(VARIANT child) override;
  STDMETHODIMP put_accName(VARIANT, BSTR) override { return S_FALSE; }
  STDMETHODIMP put_accValue(VARIANT, BSTR) override { return S_FALSE; }

 private:
  KitAccessible(HWND window, controls::Control& control, IAccessible* system)
      : window_(window), control_(&control), system_(system) {}
  ~KitAccessible() { system_->Release(); }

  static HRESULT none(BSTR* text) {
    *text = nullptr;
    return S_FALSE;
  }
  // Which part is meant: a number from 0, or Itself. False for one that is not there.
  static constexpr int Itself = -1;
  bool finds(const VARIANT& child, int& part) const;
  controls::Described described(int part) const;
  int selectedPart() const;

  ULONG references_ = 1;
  HWND window_;
  controls::Control* control_;
  IAccessible* system_;
};

// Tells those who listen what happened to a control (CHILDID_SELF) or to a part, numbered from 1.
void tellAccessible(DWORD event, HWND window, LONG child);

}  // namespace zub
