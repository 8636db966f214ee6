#include "ui/layout/WindowSpec.h"

namespace zub::layout {
namespace {

// The board of tasks: six rows, two columns.
constexpr int Left = 16, Right = 232;
constexpr Place mark(int column, int row) {
  return px(column, 88 + row * 22, 16, 16);
}
constexpr Place task(int column, int row) {
  return px(column + 22, 89 + row * 22, 178, 14);
}

constexpr ControlSpec controls[] = {
    {"", Kind::Picture, "ImgAnimate", px(16, 12, 64, 64), "animation-0", ""},
    {"", Kind::Label, "lblApplication", px(96, 16, 328, 16), "", "", Text::Bold},
    {"", Kind::Picture, "ImgEntries", px(96, 40, 32, 32), "", ""},
    {"", Kind::Label, "lblRemove", px(136, 49, 288, 14), "", ""},

    {"", Kind::Picture, "Image3", mark(Left, 0), "mark-open", ""},
    {"", Kind::Label, "Label1", task(Left, 0), "Document History", ""},
    {"", Kind::Picture, "Image9", mark(Right, 0), "mark-open", ""},
    {"", Kind::Label, "Label7", task(Right, 0), "Netscape", ""},
    {"", Kind::Picture, "Image4", mark(Left, 1), "mark-open", ""},
    {"", Kind::Label, "Label2", task(Left, 1), "Search/Find History", ""},
    {"", Kind::Picture, "Image10", mark(Right, 1), "mark-open", ""},
    {"", Kind::Label, "Label8", task(Right, 1), "Internet Explorer", ""},
    {"", Kind::Picture, "Image5", mark(Left, 2), "mark-open", ""},
    {"", Kind::Label, "Label3", task(Left, 2), "Run History", ""},
    {"", Kind::Picture, "Image11", mark(Right, 2), "mark-open", ""},
    {"", Kind::Label, "Label9", task(Right, 2), "Scandisk Logs", ""},
    {"", Kind::Picture, "Image6", mark(Left, 3), "mark-open", ""},
    {"", Kind::Label, "Label4", task(Left, 3), "Temp Directory", ""},
    {"", Kind::Picture, "Image12", mark(Right, 3), "mark-open", ""},
    {"", Kind::Label, "Label10", task(Right, 3), "Windows Media Player - MRU", ""},
    {"", Kind::Picture, "Image7", mark(Left, 4), "mark-open", ""},
    {"", Kind::Label, "Label5", task(Left, 4), "Recycle Bin", ""},
    {"", Kind::Picture, "Image13", mark(Right, 4), "mark-open", ""},
    {"", Kind::Label, "Label11", task(Right, 4), "Custom Plugin Items", ""},
    {"", Kind::Picture, "Image8", mark(Left, 5), "mark-open", ""},
    {"", Kind::Label, "Label6", task(Left, 5), "MS-Offics - MRU", ""},
    {"", Kind::Picture, "Image14", mark(Right, 5), "mark-open", ""},
    {"", Kind::Label, "Label14", task(Right, 5), "Standard Plugins", ""},

    {"", Kind::Group, "GrpRemoving", px(16, 224, 408, 62), "Removing", ""},
    {"GrpRemoving", Kind::Label, "lblCurrent", px(12, 22, 384, 30), "", ""},
    {"", Kind::Button, "cmdLog", px(232, 296, 92, 28), "&View Log", ""},
    {"", Kind::Button, "cmdFinish", px(332, 296, 92, 28), "&Cancel", ""},
    {"", Kind::StatusBar, "StatusBar1", px(0, 334, 440, 22), "", ""},
};

}  // namespace

constexpr WindowSpec progressWindow{"ZUB - Task Removal Status", 440 * TwipsPerPixel,
                                    356 * TwipsPerPixel,         Border::Fixed,
                                    colors::ProgressWindow,      controls};

}  // namespace zub::layout
