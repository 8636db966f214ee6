#include "cleaners/CookieRow.h"

#include "platform/Files.h"

namespace zub {

void showRows(const CookieRows& rows, ListRows& shown, ListRows& details) {
  shown.Clear();
  details.Clear();
  for (const CookieRow& row : rows) {
    shown.AddItem(row.shown);
    details.AddItem(row.detail);
    if (row.kept) shown.Selected(shown.ListCount() - 1, true);
  }
}

CookieRows rowsOnShow(const ListRows& shown, const ListRows& details) {
  CookieRows rows;
  for (int row = 0; row < shown.ListCount(); ++row) {
    rows.push_back({shown.List(row), details.List(row), shown.Selected(row)});
  }
  return rows;
}

bool isMissing(const RuntimeError& failure) {
  return nothingThere(failure.number()) && failure.number() != ErrorNumber::DiskNotReady;
}

}  // namespace zub
