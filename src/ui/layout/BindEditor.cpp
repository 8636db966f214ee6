#include "ui/layout/Bindings.h"

namespace zub::layout {

WindowBinding bindEditor(frmPluginEditor& form) {
  frmPluginEditor::State& state = form.state;
  const auto on = [&form](void (frmPluginEditor::*handler)()) {
    return [&form, handler] { (form.*handler)(); };
  };
  WindowBinding editor;
  editor.window = &editorWindow;
  editor.form = [&form] { return &form.state.form; };
  editor.anew = true;
  editor.close = on(&frmPluginEditor::cmdCancel_Click);
  editor.takesFocus = [&state]() -> const TextBox* {
    const auto box = std::exchange(state.focus, nullptr);
    return box != nullptr ? &(state.*box) : nullptr;
  };
  editor.controls = {
      {"txtName", &state.txtName, {}},
      {"cmdOK", &state.cmdOK, on(&frmPluginEditor::cmdOK_Click)},
      {"cmdApply", &state.cmdApply, on(&frmPluginEditor::cmdApply_Click)},
      {"cmdCancel", &state.cmdCancel, on(&frmPluginEditor::cmdCancel_Click)},

      {"lstRegistry", &state.lstRegistry, {}},
      {"cmdRegNew", &state.cmdRegNew, on(&frmPluginEditor::cmdRegNew_Click)},
      {"cmdRegRemove", &state.cmdRegRemove, on(&frmPluginEditor::cmdRegRemove_Click)},
      {"cmdRegistryAdd", &state.cmdRegistryAdd, on(&frmPluginEditor::cmdRegistryAdd_Click)},
      {"cmbPathRegistry", &state.cmbPathRegistry, {}},
      {"txtPath", &state.txtPath, {}},
      {"cmbRegistry", &state.cmbRegistry, {}},
      {"txtKeyValue", &state.txtKeyValue, {}},

      {"lstFileFolder", &state.lstFileFolder, {}},
      {"cmdFFNew", &state.cmdFFNew, on(&frmPluginEditor::cmdFFNew_Click)},
      {"cmdFFRemove", &state.cmdFFRemove, on(&frmPluginEditor::cmdFFRemove_Click)},
      {"cmdAddFF", &state.cmdAddFF, on(&frmPluginEditor::cmdAddFF_Click)},
      {"txtPathFF", &state.txtPathFF, {}},
      {"cmdPathBrowse", &state.cmdPathBrowse, on(&frmPluginEditor::cmdPathBrowse_Click)},
      {"optFileName", &state.optFileName, on(&frmPluginEditor::optFileName_Click)},
      {"optFilePattern", &state.optFilePattern, on(&frmPluginEditor::optFilePattern_Click)},
      {"txtFileName", &state.txtFileName, {}},
      {"txtFilePattern", &state.txtFilePattern, {}},
      {"chkSubfolders", &state.chkSubfolders, {}},

      {"txtInfoPlugin", &state.txtInfoPlugin, {}},
      {"txtComments", &state.txtComments, {}},
  };
  return editor;
}

}  // namespace zub::layout
