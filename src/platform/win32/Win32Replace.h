// Writing a file whole, as Files::replace promises.
#pragma once

#include <string>
#include <string_view>

namespace zub {

void replaceFile(const std::string& path, std::string_view bytes);

}  // namespace zub
