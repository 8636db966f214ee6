// Stands between the window system and the program's handlers: nothing may be thrown across a window
// procedure. The end of the process is remembered there and goes on in the event loop; a failure that nobody
// absorbed is told and forgotten.
#pragma once

#include "base/RuntimeError.h"

namespace zub {

class Guard {
 public:
  template <class Work>
  void run(Work work) {
    if (ended_) return;
    try {
      work();
    } catch (const EndOfProcess&) {
      end();
    } catch (...) {
      tell(textOfFailure());
    }
  }

  bool ended() const { return ended_; }
  // To be called behind each dispatch of a message.
  void throwIfEnded() const {
    if (ended_) throw EndOfProcess{};
  }

 private:
  void end();
  static void tell(const char* failure);

  bool ended_ = false;
};

}  // namespace zub
