#include "plugins/Plugins.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "engine/Engine.h"
#include "plugins/PluginFormat.h"

namespace zub {
namespace {

// A row's text is the file's name less this many characters, whatever they are.
constexpr std::size_t ExtensionLength = 4;

}  // namespace

Plugins::Plugins(Engine& engine)
    : zb1(engine.pc, "*.zb1", FileLister::Hidden::Skip),
      zb2(engine.pc, "*.zb2", FileLister::Hidden::Skip),
      engine_(engine) {
  CurPath(JoinPath(engine.pc.folders->programFolder(), "Plugins"));
}

void Plugins::CurPath(std::string_view folder) {
  path_ = folder;
  read(zb1);
  read(zb2);
}

std::string Plugins::baseOf(std::string_view name) const {
  std::string base = withBackslash(path_);
  base += name;
  return base;
}

void Plugins::MakeFolder() {
  engine_.deleter->MakeDir(path_);
}

void Plugins::RefreshPluginList() {
  ListRows& rows = engine_.options.lstFiles;
  rows.Clear();
  read(zb1);
  for (const std::string_view name : zb1.names()) {
    if (name.size() >= ExtensionLength) rows.AddItem(name.substr(0, name.size() - ExtensionLength));
  }
}

void Plugins::RemovePlugin() {
  const std::string base = baseOf(engine_.options.lstFiles.Text());
  for (const std::string_view extension : pluginExtensions) {
    engine_.deleter->DeleteFile(base + std::string(extension), 0);
  }
  RefreshPluginList();
}

void Plugins::read(FileLister& lister) {
  try {
    lister.path(path_);
  } catch (const RuntimeError&) {
    // The folder is not there, or no longer, or cannot be read: no names.
  }
}

}  // namespace zub
