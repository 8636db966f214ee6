// Any bytes are refused or read; what is read can be written, and reads back to the same text.
#include "fuzz/Fuzz.h"
#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"

void zub::fuzz(std::string_view bytes) {
  RegistryTree tree;
  try {
    tree = readRegistryText(bytes, "fuzz");
  } catch (const PcError&) {
    return;
  }
  const std::string text = writeRegistryText(tree);
  RegistryTree again = readRegistryText(text, "fuzz");
  require(writeRegistryText(again) == text);
}
