#include "app/Program.h"

#include "app/PreviewRun.h"
#include "cleaners/HistoryCleaners.h"
#include "plugins/CustomPluginRun.h"
#include "plugins/StandardPluginRun.h"

namespace zub {

Program::Program(const Platform& pc)
    : engine(pc, options),
      catalogue(builtInCatalogue()),
      recycle([this] { return std::make_unique<Recycle>(engine); }),
      scanDisk([this] { return std::make_unique<ScanDisk>(engine); }),
      plugins([this] { return std::make_unique<Plugins>(engine); }),
      ieCookies([this] { return std::make_unique<frmIECookieKeep>(engine); }),
      nsCookies([this] { return std::make_unique<frmNSCookieKeep>(engine); }),
      editor([this] {
        auto form = std::make_unique<frmPluginEditor>(engine, plugins);
        form->RefreshPlugins = [this] { main.RefreshPlugins(); };
        return form;
      }),
      main({engine, plugins, catalogue, editor, ieCookies, nsCookies, icon}) {
  bindCleaners();
  main.runPreview = [this] { runPreview(*this); };
}

void Program::bindCleaners() {
  frmClean::Cleaners& cleaners = engine.clean.cleaners;
  const auto bind = [&cleaners](Task task, Handler clean) {
    cleaners.builtIn[static_cast<std::size_t>(task)] = std::move(clean);
  };
  bind(Task::DocumentHistory, [this] { CleanDocumentHistory(engine); });
  bind(Task::FindHistory, [this] { CleanFindHistory(engine); });
  bind(Task::RunHistory, [this] { CleanRunHistory(engine); });
  bind(Task::TempFolder, [this] { CleanTempFolder(engine); });
  bind(Task::ScanDisk, [this] { CleanScanDisk(engine, *scanDisk); });
  bind(Task::RecycleBin, [this] { CleanRecycleBin(engine, *recycle); });
  bind(Task::Office, [this] { CleanOffice(engine); });
  bind(Task::MediaPlayer, [this] { CleanMediaPlayer(engine); });
  bind(Task::Netscape, [this] { CleanNetscape(engine, *nsCookies); });
  bind(Task::InternetExplorer, [this] { CleanIE(engine, *ieCookies); });
  cleaners.customPlugin = [this](const std::string& name) { RunCustomPlugin(engine, *plugins, name); };
  cleaners.standardPlugin = [this](const std::string& name) { RunStandardPlugin(engine, catalogue, name); };
}

}  // namespace zub
