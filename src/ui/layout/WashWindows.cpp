// The windows of a wash and of its preview: progress and report.
#include "base/Holders.h"
#include "engine/TaskTable.h"
#include "engine/frmClean.h"
#include "ui/frmPreview.h"
#include "ui/layout/Rows.h"

namespace zub::layout {
namespace {

// The board of tasks: six rows in two columns, the left one first.
struct BoardRow {
  Task task;
  std::string_view label, image;  // the names of its words and of its mark
};
constexpr int RowsInAColumn = 6;
constexpr std::array<BoardRow, AllTasks> board{{
    {Task::DocumentHistory, "Label1", "Image3"},
    {Task::FindHistory, "Label2", "Image4"},
    {Task::RunHistory, "Label3", "Image5"},
    {Task::TempFolder, "Label4", "Image6"},
    {Task::RecycleBin, "Label5", "Image7"},
    {Task::Office, "Label6", "Image8"},
    {Task::Netscape, "Label7", "Image9"},
    {Task::InternetExplorer, "Label8", "Image10"},
    {Task::ScanDisk, "Label9", "Image11"},
    {Task::MediaPlayer, "Label10", "Image12"},
    {Task::CustomPlugins, "Label11", "Image13"},
    {Task::StandardPlugins, "Label14", "Image14"},
}};

void addBoard(Controls& controls, const frmAnimated::State& state) {
  constexpr int Left = 16, ColumnWidth = 216, Top = 88, RowHeight = 22;
  for (int at = 0; at < static_cast<int>(board.size()); ++at) {
    const auto& [task, labelName, imageName] = board[static_cast<std::size_t>(at)];
    const int left = Left + at / RowsInAColumn * ColumnWidth, top = Top + at % RowsInAColumn * RowHeight;
    controls.push_back(picture(imageName, px(left, top, 16, 16), state.*rowOf(task).image));
    controls.push_back(label(labelName, px(left + 22, top + 1, 178, 14), state.*rowOf(task).label));
  }
}

Controls progressControls(AutoLoad<frmAnimated>& form) {
  const frmAnimated::State& state = form.peek().state;  // stays in its place when the form is loaded anew
  const auto on = [&form](void (frmAnimated::*handler)()) {
    return [&form, handler] { ((*form).*handler)(); };
  };
  Controls controls = {
      picture("ImgAnimate", px(16, 12, 64, 64), state.ImgAnimate),
      label("lblApplication", px(96, 16, 328, 16), state.lblApplication, Text::Bold),
      picture("ImgEntries", px(96, 40, 32, 32), state.ImgEntries),
      label("lblRemove", px(136, 49, 288, 14), state.lblRemove),
      group("GrpRemoving", px(16, 224, 408, 62), "Removing",
            {label("lblCurrent", px(12, 22, 384, 30), state.lblCurrent)}),
      button("cmdLog", px(232, 296, 92, 28), state.cmdLog, "", on(&frmAnimated::cmdLog_Click)),
      button("cmdFinish", px(332, 296, 92, 28), state.cmdFinish, "", on(&frmAnimated::cmdFinish_Click)),
      statusBar("StatusBar1", px(0, 334, 440, 22), state.StatusBar1)};
  addBoard(controls, state);
  return controls;
}

Controls reportControls(const std::string& text, const Handler& cancel) {
  return {report("txtResult", px(0, 0, 520, 352), text, 0x00C000),
          button("cmdCancel", px(420, 362, 92, 28), "&Cancel", "", cancel)};
}

}  // namespace

WindowSpec progressWindow(AutoLoad<frmAnimated>& form) {
  return {.face = faces::Progress,
          .controls = progressControls(form),
          .form = [&form]() -> Form* { return form.loaded() ? &form->state.form : nullptr; },
          .close = [&form] { form->Unload(); },
          .escape = [&form] { form->cmdFinish_Click(); },
          .anew = true};
}

WindowSpec previewWindow(frmPreview& form) {
  return {
      .face = faces::Preview,
      .controls = {picture("ImgAnimate", px(16, 16, 64, 64), form.ImgAnimate),
                   label("lblNothing", px(96, 16, 264, 14), "Nothing is removed. A wash would do:"),
                   label("lblApplication", px(96, 38, 264, 16), form.lblApplication, Text::Bold),
                   label("lblCurrent", px(96, 58, 264, 30), form.lblCurrent),
                   button("cmdStop", px(268, 98, 92, 28), "&Stop", "", on(form, &frmPreview::cmdStop_Click))},
      .form = [&form] { return &form.form; },
      .close = on(form, &frmPreview::cmdStop_Click),
      .escape = on(form, &frmPreview::cmdStop_Click),
      .anew = true};
}

WindowSpec reportWindow(frmClean& form) {
  return {.face = faces::Report,
          .controls = reportControls(form.txtResult, on(form, &frmClean::cmdCancel_Click)),
          .form = [&form] { return &form.form; },
          .close = on(form, &frmClean::CloseBox),
          .escape = on(form, &frmClean::cmdCancel_Click)};
}

WindowSpec previewReportWindow(frmPreview& form) {
  const Handler hide = on(form, &frmPreview::cmdCancel_Click);
  return {.face = faces::PreviewReport,
          .controls = reportControls(form.txtResult, hide),
          .form = [&form] { return &form.report; },
          .close = hide,
          .escape = hide};
}

}  // namespace zub::layout
