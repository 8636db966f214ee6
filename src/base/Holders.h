// Two ways in which an object comes into being when it is first touched.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace zub {

// Made at the first use, kept until the holder goes.
template <class T>
class FirstUse {
 public:
  explicit FirstUse(std::function<std::unique_ptr<T>()> make) : make_(std::move(make)) {}

  T& operator*() {
    if (!object_) object_ = make_();
    return *object_;
  }
  T* operator->() { return &**this; }

 private:
  std::function<std::unique_ptr<T>()> make_;
  std::unique_ptr<T> object_;
};

// A form: loaded when touched, and loaded anew when touched after its unload. T has a state `T::State` and the
// member `state` of that type. The object itself stays where it is, so that a handler that unloads its own
// form may go on.
template <class T>
class AutoLoad {
 public:
  template <class... Args>
  explicit AutoLoad(Args&&... args) : form_(std::forward<Args>(args)...) {}

  bool loaded() const { return loaded_; }
  T& operator*() {
    if (!loaded_) {
      loaded_ = true;
      form_.state = typename T::State{};
    }
    return form_;
  }
  T* operator->() { return &**this; }
  void unload() { loaded_ = false; }
  // For views: looks at the form without loading it.
  const T& peek() const { return form_; }

 private:
  T form_;
  bool loaded_ = false;
};

}  // namespace zub
