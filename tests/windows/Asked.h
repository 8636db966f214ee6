// Questions to a control of another program that answers into a record.
#pragma once

#include <windows.h>
// Behind it.
#include <commctrl.h>

#include "windows/Desktop.h"

namespace zub::drive {

// A record that a message hands over, with room for a text.
template <class Record>
struct Asked {
  Record record{};
  char text[512] = "";
};

// Asks with a record that lies in the other process's memory, and brings it back. `text` is the member that leads to the
// room for a text.
template <class Record>
LRESULT ask(const Window& owner, UINT message, int index, Asked<Record>& asked,
            char* Record::*text = nullptr) {
  DWORD process = 0;
  GetWindowThreadProcessId(owner.handle(), &process);
  const HANDLE other = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process);
  auto* there =
      static_cast<Asked<Record>*>(VirtualAllocEx(other, nullptr, sizeof asked, MEM_COMMIT, PAGE_READWRITE));
  REQUIRE(there != nullptr);
  if (text != nullptr) asked.record.*text = there->text;
  WriteProcessMemory(other, there, &asked, sizeof asked, nullptr);
  const LRESULT answer = owner.send(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(there));
  ReadProcessMemory(other, there, &asked, sizeof asked, nullptr);
  VirtualFreeEx(other, there, 0, MEM_RELEASE);
  CloseHandle(other);
  return answer;
}

}  // namespace zub::drive
