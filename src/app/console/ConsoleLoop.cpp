#include "app/console/ConsoleLoop.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "app/Program.h"
#include "app/Timers.h"
#include "app/console/Interrupt.h"
#include "app/console/Terminal.h"
#include "base/RuntimeError.h"

namespace zub {
namespace {

constexpr std::uint64_t TurnLength = 16;  // milliseconds: about 60 turns a second

}  // namespace

ConsoleLoop::ConsoleLoop(std::string programName, std::function<std::string(std::string_view)> toTerminal)
    : programName_(std::move(programName)),
      toTerminal_(std::move(toTerminal)),
      terminal_(terminal::isTerminal(terminal::Stream::Errors)) {}

void ConsoleLoop::attach(Program& program) {
  program_ = &program;
  serveTimers_ = [timers = std::make_shared<Timers>(program), &clock = *program.engine.pc.clock] {
    timers->serve(clock.ticks());
  };
  frmClean::Cleaners& cleaners = program.engine.clean.cleaners;
  for (std::size_t task = 0; task < BuiltInTasks; ++task) {
    cleaners.builtIn[task] = [this, task, clean = std::move(cleaners.builtIn[task])] {
      endWhereInterrupted();
      tellTask(taskTable()[task].status);
      raise(clean);
    };
  }
  for (auto* run : {&cleaners.customPlugin, &cleaners.standardPlugin}) {
    *run = [this, plugin = std::move(*run)](const std::string& name) {
      endWhereInterrupted();
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

void ConsoleLoop::endWhereInterrupted() {
  if (interrupt::signal() == 0) return;
  interrupted_ = true;
  throw EndOfProcess{};
}

void ConsoleLoop::DoEvents() {
  if (program_ == nullptr) return;
  if (!program_->engine.deleter->insideFile()) endWhereInterrupted();
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
  if (terminal_) draw("");
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
  const std::size_t width = terminal::width(terminal::Stream::Errors);
  line.resize(std::min(line.size(), width - 1));  // in the last column a terminal begins the next line
  const std::size_t length = line.size();
  if (length < drawn_) line.append(drawn_ - length, ' ');
  drawn_ = length;
  terminal::write(terminal::Stream::Errors, "\r" + toTerminal_(line));
  terminal::flush(terminal::Stream::Errors);
}

void ConsoleLoop::clearLine() {
  if (drawn_ == 0) return;
  terminal::write(terminal::Stream::Errors, "\r" + std::string(drawn_, ' ') + "\r");
  drawn_ = 0;
}

void ConsoleLoop::show(std::string_view prompt, int, std::string_view title) {
  std::string line = std::string(title) + ": " + std::string(prompt);
  for (auto end = line.find("\r\n"); end != std::string::npos; end = line.find("\r\n")) {
    line.replace(end, 2, " ");
  }
  printLine(toTerminal_(line));
}

void ConsoleLoop::tell(const std::string& text) {
  printLine(programName_ + ": " + text);
}

void ConsoleLoop::printLine(const std::string& text) {
  clearLine();
  terminal::write(terminal::Stream::Errors, text + "\n");
}

}  // namespace zub
