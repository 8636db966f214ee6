// Lists of text rows: plain, with checks, and combo boxes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "state/Controls.h"

namespace zub {

// A list of rows, each with a check mark that a plain list does not show. The current row is -1 where there is none.
class ListRows {
 public:
  Listener Click;  // raised when a row becomes current, by the user or by code

  enum class Order : std::uint8_t { AsAdded, Sorted };
  explicit ListRows(Order order = Order::AsAdded) : order_(order) {}

  int ListCount() const { return static_cast<int>(rows_.size()); }
  // The row's text; the empty text for an index that names no row.
  const std::string& List(int index) const;
  // A sorted list (compared by bytes without regard to ASCII case) finds the place itself and ignores
  // `index`; -1 adds at the end. Adding keeps the current row on its text.
  void AddItem(std::string_view text, int index = -1);
  // RuntimeError 5 where there is no such row; the current row becomes -1 if it goes.
  void RemoveItem(int index);
  void Clear();

  bool Selected(int index) const;
  void Selected(int index, bool selected);
  void selectAll(bool selected);
  int SelCount() const;

  int ListIndex() const { return current_; }
  // Makes a row current, -1 for none; raises Click for a row. RuntimeError 380 where there is no such row.
  void ListIndex(int index);
  // The text of the current row; empty where there is none.
  const std::string& Text() const { return List(current_); }

  // Changes with every change of the rows, their checks or the current row; for views.
  unsigned revision() const { return revision_; }

 private:
  struct Row {
    std::string text;
    bool selected = false;
  };
  bool has(int index) const { return index >= 0 && index < ListCount(); }

  Order order_;
  std::vector<Row> rows_;
  int current_ = -1;
  unsigned revision_ = 0;
};

// A combo box. A drop-down list takes its text from its current row; an editable one may hold any text, which
// then is no row.
class Combo {
 public:
  Listener Click;   // a row was chosen, by the user or by code
  Listener Change;  // the text was typed
  bool Enabled = true;

  Combo() = default;
  explicit Combo(std::vector<std::string> rows, int index = -1);

  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int index) const;
  void AddItem(std::string_view text);
  void Clear();

  int ListIndex() const { return current_; }
  // Chooses a row and raises Click; -1 chooses none and raises nothing. RuntimeError 380 where there is no such row.
  void ListIndex(int index);
  const std::string& Text() const { return text_; }
  void type(std::string_view text);  // the row that reads just so becomes current, else none; raises Change

  unsigned revision() const { return revision_; }

 private:
  std::vector<std::string> rows_;
  std::string text_;
  int current_ = -1;
  unsigned revision_ = 0;
};

}  // namespace zub
