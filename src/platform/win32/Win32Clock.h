// The system's clock and its texts, in the user's locale.
#pragma once

#include "platform/Services.h"

namespace zub {

class Win32Clock : public Clock {
 public:
  SystemTime local() override;
  std::string dateText(const SystemTime& time) override;
  std::string timeText(const SystemTime& time) override;
  SystemTime parse(std::string_view text) override;
  std::uint64_t ticks() override;
};

}  // namespace zub
