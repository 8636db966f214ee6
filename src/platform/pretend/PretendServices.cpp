#include "platform/pretend/PretendServices.h"

#include "platform/FolderContent.h"
#include "platform/ProfileText.h"

namespace zub {
namespace {

constexpr std::int32_t Failed = static_cast<std::int32_t>(0x80004005);

}  // namespace

void PretendRestart::writeProfile(std::string_view section, std::string_view key, std::string_view value,
                                  std::string_view file) {
  writeProfileKey(files_, codePage_, folders_.windows(), file, {section, key, value});
}

std::int32_t PretendShell::emptyRecycleBin(std::uint32_t) {
  return emptyFolders(files_, beneath_.recycleBins()) ? 0 : Failed;
}

void PretendProcess::end() {
  throw EndOfPretence{};
}

}  // namespace zub
