// What one line of a custom plugin's files does in a run, told to a user.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/CodePage.h"
#include "plugins/TraceProbe.h"

namespace zub {

struct EntryMeaning {
  enum class Then : std::uint8_t {
    GoesOn,
    EndsList,     // the rest of this file is not read
    StopsPlugin,  // neither is the next file, and the plugin is not counted as done
  };

  std::string text;
  bool works = true;  // false where the line never does what it seems to say
  Then then = Then::GoesOn;
};

EntryMeaning meaningOfFileEntry(const CodePage& codePage, std::string_view line);
// `keyBefore`: a key entry came before in this run. From then on a value takes its whole key along. Set by a
// key entry.
EntryMeaning meaningOfRegistryEntry(TraceProbe& probe, const CodePage& codePage, std::string_view line,
                                    bool& keyBefore);

}  // namespace zub
