#include "engine/Trace.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace zub {
namespace {

std::optional<Hive> hiveOf(std::string_view text) {
  const auto* row = std::ranges::find(HiveNames, upperAscii(trim(text)), &HiveName::inTraces);
  return row == HiveNames.end() ? std::nullopt : std::optional(row->hive);
}

// What stands before the sign; `missing` where the sign does not stand there.
std::string_view before(std::string_view text, char sign, bool& missing) {
  const auto place = text.find(sign);
  missing = place == std::string_view::npos;
  return text.substr(0, place);
}

void failWhere(bool broken) {
  if (broken) throw RuntimeError(ErrorNumber::InvalidCall);
}

}  // namespace

Trace::Trace(std::string_view line) : text(line) {
  hive = hiveOf(before(line, '\\', noBackslash));
  if (noBackslash) return;
  const std::string_view rest = line.substr(line.find('\\') + 1);
  keyForm = trim(rest).ends_with("Key*");
  if (keyForm) path = trim(before(rest, '-', noHyphen));
  valueForm = contains(rest, "Value`");
  if (valueForm) {
    valueName = trim(rest.substr(rest.rfind('=') + 1));
    path = before(rest, '+', noPlus);
  }
}

void TraceState::takeToRemove(const Trace& trace) {
  failWhere(trace.noBackslash);
  KeyMode |= trace.keyForm;
  failWhere(trace.noHyphen);
  takeToRead(trace);
}

void TraceState::takeToRead(const Trace& trace) {
  failWhere(trace.noBackslash);
  ValueMode |= trace.valueForm;
  failWhere(trace.noPlus);
  if (trace.hive) hive = *trace.hive;
}

}  // namespace zub
