#include "platform/StoredData.h"

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

}  // namespace zub
