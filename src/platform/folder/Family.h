// What the two families of Windows do otherwise. Nothing else here asks which one a PC is of.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace zub {

struct Family {
  std::string_view name;     // in pc.txt
  std::uint32_t platformId;  // in the system's version record
  bool deletesTrees;         // a registry key goes with its subkeys
  bool cutsTexts;            // a text value ends at its first NUL, whatever its length was said to be
  bool raisesShortNames;     // the 8.3 name of a name that is short already is in capitals
  std::span<const std::string_view> recycleBins;  // at the root of a drive
};

// The bin of a disk formatted with FAT, for everybody; the others hold a folder for each user.
inline constexpr std::array<std::string_view, 3> recycleBins{"Recycled", "Recycler", "$Recycle.Bin"};

inline constexpr Family family9x{"9x", 1, true, true, true, std::span(recycleBins).first<1>()};
inline constexpr Family familyNt{"nt", 2, false, false, false, recycleBins};

}  // namespace zub
