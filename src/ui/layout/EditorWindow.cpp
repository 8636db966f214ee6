#include "ui/layout/WindowSpec.h"

namespace zub::layout {
namespace {

constexpr Place Page = px(8, 66, 464, 268);

constexpr ControlSpec controls[] = {
    {"", Kind::Label, "lblName", px(12, 15, 90, 14), "Name of plugin", ""},
    {"", Kind::Edit, "txtName", px(108, 11, 364, 21), "", ""},
    {"", Kind::Tabs, "SSTab1", px(8, 42, 464, 24), "", ""},

    {"", Kind::Page, "pageRegistry", Page, "Registry", ""},
    {"pageRegistry", Kind::Group, "grpRegistry", px(12, 6, 440, 118), "Registry", ""},
    {"grpRegistry", Kind::List, "lstRegistry", px(12, 20, 334, 86), "", ""},
    {"grpRegistry", Kind::Button, "cmdRegNew", px(354, 20, 74, 24), "New", "Add Key"},
    {"grpRegistry", Kind::Button, "cmdRegRemove", px(354, 50, 74, 24), "Remove", "Remove key"},
    {"pageRegistry", Kind::Label, "lblPath", px(12, 132, 200, 14), "Path of registry entry:", ""},
    {"pageRegistry", Kind::DropDown, "cmbPathRegistry", px(12, 150, 158, 22), "", ""},
    {"pageRegistry", Kind::Edit, "txtPath", px(178, 150, 274, 21), "", ""},
    {"pageRegistry", Kind::DropDown, "cmbRegistry", px(12, 180, 158, 22), "", ""},
    {"pageRegistry", Kind::Edit, "txtKeyValue", px(178, 180, 190, 21), "", ""},
    {"pageRegistry", Kind::Button, "cmdRegistryAdd", px(376, 178, 76, 24), "Add", "Add key"},
    {"pageRegistry", Kind::Picture, "ImgWarning", px(82, 211, 300, 48), "warning", ""},

    {"", Kind::Page, "pageFiles", Page, "Files & Folders", ""},
    {"pageFiles", Kind::Group, "grpFileFolder", px(12, 6, 440, 118), "File / Folder", ""},
    {"grpFileFolder", Kind::List, "lstFileFolder", px(12, 20, 334, 86), "", ""},
    {"grpFileFolder", Kind::Button, "cmdFFNew", px(354, 20, 74, 24), "New", ""},
    {"grpFileFolder", Kind::Button, "cmdFFRemove", px(354, 50, 74, 24), "Remove", ""},
    {"pageFiles", Kind::Label, "lblPathFF", px(12, 132, 200, 14), "Path", ""},
    {"pageFiles", Kind::Edit, "txtPathFF", px(12, 150, 356, 21), "", ""},
    {"pageFiles", Kind::Button, "cmdPathBrowse", px(376, 148, 76, 24), "Browse", ""},
    {"pageFiles", Kind::Radio, "optFileName", px(12, 182, 100, 18), "File Name", ""},
    {"pageFiles", Kind::Radio, "optFilePattern", px(12, 210, 100, 18), "File pattern", ""},
    {"pageFiles", Kind::Edit, "txtFileName", px(120, 180, 248, 21), "", ""},
    {"pageFiles", Kind::Edit, "txtFilePattern", px(120, 208, 248, 21), "", ""},
    {"pageFiles", Kind::Label, "lblExample", px(122, 237, 110, 14), "Example: *.tmp", "", Text::Normal,
     colors::Hint},
    {"pageFiles", Kind::Check, "chkSubfolders", px(246, 234, 122, 20), "Subfolders", "Select subfolders"},
    {"pageFiles", Kind::Button, "cmdAddFF", px(376, 206, 76, 24), "Add", ""},

    {"", Kind::Page, "pageComments", Page, "Comments", ""},
    {"pageComments", Kind::Label, "lblInformation", px(12, 10, 200, 14), "Information:", ""},
    {"pageComments", Kind::Edit, "txtInfoPlugin", px(12, 28, 440, 21), "", ""},
    {"pageComments", Kind::Label, "lblInformationExample", px(12, 53, 440, 14),
     "Example: SomeApp cache cleaner...", "", Text::Normal, colors::Hint},
    {"pageComments", Kind::Label, "lblComments", px(12, 80, 200, 14), "Comments:", ""},
    {"pageComments", Kind::Memo, "txtComments", px(12, 98, 440, 136), "", ""},
    {"pageComments", Kind::Label, "lblCommentsExample", px(12, 239, 440, 14),
     "Example: Please change the paths before you use this plugin...", "", Text::Normal, colors::Hint},

    {"", Kind::Button, "cmdOK", px(180, 342, 92, 28), "&Ok", "Done / Close window"},
    {"", Kind::Button, "cmdApply", px(280, 342, 92, 28), "&Apply", "Apply changes"},
    {"", Kind::Button, "cmdCancel", px(380, 342, 92, 28), "&Cancel", "Close window"},
};

}  // namespace

constexpr WindowSpec editorWindow{"ZUB Plugin Editor", 480 * TwipsPerPixel, 378 * TwipsPerPixel,
                                  Border::Fixed,       colors::Window,      controls};

}  // namespace zub::layout
