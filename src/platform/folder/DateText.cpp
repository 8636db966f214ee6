#include "platform/folder/DateText.h"

#include <optional>
#include <vector>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "platform/folder/CodePage1252.h"

namespace zub {
namespace {

[[noreturn]] void mismatch() {
  throw RuntimeError(ErrorNumber::TypeMismatch);
}

// Digits, a word, or one other character; blanks only part them.
struct Token {
  enum class Kind : std::uint8_t { Number, Word, Sign } kind;
  std::string_view text;
  int number = 0;
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isWord(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::vector<Token> tokensOf(std::string_view text) {
  std::vector<Token> tokens;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == ' ' || text[i] == '\t') {
      ++i;
      continue;
    }
    const auto kind = isDigit(text[i])  ? Token::Kind::Number
                      : isWord(text[i]) ? Token::Kind::Word
                                        : Token::Kind::Sign;
    std::size_t end = i + 1;
    const auto belongs = [&](char c) { return kind == Token::Kind::Number ? isDigit(c) : isWord(c); };
    while (kind != Token::Kind::Sign && end < text.size() && belongs(text[end])) ++end;
    Token token{kind, text.substr(i, end - i)};
    if (kind == Token::Kind::Number) {
      if (token.text.size() > 4) mismatch();
      for (const char c : token.text) token.number = token.number * 10 + (c - '0');
    }
    tokens.push_back(token);
    i = end;
  }
  return tokens;
}

constexpr std::string_view MonthNames[] = {"january",   "february", "march",    "april",
                                           "may",       "june",     "july",     "august",
                                           "september", "october",  "november", "december"};

// 1 to 12 for a month's name or the first three letters of it; 0 for another word.
int monthOf(std::string_view word) {
  for (int month = 1; const std::string_view name : MonthNames) {
    if (equalFolded(word, name) || equalFolded(word, name.substr(0, 3))) return month;
    ++month;
  }
  return 0;
}

class Parser {
 public:
  Parser(std::string_view text, const SystemTime& today) : tokens_(tokensOf(text)), today_(today) {}

  SystemTime parse() {
    std::optional<SystemTime> date;
    std::optional<SystemTime> time;
    while (place_ < tokens_.size()) {
      auto& part = isTime() ? time : date;
      if (part) mismatch();
      part = isTime() ? readTime() : readDate();
    }
    if (!date && !time) mismatch();
    SystemTime result = date ? *date : dateOf(1899, 12, 30);
    if (time) {
      result.wHour = time->wHour;
      result.wMinute = time->wMinute;
      result.wSecond = time->wSecond;
    }
    return result;
  }

 private:
  static SystemTime dateOf(int year, int month, int day) {
    return dateFromDays(daysFromDate(year, month, day));
  }

  bool isSign(std::size_t at, std::string_view signs) const {
    return at < tokens_.size() && tokens_[at].kind == Token::Kind::Sign &&
           signs.find(tokens_[at].text[0]) != std::string_view::npos;
  }
  bool isHalf(std::size_t at, std::string_view half) const {
    return at < tokens_.size() && tokens_[at].kind == Token::Kind::Word &&
           equalFolded(tokens_[at].text, half);
  }
  bool isTime() const {
    return isSign(place_ + 1, ":") || isHalf(place_ + 1, "AM") || isHalf(place_ + 1, "PM");
  }
  const Token& takeNumber() {
    if (place_ == tokens_.size() || tokens_[place_].kind != Token::Kind::Number) mismatch();
    return tokens_[place_++];
  }

  SystemTime readTime() {
    int parts[3] = {takeNumber().number, 0, 0};
    for (int i = 1; i < 3 && isSign(place_, ":"); ++i) {
      ++place_;
      parts[i] = takeNumber().number;
    }
    const bool morning = isHalf(place_, "AM");
    if (morning || isHalf(place_, "PM")) {
      ++place_;
      if (parts[0] > 12) mismatch();
      parts[0] = parts[0] % 12 + (morning ? 0 : 12);
    }
    if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) mismatch();
    SystemTime time;
    time.wHour = static_cast<std::uint16_t>(parts[0]);
    time.wMinute = static_cast<std::uint16_t>(parts[1]);
    time.wSecond = static_cast<std::uint16_t>(parts[2]);
    return time;
  }

  // A day and a year around the month's name, the year being this one where it is not told.
  SystemTime readNamedDate() {
    std::vector<Token> numbers;
    int month = 0;
    while (place_ < tokens_.size() && !isTime()) {
      const Token& token = tokens_[place_++];
      if (token.kind == Token::Kind::Number && numbers.size() < 2) {
        numbers.push_back(token);
      } else if (token.kind == Token::Kind::Word && month == 0) {
        month = monthOf(token.text);
        if (month == 0) mismatch();
      } else if (!isSign(place_ - 1, "/-.,")) {
        mismatch();
      }
    }
    if (month == 0 || numbers.empty()) mismatch();
    if (numbers.size() == 2 && isYear(numbers[0])) std::swap(numbers[0], numbers[1]);
    const bool hasYear = isYear(numbers.back()) || numbers.size() == 2;
    const int year = hasYear ? fullYear(numbers.back()) : today_.wYear;
    const int day = numbers.size() == 1 && hasYear ? 1 : numbers[0].number;
    if (year < 100 || day < 1 || day > daysInMonth(year, month)) mismatch();
    return dateOf(year, month, day);
  }

  // Whether a month's name comes before the time does.
  bool hasMonthName() const {
    for (std::size_t at = place_; at < tokens_.size() && !isSign(at + 1, ":"); ++at) {
      if (tokens_[at].kind == Token::Kind::Word && monthOf(tokens_[at].text) != 0) return true;
    }
    return false;
  }

  static bool isYear(const Token& token) { return token.text.size() > 2 || token.number > 31; }

  SystemTime readDate() {
    if (hasMonthName()) return readNamedDate();
    std::vector<Token> numbers = {takeNumber()};
    while (numbers.size() < 3 && isSign(place_, "/-.")) {
      ++place_;
      numbers.push_back(takeNumber());
    }
    if (numbers.size() == 1) mismatch();
    int year = today_.wYear;
    int first = numbers[0].number;
    int second = numbers[1].number;
    if (numbers.size() == 3 && isYear(numbers[0])) {
      year = fullYear(numbers[0]);
      first = numbers[1].number;
      second = numbers[2].number;
    } else if (numbers.size() == 3) {
      year = fullYear(numbers[2]);
    } else if (isYear(numbers[1])) {
      year = fullYear(numbers[1]);
      second = 1;
    }
    if (first > 12) std::swap(first, second);
    if (first < 1 || first > 12 || year < 100 || second < 1 || second > daysInMonth(year, first)) mismatch();
    return dateOf(year, first, second);
  }

  static int fullYear(const Token& token) {
    if (token.text.size() > 2) return token.number;
    return token.number + (token.number < 30 ? 2000 : 1900);
  }

  std::vector<Token> tokens_;
  const SystemTime& today_;
  std::size_t place_ = 0;
};

}  // namespace

std::string shortDate(const SystemTime& time) {
  return std::to_string(time.wMonth) + "/" + std::to_string(time.wDay) + "/" + std::to_string(time.wYear);
}

std::string shortTime(const SystemTime& time) {
  const int hour = time.wHour % 12 == 0 ? 12 : time.wHour % 12;
  return std::to_string(hour) + ":" + twoDigits(time.wMinute) + ":" + twoDigits(time.wSecond) +
         (time.wHour < 12 ? " AM" : " PM");
}

SystemTime parseDateTime(std::string_view text, const SystemTime& today) {
  return Parser(text, today).parse();
}

}  // namespace zub
