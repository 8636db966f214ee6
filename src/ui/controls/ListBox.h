// The picture panel of ten items, each with a check box, on a panel that a hand-made scroll bar moves. Number,
// pictures and places of the items are fixed; what an item means, the owner knows by its index, 0 to 9.
#pragma once

#include <array>
#include <cstdint>
#include <deque>

#include "ui/controls/Control.h"
#include "ui/controls/SimpleCheck.h"

namespace zub::controls {

class ListBox : public Control {
 public:
  static constexpr int Items = 10;

  // Initialise follows when the owner has set its handlers.
  explicit ListBox(const Kit& kit);
  // Selects item 0 and raises ClickSelect(0).
  void Initialise();

  IndexEvent ClickSelect;  // an item has been selected by the user, or by Initialise
  IndexEvent ClickCheck;   // the user has clicked an item's box

  std::int16_t Selected() const { return selected_; }
  // Takes the nearest of 0 to 9. It changes no picture and raises no event.
  void Selected(std::int16_t index);
  // 1 ticked, 0 not. The index must be 0 to 9.
  std::int16_t Check(std::int16_t index) const;
  void Check(std::int16_t index, std::int16_t value);

  // Which items show their highlighted picture: one at most, but for a write of Selected.
  const std::array<bool, Items>& highlighted() const { return highlighted_; }
  int panelTop() const { return panelTop_; }  // twips, 0 to -1200
  int thumbTop() const { return thumbTop_; }  // twips

  // What the items are called; they are not shown.
  void ItemName(std::int16_t index, std::string_view name);

  void paint(Surface& surface) const override;
  Box focusPlace() const override;  // around the selected item; around all where it is out of sight

  Described described() const override { return {.role = Role::List, .name = "Items"}; }
  int parts() const override { return Items; }
  Described describedPart(int item) const override;
  Box partPlace(int item) const override;
  void selectPart(int item) override { select(static_cast<std::int16_t>(item)); }
  void pressPart(int item) override;

 protected:
  int partAt(float x, float y) const override;
  void onMouseDown(int part, Mouse& mouse) override;
  void onMouseMove(int part, Mouse& mouse) override;
  void onMouseUp(int part, Mouse& mouse) override;
  void onClick(int part) override;
  void onKeyDown(std::int16_t code, std::int16_t shift) override;

 private:
  Box panel() const;
  Box picturePlace(int item) const;
  Box checkPlace(int item) const;
  Box hitArea(int index) const;
  const Bitmap& picture(int item) const;
  Mouse onCheck(int item, Mouse mouse) const;

  void select(std::int16_t index);
  void scroll(int direction);

  std::deque<SimpleCheck> checks_;
  std::array<std::string, Items> names_;
  std::int16_t selected_ = 0;
  std::array<bool, Items> highlighted_ = {};
  int direction_ = 0;  // of the thumb: 1 down, -1 up, 0 not yet known
  int panelTop_ = 0;
  int thumbTop_;
  int thumbAreaTop_;
};

}  // namespace zub::controls
