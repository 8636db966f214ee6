#include "plugins/StandardList.h"

#include "plugins/Catalogue.h"
#include "state/Lists.h"

namespace zub {

void listStandardPlugins(ListRows& standardlist, const Catalogue& catalogue) {
  for (const CatalogueRow& row : catalogue.rows()) standardlist.AddItem(row.name);
}

std::string_view standardPluginDescription(const Catalogue& catalogue, std::string_view name) {
  const CatalogueRow* row = catalogue.find(name);
  return row == nullptr ? std::string_view{} : std::string_view(row->description);
}

}  // namespace zub
