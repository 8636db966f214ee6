#include "platform/win32/Text.h"

#include <algorithm>

#include "platform/ToldName.h"

namespace zub {
namespace {

// Exactly: the code page's look-alikes do not count.
std::string ansiOfUnit(char16_t unit) {
  const std::wstring text(1, static_cast<wchar_t>(unit));
  const std::string ansi = ansiFromWide(text);
  return wideFromAnsi(ansi) == text ? ansi : std::string();
}

std::u16string unitsOf(std::wstring_view text) {
  return {text.begin(), text.end()};
}

}  // namespace

std::wstring wideFromAnsi(std::string_view text) {
  std::wstring result(text.size(), L'\0');  // no text grows: at most one unit for each byte
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), result.data(),
                                         static_cast<int>(result.size()));
  result.resize(static_cast<std::size_t>(length));
  return result;
}

std::string ansiFromWide(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), length, nullptr, nullptr);
  return result;
}

bool isNtFamily() {
  static const bool nt = (GetVersion() & 0x80000000) == 0;
  return nt;
}

std::string told(std::wstring_view text) {
  return toldText(unitsOf(text), ansiOfUnit);
}

std::string toldName(std::wstring_view name) {
  return toldFileName(unitsOf(name), ansiOfUnit);
}

std::string toldPath(std::wstring_view path) {
  const bool hasDrive = path.size() > 1 && path[1] == L':';
  std::string result = hasDrive ? ansiFromWide(path.substr(0, 2)) : std::string();
  if (hasDrive) path.remove_prefix(2);
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(L'\\'), path.size());
    result += toldName(path.substr(0, end));
    if (end < path.size()) result += '\\';
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return result;
}

std::wstring resolved(std::wstring_view text, const std::function<void(char16_t)>& see) {
  const std::u16string units = untold(unitsOf(text), see);
  return {units.begin(), units.end()};
}

std::wstring untoldWide(std::string_view text) {
  return resolved(wideFromAnsi(text));
}

SYSTEMTIME recordOf(const SystemTime& time) {
  return {time.wYear, time.wMonth,  time.wDayOfWeek, time.wDay,
          time.wHour, time.wMinute, time.wSecond,    time.wMilliseconds};
}

SystemTime timeOf(const SYSTEMTIME& record) {
  return {record.wYear, record.wMonth,  record.wDayOfWeek, record.wDay,
          record.wHour, record.wMinute, record.wSecond,    record.wMilliseconds};
}

std::string localeDate(const SystemTime& time) {
  char text[128] = "";
  const SYSTEMTIME record = recordOf(time);
  GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &record, nullptr, text, sizeof text);
  return text;
}

std::string localeTime(const SystemTime& time, DWORD flags) {
  char text[128] = "";
  const SYSTEMTIME record = recordOf(time);
  GetTimeFormatA(LOCALE_USER_DEFAULT, flags, &record, nullptr, text, sizeof text);
  return text;
}

}  // namespace zub
