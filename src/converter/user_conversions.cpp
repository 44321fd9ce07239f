#include "converter/user_conversions.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "converter/converter_texts.h"
#include "engine/fold_case.h"
#include "engine/tokenizer.h"
#include "settings/stored_list_texts.h"

namespace kav {
namespace {

using Conversions = std::vector<UserConversion>;

/// How all rates are written after one conversion was removed.
std::string RewrittenRate(const UserConversion& conversion) {
  constexpr int kDecimals = 6;
  return PrintFixed(conversion.Rate(), kDecimals);
}

std::optional<ConversionRefusal> CheckNames(const TypedConversion& typed) {
  const auto refuse = [](std::u16string_view text, ConversionField focus) {
    return ConversionRefusal{std::u16string(text), focus};
  };
  const auto hasArrow = [](std::u16string_view name) {
    return name.find(kConversionArrow) != std::u16string_view::npos;
  };
  if (typed.source.empty()) return refuse(kUnitNameIsEmpty, ConversionField::Source);
  if (typed.target.empty()) return refuse(kUnitNameIsEmpty, ConversionField::Target);
  // The text of the conversion could not be split into its names again.
  if (hasArrow(typed.source)) return refuse(kUnitNameHasArrow, ConversionField::Source);
  if (hasArrow(typed.target)) return refuse(kUnitNameHasArrow, ConversionField::Target);
  return std::nullopt;
}

}  // namespace

double UserConversion::Rate() const {
  return ReadLeadingNumber(rateText);
}

std::vector<UserConversion> LoadUserConversions(const SettingsStore& settings) {
  const int count = std::clamp(settings.Get(kUserConversionCount), 0, kMostUserConversions);
  Conversions stored;
  stored.reserve(static_cast<std::size_t>(count));
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

std::u16string UserConversionTraits::FullText() {
  return MaximumOfUserConversions(kCapacity);
}

Expected<UserConversion, ConversionRefusal> UserConversionTraits::Check(
    const TypedConversion& typed, const Conversions& others) {
  const TypedConversion cleaned{Cleaned(typed.source), Cleaned(typed.target), Cleaned(typed.rate)};
  if (auto refusal = CheckNames(cleaned)) return *std::move(refusal);
  const std::u16string text = ConversionText(cleaned.source, cleaned.target);
  const UserConversion made{Narrow(text), Narrow(cleaned.rate)};
  const bool isTaken =
      std::any_of(others.begin(), others.end(),
                  [&made](const UserConversion& one) { return one.text == made.text; });
  if (isTaken) return ConversionRefusal{ExistsAlready(text), ConversionField::Source};
  if (ReadRate(cleaned.rate).value_or(0) == 0) {
    return ConversionRefusal{std::u16string(kConvertRateIsInvalid), ConversionField::Rate};
  }
  return made;
}

void UserConversionTraits::Write(const UserConversion& conversion, int index,
                                 SettingsStore& settings) {
  settings.Set(UserConversionText(index), conversion.text);
  settings.Set(UserConversionRate(index), conversion.rateText);
}

void UserConversionTraits::CloseGap(Conversions stored, int removed, SettingsStore& settings) {
  stored.erase(stored.begin() + removed);
  for (int i = 0; i < static_cast<int>(stored.size()); ++i) {
    UserConversion& one = stored[static_cast<std::size_t>(i)];
    one.rateText = RewrittenRate(one);
    Write(one, i, settings);
  }
}

std::optional<double> ReadRate(std::u16string_view text) {
  const std::string typed = Narrow(TrimBlanks(text));
  std::string_view number = typed;
  if (!number.empty() && (number.front() == '-' || number.front() == '+')) number.remove_prefix(1);
  const auto value = ReadWholeNumber(typed);
  if (!value || !std::isfinite(*value)) return std::nullopt;
  // What is a number may still be too long for the engine.
  if (!Tokenize(FoldCase(number, BaseMode::Decimal))) return std::nullopt;
  return value;
}

Expected<int, ConversionRefusal> SaveConversion(const TypedConversion& typed,
                                                const std::optional<StoredIdentity>& edited,
                                                SettingsStore& settings) {
  return SaveEntry<UserConversionTraits>(typed, edited, settings);
}

bool RemoveConversion(const StoredIdentity& conversion, SettingsStore& settings) {
  return RemoveEntry<UserConversionTraits>(conversion, settings);
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
