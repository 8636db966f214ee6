// Headers of pages: one picture of all tabs for each tab that may be the active one, and the areas that a
// click may hit.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ui/controls/Control.h"

namespace zub::controls {

class TabStrip : public Control {
 public:
  // Raised after the tab's own event.
  IndexEvent Click;

  // Acts as a click on the tab. Any other index does nothing.
  void ShowTab(std::int16_t Index);

  void paint(Surface& surface) const override;

 protected:
  // The areas are in twips; the pictures' names are `art` and the tab's number.
  TabStrip(const Kit& kit, Size size, std::span<const Box> areas, std::string art);

  int partAt(float x, float y) const override;
  void onClick(int part) override { ShowTab(static_cast<std::int16_t>(part)); }
  virtual void raiseOwnEvent(int tab) const = 0;

 private:
  std::vector<Box> areas_;
  std::string art_;
  int active_ = 0;
};

class XPTab : public TabStrip {
 public:
  explicit XPTab(const Kit& kit);

  Handler Main, Plugins, Options, ZUBScheduler;

 protected:
  void raiseOwnEvent(int tab) const override;
};

class TabPluginsEditor : public TabStrip {
 public:
  explicit TabPluginsEditor(const Kit& kit);

  Handler Registry, Files, Comments;

 protected:
  void raiseOwnEvent(int tab) const override;
};

}  // namespace zub::controls
