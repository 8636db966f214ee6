// The help texts, made from the table of commands.
#pragma once

#include <string>

#include "app/console/Commands.h"

namespace zub {

// Of the whole program, and of one command. Lines have at most `width` characters.
std::string programHelp(const std::string& program, std::size_t width);
std::string commandHelp(const Command& command, const std::string& program, std::size_t width);

// "zub [--pc FOLDER] cookies ie|netscape [keep|drop NUMBER|RANGE|SITE...]"
std::string usageOf(const Command& command, const std::string& program);
// The first sentence of its help, without the dot.
std::string summaryOf(const Command& command);

}  // namespace zub
