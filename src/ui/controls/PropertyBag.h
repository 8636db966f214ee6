// The stored properties of one control, as a form keeps them between design and run.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "ui/controls/TextPainter.h"

namespace zub::controls {

using PropertyValue = std::variant<bool, std::int32_t, Color, float, std::string, FontRef>;

class PropertyBag {
 public:
  // The stored value, or the other one where nothing of that name and type is stored.
  template <class T>
  T ReadProperty(std::string_view name, T otherwise) const {
    const auto found = values_.find(name);
    if (found == values_.end()) return otherwise;
    const T* value = std::get_if<T>(&found->second);
    return value ? *value : otherwise;
  }

  // A value that equals its default is not stored.
  void WriteProperty(std::string_view name, PropertyValue value, const PropertyValue& otherwise) {
    if (value == otherwise)
      values_.erase(std::string(name));
    else
      values_.insert_or_assign(std::string(name), std::move(value));
  }

  bool holds(std::string_view name) const { return values_.contains(name); }

 private:
  std::map<std::string, PropertyValue, std::less<>> values_;
};

// What a form tells its controls: the name by which it calls them, and its own font.
struct Ambient {
  std::string Name;
  FontRef font;
};

}  // namespace zub::controls
