// The preview that the main window asks for, beside the program that it is part of.
#pragma once

namespace zub {

class Program;

// Looks, with turns of the event loop, at what a wash of the program would do now, and shows the report. The program and
// the PC stay as they are. Ends without a report where it is stopped.
void runPreview(Program& program);

}  // namespace zub
