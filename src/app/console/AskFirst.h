// Whether a wash is wanted: on the PC that this runs on somebody is asked first.
#pragma once

#include "app/console/Commands.h"
#include "app/console/WashChoice.h"

namespace zub {

// True for a PC in a folder and with --yes. Else somebody is asked once, with the sums of a preview; a no is told.
// Refusal where nobody can be asked.
bool washWanted(CommandContext& context, const WashChoice& choice);

}  // namespace zub
