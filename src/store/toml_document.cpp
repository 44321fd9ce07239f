#include "store/toml_document.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "common/number_text.h"
#include "store/toml_text.h"

namespace kav {
namespace {

// The most levels of tables and arrays. Well below the most that the parser takes: a level may be
// written in more than one way.
constexpr int kDeepest = 32;

bool IsDeeperThan(const toml::node& node, int levels) {
  const auto isChildDeeper = [&](const toml::node& child) {
    return IsDeeperThan(child, levels - 1);
  };
  if (levels < 0) return true;
  if (const auto* array = node.as_array()) {
    return std::any_of(array->begin(), array->end(), isChildDeeper);
  }
  const auto* table = node.as_table();
  if (table == nullptr) return false;
  return std::any_of(table->begin(), table->end(),
                     [&](const auto& entry) { return isChildDeeper(entry.second); });
}

class Writer {
 public:
  std::string Document(const toml::table& root) {
    Body(root);
    return std::move(out_);
  }

 private:
  static bool HasHeading(const toml::node& node) {
    return node.is_table() && !node.as_table()->is_inline();
  }

  /// A table without values of its own is made by the headings of the tables in it.
  static bool NeedsHeading(const toml::table& table) {
    return table.empty() || !std::all_of(table.begin(), table.end(), [](const auto& entry) {
             return HasHeading(entry.second);
           });
  }

  void Body(const toml::table& table) {
    for (const auto& [key, node] : table) {
      if (HasHeading(node)) continue;
      Entry(key.str(), node);
      out_ += '\n';
    }
    for (const auto& [key, node] : table) {
      if (!HasHeading(node)) continue;
      path_.push_back(key.str());
      if (NeedsHeading(*node.as_table())) Heading();
      Body(*node.as_table());
      path_.pop_back();
    }
  }

  void Heading() {
    out_ += "\n[";
    for (std::size_t i = 0; i < path_.size(); ++i) {
      if (i > 0) out_ += '.';
      AppendTomlKey(out_, path_[i]);
    }
    out_ += "]\n";
  }

  void Entry(std::string_view key, const toml::node& node) {
    AppendTomlKey(out_, key);
    out_ += " = ";
    Value(node);
  }

  void Value(const toml::node& node) {
    node.visit([&](const auto& value) { Print(value); });
  }

  void Print(const toml::table& table) {
    std::string_view before = "{";
    for (const auto& [key, node] : table) {
      out_ += before;
      Entry(key.str(), node);
      before = ", ";
    }
    out_ += table.empty() ? "{}" : "}";
  }

  void Print(const toml::array& array) {
    std::string_view before = "[";
    for (const auto& node : array) {
      out_ += before;
      Value(node);
      before = ", ";
    }
    out_ += array.empty() ? "[]" : "]";
  }

  template <class Plain>
  void Print(const toml::value<Plain>& value) {
    Print(value.get());
  }
  void Print(const std::string& text) { AppendTomlString(out_, text); }
  void Print(std::int64_t integer) { out_ += PrintInteger(integer); }
  void Print(bool isTrue) { out_ += isTrue ? "true" : "false"; }

  /// With as few digits as read back if it is of everyday size, else with an exponent; always in a
  /// form that is not an integer.
  void Print(double value) {
    const double magnitude = std::abs(value);
    const bool isPlain = value == 0 || (magnitude >= 1e-5 && magnitude < 1e17);
    std::string text;
    isPlain ? AppendShortestPlain(text, value) : AppendRoundTrip(text, value);
    if (text.find_first_of(".en") == std::string::npos) text += ".0";
    if (std::isnan(value)) text = "nan";
    out_ += text;
  }

  void Print(const toml::date& date) {
    Digits(date.year, 4);
    out_ += '-';
    Digits(date.month, 2);
    out_ += '-';
    Digits(date.day, 2);
  }

  void Print(const toml::time& time) {
    Digits(time.hour, 2);
    out_ += ':';
    Digits(time.minute, 2);
    out_ += ':';
    Digits(time.second, 2);
    if (time.nanosecond == 0) return;
    out_ += '.';
    Digits(time.nanosecond, 9);
  }

  void Print(const toml::date_time& moment) {
    Print(moment.date);
    out_ += 'T';
    Print(moment.time);
    if (!moment.offset) return;
    const int minutes = std::abs(moment.offset->minutes);
    out_ += moment.offset->minutes < 0 ? '-' : '+';
    Digits(minutes / 60, 2);
    out_ += ':';
    Digits(minutes % 60, 2);
  }

  void Digits(std::int64_t number, std::size_t width) {
    const std::string digits = PrintInteger(number);
    out_.append(width - std::min(width, digits.size()), '0').append(digits);
  }

  std::string out_;
  std::vector<std::string_view> path_;
};

}  // namespace

std::optional<toml::table> ReadToml(std::string_view text) {
  if (!IsModestToml(text)) return std::nullopt;
  toml::parse_result parsed = toml::parse(text);
  if (!parsed || IsDeeperThan(parsed.table(), kDeepest)) return std::nullopt;
  return std::move(parsed).table();
}

std::string PrintToml(const toml::table& root) {
  return Writer().Document(root);
}

}  // namespace kav
