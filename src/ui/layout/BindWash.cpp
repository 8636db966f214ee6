// The windows of a wash: its progress and its report.
#include "base/Holders.h"
#include "engine/frmAnimated.h"
#include "engine/frmClean.h"
#include "ui/layout/Bindings.h"

namespace zub::layout {

WindowBinding bindProgress(AutoLoad<frmAnimated>& form) {
  const frmAnimated::State& state = form.peek().state;  // stays in its place when the form is loaded anew
  const auto on = [&form](void (frmAnimated::*handler)()) {
    return [&form, handler] { ((*form).*handler)(); };
  };
  WindowBinding progress;
  progress.window = &progressWindow;
  progress.form = [&form]() -> Form* { return form.loaded() ? &form->state.form : nullptr; };
  progress.anew = true;
  progress.close = on(&frmAnimated::Unload);
  progress.escape = on(&frmAnimated::cmdFinish_Click);
  progress.controls = {
      {"ImgAnimate", &state.ImgAnimate, {}},
      {"lblApplication", &state.lblApplication, {}},
      {"ImgEntries", &state.ImgEntries, {}},
      {"lblRemove", &state.lblRemove, {}},
      {"lblCurrent", &state.lblCurrent, {}},
      {"cmdLog", &state.cmdLog, on(&frmAnimated::cmdLog_Click)},
      {"cmdFinish", &state.cmdFinish, on(&frmAnimated::cmdFinish_Click)},
      {"StatusBar1", &state.StatusBar1, {}},

      {"Label1", &state.Label1, {}},
      {"Label2", &state.Label2, {}},
      {"Label3", &state.Label3, {}},
      {"Label4", &state.Label4, {}},
      {"Label5", &state.Label5, {}},
      {"Label6", &state.Label6, {}},
      {"Label7", &state.Label7, {}},
      {"Label8", &state.Label8, {}},
      {"Label9", &state.Label9, {}},
      {"Label10", &state.Label10, {}},
      {"Label11", &state.Label11, {}},
      {"Label14", &state.Label14, {}},
      {"Image3", &state.Image3, {}},
      {"Image4", &state.Image4, {}},
      {"Image5", &state.Image5, {}},
      {"Image6", &state.Image6, {}},
      {"Image7", &state.Image7, {}},
      {"Image8", &state.Image8, {}},
      {"Image9", &state.Image9, {}},
      {"Image10", &state.Image10, {}},
      {"Image11", &state.Image11, {}},
      {"Image12", &state.Image12, {}},
      {"Image13", &state.Image13, {}},
      {"Image14", &state.Image14, {}},
  };
  return progress;
}

WindowBinding bindReport(frmClean& form) {
  WindowBinding report;
  report.window = &reportWindow;
  report.form = [&form] { return &form.form; };
  report.close = [&form] { form.CloseBox(); };
  report.escape = [&form] { form.cmdCancel_Click(); };
  report.controls = {
      {"txtResult", &form.txtResult, {}},
      {"cmdCancel", {}, [&form] { form.cmdCancel_Click(); }},
  };
  return report;
}

}  // namespace zub::layout
