// The run of one standard plugin in a wash.
#pragma once

#include <string>
#include <vector>

#include "plugins/Action.h"

namespace zub {

class Catalogue;
struct CatalogueRow;

// Carries out the actions of the catalogue's row; a name that is no row is counted as done all the same. A failure
// ends this row's run, before it is counted, with a report line that describes it. A folder that cannot be read from
// the registry is the empty text, and its files are then tried below the root of the current drive.
void RunStandardPlugin(Engine& engine, const Catalogue& catalogue, const std::string& name);
// What each action of the row would do, were the row the first of a wash.
std::vector<Meaning> describeStandardPlugin(Engine& engine, const CatalogueRow& row);

}  // namespace zub
