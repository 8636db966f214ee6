// The progress window of a wash, "ZUB - Task Removal Status": a board of twelve tasks, the animation, what is removed
// now, and at the end the result. It removes nothing itself; all that it shows is set from outside or by its timers.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "state/Controls.h"

namespace zub {

class Engine;

// The kinds of removal that the window shows, as RemoveEntries counts them.
namespace removing {
inline constexpr int Nothing = 0;
inline constexpr int Registry = 1;
inline constexpr int Files = 2;
inline constexpr int Folder = 3;
}  // namespace removing

// The picture of the running cycle behind the one of this number, which becomes its number; 0 is the one at rest.
Picture nextFrame(int& frame);

class frmAnimated {
 public:
  // What a load gives anew and an unload loses.
  struct State {
    Form form;

    Label Label1{"Document History", true, false, colors::SystemHighlight};
    Label Label2{"Search/Find History", true, false, colors::SystemHighlight};
    Label Label3{"Run History", true, false, colors::SystemHighlight};
    Label Label4{"Temp Directory", true, false, colors::SystemHighlight};
    Label Label5{"Recycle Bin", true, false, colors::SystemHighlight};
    Label Label6{"MS-Offics - MRU", true, false, colors::SystemHighlight};
    Label Label7{"Netscape", true, false, colors::SystemHighlight};
    Label Label8{"Internet Explorer", true, false, colors::SystemHighlight};
    Label Label9{"Scandisk Logs", true, false, colors::SystemHighlight};
    Label Label10{"Windows Media Player - MRU", true, false, colors::SystemHighlight};
    Label Label11{"Custom Plugin Items", true, false, colors::SystemHighlight};
    Label Label14{"Standard Plugins", true, false, colors::SystemHighlight};

    Image Image1{Picture::DoneMark};  // never visible: the mark that a finished task takes
    Image Image3{Picture::OpenMark};
    Image Image4{Picture::OpenMark};
    Image Image5{Picture::OpenMark};
    Image Image6{Picture::OpenMark};
    Image Image7{Picture::OpenMark};
    Image Image8{Picture::OpenMark};
    Image Image9{Picture::OpenMark};
    Image Image10{Picture::OpenMark};
    Image Image11{Picture::OpenMark};
    Image Image12{Picture::OpenMark};
    Image Image13{Picture::OpenMark};
    Image Image14{Picture::OpenMark};

    Image ImgAnimate{Picture::Frame0};
    Image ImgEntries;
    Label lblApplication{"Finished"};
    Label lblCurrent;
    Label lblRemove;
    Label lblTasksTotal{"0", false};
    Label lblCompleted{"0", false};
    std::array<std::string, 2> StatusBar1{"Finished", "Number of tasks competed: 0"};
    Button cmdFinish{"&Cancel"};
    Button cmdLog{"&View Log", false};
    zub::Timer Timer{100, false};
    zub::Timer CloseWindowTimer{6000, false};
    int AnimationFrame = 0;
    int RemoveEntries = removing::Nothing;
  };
  State state;

  explicit frmAnimated(Engine& engine) : engine_(engine) {}

  // Shows the window and runs the whole wash; returns when all its work is done.
  void StartClean();
  void StartAnimation();
  void StopAnimation();
  void AppName(std::string_view text);
  int RemoveEntries() const { return state.RemoveEntries; }
  void RemoveEntries(int kind);

  void Timer_Tick();
  void CloseWindowTimer_Tick() { cmdFinish_Click(); }
  void cmdFinish_Click() { Unload(); }
  void cmdLog_Click();
  // Ends the wash as a state: gives control back to the main window and, with chkCloseAfterWash, ends the process.
  void Unload();

 private:
  Engine& engine_;
};

}  // namespace zub
