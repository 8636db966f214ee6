#include <doctest/doctest.h>

#include "app/ToldPc.h"
#include "support/Golden.h"

using namespace zub;

TEST_CASE("which timer ticks when, step by step") {
  Story story;
  {
    ToldPc pc(story, "Once in each interval, and once after any number of missed ones");
    pc.begin();
    for (const std::uint64_t now :
         {70000, 70999, 71000, 71000, 71999, 72300, 73299, 73300, 99000, 99001, 99999, 100000})
      pc.serve(now);
    story.chapter("One that is enabled again begins a whole interval");
    Timer& timer = pc.main().automatic.timer;
    timer.Enabled = false;
    pc.serve(101500);
    timer.Enabled = true;
    for (const std::uint64_t now : {101600, 102599, 102600}) pc.serve(now);
  }
  {
    ToldPc pc(story, "One whose ticks take longer than its interval leaves the others their turns");
    pc.begin();
    pc.progress()->StartAnimation();
    story.settle();
    for (const std::uint64_t now : {0, 1500, 3000, 4500, 6000}) pc.serve(now);
  }
  {
    ToldPc pc(story,
              "The animation moves in the turns of a wash, ten pictures a second at most, and stops with it");
    pc.tempFiles();
    pc.begin();
    pc.pc.onDoEvents = [&](int) { pc.serve(pc.pc.ticks += 50); };
    pc.press("cmdRemove", &frmMain::cmdRemove_Click);
    pc.serve(pc.pc.ticks + 60000);
  }
  checkGolden("timers.txt", story.text);
}
