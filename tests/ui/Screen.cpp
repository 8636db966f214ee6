#include "ui/Screen.h"

#include <cstdio>
#include <sstream>

#include "plugins/frmPluginEditor.h"
#include "ui/controls/Art.h"

namespace zub {
namespace {

// A long list by its count.
template <class Rows>
std::string rowsText(const Rows& rows) {
  constexpr int Few = 9;
  std::string text;
  for (int row = 0; row < rows.ListCount() && rows.ListCount() <= Few; ++row) {
    text += row == 0 ? ": " : "; ";
    if constexpr (requires { rows.Selected(row); }) text += rows.Selected(row) ? "*" : "";
    text += rows.List(row);
  }
  if (rows.ListCount() > Few) text += ": " + std::to_string(rows.ListCount()) + " rows";
  if constexpr (requires { rows.SelCount(); }) {
    if (rows.ListCount() > Few) text += ", " + std::to_string(rows.SelCount()) + " ticked";
  }
  return text +
         (rows.Text().empty() ? "" : " [" + std::to_string(rows.ListIndex()) + ' ' + rows.Text() + ']');
}

std::string colorText(const char* what, Color color) {
  char text[32];
  std::snprintf(text, sizeof text, "%s%06x", what, static_cast<unsigned>(color));
  return text;
}

// The diff of a PC, with the options that come up off in one line and the standard plugins among them by their count.
std::string shortened(const std::string& diff) {
  constexpr std::string_view Off = " = 1:0%00", Standard = "ZUBStandardPlugin ";
  std::istringstream lines(diff);
  std::string text, off;
  int plugins = 0;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t name = line.find('"') + 1;
    if (!line.starts_with("+ value ") || !line.ends_with(Off))
      text += line + '\n';
    else if (line.compare(name, Standard.size(), Standard) == 0)
      ++plugins;
    else
      off += ' ' + line.substr(name, line.size() - Off.size() - 1 - name);
  }
  if (plugins != 0) off += " and " + std::to_string(plugins) + " standard plugins";
  return off.empty() ? text : text + "+ stored as 0:" + off + '\n';
}

}  // namespace

std::string stateOf(const layout::Shown& shown) {
  const auto of = []<class State>(const State& state) {
    std::string text;
    if constexpr (std::is_same_v<State, const bool*>) text += *state ? "" : ", hidden";
    if constexpr (std::is_same_v<State, const std::string*>) text += *state;
    if constexpr (std::is_same_v<State, const std::array<std::string, 2>*>)
      text += (*state)[0].empty() ? "" : " \"" + (*state)[0] + "\" \"" + (*state)[1] + '"';
    if constexpr (std::is_same_v<State, const Image*>)
      text += (state->picture == Picture::None ? "" : " ") + std::string(controls::artOf(state->picture));
    if constexpr (std::is_same_v<State, const ClockDisplay*>)
      text += state->text + (state->colon ? " with colon" : "");
    if constexpr (std::is_same_v<State, CheckOption*>) text += state->Value() == 1 ? ", ticked" : "";
    if constexpr (std::is_same_v<State, const OptionButton*>) text += state->Value ? ", chosen" : "";
    if constexpr (std::is_same_v<State, TextBox*>)
      text += state->Text.empty() ? "" : " \"" + state->Text + '"';
    if constexpr (std::is_same_v<State, layout::IconListState>) {
      text += ' ';
      for (int row = 0; row < IconChecks::Count; ++row) text += state.checks->Check(row) != 0 ? '*' : '-';
    }
    if constexpr (requires { state->ListCount(); }) text += rowsText(*state);
    if constexpr (requires { state->Visible; }) text += state->Visible ? "" : ", hidden";
    if constexpr (requires { state->Enabled; }) text += state->Enabled ? "" : ", disabled";
    if constexpr (requires { state->Bold; }) text += state->Bold ? ", bold" : "";
    if constexpr (requires { state->ForeColor; })
      text += state->ForeColor != colors::Black ? colorText(", ", state->ForeColor) : "";
    if constexpr (requires { state->BackColor; })
      text += state->BackColor != colors::White ? colorText(" on ", state->BackColor) : "";
    return text;
  };
  return std::visit(of, shown);
}

std::vector<std::string> Screen::lines() const {
  std::vector<std::string> all;
  for (std::size_t at = 0; at < windows_.all.size(); ++at) {
    const layout::WindowSpec& window = windows_.all[at];
    const std::string name(windowNames[at]);
    const Form* form = window.form();
    all.push_back(form == nullptr ? name + " is not loaded"
                                  : name + " is" + (form->Visible ? "" : " not") + " in sight" +
                                        (form->Enabled ? "" : ", disabled") +
                                        (form->windowState == WindowState::Normal ? "" : ", minimised") +
                                        (form->mousePointer == MousePointer::Default ? "" : ", working") +
                                        ", brought up " + std::to_string(form->shown));
    walk(window.controls, [&](const layout::ControlSpec& control, const auto*, std::string_view) {
      const std::string_view caption = captionOf(control);
      all.push_back(name + ' ' + std::string(control.name) + ": " + std::string(caption) +
                    stateOf(control.shown));
    });
  }
  const Program& program = windows_.program;
  const auto timer = [&](const char* name, const Timer& one) {
    all.push_back(std::string(name) +
                  (one.Enabled ? " ticks every " + std::to_string(one.Interval) + " ms" : " stands"));
  };
  timer("the interval", program.main.automatic.timer);
  timer("the preview", program.main.preview.Timer);
  timer("the animation", program.engine.animated.peek().state.Timer);
  timer("the close timer", program.engine.animated.peek().state.CloseWindowTimer);
  all.push_back("entry of the tray: " + program.icon.mnuShow.Caption +
                (program.icon.mnuRemove.Enabled ? "" : ", no wash"));
  return all;
}

std::string Screen::changes() {
  std::string text;
  const std::vector<std::string> now = lines();
  for (std::size_t at = 0; at < now.size(); ++at) {
    if (!told_.empty() && now[at] != told_[at]) text += "  " + now[at] + '\n';
  }
  told_ = now;
  TestPc& pc = windows_.pc;
  for (const TestPc::Message& message : std::exchange(pc.messages, {}))
    text += "  message \"" + message.title + "\", style " + std::to_string(message.style) + ": " +
            message.prompt + '\n';
  for (const auto& [what, all] :
       {std::pair{"opens ", &pc.opened}, {"starts ", &pc.started}, {"tray: ", &pc.tray}}) {
    for (const std::string& one : std::exchange(*all, {})) text += std::string("  ") + what + one + '\n';
  }
  if (!before_.empty()) text += shortened(pc.diffSince(before_));
  before_ = pc.snapshot();
  std::erase(text, '\r');
  return text;
}

}  // namespace zub
