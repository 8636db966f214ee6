// What the console program prints of a wash.
#pragma once

#include <string>
#include <string_view>

#include "app/Program.h"
#include "app/console/Commands.h"
#include "app/console/Json.h"

namespace zub {

// The loop serves the program for as long as this lives.
struct Attached {
  Attached(ConsoleLoop& served, Program& program) : loop(served) { loop.attach(program); }
  Attached(const Attached&) = delete;
  Attached& operator=(const Attached&) = delete;
  ~Attached() { loop.detach(); }
  ConsoleLoop& loop;
};

// The report and the closing figures, for the terminal; empty where there was no wash.
std::string reportText(const CommandContext& context, Program& program);
// The same as members of a document, with what stayed behind and what failed.
void addReport(Json& json, const CommandContext& context, const Program& program);
// Tells the folders that a wash takes for others than the registry means.
void tellOddFolders(const CommandContext& context);
// Tells what, how much was tried and `happened`, such as "could not be removed"; the exit status of that.
int tellLeftBehind(const CommandContext& context, const Program& program, std::string_view happened);

}  // namespace zub
