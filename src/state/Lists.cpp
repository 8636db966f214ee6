#include "state/Lists.h"

#include <algorithm>

#include "base/RuntimeError.h"

namespace zub {
namespace {

const std::string Nothing;

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool before(std::string_view a, std::string_view b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
    return static_cast<unsigned char>(lower(x)) < static_cast<unsigned char>(lower(y));
  });
}

}  // namespace

const std::string& ListRows::List(int index) const {
  return has(index) ? rows_[static_cast<std::size_t>(index)].text : Nothing;
}

void ListRows::AddItem(std::string_view text, int index) {
  auto place = rows_.end();
  if (order_ == Order::Sorted) {
    place = std::upper_bound(rows_.begin(), rows_.end(), text,
                             [](std::string_view added, const Row& row) { return before(added, row.text); });
  } else if (index != -1) {
    if (index < 0 || index > ListCount()) throw RuntimeError(ErrorNumber::InvalidCall);
    place = rows_.begin() + index;
  }
  if (current_ >= place - rows_.begin()) ++current_;
  rows_.insert(place, Row{std::string(text)});
  ++revision_;
}

void ListRows::RemoveItem(int index) {
  if (!has(index)) throw RuntimeError(ErrorNumber::InvalidCall);
  rows_.erase(rows_.begin() + index);
  if (current_ == index) {
    current_ = -1;
  } else if (current_ > index) {
    --current_;
  }
  ++revision_;
}

void ListRows::Clear() {
  rows_.clear();
  current_ = -1;
  ++revision_;
}

bool ListRows::Selected(int index) const {
  return has(index) && rows_[static_cast<std::size_t>(index)].selected;
}

void ListRows::Selected(int index, bool selected) {
  if (!has(index)) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  rows_[static_cast<std::size_t>(index)].selected = selected;
  ++revision_;
}

void ListRows::selectAll(bool selected) {
  for (Row& row : rows_) row.selected = selected;
  ++revision_;
}

int ListRows::SelCount() const {
  return static_cast<int>(std::ranges::count_if(rows_, [](const Row& row) { return row.selected; }));
}

void ListRows::ListIndex(int index) {
  if (index != -1 && !has(index)) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  current_ = index;
  ++revision_;
  if (index != -1) raise(Click);
}

Combo::Combo(std::vector<std::string> rows, int index) : rows_(std::move(rows)) {
  ListIndex(index);
}

const std::string& Combo::List(int index) const {
  return index >= 0 && index < ListCount() ? rows_[static_cast<std::size_t>(index)] : Nothing;
}

void Combo::AddItem(std::string_view text) {
  rows_.emplace_back(text);
  ++revision_;
}

void Combo::Clear() {
  rows_.clear();
  current_ = -1;
  text_.clear();
  ++revision_;
}

void Combo::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  current_ = index;
  text_ = List(index);
  ++revision_;
  if (index != -1) raise(Click);
}

void Combo::type(std::string_view text) {
  text_ = text;
  const auto row = std::ranges::find(rows_, text);
  current_ = row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
  ++revision_;
  raise(Change);
}

}  // namespace zub
