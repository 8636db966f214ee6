// The list of standard plugins on the main window.
#pragma once

#include <string_view>

namespace zub {

class Catalogue;
class ListRows;

// Adds the catalogue's names, none ticked.
void listStandardPlugins(ListRows& standardlist, const Catalogue& catalogue);
// What a click on a row of this name shows; empty where it is no row.
std::string_view standardPluginDescription(const Catalogue& catalogue, std::string_view name);

}  // namespace zub
