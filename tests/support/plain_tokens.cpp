#include "support/plain_tokens.h"

#include <algorithm>
#include <cstdlib>

#include "common/number_text.h"

namespace kav::test {
namespace {

std::string PlainNotSupported(std::string_view name) {
  const std::string shown(name.size() > 17 ? name.substr(0, 15) : name);
  return shown + (name.size() > 17 ? "..." : "") + " is not supported.";
}

class PlainTokenizer {
 public:
  PlainTokenizer(std::string_view text, BaseMode base, const PlainVariables* variables)
      : text_(text), base_(base), variables_(variables) {}

  PlainText Read() {
    if (text_.empty()) Fail("Expression is null.");
    while (message_.empty() && at_ < text_.size()) ReadOne();
    return {tokens_, message_};
  }

 private:
  void Fail(std::string message) { message_ = std::move(message); }
  bool NextIs(std::string_view set) const {
    return at_ < text_.size() && set.find(text_[at_]) != std::string_view::npos;
  }
  std::string_view Run(std::string_view set) {
    const std::size_t start = at_;
    while (NextIs(set)) ++at_;
    return text_.substr(start, at_ - start);
  }
  bool OnlyBlanksFollow() const {
    return text_.find_first_not_of(' ', at_) == std::string_view::npos;
  }
  bool IsDecimal() const { return base_ == BaseMode::Decimal; }
  std::string_view Digits() const {
    if (base_ == BaseMode::Binary) return "01";
    return base_ == BaseMode::Octal ? "01234567" : "0123456789abcdef";
  }

  void ReadOne() {
    if (NextIs(" ")) return static_cast<void>(++at_);
    if (tokens_.size() > 150) return Fail("number exceeded length limit.");
    if (IsDecimal() && NextIs(".0123456789")) return ReadNumber();
    if (!IsDecimal() && NextIs(Digits())) return ReadDigits();
    if (NextIs(IsDecimal() ? "^+-*/!%()" : "+-*/()")) {
      return tokens_.push_back({text_[at_++], "", 0});
    }
    if (NextIs("<>")) return ReadShift();
    if (NextIs(kLetters)) return IsDecimal() ? ReadWord() : ReadBitWord();
    Fail(PlainNotSupported(text_.substr(at_, Utf8Length(text_.substr(at_)))));
  }

  void ReadNumber() {
    const std::size_t start = at_;
    while (NextIs(".0123456789e")) {
      const bool isE = text_[at_++] == 'e';
      if (isE && NextIs("+-")) ++at_;
    }
    const std::string number(text_.substr(start, at_ - start));
    const auto es = std::count(number.begin(), number.end(), 'e');
    const auto points = std::count(number.begin(), number.end(), '.');
    if (es >= 2 || points >= 2) return Fail("Expression error.");
    if (number.size() > 30) return Fail("number exceeded length limit.");
    if (es == 1 && points == 1 && number.find('.') > number.find('e')) {
      return Fail("Expression error.");
    }
    tokens_.push_back({'V', "", std::strtod(number.c_str(), nullptr)});
  }

  void ReadDigits() {
    const std::string_view digits = Run(Digits());
    if (base_ == BaseMode::Binary && digits.size() > 32) return Fail("Out of range(BIN MODE)");
    if (base_ == BaseMode::Octal && digits.size() > 11) return Fail("Out of range(OCT MODE)");
    if (base_ == BaseMode::Hexadecimal && digits.size() > 8) return Fail("Out of range(HEX MODE)");
    const auto radix = static_cast<double>(Digits().size());
    double value = 0;
    for (const char digit : digits) value = value * radix + double(Digits().find(digit));
    tokens_.push_back({'V', "", value});
  }

  void ReadShift() {
    const std::string_view run = Run("<>");
    if (run != "<<" && run != ">>") return Fail(PlainNotSupported(run));
    tokens_.push_back({run[0], "", 0});
  }

  void ReadWord() {
    const std::string word(Run(kLetters));
    if (word == "pi") return tokens_.push_back({'V', "", 3.141592653589793});
    if (variables_ != nullptr && (word == "x" || word == "y" || word == "z")) {
      return tokens_.push_back({'V', "", variables_->at(static_cast<std::size_t>(word[0] - 'x'))});
    }
    if (word == "p" || word == "c") return tokens_.push_back({word[0], "", 0});
    if (std::find(kPlainFunctions.begin(), kPlainFunctions.end(), word) == kPlainFunctions.end()) {
      return Fail(PlainNotSupported(word));
    }
    if (OnlyBlanksFollow()) return Fail("(" + word + ") needs an argument.");
    tokens_.push_back({'F', word, 0});
  }

  void ReadBitWord() {
    const std::string_view word = Run(kLetters);
    if (at_ == text_.size()) return Fail("Expression error.");
    const std::string_view conjunction = base_ == BaseMode::Hexadecimal ? "AND" : "and";
    if (word == conjunction) return tokens_.push_back({'a', "", 0});
    if (word == "or") return tokens_.push_back({'o', "", 0});
    if (word == "xor") return tokens_.push_back({'x', "", 0});
    if (word == "xnor") return tokens_.push_back({'y', "", 0});
    if (word == "not") return tokens_.push_back({'n', "", 0});
    Fail(PlainNotSupported(word));
  }

  static constexpr std::string_view kLetters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  std::string_view text_;
  BaseMode base_;
  const PlainVariables* variables_;
  std::size_t at_ = 0;
  PlainTokens tokens_;
  std::string message_;
};

}  // namespace

PlainText ReadPlainTokens(std::string_view text, BaseMode base, const PlainVariables* variables) {
  return PlainTokenizer(text, base, variables).Read();
}

bool PlainMayStand(char before, char symbol, char after, BaseMode base) {
  const auto isIn = [](char c, std::string_view set) {
    return set.find(c) != std::string_view::npos;
  };
  const bool isDecimal = base == BaseMode::Decimal;
  if (after == ']' && isIn(symbol, isDecimal ? "+-*/^%pc<>" : "+-*/<>aoxyn")) return false;
  if (before == '[' && isIn(symbol, isDecimal ? "*/^!%pc<>" : "*/aoxy<>")) return false;
  if (symbol == 'V') return before != ')' && !isIn(after, "(F");
  if (symbol == '(') return before != ')' && after != ')';
  if (symbol == ')') return before != '(' && after != '(';
  if (symbol == 'F') return true;
  if (isDecimal) {
    if (isIn(symbol, "+-")) return isIn(after, "VF(+-");
    if (symbol == '!') return isIn(before, "V)") && isIn(after, "])+-*/^%pc<>");
    const bool isBehindAnother = symbol == '/' && isIn(before, "*/^%pc<>");
    return (isBehindAnother || isIn(before, "V)!")) && isIn(after, "V(+-F/");
  }
  if (isIn(symbol, "+-")) return isIn(after, "Vn(+-");
  if (isIn(symbol, "aoxy")) return isIn(before, "V)") && isIn(after, "V(n");
  if (symbol == 'n') return isIn(before, "[*/+-<>(aoxy") && isIn(after, "V(");
  return isIn(before, "V)") && isIn(after, "V(+-n");
}

std::string PlainOrderMessage(const PlainTokens& tokens, BaseMode base) {
  std::string line = "[";
  for (const PlainToken& token : tokens) line += token.symbol;
  line += ']';
  if (std::count(line.begin(), line.end(), '(') != std::count(line.begin(), line.end(), ')')) {
    return "Not matched '(' and ')'.";
  }
  for (std::size_t i = 1; i + 1 < line.size(); ++i) {
    if (!PlainMayStand(line[i - 1], line[i], line[i + 1], base)) return "Expression error.";
  }
  return "";
}

}  // namespace kav::test
