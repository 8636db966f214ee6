#include "platform/StoredData.h"

#include <algorithm>

#include "base/Text.h"

namespace zub {

std::string storedData(std::string data, ValueType type, bool cutsTexts) {
  if (!cutsTexts) {
    if (isText(type) && !data.empty() && data.back() != '\0') data += '\0';
  } else if (type == ValueType::Text) {
    data = StripAtNull(data);
    data += '\0';
  }
  return data;
}

RegistryStatus handName(std::string_view text, char* name, std::uint32_t& length) {
  if (text.size() + 1 > length) return status::MoreData;
  name[text.copy(name, text.size())] = '\0';
  length = static_cast<std::uint32_t>(text.size());
  return status::Success;
}

RegistryStatus handData(std::string_view bytes, std::uint8_t* data, std::uint32_t& length) {
  const std::uint32_t room = length;
  length = static_cast<std::uint32_t>(bytes.size());
  if (data != nullptr && bytes.size() > room) return status::MoreData;
  if (data != nullptr) std::ranges::copy(bytes, data);
  return status::Success;
}

}  // namespace zub
