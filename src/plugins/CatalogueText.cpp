#include "plugins/CatalogueText.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "base/Text.h"

namespace zub {
namespace {

constexpr std::size_t LongestDescription = 300;
constexpr int HighestNumber = 999;  // keeps a slip of the pen from growing into millions of traces
constexpr std::string_view Blanks = " \t\r";

std::string_view strip(std::string_view text) {
  const auto first = text.find_first_not_of(Blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

// Takes the part before the separator off the front of the text: all of it where there is no separator.
std::string_view takeUpTo(char separator, std::string_view& text) {
  const auto end = text.find(separator);
  const auto part = text.substr(0, end);
  text = end == text.npos ? std::string_view{} : text.substr(end + 1);
  return part;
}

bool namesValue(std::string_view trace) {
  return contains(trace, trimRight(ValueMarker));
}

// A trace may name the classes by their right name, too, though that matches no hive in a wash.
bool beginsWithHive(std::string_view trace) {
  const std::string hive = upperAscii(trace.substr(0, trace.find('\\')));
  return std::ranges::find(HiveNames, hive, &HiveName::name) != HiveNames.end();
}

// In capitals the word of the key form marks nothing in a wash, and yet some rows have it so.
bool hasMarker(std::string_view trace) {
  return trace.ends_with(KeyMarker) || trace.ends_with("- KEY*") || namesValue(trace);
}

std::optional<int> number(std::string_view text) {
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size() || value < 0 || value > HighestNumber) {
    return std::nullopt;
  }
  return value;
}

class Reader {
 public:
  std::vector<CatalogueRow> read(std::string_view text) {
    while (!text.empty()) {
      ++line_;
      const auto line = strip(takeUpTo('\n', text));
      if (line.empty() || line.front() == '#') continue;
      if (line.front() == '[') {
        startRow(line);
      } else {
        addToRow(line);
      }
    }
    finishRow();
    return std::move(rows_);
  }

 private:
  struct Keyword {
    std::string_view word;
    void (Reader::*add)(std::string_view rest);
  };

  [[noreturn]] void fail(const std::string& reason) const { throw CatalogueError(line_, reason); }

  void startRow(std::string_view line) {
    finishRow();
    if (line.size() < 3 || line.back() != ']') fail("a name stands in square brackets");
    const auto name = line.substr(1, line.size() - 2);
    if (std::ranges::find(rows_, name, &CatalogueRow::name) != rows_.end()) fail("this name is there twice");
    rows_.push_back({std::string(name), {}, {}});
    nameLine_ = line_;
  }

  void finishRow() const {
    if (rows_.empty()) return;
    if (rows_.back().description.empty()) throw CatalogueError(nameLine_, "the description is missing");
    if (rows_.back().actions.empty()) throw CatalogueError(nameLine_, "there is no action");
  }

  void addToRow(std::string_view line) {
    static constexpr Keyword Keywords[] = {
        {"about", &Reader::addDescription},
        {"file", &Reader::addFile},
        {"folder", &Reader::addFolder},
        {"trace", &Reader::addTraces},
    };
    const auto word = line.substr(0, line.find_first_of(Blanks));
    const auto keyword = std::ranges::find(Keywords, word, &Keyword::word);
    if (keyword == std::end(Keywords)) fail("unknown word \"" + std::string(word) + "\"");
    if (rows_.empty()) fail("no name in square brackets stands before this line");
    (this->*keyword->add)(strip(line.substr(word.size())));
  }

  void addDescription(std::string_view text) {
    auto& description = rows_.back().description;
    if (!description.empty()) fail("a second description");
    if (text.size() > LongestDescription) fail("the description is longer than 300 characters");
    description = text;
  }

  void addFile(std::string_view rest) {
    auto action = takePlace(Action::Kind::File, rest);
    addWithoutRest(std::move(action), rest);
  }

  void addFolder(std::string_view rest) {
    auto action = takePlace(Action::Kind::Files, rest);
    (action.path += '\\') += takePart(rest);
    addWithoutRest(std::move(action), rest);
  }

  void addWithoutRest(Action action, std::string_view rest) {
    if (!rest.empty()) fail("too many parts between |");
    add(std::move(action));
  }

  std::string_view takePart(std::string_view& rest) const {
    const auto part = strip(takeUpTo('|', rest));
    if (part.empty()) fail("a part between | is missing");
    return part;
  }

  Action takePlace(Action::Kind kind, std::string_view& rest) const {
    Action action;
    action.kind = kind;
    const auto where = takePart(rest);
    if (where == "windows") {
      action.base = Action::Base::Windows;
    } else if (where == "appdata") {
      action.base = Action::Base::AppData;
    } else if (beginsWithHive(where) && namesValue(where)) {
      action.base = Action::Base::Registry;
      action.trace = Trace(where);
    } else {
      fail("unknown place \"" + std::string(where) + "\"");
    }
    action.path = takePart(rest);
    return action;
  }

  void addTraces(std::string_view text) {
    if (!beginsWithHive(text)) fail("a trace begins with the name of a hive and a backslash");
    if (!hasMarker(text)) fail("a trace ends in \"- Key*\", or in \"+ Value`= \" and a name");
    const auto open = text.find('{');
    if (open == text.npos && !contains(text, "}")) return addTrace(std::string(text));

    const auto close = text.find('}');
    if (open == text.npos || close == text.npos || close < open) fail("a range is written {1..9}");
    const auto before = text.substr(0, open);
    const auto range = text.substr(open + 1, close - open - 1);
    const auto after = text.substr(close + 1);
    if (after.find_first_of("{}") != after.npos) fail("a trace holds one range at most");

    const auto dots = std::min(range.find(".."), range.size());
    const auto first = number(range.substr(0, dots));
    const auto last = number(range.substr(std::min(dots + 2, range.size())));
    if (!first || !last || *first > *last) fail("a range is two numbers from 0 to 999, the lower one first");
    for (int n = *first; n <= *last; ++n) {
      addTrace(std::string(before).append(std::to_string(n)).append(after));
    }
  }

  void addTrace(const std::string& trace) {
    Action action;
    action.trace = Trace(trace);
    add(std::move(action));
  }

  void add(Action action) {
    if (rows_.back().description.empty()) fail("the description comes before the first action");
    rows_.back().actions.push_back(std::move(action));
  }

  std::vector<CatalogueRow> rows_;
  int line_ = 0;
  int nameLine_ = 0;
};

}  // namespace

std::vector<CatalogueRow> readCatalogueRows(std::string_view text) {
  return Reader().read(text);
}

}  // namespace zub
