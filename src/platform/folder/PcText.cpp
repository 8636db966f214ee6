#include "platform/folder/PcText.h"

#include "base/Text.h"
#include "platform/folder/PcError.h"

namespace zub {

void eachPcLine(std::string_view text, const std::string& file,
                const std::function<void(const PcLine&)>& take) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (text.starts_with(mark)) text.remove_prefix(mark.size());
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = takeLine(text);
    const std::string_view content = trim(line, PcBlanks);
    if (content.empty() || content.starts_with('#')) continue;
    const auto sign = line.find('=');
    if (sign == std::string_view::npos) throw PcError(file, number, "is no \"name = value\"");
    std::string_view value = line.substr(sign + 1);
    if (value.starts_with(' ')) value.remove_prefix(1);
    try {
      take({trim(line.substr(0, sign), PcBlanks), value, number});
    } catch (const Refused& refused) {
      throw PcError(file, number, refused.reason);
    }
  }
}

}  // namespace zub
