// A test PC with the program on it, whose life is told step by step.
#pragma once

#include "app/ProgramPc.h"
#include "support/Story.h"

namespace zub {

struct ToldPc : ProgramPc {
  Story& story;
  std::unique_ptr<Timers> timers;
  bool ended = false;

  // A fresh PC goes on with the story.
  ToldPc(Story& told, std::string_view title) : story(told) {
    pc.onCall = [](const std::string&) {};  // so that files come by their names, whatever the host's order is
    story.look = [this] { return shown(); };
    if (!title.empty()) story.chapter(title);
  }
  // What is there before the first step is not told.
  void begin(std::string_view commandLine = "", const Handler& inWash = {}) {
    ended = start(commandLine, inWash);
    timers = std::make_unique<Timers>(*program);
    story.settle();
  }
  template <class Action>
  void step(std::string_view what, Action action) {
    story.step(what, [&] { ended |= ends(action); });
  }
  void press(std::string_view name, void (frmMain::*click)()) {
    step(name, [&] { (main().*click)(); });
  }
  void finish() {
    step("cmdFinish", [&] { progress()->cmdFinish_Click(); });
  }
  void serve(std::uint64_t ticks) {
    step("the steady clock at " + std::to_string(ticks), [&] { timers->serve(ticks); });
  }
  void comeDue() {
    step("the interval comes due", [&] {
      timers->serve(pc.ticks);
      pc.now.wMinute = 35;
      pc.ticks += 1000;
      for (int turn = 0; turn < 2; ++turn)
        timers->serve(pc.ticks);  // the animation's timer may have waited longer
    });
  }
  void runAuto() {
    options().ComboInterval.ListIndex(2);
    options().chkRunAuto.Value(1);
    story.settle();
  }

  Story::Things shown() {
    if (program == nullptr) return {};
    const auto told = [](const Form& form) {
      return std::string(form.Visible ? "visible" : "hidden") + (form.Enabled ? "" : ", disabled") +
             ", shown " + std::to_string(form.shown);
    };
    const auto frame = [](const Image& image) {
      return std::to_string(static_cast<int>(image.picture) - static_cast<int>(Picture::Frame0));
    };
    const frmAnimated::State& board = progress().peek().state;
    std::string tray;
    for (const std::string& call : pc.tray) tray += call + "; ";
    const bool loaded = progress().loaded();
    return {{"process", ended ? "ended" : "runs"},
            {"washes", std::to_string(washes)},
            {"main window", told(main().form)},
            {"cmdViewLog", main().cmdViewLog.Visible ? "visible" : "hidden"},
            {"tray", tray},
            {"mnuRemove", icon().mnuRemove.Enabled ? "on" : "off"},
            {"SetTopForm", std::to_string(icon().SetTopForm())},
            {"Timer of the main window", main().automatic.timer.Enabled ? "on" : "off"},
            {"NextRemoval", std::to_string(main().automatic.NextRemoval.wHour) + ":" +
                                std::to_string(main().automatic.NextRemoval.wMinute)},
            {"colon of the clock", main().automatic.display.colon ? "yes" : "no"},
            {"progress window", loaded ? told(board.form) : "not loaded"},
            {"  its task", loaded ? board.lblApplication.Caption + ", " + board.StatusBar1[1] : ""},
            {"  its line", loaded ? board.lblCurrent.Caption : ""},
            {"  its button", loaded ? board.cmdFinish.Caption : ""},
            {"  its picture",
             loaded ? frame(board.ImgAnimate) + (board.Timer.Enabled ? " moving" : " still") : ""},
            {"  it closes by itself", loaded && board.CloseWindowTimer.Enabled ? "yes" : ""},
            {"standard plugins", std::to_string(options().standardlist.ListCount()) + ", ticked " +
                                     std::to_string(options().standardlist.SelCount())},
            {"lblHelp", main().lblHelp.Caption},
            {"txtDate", main().dated.txtDate.Text},
            {"preview", told(main().preview.form) + ", " + frame(main().preview.ImgAnimate) +
                            (main().preview.Timer.Enabled ? " moving" : " still")},
            {"  it tells", main().preview.lblApplication.Caption + ", " + main().preview.lblCurrent.Caption},
            {"report of the preview",
             main().preview.report.Visible
                 ? std::to_string(main().preview.report.shown) + ": " + main().preview.txtResult
                 : "hidden"},
            {"messages", std::to_string(pc.messages.size())},
            {"temp files", std::to_string(tempFilesLeft())},
            {"lblLastRemoval", options().lblLastRemoval.Caption},
            {"stored lblLastRemoval, chkSkipMessages, chkTempFolder",
             stored("lblLastRemoval") + ", " + stored("chkSkipMessages") + ", " + stored("chkTempFolder")}};
  }
};

}  // namespace zub
