#include "plugins/frmPluginEditor.h"
#include "ui/layout/Rows.h"

namespace zub::layout {
namespace {

constexpr Place Page = px(8, 66, 464, 268);

Controls controls(frmPluginEditor& form) {
  frmPluginEditor::State& state = form.state;
  const auto on = [&form](void (frmPluginEditor::*handler)()) { return layout::on(form, handler); };
  return {label("lblName", px(12, 15, 90, 14), "Name of plugin"),
          edit("txtName", px(108, 11, 364, 21), state.txtName),
          tabs("SSTab1", px(8, 42, 464, 24), {}),
          page("Registry", Page,
               {group("grpRegistry", px(12, 6, 440, 118), "Registry",
                      {list("lstRegistry", px(12, 20, 334, 86), state.lstRegistry),
                       button("cmdRegNew", px(354, 20, 74, 24), state.cmdRegNew, "Add Key",
                              on(&frmPluginEditor::cmdRegNew_Click)),
                       button("cmdRegRemove", px(354, 50, 74, 24), state.cmdRegRemove, "Remove key",
                              on(&frmPluginEditor::cmdRegRemove_Click))}),
                label("lblPath", px(12, 132, 200, 14), "Path of registry entry:"),
                dropDown("cmbPathRegistry", px(12, 150, 158, 22), "", state.cmbPathRegistry),
                edit("txtPath", px(178, 150, 274, 21), state.txtPath),
                dropDown("cmbRegistry", px(12, 180, 158, 22), "", state.cmbRegistry),
                edit("txtKeyValue", px(178, 180, 190, 21), state.txtKeyValue),
                button("cmdRegistryAdd", px(376, 178, 76, 24), state.cmdRegistryAdd, "Add key",
                       on(&frmPluginEditor::cmdRegistryAdd_Click)),
                picture("ImgWarning", px(82, 211, 300, 48), "warning")}),
          page("Files & Folders", Page,
               {group("grpFileFolder", px(12, 6, 440, 118), "File / Folder",
                      {list("lstFileFolder", px(12, 20, 334, 86), state.lstFileFolder),
                       button("cmdFFNew", px(354, 20, 74, 24), state.cmdFFNew, "",
                              on(&frmPluginEditor::cmdFFNew_Click)),
                       button("cmdFFRemove", px(354, 50, 74, 24), state.cmdFFRemove, "",
                              on(&frmPluginEditor::cmdFFRemove_Click))}),
                label("lblPathFF", px(12, 132, 200, 14), "Path"),
                edit("txtPathFF", px(12, 150, 356, 21), state.txtPathFF),
                button("cmdPathBrowse", px(376, 148, 76, 24), state.cmdPathBrowse, "",
                       on(&frmPluginEditor::cmdPathBrowse_Click)),
                radio("optFileName", px(12, 182, 100, 18), state.optFileName,
                      on(&frmPluginEditor::optFileName_Click)),
                radio("optFilePattern", px(12, 210, 100, 18), state.optFilePattern,
                      on(&frmPluginEditor::optFilePattern_Click)),
                edit("txtFileName", px(120, 180, 248, 21), state.txtFileName),
                edit("txtFilePattern", px(120, 208, 248, 21), state.txtFilePattern),
                label("lblExample", px(122, 237, 110, 14), "Example: *.tmp", colors::Hint),
                check("chkSubfolders", px(246, 234, 122, 20), "Subfolders", "Select subfolders",
                      state.chkSubfolders),
                button("cmdAddFF", px(376, 206, 76, 24), state.cmdAddFF, "",
                       on(&frmPluginEditor::cmdAddFF_Click))}),
          page("Comments", Page,
               {label("lblInformation", px(12, 10, 200, 14), "Information:"),
                edit("txtInfoPlugin", px(12, 28, 440, 21), state.txtInfoPlugin),
                label("lblInformationExample", px(12, 53, 440, 14), "Example: SomeApp cache cleaner...",
                      colors::Hint),
                label("lblComments", px(12, 80, 200, 14), "Comments:"),
                memo("txtComments", px(12, 98, 440, 136), state.txtComments),
                label("lblCommentsExample", px(12, 239, 440, 14),
                      "Example: Please change the paths before you use this plugin...", colors::Hint)}),
          button("cmdOK", px(180, 342, 92, 28), state.cmdOK, "Done / Close window",
                 on(&frmPluginEditor::cmdOK_Click)),
          button("cmdApply", px(280, 342, 92, 28), state.cmdApply, "Apply changes",
                 on(&frmPluginEditor::cmdApply_Click)),
          button("cmdCancel", px(380, 342, 92, 28), state.cmdCancel, "Close window",
                 on(&frmPluginEditor::cmdCancel_Click))};
}

}  // namespace

WindowSpec editorWindow(frmPluginEditor& form) {
  return {.face = faces::Editor,
          .controls = controls(form),
          .form = [&form] { return &form.state.form; },
          .close = on(form, &frmPluginEditor::cmdCancel_Click),
          .anew = true,
          .takesFocus = [&state = form.state]() -> const TextBox* {
            const auto box = std::exchange(state.focus, nullptr);
            return box != nullptr ? &(state.*box) : nullptr;
          }};
}

}  // namespace zub::layout
