// Between UTF-8, which names and texts of the host are in, and the UTF-16 of the system's calls.
#pragma once

#include <string>
#include <string_view>

namespace zub {

std::wstring wideFromUtf8(std::string_view text);
std::string utf8FromWide(std::wstring_view text);
// The same into a text that keeps its capacity.
void setUtf8(std::string& text, std::wstring_view wide);

}  // namespace zub
