#include "ui/controls/Art.h"

#include <iterator>

namespace zub::controls {

Art::Art(std::span<const EmbeddedFile> files) {
  for (const EmbeddedFile& file : files)
    pictures_.emplace(file.name.substr(0, file.name.rfind('.')), Bitmap({file.bytes, file.size}));
}

const Bitmap& Art::operator[](std::string_view name) const {
  const auto found = pictures_.find(name);
  return found == pictures_.end() ? none_ : found->second;
}

std::string_view artOf(Picture picture) {
  constexpr std::string_view Names[] = {"",
                                        "mark-open",
                                        "mark-done",
                                        "animation-0",
                                        "animation-1",
                                        "animation-2",
                                        "animation-3",
                                        "animation-4",
                                        "animation-5",
                                        "kind-registry",
                                        "kind-folder",
                                        "kind-files"};
  static_assert(std::size(Names) == static_cast<std::size_t>(Picture::KindFiles) + 1);
  return Names[static_cast<std::size_t>(picture)];
}

}  // namespace zub::controls
