// What a program that holds a file open to read and write lets others do with it meanwhile.
#pragma once

namespace zub {

enum class Sharing { Reading, Everything };

}  // namespace zub
