#include "platform/win32/Win32Clock.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "platform/win32/Text.h"

namespace zub {

SystemTime Win32Clock::local() {
  SYSTEMTIME record;
  GetLocalTime(&record);
  return timeOf(record);
}

std::string Win32Clock::dateText(const SystemTime& time) {
  return localeDate(time);
}

std::string Win32Clock::timeText(const SystemTime& time) {
  return localeTime(time, 0);
}

SystemTime Win32Clock::parse(std::string_view text) {
  std::wstring wideText = wideFromAnsi(text);
  DATE date = 0;
  SYSTEMTIME record;
  if (FAILED(VarDateFromStr(wideText.data(), LOCALE_USER_DEFAULT, 0, &date)) ||
      VariantTimeToSystemTime(date, &record) == 0)
    throw RuntimeError(ErrorNumber::TypeMismatch);
  return timeOf(record);
}

std::uint64_t Win32Clock::ticks() {
  LARGE_INTEGER frequency{};
  LARGE_INTEGER count{};
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&count);
  const auto perSecond =
      static_cast<std::uint64_t>(std::max<LONGLONG>(1, frequency.QuadPart));  // 0: no counter
  const auto counted = static_cast<std::uint64_t>(count.QuadPart);
  return counted / perSecond * 1000 + counted % perSecond * 1000 / perSecond;
}

}  // namespace zub
