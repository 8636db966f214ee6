#include "plugins/Action.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "plugins/ActionRemarks.h"

namespace zub {
namespace {

using Kind = Action::Kind;
using Base = Action::Base;
using Verdict = Meaning::Verdict;

std::string baseOf(Engine& engine, const Action& action, const std::string& appData) {
  if (action.base == Base::AppData) return appData;
  if (action.base == Base::Windows) return std::string(StripAtNull(engine.pc.folders->windows()));
  return action.base == Base::Registry ? engine.registryHelper.TraceValue(action.trace) : std::string();
}

std::string pathOf(const Action& action, const std::string& base) {
  return action.base == Base::None ? action.path : JoinPath(base, action.path);
}

Meaning withRemark(std::string text, std::string_view remark) {
  if (remark.empty()) return {std::move(text)};
  return {joined({text, " (", remark, ")"}), Verdict::Odd};
}

Meaning describeFiles(const Action& action, const std::string& base) {
  const std::string path = pathOf(action, base);
  if (path.empty()) return {"Does nothing"};
  SearchEntry search;
  if (action.kind != Kind::File) {
    try {
      search = splitSearchEntry(path);
    } catch (const RuntimeError&) {
      return {"Stops the plugin: a pattern needs a folder and a backslash before it", Verdict::Never, true};
    }
  }
  if (const auto reason = whyNever(path, search); !reason.empty()) {
    return {joined({"Never works: ", reason}), Verdict::Never};
  }
  const bool everything = action.kind == Kind::FilesBelow && search.pattern == AllFiles;
  const std::string_view below = action.kind != Kind::FilesBelow ? ""
                                 : everything                    ? " and all folders below it"
                                                                 : " and of all folders below it";
  const std::string what = action.kind == Kind::File
                               ? "the file " + path
                               : joined({"the files ", trim(search.pattern), " of the folder ",
                                         withBackslash(search.folder), below});
  return withRemark("Removes " + what, action.base != Base::None && base.empty()
                                           ? "its folder cannot be read from the registry"
                                           : remarkOnPath(path));
}

Meaning describeTrace(const Trace& trace, TraceState& traces) {
  const bool wipesAlready = traces.KeyMode;
  try {
    traces.takeToRemove(trace);
  } catch (const RuntimeError&) {
    // An empty list as the editor writes it ends the plugin, too, but there is nothing that should work.
    const bool isEmptyList = upperAscii(trace.text) == NoEntriesUpper;
    return {joined({"Stops the plugin: ", whyRefused(trace)}), isEmptyList ? Verdict::Odd : Verdict::Never,
            true};
  }
  const std::string key = keyOf(trace, traces.hive);
  const std::string value = trace.valueName.empty() ? "the unnamed value" : "the value " + trace.valueName;
  std::string text = "Removes " + key + " with its values and subkeys";
  if (!trace.keyForm && wipesAlready) text += ": a key entry stands above";
  if (!trace.keyForm && !wipesAlready) {
    text = joined({"Removes ", value, " of ", key, "; once the wash has wiped any key, all of it"});
  }
  return withRemark(std::move(text), remarkOn(trace));
}

}  // namespace

bool carryOut(Engine& engine, const Action& action, const std::string& appData) {
  if (action.kind == Kind::Trace) {
    engine.registryHelper.DeleteTrace(action.trace);
    return false;
  }
  const std::string path = pathOf(action, baseOf(engine, action, appData));
  if (action.kind == Kind::File) return engine.deleter->DeleteFile(path, 0);
  // The pattern of an entry with subfolders keeps the blank that stands before its marker.
  if (action.kind == Kind::FilesBelow)
    engine.animated->state.lblCurrent.Caption = "Searching for files: " + path;
  const SearchEntry search = splitSearchEntry(path);
  if (action.kind == Kind::FilesBelow) {
    engine.deleter->DeleteFolder(search.folder, search.pattern);
  } else {
    engine.deleter->DeleteFilesInFolder(search.folder, search.pattern);
  }
  return false;
}

Meaning describe(Engine& engine, const Action& action, const std::string& appData, TraceState& traces) {
  if (action.kind == Kind::Trace) return describeTrace(action.trace, traces);
  if (action.base == Base::Registry) traces.takeToRead(action.trace);
  return describeFiles(action, baseOf(engine, action, appData));
}

}  // namespace zub
