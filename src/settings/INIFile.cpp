#include "settings/INIFile.h"

#include "base/Text.h"

namespace zub {
namespace {

constexpr std::size_t DigitSize = 2;
constexpr std::size_t TextSize = 256;

// The order in which the rows of the icon list are read; they are written in the order of the rows.
constexpr int iconReadOrder[] = {iconRow::DocumentHistory, iconRow::FindHistory, iconRow::RunHistory,
                                 iconRow::TempFolder,      iconRow::ScanDisk,    iconRow::RecycleBin,
                                 iconRow::Office,          iconRow::MediaPlayer, iconRow::Netscape,
                                 iconRow::InternetExplorer};

std::string named(std::string_view prefix, std::string_view row) {
  std::string name(prefix);
  name += row;
  return name;
}

}  // namespace

bool INIFile::openKey(OpenKey& key) {
  if (key.create(Hive::CurrentUser, storeKey, access::All) != status::Success) return false;
  key_ = key.get();
  return true;
}

int INIFile::PutInfo() {
  OpenKey key(*pc_.registry);
  if (!openKey(key)) return -1;
  PutText("ZUBPath", pc_.folders->programFolder());
  PutText("lblLastRemoval", options_.lblLastRemoval.Caption);
  for (int row = 0; row < IconChecks::Count; ++row) {
    PutBool(iconNames[static_cast<std::size_t>(row)].stored, options_.LstIcons.Check(row));
  }
  for (const FlagName& flag : flagNames) PutBool(flag.stored, (options_.*flag.option).Value());
  for (const DigitName& digit : digitNames) PutNumber(digit.stored, (options_.*digit.combo).ListIndex());
  putRows(options_.lstFiles, customPluginPrefix);
  putRows(options_.standardlist, standardPluginPrefix);
  return 0;
}

int INIFile::GetInfo() {
  OpenKey key(*pc_.registry);
  if (!openKey(key)) return -1;
  options_.lblLastRemoval.Caption = GetText("lblLastRemoval");
  for (const int row : iconReadOrder) {
    options_.LstIcons.Check(row, GetBool(iconNames[static_cast<std::size_t>(row)].stored));
  }
  for (const FlagName& flag : flagNames) (options_.*flag.option).Value(GetBool(flag.stored));
  for (const DigitName& digit : digitNames) {
    Combo& combo = options_.*digit.combo;
    const int index = GetNumber(digit.stored);
    if (index < combo.ListCount()) combo.ListIndex(index);  // a digit beyond the rows keeps the present one
  }
  getRows(options_.lstFiles, customPluginPrefix);
  return 0;
}

int INIFile::GetInfo2() {
  OpenKey key(*pc_.registry);
  if (!openKey(key)) return -1;
  getRows(options_.standardlist, standardPluginPrefix);
  return 0;
}

void INIFile::putRows(const ListRows& rows, std::string_view prefix) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (!trim(rows.List(row)).empty()) PutBool(named(prefix, rows.List(row)), rows.Selected(row) ? 1 : 0);
  }
}

void INIFile::getRows(ListRows& rows, std::string_view prefix) {
  for (int row = 0; row < rows.ListCount(); ++row) {
    if (!trim(rows.List(row)).empty()) rows.Selected(row, GetBool(named(prefix, rows.List(row))) != 0);
  }
}

// The first character of a stored flag or digit; stores "0" where it cannot be read. The buffer has room for
// one character and its terminator: longer data fails the query.
char INIFile::digitOf(std::string_view name) {
  std::array<std::uint8_t, DigitSize> buffer{};
  ValueType type{};
  std::uint32_t length = DigitSize;
  if (pc_.registry->query(key_, name, type, buffer.data(), length) != status::Success) {
    write(name, std::string_view("0\0", DigitSize));
    return '\0';
  }
  return static_cast<char>(buffer[0]);
}

int INIFile::GetBool(std::string_view name) {
  return digitOf(name) == '1' ? 1 : 0;
}

int INIFile::GetNumber(std::string_view name) {
  const char digit = digitOf(name);
  return digit >= '0' && digit <= '9' ? digit - '0' : 0;
}

int INIFile::PutNumber(std::string_view name, int number) {
  std::string text = std::to_string(number);
  text.resize(DigitSize, '\0');
  return write(name, text);
}

// The byte count is that of the text before trimming: what trimming took away is written as NULs.
int INIFile::PutText(std::string_view name, std::string_view text) {
  std::string bytes(trim(text));
  bytes.resize(text.size(), '\0');
  return write(name, bytes);
}

std::string INIFile::GetText(std::string_view name) {
  std::array<std::uint8_t, TextSize> buffer{};
  ValueType type{};
  std::uint32_t length = TextSize;
  if (pc_.registry->query(key_, name, type, buffer.data(), length) != status::Success) {
    write(name, std::string_view("\0\0", 2));
    return {};
  }
  return std::string(StripAtNull({reinterpret_cast<const char*>(buffer.data()), length}));
}

int INIFile::write(std::string_view name, std::string_view bytes) {
  const std::span data(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  const auto type = ValueType::Text;
  return pc_.registry->set(key_, name, type, data) == status::Success ? 0 : -1;
}

}  // namespace zub
