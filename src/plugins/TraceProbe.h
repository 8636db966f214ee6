// What the registry removal makes of a trace, found out by letting it work on a registry that
// is not there.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Platform.h"

namespace zub {

struct TraceTarget {
  Hive hive = Hive::None;  // None where the text matches no hive
  std::string path;        // the key that is opened
  bool keyForm = false;
  bool valueForm = false;
  std::string valueName;  // of the value form
};

class TraceProbe {
 public:
  explicit TraceProbe(const Platform& pc);
  ~TraceProbe();

  // As the first trace of a process; none for one that the removal refuses with a failure.
  std::optional<TraceTarget> target(const std::string& trace);

 private:
  struct Laboratory;
  std::unique_ptr<Laboratory> laboratory_;
};

}  // namespace zub
