#include "ui/frmAbout.h"

#include <array>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Platform.h"

namespace zub {
namespace {

constexpr const char* Title = "Zubrane";
constexpr const char* NoTool = "System Information Is Unavailable At This Time";
constexpr std::size_t LongestValue = 1024;
constexpr int OkOnly = 0;

// From the last byte to the first.
std::string hexText(std::string_view bytes) {
  constexpr const char* digits = "0123456789ABCDEF";
  std::string text = "&h";
  for (std::size_t at = bytes.size(); at-- > 0;) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (byte >= 16) text += digits[byte / 16];
    text += digits[byte % 16];
  }
  return text;
}

}  // namespace

void frmAbout::Form_Load() {
  lblVersion.Caption = "Version " ZUB_VERSION;
  lblTitle.Caption = Title;
}

void frmAbout::StartSysInfo() {
  const std::string tool = informationTool();
  if (!tool.empty()) {
    try {
      pc_.shell->start(tool);
      return;
    } catch (const RuntimeError&) {
      // A stored path is used untested; one that leads nowhere is as good as none.
    }
  }
  pc_.messages->show(NoTool, OkOnly, Title);
}

std::string frmAbout::informationTool() {
  const RegistryKey machine = pc_.registry->hive(Hive::LocalMachine);
  std::string path;
  if (GetKeyValue(machine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path) && !path.empty())
    return path;
  if (!GetKeyValue(machine, "SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO", path)) return {};
  path += "\\MSINFO32.EXE";
  return pc_.files->fileExists(path) ? path : std::string();
}

bool frmAbout::GetKeyValue(RegistryKey KeyRoot, std::string_view KeyName, std::string_view SubKeyRef,
                           std::string& KeyVal) {
  KeyVal.clear();
  Registry& registry = *pc_.registry;
  RegistryKey key = 0;
  if (registry.open(KeyRoot, KeyName, access::Read, key) != status::Success) return false;
  std::array<std::uint8_t, LongestValue> data{};
  std::uint32_t type = 0;
  std::uint32_t length = LongestValue;
  const bool read = registry.query(key, SubKeyRef, type, data.data(), length) == status::Success;
  registry.close(key);
  if (!read) return false;
  const std::string_view bytes(reinterpret_cast<const char*>(data.data()), length);
  KeyVal = type == static_cast<std::uint32_t>(ValueType::Number) ? hexText(bytes)
                                                                 : std::string(StripAtNull(bytes));
  return true;
}

}  // namespace zub
