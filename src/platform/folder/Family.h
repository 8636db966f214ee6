// What the two families of Windows do otherwise. Nothing else here asks which one a PC is of.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zub {

struct Family {
  std::string_view name;     // in pc.txt
  std::uint32_t platformId;  // in the system's version record
  bool deletesTrees;         // a registry key goes with its subkeys
  bool cutsTexts;            // a text value ends at its first NUL, whatever its length was said to be
  bool raisesShortNames;     // the 8.3 name of a name that is short already is in capitals
  bool binsOfUsers;          // beside the recycle bin for everybody
};

// The recycle bins at the root of a drive: that of a disk formatted with FAT, for everybody, and the folders that hold
// one for each user, by the name of the user's branch of HKEY_USERS.
inline constexpr std::string_view CommonBin = "Recycled";
inline constexpr std::array<std::string_view, 2> UserBins{"Recycler", "$Recycle.Bin"};

inline constexpr Family family9x{"9x", 1, true, true, true, false};
inline constexpr Family familyNt{"nt", 2, false, false, false, true};

}  // namespace zub
