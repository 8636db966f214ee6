// The titled frame around a group of options. Its title lies over the upper line and so cuts it.
#pragma once

#include <string>

#include "ui/controls/CaptionLabel.h"
#include "ui/controls/Control.h"

namespace zub::controls {

class XPGroupBox : public Control {
 public:
  explicit XPGroupBox(const Kit& kit);

  Handler Click, DblClick;
  MouseEvent MouseDown, MouseMove, MouseUp;

  using Control::Enabled;
  void Enabled(bool enabled) override;
  std::string Caption() const override { return title_.text; }
  void Caption(const std::string& caption);
  const FontRef& Font() const { return title_.font; }
  void Font(const FontRef& font);

  void paint(Surface& surface) const override;

  Described described() const override { return {.role = Role::Group, .name = Caption()}; }

  void InitProperties(const Ambient& ambient) override;
  void ReadProperties(const PropertyBag& bag, const Ambient& ambient) override;
  void WriteProperties(PropertyBag& bag, const Ambient& ambient) const override;

 protected:
  int partAt(float x, float y) const override { return titleBox().contains(x, y) ? Title : Surroundings; }
  void onMouseDown(int part, Mouse& mouse) override { forward(MouseDown, part, mouse); }
  void onMouseMove(int part, Mouse& mouse) override { forward(MouseMove, part, mouse); }
  void onMouseUp(int part, Mouse& mouse) override { forward(MouseUp, part, mouse); }
  void onClick(int) override { raise(Click); }
  void onDoubleClick(Mouse&) override { raise(DblClick); }

 private:
  enum Part { Surroundings, Title };

  Box titleBox() const;
  // Places on the title are counted from its own corner.
  void forward(const MouseEvent& event, int part, Mouse mouse) const;

  CaptionLabel title_;
};

}  // namespace zub::controls
