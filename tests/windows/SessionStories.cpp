// The Windows session ends while the program runs.
#include "windows/Story.h"

using namespace zub::drive;

TEST_CASE("at the end of the session the settings are saved, and a wash runs only where it is chosen") {
  for (const bool washes : {false, true}) {
    CAPTURE(washes);
    const Story story;
    pc::option("chkTempFolder");
    pc::option("chkRunShutDown", washes ? "1" : "0");
    const pc::fs::path trace = pc::temp() / "trace.tmp";
    pc::put(trace, "trace");
    const Zub zub;
    const Window main = zub.main();
    openTab(main, "Options");
    main.child("Do not use plugins").tick();
    CHECK(main.send(WM_QUERYENDSESSION) != 0);
    CHECK(pc::exists(trace) != washes);
    PostMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
    CHECK(zub.ends());
    CHECK(pc::storedOption("chkSkipPlugins") == "1");
    CHECK(pc::storedOption("lblLastRemoval").empty() != washes);
  }
}
