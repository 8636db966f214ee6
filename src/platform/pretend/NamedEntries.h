// Entries by name, in the order of their coming, found by their folded name and by position.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zub {

template <class T>
class NamedEntries {
 public:
  struct Entry {
    std::string name;  // as written
    T content{};
  };

  std::size_t size() const { return places_.size(); }

  T* find(const std::string& folded) {
    const auto place = places_.find(folded);
    return place == places_.end() ? nullptr : &slots_[place->second].entry.content;
  }
  // The content of the name, made where it is missing.
  T& make(const std::string& folded, std::string_view name) {
    const auto [place, made] = places_.try_emplace(folded, slots_.size());
    if (made) slots_.push_back({{std::string(name), {}}, true});
    return slots_[place->second].entry.content;
  }
  bool erase(const std::string& folded) {
    const auto place = places_.find(folded);
    if (place == places_.end()) return false;
    slots_[place->second] = {};
    places_.erase(place);
    asked_ = slot_ = 0;
    return true;
  }
  // `position` is below size(). Going on from the position asked for last costs no search.
  const Entry& at(std::size_t position) {
    if (position < asked_) asked_ = slot_ = 0;
    for (skipGaps(); asked_ < position; ++asked_) {
      ++slot_;
      skipGaps();
    }
    return slots_[slot_].entry;
  }

 private:
  struct Slot {
    Entry entry;
    bool used = false;
  };
  void skipGaps() {
    while (!slots_[slot_].used) ++slot_;
  }

  std::vector<Slot> slots_;  // with a gap where an entry was
  std::unordered_map<std::string, std::size_t> places_;
  std::size_t asked_ = 0;  // the position asked for last, and its slot
  std::size_t slot_ = 0;
};

}  // namespace zub
