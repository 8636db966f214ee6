// What became of a registry, as a text that the Windows tools import.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/folder/RegistryText.h"

namespace zub {

// Whether what happened to this key (the name is empty) or to this value of it is not told.
using LeftOut = std::function<bool(std::string_view path, std::string_view name, bool isValue)>;

// The text that turns `before` into `after`: keys and values that went are deleted, new and other ones are told whole.
// Each new key stands behind the one above it. A text without changes is the heading alone.
std::string changesText(RegistryTree& before, RegistryTree& after, RegistryForm form, const LeftOut& leftOut);

}  // namespace zub
