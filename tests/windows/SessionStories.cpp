// The Windows session ends while the program runs.
#include <optional>

#include "windows/Story.h"

using namespace zub::drive;

namespace {

// Asks a window without waiting: its answer comes while this thread looks for its messages.
class Question {
 public:
  Question(const Window& window, UINT message, LPARAM lParam) {
    SendMessageCallbackA(window.handle(), message, 0, lParam, answered, reinterpret_cast<ULONG_PTR>(this));
  }
  Question(const Question&) = delete;
  Question& operator=(const Question&) = delete;

  LRESULT answer() {
    REQUIRE(soon([this] {
      MSG message;
      PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
      return answer_.has_value();
    }));
    return *answer_;
  }

 private:
  static void CALLBACK answered(HWND, UINT, ULONG_PTR self, LRESULT result) {
    reinterpret_cast<Question*>(self)->answer_ = result;
  }

  std::optional<LRESULT> answer_;
};

}  // namespace

TEST_CASE("at the end of the session the settings are saved, and a wash runs only where it is chosen") {
  struct {
    const char* chkRunShutDown;
    LPARAM how;
    bool washes;
  } const rows[] = {
      {"0", 0, false},
      {"1", 0, true},
      {"1", ENDSESSION_CLOSEAPP, false},  // an installer asks the program to close, no more
  };
  for (const auto& row : rows) {
    CAPTURE(row.chkRunShutDown);
    CAPTURE(row.how);
    const Story story;
    const Trace trace;
    pc::option("chkRunShutDown", row.chkRunShutDown);
    const Zub zub;
    const Window main = zub.main();
    openTab(main, "Options");
    main.child("Do not use plugins").tick();
    CHECK(main.send(WM_QUERYENDSESSION, 0, row.how) != 0);
    CHECK(trace.isThere() != row.washes);
    PostMessageA(main.handle(), WM_ENDSESSION, TRUE, row.how);
    CHECK(zub.ends());
    CHECK(pc::storedOption("chkSkipPlugins") == "1");
    CHECK(pc::storedOption("lblLastRemoval").empty() != row.washes);
  }
}

TEST_CASE("the session may end although its wash ended the program") {
  const Story story;
  pc::seedLongWork();
  pc::option("chkRunShutDown");
  pc::option("chkCloseAfterWash");
  const Zub zub;
  Question mayEnd(zub.main(), WM_QUERYENDSESSION, 0);
  zub.window(title::Progress).child("&Cancel").click();
  CHECK(mayEnd.answer() == TRUE);
  CHECK(zub.ends());
  CHECK(pc::filesIn(pc::temp()) > 0);
}
