// A counted reference to a component's object.
#pragma once

#include <cstdio>
#include <string>
#include <utility>

#include "base/RuntimeError.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {

template <class T>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(ComPointer&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPointer& operator=(ComPointer&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPointer() {
    if (object_ != nullptr) object_->Release();
  }

  // For calls that give an object; the pointer must be empty.
  T** out() { return &object_; }
  void** outVoid() { return reinterpret_cast<void**>(&object_); }
  IUnknown** outUnknown() { return reinterpret_cast<IUnknown**>(&object_); }

  T* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  T* object_ = nullptr;
};

// The component library, in use by this thread for as long as the object lives.
class ComLibrary {
 public:
  ComLibrary() : begun_(SUCCEEDED(CoInitialize(nullptr))) {}
  ComLibrary(const ComLibrary&) = delete;
  ComLibrary& operator=(const ComLibrary&) = delete;
  ~ComLibrary() {
    if (begun_) CoUninitialize();
  }

 private:
  bool begun_;
};

// What a component refuses is an automation error, told with the component's own number.
inline void mustSucceed(HRESULT result) {
  if (SUCCEEDED(result)) return;
  char number[16];
  std::snprintf(number, sizeof number, " %08lX", static_cast<unsigned long>(result));
  throw RuntimeError(ErrorNumber::Automation, std::string(descriptionOf(ErrorNumber::Automation)) + number);
}

}  // namespace zub
