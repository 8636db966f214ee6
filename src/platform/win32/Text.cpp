#include "platform/win32/Text.h"

namespace zub {

std::wstring wide(std::string_view text) {
  std::wstring result(text.size(), L'\0');  // no text grows: at most one unit for each byte
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), result.data(),
                                         static_cast<int>(result.size()));
  result.resize(static_cast<std::size_t>(length));
  return result;
}

std::string narrow(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), length, nullptr, nullptr);
  return result;
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
