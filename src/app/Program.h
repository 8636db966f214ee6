// The composition: one object owns all that lives as long as the process. A fresh one is a fresh process.
#pragma once

#include "base/Holders.h"
#include "cleaners/CleanIE.h"
#include "cleaners/CleanNetscape.h"
#include "cleaners/DiskCleaners.h"
#include "engine/Engine.h"
#include "plugins/Catalogue.h"
#include "plugins/Plugins.h"
#include "plugins/frmPluginEditor.h"
#include "scheduler/frmIcon.h"
#include "ui/frmMain.h"

namespace zub {

class Program {
 public:
  explicit Program(const Platform& pc);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The program's start. Throws EndOfProcess where the process ends in it.
  void start() { main.Form_Load(); }

  Options options;
  Engine engine;
  Catalogue catalogue;
  FirstUse<Recycle> recycle;
  FirstUse<ScanDisk> scanDisk;
  FirstUse<Plugins> plugins;
  FirstUse<frmIECookieKeep> ieCookies;
  FirstUse<frmNSCookieKeep> nsCookies;
  FirstUse<frmPluginEditor> editor;
  frmIcon icon;
  frmMain main;

 private:
  void bindCleaners();
};

}  // namespace zub
