// Text at the border: the logic speaks the ANSI code page, some calls only wide text. What the code page does
// not hold exactly is told by stand-ins (platform/ToldName.h).
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/Time.h"
#include "platform/host/win32/WindowsHeader.h"

namespace zub {

std::wstring wideFromAnsi(std::string_view text);
std::string ansiFromWide(std::wstring_view text);

// The NT family, whose calls take wide text; the 9x family has the ANSI ones only.
bool isNtFamily();

// Wide text as the program is told it: a name in the registry, the name of a file, a path.
std::string told(std::wstring_view text);
std::string toldName(std::wstring_view name);
std::string toldPath(std::wstring_view path);
// What a told text stands for; `see` as for untold().
std::wstring resolved(std::wstring_view text, const std::function<void(char16_t)>& see = {});
std::wstring untoldWide(std::string_view text);

SYSTEMTIME recordOf(const SystemTime& time);
SystemTime timeOf(const SYSTEMTIME& record);

// In the user's short forms; empty for a time that the system does not know.
std::string localeDate(const SystemTime& time);
std::string localeTime(const SystemTime& time, DWORD flags);

}  // namespace zub
