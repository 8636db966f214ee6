// Text at the border: the logic speaks the ANSI code page, some calls only wide text.
#pragma once

#include <string>
#include <string_view>

#include "base/Time.h"
#include "platform/win32/WindowsHeader.h"

namespace zub {

std::wstring wide(std::string_view text);
std::string narrow(std::wstring_view text);

SYSTEMTIME recordOf(const SystemTime& time);
SystemTime timeOf(const SYSTEMTIME& record);

// In the user's short forms; empty for a time that the system does not know.
std::string localeDate(const SystemTime& time);
std::string localeTime(const SystemTime& time, DWORD flags);

}  // namespace zub
