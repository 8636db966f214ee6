#include "engine/frmAnimated.h"

#include "base/Numbers.h"
#include "engine/Engine.h"

namespace zub {
namespace {

// The running cycle; the picture at index 0 rests and the one at 5 is never shown.
constexpr std::array Imgframes{Picture::Frame0, Picture::Frame1, Picture::Frame2,
                               Picture::Frame3, Picture::Frame4, Picture::Frame5};
constexpr std::array ImgIcons{Picture::KindRegistry, Picture::KindFolder, Picture::KindFiles};

struct Kind {
  std::string_view text;
  Picture mark;
};
constexpr std::array kinds{Kind{"", Picture::None}, Kind{"Removing registry entries.", ImgIcons[0]},
                           Kind{"Removing files", ImgIcons[2]}, Kind{"Removing folder", ImgIcons[1]}};

}  // namespace

Picture nextFrame(int& frame) {
  if (++frame == 5) frame = 1;
  return Imgframes[static_cast<std::size_t>(frame)];
}

// The window may still be there: a wait for the user behind the last wash, or the unseen rest of one whose display
// was closed. Only the window stays; the board begins anew.
void frmAnimated::StartClean() {
  const Form window = state.form;
  state = State{};
  state.form = window;
  state.form.Show();
  engine_.clean.CleanAll();
}

void frmAnimated::StartAnimation() {
  state.Timer.Enabled = true;
  state.cmdLog.Visible = false;
  state.cmdFinish.Caption = "&Cancel";
}

void frmAnimated::StopAnimation() {
  state.Timer.Enabled = false;
  state.ImgAnimate.picture = Imgframes[0];
  state.ImgEntries.picture = Picture::None;
  state.cmdLog.Visible = true;
  state.cmdFinish.Caption = "&Finish";
  AppName("Finished");
  state.lblCurrent.Caption = "Select Finish to close this dialog";

  const std::string restored = groupedThousands(engine_.TotalBytes);
  state.lblRemove.Caption =
      "Total amount of space restored: " + (restored.empty() ? std::string("100") : restored) + " Bytes";
  Clock& clock = *engine_.pc.clock;
  const SystemTime now = clock.local();
  engine_.options.lblLastRemoval.Caption =
      "Last removal on " + clock.dateText(now) + " at " + clock.timeText(now);
}

void frmAnimated::AppName(std::string_view text) {
  state.lblApplication.Caption = text;
  state.StatusBar1[0] = text;
}

void frmAnimated::RemoveEntries(int kind) {
  state.RemoveEntries = kind;
  if (kind < 0 || kind >= static_cast<int>(kinds.size())) return;
  const Kind& shown = kinds[static_cast<std::size_t>(kind)];
  state.lblRemove.Caption = shown.text;
  state.ImgEntries.picture = shown.mark;
}

void frmAnimated::Timer_Tick() {
  state.ImgAnimate.picture = nextFrame(state.AnimationFrame);
}

void frmAnimated::cmdLog_Click() {
  engine_.clean.form.Show();
}

void frmAnimated::Unload() {
  engine_.owner->Enable();
  engine_.owner->FinishedCleaning();
  if (engine_.options.chkCloseAfterWash.Value() == 1) engine_.owner->Unload();
  engine_.animated.unload();
}

}  // namespace zub
