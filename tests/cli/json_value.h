// JSON as tests read it: whole texts, strictly, and checked against a schema.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kav::test {

/// A value of any type; `kind` is its type by the name that schemas give it.
struct JsonValue {
  std::string kind = "null";
  std::string text;  ///< of a string: decoded; of a number: as it is written
  std::vector<JsonValue> items;
  std::map<std::string, JsonValue> members;

  double Number() const { return std::strtod(text.c_str(), nullptr); }
  bool Has(const std::string& name) const { return members.count(name) != 0; }
  const JsonValue& operator[](const std::string& name) const { return members.at(name); }
  /// The texts of an array of strings, or the one text.
  std::vector<std::string> Texts() const {
    if (kind == "string") return {text};
    std::vector<std::string> texts;
    for (const JsonValue& item : items) texts.push_back(item.text);
    return texts;
  }
};

/// Reads one text.
class JsonReader {
 public:
  explicit JsonReader(std::string_view text) : left_(text) {}

  /// The value that the text is as a whole; nullopt if it is none.
  std::optional<JsonValue> Whole() {
    JsonValue value = Value();
    Skip();
    if (isBroken_ || !left_.empty()) return std::nullopt;
    return value;
  }

 private:
  void Skip() { left_.remove_prefix(std::min(left_.find_first_not_of(" \n\r\t"), left_.size())); }
  bool Take(std::string_view text) {
    Skip();
    if (!left_.starts_with(text)) return false;
    left_.remove_prefix(text.size());
    return true;
  }
  void Need(std::string_view text) {
    if (!Take(text)) isBroken_ = true;
  }

  JsonValue Value() {
    if (Take("{")) return Object();
    if (Take("[")) return Array();
    if (Take("\"")) return {"string", Text(), {}, {}};
    for (const char* word : {"null", "true", "false"}) {
      if (Take(word)) return {word == std::string("null") ? "null" : "boolean", word, {}, {}};
    }
    return Number();
  }

  JsonValue Object() {
    JsonValue value{"object", {}, {}, {}};
    if (Take("}")) return value;
    do {
      Need("\"");
      std::string name = Text();
      Need(":");
      isBroken_ |= value.Has(name);
      value.members[name] = Value();
    } while (!isBroken_ && Take(","));
    Need("}");
    return value;
  }

  JsonValue Array() {
    JsonValue value{"array", {}, {}, {}};
    if (Take("]")) return value;
    do value.items.push_back(Value());
    while (!isBroken_ && Take(","));
    Need("]");
    return value;
  }

  /// digits, a point with digits behind it, and an exponent, as JSON wants them.
  JsonValue Number() {
    std::size_t at = left_.starts_with('-') ? 1 : 0;
    const auto digits = [&] {
      const std::size_t start = at;
      while (at < left_.size() && left_[at] >= '0' && left_[at] <= '9') ++at;
      return at - start;
    };
    const bool hasZero = at < left_.size() && left_[at] == '0';
    const std::size_t whole = digits();
    isBroken_ |= whole == 0 || (hasZero && whole > 1);
    bool isInteger = true;
    if (at < left_.size() && left_[at] == '.') {
      ++at;
      isInteger = false;
      isBroken_ |= digits() == 0;
    }
    if (at < left_.size() && (left_[at] == 'e' || left_[at] == 'E')) {
      at += at + 1 < left_.size() && (left_[at + 1] == '+' || left_[at + 1] == '-') ? 2U : 1U;
      isInteger = false;
      isBroken_ |= digits() == 0;
    }
    JsonValue value{isInteger ? "integer" : "number", std::string(left_.substr(0, at)), {}, {}};
    left_.remove_prefix(at);
    return value;
  }

  std::string Text() {
    std::string text;
    while (!left_.empty() && left_.front() != '"') {
      const char c = left_.front();
      left_.remove_prefix(1);
      isBroken_ |= static_cast<unsigned char>(c) < ' ';
      c == '\\' ? TakeEscaped(text) : text.push_back(c);
    }
    Need("\"");
    return text;
  }

  void TakeEscaped(std::string& text) {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kMeant = "\"\\/\b\f\n\r\t";
    const std::size_t at = left_.empty() ? kLetters.npos : kLetters.find(left_.front());
    if (at != kLetters.npos) {
      text += kMeant[at];
      left_.remove_prefix(1);
      return;
    }
    // The program escapes characters of one byte and of the block behind ASCII only.
    char* end = nullptr;
    const std::string digits(left_.substr(0, 5));
    const long code = std::strtol(digits.c_str() + (digits.empty() ? 0 : 1), &end, 16);
    isBroken_ |= digits.size() != 5 || digits[0] != 'u' || *end != '\0' || code > 0xFF;
    if (isBroken_) return left_.remove_prefix(left_.size());
    if (code >= 0x80) text += '\xC2';
    text += static_cast<char>(code);
    left_.remove_prefix(digits.size());
  }

  std::string_view left_;
  bool isBroken_ = false;
};

inline std::optional<JsonValue> ReadJson(std::string_view text) {
  return JsonReader(text).Whole();
}

/// Checks values against a schema of a few keywords. Any other keyword is wrong as well, so that
/// all of a schema counts.
class SchemaCheck {
 public:
  /// The first keyword of `schema` that `value` breaks, behind where that is; empty if it fits.
  static std::string Fault(const JsonValue& value, const JsonValue& schema,
                           const std::string& where = "$") {
    for (const auto& member : schema.members) {
      const std::string& keyword = member.first;
      if (Describes(keyword)) continue;
      const auto check = Checks().find(keyword);
      if (check == Checks().end()) return where + ": " + keyword + " is unknown";
      if (!check->second(value, member.second)) return where + ": " + keyword;
    }
    return FaultBelow(value, schema, where);
  }

 private:
  using Check = bool (*)(const JsonValue& value, const JsonValue& rule);

  /// Keywords that say nothing of the value, or are checked by FaultBelow.
  static bool Describes(const std::string& keyword) {
    constexpr std::string_view kWords =
        "|$schema|title|description|properties|additionalProperties|items|";
    return kWords.find("|" + keyword + "|") != kWords.npos;
  }

  static const std::map<std::string, Check>& Checks() {
    static const std::map<std::string, Check> checks{
        {"type", HasType},
        {"required", HasAll},
        {"oneOf", FitsOne},
        {"dependentRequired", HasAllNeeded},
        {"minItems",
         [](const JsonValue& value, const JsonValue& rule) {
           return static_cast<double>(value.items.size()) >= rule.Number();
         }},
        {"minLength",
         [](const JsonValue& value, const JsonValue& rule) {
           return static_cast<double>(value.text.size()) >= rule.Number();
         }},
        {"minimum", [](const JsonValue& value,
                       const JsonValue& rule) { return value.Number() >= rule.Number(); }},
    };
    return checks;
  }

  static bool HasType(const JsonValue& value, const JsonValue& rule) {
    const auto types = rule.Texts();
    return std::any_of(types.begin(), types.end(), [&](const std::string& type) {
      return value.kind == type || (type == "number" && value.kind == "integer");
    });
  }

  static bool HasAll(const JsonValue& value, const JsonValue& names) {
    const auto texts = names.Texts();
    return std::all_of(texts.begin(), texts.end(),
                       [&](const std::string& name) { return value.Has(name); });
  }

  static bool HasAllNeeded(const JsonValue& value, const JsonValue& rule) {
    return std::all_of(rule.members.begin(), rule.members.end(), [&](const auto& needed) {
      return !value.Has(needed.first) || HasAll(value, needed.second);
    });
  }

  static bool FitsOne(const JsonValue& value, const JsonValue& rule) {
    return std::count_if(rule.items.begin(), rule.items.end(),
                         [&](const JsonValue& one) { return Fault(value, one).empty(); }) == 1;
  }

  /// The same for the members of an object and the items of an array.
  static std::string FaultBelow(const JsonValue& value, const JsonValue& schema,
                                const std::string& where) {
    for (const auto& member : value.members) {
      const std::string place = where + "." + member.first;
      if (!schema.Has("properties") || !schema["properties"].Has(member.first)) {
        if (schema.Has("additionalProperties")) return place;
        continue;
      }
      auto fault = Fault(member.second, schema["properties"][member.first], place);
      if (!fault.empty()) return fault;
    }
    for (const JsonValue& item : value.items) {
      auto fault = schema.Has("items") ? Fault(item, schema["items"], where + "[]") : "";
      if (!fault.empty()) return fault;
    }
    return {};
  }
};

}  // namespace kav::test
