#include "app/console/OptionText.h"

#include <algorithm>
#include <iterator>

namespace zub {
namespace {

struct Text {
  std::string_view name;
  std::string_view text;
};
constexpr Text texts[] = {
    {"chkIE", "task: Internet Explorer, as the five chkIE... below say"},
    {"chkWMP", "task: the lists of the media player"},
    {"chkOfficeMRU", "task: the lists of recent Office documents"},
    {"chkRecycleBin", "task: the recycle bins of all drives"},
    {"chkScanDisk", "task: the files of the disk checker"},
    {"chkNetscape", "task: Netscape, as the four chkNS... below say"},
    {"chkRunHistory", "task: the list of the Run command"},
    {"chkDocHistory", "task: the list of recent documents"},
    {"chkTempFolder", "task: the temporary folder"},
    {"chkFindHistory", "task: the lists of the search"},
    {"chkIECache", "Internet Explorer: the cache"},
    {"chkIECookies", "Internet Explorer: the cookies that are not kept"},
    {"chkIEPrograms", "Internet Explorer: downloaded programs"},
    {"chkIEIndex", "Internet Explorer: history and typed addresses"},
    {"chkIEAutocomplete", "Internet Explorer: what was typed into forms"},
    {"chkNSCache", "Netscape: the cache"},
    {"chkNSCookie", "Netscape: the cookies that are not kept"},
    {"chkNSMail", "Netscape: the trash of the mail"},
    {"chkNSHistory", "Netscape: the history"},
    {"chkLoadStartup", "start in the tray with Windows"},
    {"chkCloseAfterWash", "end the program after a wash"},
    {"chkBleach", "overwrite files before they are removed"},
    {"chkSkipPlugins", "leave all plugins out"},
    {"chkSkipMessages", "show a message for each error"},
    {"chkRunStarted", "wash when the program starts with Windows; sets chkLoadStartup, too"},
    {"chkRunShutDown", "wash at the end of the session"},
    {"chkRunAuto", "wash at the interval, while the program runs"},
    {"cmbShredder", "how often files are overwritten, as it is stored: one less than passes"},
    {"passes", "how often files are overwritten"},
    {"ComboInterval", "the interval: 0 an hour, 1 half an hour, 2 a quarter"},
};

}  // namespace

std::string_view optionText(std::string_view name) {
  const auto text = std::ranges::find(texts, name, &Text::name);
  return text == std::end(texts) ? std::string_view() : text->text;
}

}  // namespace zub
