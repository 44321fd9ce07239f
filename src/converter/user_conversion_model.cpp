#include "converter/user_conversion_model.h"

#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "display/comma_reading.h"

namespace kav {
namespace {

/// A field that holds much more is no longer fluent.
std::u16string Shown(std::u16string_view text) {
  constexpr std::size_t kMostShown = 16'384;
  return Shortened(text, kMostShown);
}

}  // namespace

TypedConversion UserConversionEditorTraits::FieldsOf(const UserConversion& conversion) {
  const UnitNames names = SplitConversion(Widen(conversion.text));
  return {Shown(names.source), Shown(names.target), Shown(Widen(conversion.rateText))};
}

Expected<UserConversion, ConversionRefusal> UserConversionEditorTraits::Check(
    const TypedConversion& typed, const std::vector<UserConversion>& others) {
  auto checked = UserConversionTraits::Check(typed, others);
  if (checked || checked.error().focus != ConversionField::Rate) return checked;
  auto comma = CommaRefusal(typed.rate);
  return comma ? ConversionRefusal{*std::move(comma), ConversionField::Rate} : checked;
}

TypedConversion UserConversionEditorTraits::TypedOf(TypedConversion fields,
                                                    const std::optional<StoredIdentity>& edited) {
  if (!edited) return fields;
  // A name that nobody touched stays what it is, even if it was cut in its field.
  UnitNames names = SplitConversion(Widen(edited->name));
  if (fields.source == Shown(names.source)) fields.source = std::move(names.source);
  if (fields.target == Shown(names.target)) fields.target = std::move(names.target);
  return fields;
}

std::u16string UserConversionModel::DeleteWarning() const {
  // Sixty names would not fit any screen.
  constexpr std::size_t kMostNamed = 5;
  constexpr std::size_t kMostOfName = 40;
  const auto losing = LosingDigits(Entries(), Selected().value_or(-1));
  if (losing.empty()) return {};
  std::u16string warning(kRatesWillLoseDigits);
  const std::size_t named = std::min(losing.size(), kMostNamed);
  for (std::size_t i = 0; i < named; ++i) {
    warning += u"\n" + Shortened(Widen(losing[i].text), kMostOfName);
  }
  if (losing.size() > named) warning += u"\n" + AndMoreConversions(losing.size() - named);
  return warning;
}

void UserConversionModel::TakeRate(std::u16string_view text) {
  TypedConversion fields = Fields();
  fields.rate = Shown(text);
  Take(std::move(fields));
}

}  // namespace kav
