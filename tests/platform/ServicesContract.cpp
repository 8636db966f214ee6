#include <algorithm>

#include "base/Text.h"
#include "platform/ContractPc.h"
#include "support/Golden.h"
#include "support/Snapshot.h"

namespace zub {

TEST_CASE_TEMPLATE("drives: the listed ones exist, others do not", Pc, CONTRACT_PCS) {
  Pc pc;
  Drives& drives = *pc.platform().drives;
  const std::vector<std::string> list = drives.list();
  CHECK(std::ranges::is_sorted(list));
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const std::string drive = {letter, ':'};
    const bool listed =
        std::ranges::any_of(list, [&](const std::string& entry) { return entry.starts_with(drive); });
    CAPTURE(drive);
    CHECK(drives.exists(drive) == listed);
    if (!listed) CHECK(drives.type(drive) == DriveType::Unknown);
  }
  const std::string drive = pc.folder().substr(0, 2);
  CHECK(drives.type(drive) == DriveType::Fixed);
  CHECK(drives.exists(drive));
  for (const char* none : {"", "::", "1:"}) CHECK_FALSE(drives.exists(none));
}

TEST_CASE_TEMPLATE("folders: the system's own folders are there", Pc, CONTRACT_PCS) {
  Pc pc;
  SystemFolders& folders = *pc.platform().folders;
  Files& files = *pc.platform().files;
  const std::string temp = folders.temp(512);
  CHECK(temp.ends_with('\\'));
  CHECK(files.folderExists(temp));
  CHECK(folders.temp(4).empty());
  CHECK(folders.temp(static_cast<std::uint32_t>(temp.size())).empty());  // no room for the NUL
  CHECK(folders.temp(static_cast<std::uint32_t>(temp.size()) + 1) == temp);
  CHECK_FALSE(folders.windows().ends_with('\\'));
  CHECK(files.folderExists(folders.windows()));
  CHECK(files.folderExists(folders.programFolder()));
  CHECK_FALSE(folders.programFile().empty());
  CHECK_FALSE(contains(folders.programFile(), "\\"));
  CHECK(files.folderExists(folders.current()));
}

TEST_CASE_TEMPLATE("restart: a profile's key stands once in its section; the family has a number", Pc,
                   CONTRACT_PCS) {
  Pc pc;
  Restart& restart = *pc.platform().restart;
  const std::string file = pc.platform().folders->windows() + "\\zubtest.ini";
  pc.file(file, "[other]\r\nnul=stays\r\n");
  restart.writeProfile("rename", "nul", "C:\\FIRST", "zubtest.ini");
  restart.writeProfile("rename", "nul", "C:\\SECOND", "zubtest.ini");
  restart.writeProfile("RENAME", "nul", "C:\\THIRD", "zubtest.ini");
  restart.writeProfile("rename", "two", "x", "zubtest.ini");
  std::string text = pc.bytes(file);
  pc.platform().files->grip(file)->remove();
  // Blank lines between sections are the writer's own affair.
  for (std::size_t blank; (blank = text.find("\r\n\r\n")) != std::string::npos;) text.erase(blank, 2);
  CHECK(text == "[other]\r\nnul=stays\r\n[rename]\r\nnul=C:\\THIRD\r\ntwo=x\r\n");

  const std::uint32_t family = restart.platformId(148);
  CHECK((family == 1 || family == 2));
  CHECK(restart.platformId(0) == 0);  // a record that does not tell its size
}

TEST_CASE_TEMPLATE("clock: what it writes it reads, and dates that name their month; all else is a mismatch",
                   Pc, CONTRACT_PCS) {
  Pc pc;
  Clock& clock = *pc.platform().clock;
  for (const SystemTime& time :
       {SystemTime{2001, 9, 3, 5, 14, 20, 30, 0}, SystemTime{2000, 2, 2, 29, 0, 0, 0, 0},
        SystemTime{2026, 12, 4, 31, 23, 59, 59, 0}, SystemTime{2024, 1, 1, 1, 12, 5, 9, 0}}) {
    const std::string date = clock.dateText(time), hours = clock.timeText(time);
    CAPTURE(date + ' ' + hours);
    CHECK(clock.parse(date) == SystemTime{time.wYear, time.wMonth, time.wDayOfWeek, time.wDay, 0, 0, 0, 0});
    CHECK(clock.parse(hours) == SystemTime{1899, 12, 6, 30, time.wHour, time.wMinute, time.wSecond, 0});
    CHECK(clock.parse(date + ' ' + hours) == time);
  }
  for (const char* date : {"24 December 2030", "december 24, 2030", "Dec 24 2030", "24-DEC-2030"}) {
    CAPTURE(std::string(date));
    CHECK(clock.parse(std::string(date) + " 6:00 PM") == SystemTime{2030, 12, 2, 24, 18, 0, 0, 0});
  }
  CHECK(clock.parse("5 January 2030") == SystemTime{2030, 1, 6, 5, 0, 0, 0, 0});
  for (const char* text : {"", "   ", "tomorrow", "25:00", "10:60", "1/2/3/4", "13/32/2001", "2/29/2001",
                           "29 Feb 2001", "1 Brumaire 2001", "May", "12:", "9/5/2001 at noon", "\xFF\xFE"}) {
    CAPTURE(std::string(text));
    CHECK(failure([&] { clock.parse(text); }) == 13);
  }
  const std::uint64_t first = clock.ticks();
  CHECK(clock.ticks() >= first);
  CHECK(clock.local().wMonth >= 1);
}

TEST_CASE_TEMPLATE("code page: upper case byte for byte", Pc, CONTRACT_PCS) {
  Pc pc;
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  checkGolden("upper.txt", printable(pc.platform().codePage->upper(all)));
}

}  // namespace zub
