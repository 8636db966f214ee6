#include "platform/win32/Win32FileSearch.h"

#include "base/Text.h"
#include "platform/win32/FolderLink.h"
#include "platform/win32/Text.h"
#include "platform/win32/Win32CodePage.h"
#include "platform/win32/Win32Error.h"

namespace zub {
namespace {

// The 9x family has upper case for ANSI text only, and all its names are that.
std::u16string upper(std::wstring text) {
  if (isNtFamily())
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
  else
    text = wideFromAnsi(Win32CodePage().upper(ansiFromWide(text)));
  return {text.begin(), text.end()};
}

bool isDots(std::wstring_view name) {
  return name == L"." || name == L"..";
}

std::string_view withoutEnd(std::string_view pattern) {
  return pattern.substr(0, pattern.find_last_not_of(". ") + 1);
}

}  // namespace

// A name without wildcards is looked up by the system itself, which knows its 8.3 form too.
Win32FileSearch::Win32FileSearch(std::string_view folder, std::string_view pattern)
    : pattern_(upper(untoldWide(pattern))) {
  const std::string_view name = withoutEnd(pattern);
  const bool isName = !name.empty() && name.find_first_of("*?") == std::string_view::npos;
  if (isName) {
    search_.handle = SystemPath(joined({folder, name})).findItself(entry_);
    pattern_ = Wildcard(u"*");
  } else {
    search_.handle = SystemPath(folder.empty() ? "." : folder).findInside(entry_);
  }
  if (search_.handle != INVALID_HANDLE_VALUE)
    waiting_ = matches() || advance();
  else if (!nothingThere(errorNumberOf(GetLastError())))
    throwLastError();
}

bool Win32FileSearch::matches() const {
  const std::wstring_view name = entry_.cFileName;
  if (isDots(name)) return false;
  return pattern_.matchesEverything() || pattern_.matches(upper(std::wstring(name)));
}

bool Win32FileSearch::advance() {
  while (findNext(search_.handle, entry_)) {
    if (matches()) return true;
  }
  if (GetLastError() != ERROR_NO_MORE_FILES) throwLastError();
  return false;
}

bool Win32FileSearch::next(FoundFile& found) {
  if (search_.handle == INVALID_HANDLE_VALUE || (!waiting_ && !advance())) return false;
  waiting_ = false;
  const bool link = isLink(entry_.dwFileAttributes, entry_.dwReserved0);
  found.name = toldName(entry_.cFileName);
  found.attributes = toldAttributes(entry_.dwFileAttributes, link);
  found.nFileSizeHigh = link ? 0 : entry_.nFileSizeHigh;
  found.nFileSizeLow = link ? 0 : entry_.nFileSizeLow;
  return true;
}

}  // namespace zub
