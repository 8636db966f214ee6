#include "app/console/ConsoleLoop.h"

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <utility>

#include "app/Program.h"
#include "app/Timers.h"

namespace zub {
namespace {

constexpr std::uint64_t TurnLength = 16;  // milliseconds: about 60 turns a second
constexpr std::size_t LineWidth = 78;

}  // namespace

ConsoleLoop::ConsoleLoop(std::function<std::string(std::string_view)> toTerminal)
    : toTerminal_(std::move(toTerminal)), terminal_(isatty(fileno(stderr)) != 0) {}

void ConsoleLoop::attach(Program& program) {
  program_ = &program;
  serveTimers_ = [timers = std::make_shared<Timers>(program), &clock = *program.engine.pc.clock] {
    timers->serve(clock.ticks());
  };
  frmClean::Cleaners& cleaners = program.engine.clean.cleaners;
  for (std::size_t task = 0; task < BuiltInTasks; ++task) {
    cleaners.builtIn[task] = [this, task, clean = std::move(cleaners.builtIn[task])] {
      tellTask(taskTable()[task].status);
      raise(clean);
    };
  }
  for (auto* run : {&cleaners.customPlugin, &cleaners.standardPlugin}) {
    *run = [this, plugin = std::move(*run)](const std::string& name) {
      tellTask(name);
      plugin(name);
    };
  }
}

void ConsoleLoop::detach() {
  clearLine();
  program_ = nullptr;
  task_ = tasks_ = 0;
}

void ConsoleLoop::DoEvents() {
  if (program_ == nullptr) return;
  const std::uint64_t now = program_->engine.pc.clock->ticks();
  if (now < nextTurn_) return;
  nextTurn_ = now + TurnLength;
  serveTimers_();
  const AutoLoad<frmAnimated>& animated = program_->engine.animated;
  if (terminal_ && animated.loaded() && task_ > 0) draw(animated.peek().state.lblCurrent.Caption);
}

void ConsoleLoop::tellTask(std::string_view name) {
  if (task_ == tasks_) beginWash();
  ++task_;
  taskName_ = name;
  if (terminal_) {
    draw("");
  } else {
    std::fprintf(stderr, "%s\n", toTerminal_(name).c_str());
  }
}

// The wash's own count leaves the standard plugins out.
void ConsoleLoop::beginWash() {
  const Options& options = program_->options;
  task_ = 0;
  tasks_ = program_->engine.clean.CalculateItems();
  if (options.chkSkipPlugins.Value() == 0) tasks_ += options.standardlist.SelCount();
}

void ConsoleLoop::draw(const std::string& item) {
  std::string line = std::to_string(task_) + " of " + std::to_string(tasks_) + ": " + taskName_;
  if (!item.empty()) line += " - " + item;
  line.resize(std::min(line.size(), LineWidth));
  const std::size_t length = line.size();
  if (length < drawn_) line.append(drawn_ - length, ' ');
  drawn_ = length;
  std::fprintf(stderr, "\r%s", toTerminal_(line).c_str());
  std::fflush(stderr);
}

void ConsoleLoop::clearLine() {
  if (drawn_ == 0) return;
  std::fprintf(stderr, "\r%s\r", std::string(drawn_, ' ').c_str());
  drawn_ = 0;
}

void ConsoleLoop::show(std::string_view prompt, int, std::string_view title) {
  clearLine();
  std::string line = std::string(title) + ": " + std::string(prompt);
  for (auto end = line.find("\r\n"); end != std::string::npos; end = line.find("\r\n")) {
    line.replace(end, 2, " ");
  }
  std::fprintf(stderr, "%s\n", toTerminal_(line).c_str());
}

}  // namespace zub
