// A preview: the same program, at work on a PC that only pretends. What it tells and counts is what a wash would do now;
// the PC beneath stays as it is.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/Program.h"
#include "platform/pretend/PretendPc.h"

namespace zub {

class Preview {
 public:
  // All three outlive the preview.
  Preview(Platform& beneath, EventLoop& events, Messages& messages);

  // What another program has come to: its choices as they stand, the traces that it has in force, the cookies that are
  // ticked to be kept. A wash then does what it would do there.
  void takeOver(Program& other);
  // Runs one wash of the program as its options stand, to its end or until `stopped` answers true in a turn of the event
  // loop, of which each task ends with one; false where it was stopped.
  bool wash(const std::function<bool()>& stopped = {});

  // What would go.
  struct Sums {
    std::int64_t files = 0;
    std::int64_t folders = 0;
    std::int64_t bytes = 0;
    std::int64_t keys = 0;
    std::int64_t values = 0;
    std::vector<std::string> foundNothing;  // the tasks and plugins that have nothing to remove
  };
  Sums sums();

  // One thing that would go. A path is full; a key begins with its hive, and holds the value of that name where it is told.
  enum class Kind : std::uint8_t { File, Folder, Key, Value };
  void each(
      const std::function<void(Kind kind, const std::string& path, const std::string& valueName)>& tell);

 private:
  // The turns of the program, which a stop ends.
  class Turns : public EventLoop {
   public:
    explicit Turns(EventLoop& events) : events_(events) {}
    void DoEvents() override;
    std::function<bool()> stopped;

   private:
    EventLoop& events_;
  };
  void watchTasks();
  void watched(const std::string& name, const std::function<void()>& work);

  PretendPc pc_;
  Turns turns_;
  std::vector<std::string> foundNothing_;

 public:
  Program program;
};

}  // namespace zub
