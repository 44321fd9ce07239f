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

/// What is wrong with `value` by `schema`, with `where` before it; empty if nothing is. Any keyword
/// that it does not know is wrong as well, so that all of a schema counts.
inline std::string SchemaFault(const JsonValue& value, const JsonValue& schema,
                               const std::string& where = "$") {
  const auto isType = [&](const std::string& type) {
    return value.kind == type || (type == "number" && value.kind == "integer");
  };
  const auto hasAll = [&](const JsonValue& names) {
    const auto texts = names.Texts();
    return std::all_of(texts.begin(), texts.end(),
                       [&](const auto& name) { return value.Has(name); });
  };
  const bool isObject = value.kind == "object";
  for (const auto& [keyword, rule] : schema.members) {
    const std::string fault = where + ": " + keyword;
    if (keyword == "type") {
      const auto types = rule.Texts();
      if (std::none_of(types.begin(), types.end(), isType)) return fault + " " + value.kind;
    } else if (keyword == "properties" && isObject) {
      for (const auto& [name, member] : value.members) {
        if (!rule.Has(name)) continue;
        const auto deeper = SchemaFault(member, rule[name], where + "." + name);
        if (!deeper.empty()) return deeper;
      }
    } else if (keyword == "additionalProperties" && rule.text == "false" && isObject) {
      for (const auto& member : value.members) {
        if (!schema["properties"].Has(member.first)) return fault + " " + member.first;
      }
    } else if (keyword == "required") {
      if (isObject && !hasAll(rule)) return fault;
    } else if (keyword == "dependentRequired") {
      for (const auto& [name, needed] : rule.members) {
        if (value.Has(name) && !hasAll(needed)) return fault + " " + name;
      }
    } else if (keyword == "oneOf") {
      const auto fits = [&](const JsonValue& one) { return SchemaFault(value, one).empty(); };
      if (std::count_if(rule.items.begin(), rule.items.end(), fits) != 1) return fault;
    } else if (keyword == "items") {
      for (const JsonValue& item : value.items) {
        const auto deeper = SchemaFault(item, rule, where + "[]");
        if (!deeper.empty()) return deeper;
      }
    } else if (keyword == "minItems") {
      if (static_cast<double>(value.items.size()) < rule.Number()) return fault;
    } else if (keyword == "minLength") {
      if (static_cast<double>(value.text.size()) < rule.Number()) return fault;
    } else if (keyword == "minimum") {
      if (value.Number() < rule.Number()) return fault;
    } else if (keyword != "title" && keyword != "description" && keyword != "$schema") {
      return fault + " is unknown";
    }
  }
  return {};
}

}  // namespace kav::test
