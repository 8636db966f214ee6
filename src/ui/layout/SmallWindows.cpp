#include "ui/layout/WindowSpec.h"

namespace zub::layout {
namespace {

constexpr ControlSpec reportControls[] = {
    {"", Kind::Report, "txtResult", px(0, 0, 520, 352), "", "", Text::Report, 0x00C000},
    {"", Kind::Button, "cmdCancel", px(420, 362, 92, 28), "&Cancel", ""},
};

constexpr ControlSpec aboutControls[] = {
    {"", Kind::ProgramIcon, "picIcon", {120, 240, 540, 540}, "", ""},
    {"", Kind::Label, "lblTitle", {960, 240, 5532, 252}, "", "", Text::Bold},
    {"", Kind::Label, "lblVersion", {960, 600, 4092, 228}, "", ""},
    {"",
     Kind::Label,
     "lblDescription",
     {960, 960, 5652, 924},
     "This simple program helps protect your privacy and recover valuable hard drive space by cleaning up "
     "the "
     "history of your activities on your PC and the Internet. ZUB makes it easy to shred unwanted "
     "information "
     "that clogs up your system's resources.",
     ""},
    {"", Kind::Line, "Line1(1)", {120, 1920, 6480, 15}, "", "", Text::Normal, rgb(128, 128, 128)},
    {"",
     Kind::Label,
     "lblDisclaimer",
     {240, 2040, 4560, 1188},
     "Warning: this program is protected by copyright law and international treaties. Unauthorised copying "
     "or "
     "distribution of it, or of any part of it, may lead to civil and criminal penalties.",
     ""},
    {"", Kind::Button, "cmdOK", {5280, 2160, 1092, 372}, "&OK", ""},
    {"", Kind::Button, "cmdSysInfo", {5280, 2760, 1092, 372}, "&System info", ""},
};

constexpr ControlSpec messageControls[] = {
    {"", Kind::Label, "lblTitle", {855, 120, 1830, 210}, "Zubrone", ""},
    {"", Kind::CloseButton, "ZUBCloseButton1", {5445, 75, 435, 345}, "", ""},
    {"", Kind::Label, "lblMessage", {2490, 960, 990, 195}, "Are you sure?", "", Text::Centred},
    {"", Kind::Picture, "imginformation", {585, 840, 480, 480}, "icon-information", ""},
    {"", Kind::Picture, "imgquestion", {630, 870, 480, 480}, "icon-question", ""},
    {"", Kind::Picture, "imgcritical", {555, 825, 480, 480}, "icon-critical", ""},
    {"", Kind::Picture, "imgexclamation", {585, 810, 480, 480}, "icon-exclamation", ""},
    {"", Kind::Button, "cmdYes", {2040, 1740, 876, 372}, "&Yes", ""},
    {"", Kind::Button, "cmdNo", {3135, 1740, 870, 375}, "&No", ""},
};

}  // namespace

constexpr WindowSpec reportWindow{"Log Report",  520 * TwipsPerPixel, 400 * TwipsPerPixel,
                                  Border::Fixed, colors::Window,      reportControls};

constexpr WindowSpec aboutWindow{"About ZUB", 6855, 3345, Border::Dialog, colors::White, aboutControls};

constexpr WindowSpec messageWindow{
    "Zubrone", 5970, 2310, Border::None, colors::Page, messageControls, "message-background"};

}  // namespace zub::layout
