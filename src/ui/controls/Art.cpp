#include "ui/controls/Art.h"

namespace zub::controls {

Art::Art(std::span<const EmbeddedFile> files) {
  for (const EmbeddedFile& file : files)
    pictures_.emplace(file.name.substr(0, file.name.rfind('.')), Bitmap({file.bytes, file.size}));
}

const Bitmap& Art::operator[](std::string_view name) const {
  const auto found = pictures_.find(name);
  return found == pictures_.end() ? none_ : found->second;
}

}  // namespace zub::controls
