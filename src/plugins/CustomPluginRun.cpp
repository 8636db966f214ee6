#include "plugins/CustomPluginRun.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "platform/FileReader.h"
#include "plugins/PluginFormat.h"
#include "plugins/Plugins.h"

namespace zub {
namespace {

// The pattern of an entry with subfolders keeps the blank that stands before its marker.
void searchFiles(Engine& engine, std::string_view entry) {
  if (cutSubfoldersMarker(entry)) {
    engine.animated->state.lblCurrent.Caption = "Searching for files: " + std::string(entry);
    const SearchEntry search = splitSearchEntry(entry);
    engine.deleter->DeleteFolder(search.folder, search.pattern);
  } else {
    const SearchEntry search = splitSearchEntry(entry);
    engine.deleter->DeleteFilesInFolder(search.folder, search.pattern);
  }
}

void runFiles(Engine& engine, const std::string& base, const std::string& name) {
  FileReader file(engine.pc.files, base + std::string(extensionOf(PluginFile::Files)));
  engine.animated->AppName(name);
  engine.clean.AddItem("\r\nZUB has cleaned " + name + " , with the following results:");
  std::string line;
  while (file.line(line)) {
    const std::string entry = engine.pc.codePage.toldPath(trim(engine.pc.codePage.upper(line)));
    if (entry == NoEntriesUpper) break;
    if (hasWildcard(entry)) {
      searchFiles(engine, entry);
    } else if (!engine.deleter->DeleteFile(entry, 0)) {
      engine.pc.events.DoEvents();
      engine.clean.AddItem("\tDeleting file " + std::string(lastPathPart(entry)));
    }
  }
}

void runRegistry(Engine& engine, const std::string& base, const std::string& name) {
  FileReader file(engine.pc.files, base + std::string(extensionOf(PluginFile::Registry)));
  engine.clean.AddItem("\tDeleting registry items for " + name);
  std::string line;
  while (file.line(line)) {
    const std::string entry(trim(line));
    if (entry == NoEntriesUpper) break;
    engine.registryHelper.DeleteTrace(entry);
  }
}

}  // namespace

void RunCustomPlugin(Engine& engine, const Plugins& plugins, const std::string& name) {
  const std::string base = plugins.baseOf(name);
  try {
    runFiles(engine, base, name);
    runRegistry(engine, base, name);
    countCompleted(engine);
  } catch (const RuntimeError&) {
    // Ends this plugin only; the next one runs as usual.
  }
}

}  // namespace zub
