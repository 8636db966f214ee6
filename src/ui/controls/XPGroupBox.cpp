#include "ui/controls/XPGroupBox.h"

namespace zub::controls {

namespace {

constexpr int TitleLeft = 15;  // pixels of 96 an inch

}  // namespace

XPGroupBox::XPGroupBox(const Kit& kit) : Control(kit) {
  title_.text = "Label1";
  title_.color = colors::Title;
}

void XPGroupBox::Enabled(bool enabled) {
  Control::Enabled(enabled);
  title_.color = enabled ? colors::Title : colors::DisabledText;
  raise(PropertyChanged, "Enabled");
}

void XPGroupBox::Caption(const std::string& caption) {
  title_.text = caption;
  changeLook();
  raise(PropertyChanged, "Caption");
}

void XPGroupBox::Font(const FontRef& font) {
  title_.font = font;
  changeLook();
  raise(PropertyChanged, "Font");
}

Box XPGroupBox::titleBox() const {
  const Size size = title_.size(kit_.text);
  return {kit_.scale.pixels(TitleLeft, 1), 0, size.width, size.height};
}

void XPGroupBox::paint(Surface& surface) const {
  const Box title = titleBox();
  const int line = kit_.scale.line(), corner = 3 * line;
  const int top = title.height / 2;  // the title stands centred on the upper line
  const int right = width() - corner, bottom = height() - corner;
  const int across = width() - 2 * corner, down = height() - 2 * corner - top;
  // The lower right corner is taken one row too low, so its last row lies past the picture's end and is not
  // painted; the picture is drawn for that.
  const struct {
    Box to, from;
  } pieces[] = {
      {{0, top, corner, corner}, {0, 0, 3, 3}},
      {{right, top, corner, corner}, {19, 0, 3, 3}},
      {{right, bottom, corner, corner}, {19, 18, 3, 3}},
      {{0, bottom, corner, corner}, {0, 17, 3, 3}},
      {{corner, top, across, line}, {3, 0, 16, 1}},
      {{width() - line, top + corner, line, down}, {21, 3, 1, 14}},
      {{corner, height() - line, across, line}, {3, 19, 16, 1}},
      {{0, top + corner, line, down}, {0, 3, 1, 14}},
  };
  surface.clear(BackColor());
  for (const auto& [to, from] : pieces) surface.copy(kit_.art["group-frame"], from, to);
  surface.fill(title, BackColor());
  title_.paint(surface, kit_.text, {title.left, title.top});
}

void XPGroupBox::forward(const MouseEvent& event, int part, Mouse mouse) const {
  if (part == Title) mouse.X -= static_cast<float>(titleBox().left);
  raise(event, mouse.Button, mouse.Shift, mouse.X, mouse.Y);
}

void XPGroupBox::InitProperties(const Ambient& ambient) {
  Caption(ambient.Name);
  Enabled(true);
  Font(ambient.font);
}

void XPGroupBox::ReadProperties(const PropertyBag& bag, const Ambient& ambient) {
  Enabled(bag.ReadProperty("Enabled", true));
  Font(bag.ReadProperty("Font", ambient.font));
  BackColor(bag.ReadProperty("BackColor", colors::Page));
  Caption(bag.ReadProperty("Caption", ambient.Name));
}

void XPGroupBox::WriteProperties(PropertyBag& bag, const Ambient& ambient) const {
  bag.WriteProperty("Enabled", Enabled(), true);
  bag.WriteProperty("Font", title_.font, ambient.font);
  bag.WriteProperty("BackColor", BackColor(), colors::Page);
  bag.WriteProperty("Caption", title_.text, ambient.Name);
}

}  // namespace zub::controls
