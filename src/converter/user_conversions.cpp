#include "converter/user_conversions.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "common/number_text.h"
#include "converter/converter_texts.h"
#include "engine/expression_engine.h"
#include "engine/tokenizer.h"
#include "settings/keys.h"

namespace kav {
namespace {

using Conversions = std::vector<UserConversion>;
using SaveRefusal = Refusal<ConversionField>;

/// All rates are written like this once one conversion was removed.
std::string RewrittenRate(const UserConversion& conversion) {
  constexpr int kDecimals = 6;
  return PrintFixed(conversion.Rate(), kDecimals);
}

void Write(const UserConversion& conversion, int index, SettingsStore& settings) {
  settings.Set(UserConversionText(index), conversion.text);
  settings.Set(UserConversionRate(index), conversion.rateText);
}

/// `typed` without blanks around it. What is pasted brings line breaks and tabs along, which mean
/// no more than blanks do.
std::u16string Cleaned(std::u16string text) {
  return std::u16string(TrimBlanks(OnOneLine(std::move(text))));
}

TypedConversion Cleaned(const TypedConversion& typed) {
  return {Cleaned(typed.source), Cleaned(typed.target), Cleaned(typed.rate)};
}

std::optional<int> Find(std::string_view text, const Conversions& stored) {
  const auto found = std::find_if(stored.begin(), stored.end(),
                                  [text](const UserConversion& one) { return one.text == text; });
  if (found == stored.end()) return std::nullopt;
  return static_cast<int>(found - stored.begin());
}

bool IsUsedByAnother(std::string_view text, std::optional<int> own, const Conversions& stored) {
  for (int i = 0; i < static_cast<int>(stored.size()); ++i) {
    if (i != own && stored[static_cast<std::size_t>(i)].text == text) return true;
  }
  return false;
}

std::optional<SaveRefusal> CheckNames(const TypedConversion& typed) {
  const auto refuse = [](std::u16string_view text, ConversionField focus) {
    return SaveRefusal{std::u16string(text), focus};
  };
  const auto hasArrow = [](std::u16string_view name) {
    return name.find(kConversionArrow) != std::u16string_view::npos;
  };
  if (typed.source.empty()) return refuse(kUnitNameIsEmpty, ConversionField::Source);
  if (typed.target.empty()) return refuse(kUnitNameIsEmpty, ConversionField::Target);
  // The text of the conversion could not be taken apart again.
  if (hasArrow(typed.source)) return refuse(kUnitNameHasArrow, ConversionField::Source);
  if (hasArrow(typed.target)) return refuse(kUnitNameHasArrow, ConversionField::Target);
  return std::nullopt;
}

/// SaveConversion, within a change of `settings`.
Expected<int, SaveRefusal> Save(const TypedConversion& asTyped,
                                const std::optional<ConversionIdentity>& edited,
                                SettingsStore& settings) {
  const Conversions stored = LoadUserConversions(settings);
  const int count = static_cast<int>(stored.size());
  if (count >= kMostUserConversions) {
    return SaveRefusal{MaximumOfUserConversions(kMostUserConversions), ConversionField::None};
  }
  const TypedConversion typed = Cleaned(asTyped);
  if (auto refusal = CheckNames(typed)) return *std::move(refusal);
  const auto place = edited ? PlaceOf(*edited, stored) : std::nullopt;
  const std::u16string text = ConversionText(typed.source, typed.target);
  if (IsUsedByAnother(Narrow(text), place, stored)) {
    return SaveRefusal{ConversionExistsAlready(text), ConversionField::Source};
  }
  if (ReadRate(typed.rate).value_or(0) == 0) {
    return SaveRefusal{std::u16string(kConvertRateIsInvalid), ConversionField::Rate};
  }
  const int index = place.value_or(count);
  Write({Narrow(text), Narrow(typed.rate)}, index, settings);
  settings.Set(kUserConversionCount, std::max(count, index + 1));
  return index;
}

bool Remove(const ConversionIdentity& conversion, SettingsStore& settings) {
  Conversions stored = LoadUserConversions(settings);
  const auto place = PlaceOf(conversion, stored);
  if (!place) return false;
  stored.erase(stored.begin() + *place);
  const int count = static_cast<int>(stored.size());
  for (int i = 0; i < count; ++i) {
    UserConversion& one = stored[static_cast<std::size_t>(i)];
    one.rateText = RewrittenRate(one);
    Write(one, i, settings);
  }
  settings.Set(kUserConversionCount, count);
  return true;
}

}  // namespace

double UserConversion::Rate() const {
  return ReadLeadingNumber(rateText);
}

std::vector<UserConversion> LoadUserConversions(const SettingsStore& settings) {
  const int count = std::clamp(settings.Get(kUserConversionCount), 0, kMostUserConversions);
  Conversions stored;
  for (int i = 0; i < count; ++i) {
    stored.push_back({settings.Get(UserConversionText(i)), settings.Get(UserConversionRate(i))});
  }
  while (!stored.empty() && stored.back() == UserConversion{}) stored.pop_back();
  return stored;
}

UnitNames SplitConversion(std::u16string_view text) {
  const std::size_t arrow = text.find(kConversionArrow);
  if (arrow == std::u16string_view::npos) return {std::u16string(text), {}};
  std::u16string_view source = text.substr(0, arrow);
  if (!source.empty() && source.back() == u' ') source.remove_suffix(1);
  // The arrow and the one blank behind it.
  const std::size_t target = std::min(arrow + kConversionArrow.size() + 1, text.size());
  return {std::u16string(source), std::u16string(text.substr(target))};
}

std::optional<int> PlaceOf(const ConversionIdentity& conversion, const Conversions& stored) {
  const auto place = static_cast<std::size_t>(conversion.index);
  const bool isInside = conversion.index >= 0 && place < stored.size();
  if (isInside && stored[place].text == conversion.text) return conversion.index;
  return Find(conversion.text, stored);
}

std::optional<double> ReadRate(std::u16string_view text) {
  const std::string typed = Narrow(TrimBlanks(text));
  std::string_view number = typed;
  if (!number.empty() && (number.front() == '-' || number.front() == '+')) number.remove_prefix(1);
  const auto value = ReadWholeNumber(typed);
  if (!value || !std::isfinite(*value)) return std::nullopt;
  // What is a number may still be too long for the engine.
  TokenArray tokens;
  if (Tokenize(FoldCase(number, BaseMode::Decimal), tokens)) return std::nullopt;
  return value;
}

Expected<int, Refusal<ConversionField>> SaveConversion(
    const TypedConversion& typed, const std::optional<ConversionIdentity>& edited,
    SettingsStore& settings) {
  std::optional<Expected<int, SaveRefusal>> saved;
  settings.Change([&] { saved.emplace(Save(typed, edited, settings)); });
  return *std::move(saved);
}

bool RemoveConversion(const ConversionIdentity& conversion, SettingsStore& settings) {
  bool isRemoved = false;
  settings.Change([&] { isRemoved = Remove(conversion, settings); });
  return isRemoved;
}

std::vector<UserConversion> LosingDigits(const std::vector<UserConversion>& conversions,
                                         int removed) {
  Conversions losing;
  for (int i = 0; i < static_cast<int>(conversions.size()); ++i) {
    const UserConversion& one = conversions[static_cast<std::size_t>(i)];
    const bool keeps = ReadLeadingNumber(RewrittenRate(one)) == one.Rate();
    if (i != removed && !keeps) losing.push_back(one);
  }
  return losing;
}

}  // namespace kav
