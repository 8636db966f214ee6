// Names in the order of their first mention, each once.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace zub {

class NameList {
 public:
  NameList() = default;
  NameList(const NameList&) = delete;
  NameList& operator=(const NameList&) = delete;

  // The name's place, from 0; at the end where it is new.
  std::size_t add(std::string_view name) {
    if (const auto known = places_.find(name); known != places_.end()) return known->second;
    const std::size_t place = names_.size();
    places_.emplace(names_.emplace_back(name), place);
    return place;
  }
  const std::string& operator[](std::size_t place) const { return names_[place]; }
  std::size_t size() const { return names_.size(); }

 private:
  std::deque<std::string> names_;  // which moves none of them when it grows
  std::unordered_map<std::string_view, std::size_t> places_;
};

}  // namespace zub
