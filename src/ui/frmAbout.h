// The about box: what the program is, its version, and a start of the system's information tool.
#pragma once

#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "state/Controls.h"

namespace zub {

struct Platform;

class frmAbout {
 public:
  Form form;
  Label lblTitle;
  Label lblVersion;

  explicit frmAbout(const Platform& pc) : pc_(pc) {}

  void Form_Load();
  void cmdOK_Click() { Unload(); }
  void cmdSysInfo_Click() { StartSysInfo(); }
  void Unload() { form.Hide(); }

  void StartSysInfo();
  // Reads a value as text: a number becomes "&h" and the hexadecimal digits of its bytes, unpadded. False,
  // with KeyVal empty, where the value cannot be read or has more than 1024 bytes.
  bool GetKeyValue(RegistryKey KeyRoot, std::string_view KeyName, std::string_view SubKeyRef,
                   std::string& KeyVal);

 private:
  std::string informationTool();  // empty where none is found

  const Platform& pc_;
};

}  // namespace zub
