#include "memory/constants_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/ascii.h"
#include "common/number_text.h"
#include "memory/memory_texts.h"

namespace kav {
namespace {

std::u16string Printed(std::size_t count) {
  return Widen(PrintInteger(static_cast<std::int64_t>(count)));
}

/// `filter` with units as names write them, instead of the words that users may write in full.
std::u16string WithShortUnits(std::u16string_view filter) {
  constexpr std::u16string_view kFull = u"mole";
  constexpr std::size_t kShortLength = 3;
  std::u16string words(filter);
  std::transform(words.begin(), words.end(), words.begin(),
                 [](char16_t c) { return LowerCase(c); });
  for (std::size_t at = words.find(kFull); at != words.npos; at = words.find(kFull, at + 1)) {
    std::size_t end = at + kFull.size();
    if (end < words.size() && words[end] == u's') ++end;
    const bool isWord =
        (at == 0 || words[at - 1] == u' ') && (end == words.size() || words[end] == u' ');
    if (isWord) words.erase(at + kShortLength, end - at - kShortLength);
  }
  return words;
}

}  // namespace

ConstantsModel::ConstantsModel(const std::vector<std::string>& folders) {
  auto table = LoadConstants(folders);
  if (table) {
    table_ = *std::move(table);
  } else {
    failure_ = std::move(table).error();
  }
  SetFilter({});
}

void ConstantsModel::SetFilter(std::u16string_view filter) {
  const std::u16string words = WithShortUnits(filter);
  std::array<std::vector<std::size_t>, 3> found;  // by SymbolMatch
  for (std::size_t i = 0; i < table_.size(); ++i) {
    if (!Matches(table_[i], words)) continue;
    const auto match = words.empty() ? SymbolMatch::None : MatchSymbol(table_[i], filter);
    found[static_cast<std::size_t>(match)].push_back(i);
  }
  shown_.clear();
  for (const auto& some : found) shown_.insert(shown_.end(), some.begin(), some.end());
  if (!SelectedRow()) selected_.reset();
}

std::u16string ConstantsModel::CountText() const {
  return ShownOfAll(Printed(shown_.size()), Printed(table_.size()));
}

std::optional<std::size_t> ConstantsModel::SelectedRow() const {
  if (!selected_) return std::nullopt;
  const auto found = std::find(shown_.begin(), shown_.end(), *selected_);
  if (found == shown_.end()) return std::nullopt;
  return static_cast<std::size_t>(found - shown_.begin());
}

void ConstantsModel::Select(std::optional<std::size_t> row) {
  selected_.reset();
  if (row && *row < shown_.size()) selected_ = shown_[*row];
}

void ConstantsModel::Move(std::ptrdiff_t rows) {
  if (shown_.empty() || rows == 0) return;
  const auto last = static_cast<std::ptrdiff_t>(shown_.size()) - 1;
  const auto row = SelectedRow();
  if (!row) return Select(rows > 0 ? 0 : static_cast<std::size_t>(last));
  const auto from = static_cast<std::ptrdiff_t>(*row);
  Select(static_cast<std::size_t>(from + std::clamp(rows, -from, last - from)));
}

std::u16string_view ConstantsModel::SelectedName() const {
  return selected_ ? std::u16string_view(table_[*selected_].name) : std::u16string_view();
}

std::u16string_view ConstantsModel::SelectedValue() const {
  return selected_ ? std::u16string_view(table_[*selected_].value) : std::u16string_view();
}

Expected<std::u16string, std::u16string_view> ConstantsModel::Choose() const {
  if (!selected_) return kNoConstantSelected;
  return table_[*selected_].value;
}

}  // namespace kav
