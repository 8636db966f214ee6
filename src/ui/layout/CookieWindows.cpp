#include "ui/layout/WindowSpec.h"

namespace zub::layout {
namespace {

constexpr ControlSpec ieControls[] = {
    {"", Kind::Label, "lblKeep", px(12, 12, 396, 14), "Cookies that are selected will not be deleted.", ""},
    {"", Kind::CheckList, "lstDelete", px(12, 32, 396, 208), "", ""},
    {"", Kind::Check, "chkSelectAll", px(6, 246, 200, 20), "Select All", ""},
    {"", Kind::Content, "txtKeep", px(12, 272, 396, 92), "", ""},
    {"", Kind::Button, "cmdRefresh", px(216, 374, 92, 28), "&Refresh", ""},
    {"", Kind::Button, "cmdOK", px(316, 374, 92, 28), "&Ok", ""},
};

constexpr ControlSpec netscapeControls[] = {
    {"", Kind::Label, "lblKeep(1)", px(12, 12, 396, 14), "Select one of your Netscape profiles", ""},
    {"", Kind::DropDown, "cmbProfile", px(12, 30, 396, 22), "", ""},
    {"", Kind::Label, "lblKeep(0)", px(12, 62, 396, 14), "Cookies that are selected will not be deleted.",
     ""},
    {"", Kind::CheckList, "lstDelete", px(12, 82, 396, 182), "", ""},
    {"", Kind::Check, "chkSelectAll", px(6, 270, 200, 20), "Select All", ""},
    {"", Kind::Content, "txtKeep", px(12, 296, 396, 68), "", ""},
    {"", Kind::Button, "cmdRefresh", px(216, 374, 92, 28), "&Refresh", ""},
    {"", Kind::Button, "cmdOK", px(316, 374, 92, 28), "&Ok", ""},
};

}  // namespace

constexpr WindowSpec ieCookieWindow{"Internet Explorer Cookie Manger",
                                    420 * TwipsPerPixel,
                                    412 * TwipsPerPixel,
                                    Border::Fixed,
                                    colors::Window,
                                    ieControls};

constexpr WindowSpec netscapeCookieWindow{"Netscape Cookie Manger", 420 * TwipsPerPixel,
                                          412 * TwipsPerPixel,      Border::Fixed,
                                          colors::Window,           netscapeControls};

}  // namespace zub::layout
