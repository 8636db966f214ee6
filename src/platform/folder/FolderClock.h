// The clock of the machine that holds the PC, in its local zone.
#pragma once

#include "platform/Services.h"
#include "platform/folder/DateText.h"

namespace zub {

class FolderClock : public Clock {
 public:
  SystemTime local() override;
  std::string dateText(const SystemTime& time) override { return shortDate(time); }
  std::string timeText(const SystemTime& time) override { return shortTime(time); }
  SystemTime parse(std::string_view text) override { return parseDateTime(text, local()); }
  std::uint64_t ticks() override;
};

}  // namespace zub
