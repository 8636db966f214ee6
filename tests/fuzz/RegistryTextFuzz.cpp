// Any bytes are refused or read; what is read can be written, and reads back to the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/folder/PcError.h"
#include "platform/folder/RegistryText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zub;
  RegistryTree tree;
  try {
    tree = readRegistryText({reinterpret_cast<const char*>(data), size}, "fuzz");
  } catch (const PcError&) {
    return 0;
  }
  const std::string text = writeRegistryText(tree);
  RegistryTree again = readRegistryText(text, "fuzz");
  if (writeRegistryText(again) != text) std::abort();
  return 0;
}
