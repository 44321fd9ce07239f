#include "converter/converter_model.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "common/number_text.h"
#include "converter/conversion.h"
#include "converter/converter_texts.h"
#include "display/comma_reading.h"
#include "display/number_input.h"
#include "engine/calc_modes.h"
#include "engine/expression_engine.h"
#include "settings/keys.h"

namespace kav {
namespace {

constexpr int kNone = -1;

template <class List>
bool Has(const List& list, int position) {
  return position >= 0 && static_cast<std::size_t>(position) < list.size();
}

template <class List>
int PositionIn(const List& list, int wanted) {
  return Has(list, wanted) ? wanted : kNone;
}

template <class List>
const auto& At(const List& list, int position) {
  return list[static_cast<std::size_t>(position)];
}

/// Whether `text` is signs and then what looks like one number: such a text is a number or is
/// mistyped, also where the evaluator would make something of it, as of "1e" and ".".
bool LooksLikeNumber(std::u16string_view text) {
  text = TrimBlanks(text);
  text.remove_prefix(std::min(text.find_first_not_of(u"+- "), text.size()));
  const std::size_t mark = std::min(text.find_first_of(u"eE"), text.size());
  std::u16string_view exponent = text.substr(std::min(mark + 1, text.size()));
  if (!exponent.empty() && (exponent.front() == u'+' || exponent.front() == u'-')) {
    exponent.remove_prefix(1);
  }
  constexpr std::u16string_view kDigits = u"0123456789.,";
  return text.substr(0, mark).find_first_not_of(kDigits) == text.npos &&
         exponent.find_first_not_of(kDigits) == exponent.npos;
}

SettingsStore& Refreshed(SettingsStore& settings) {
  settings.Refresh();
  return settings;
}

}  // namespace

ConverterModel::ConverterModel(SettingsStore& settings, std::u16string text,
                               UnitPositions remembered)
    : settings_(Refreshed(settings)),
      format_(LoadDisplayFormat(settings)),
      userConversions_(LoadUserConversions(settings)),
      text_(std::move(text)) {
  positions_.category = PositionIn(UnitCategories(), remembered.category);
  LoadLists();
  ChooseInput(remembered.input);
  ChooseOutput(remembered.output);
}

std::vector<std::u16string> ConverterModel::Categories() {
  std::vector<std::u16string> captions;
  for (const UnitCategory& category : UnitCategories()) captions.emplace_back(category.caption);
  return captions;
}

const UnitCategory* ConverterModel::Category() const {
  return positions_.category == kNone ? nullptr : &At(UnitCategories(), positions_.category);
}

bool ConverterModel::ListsConversions() const {
  const UnitCategory* category = Category();
  return category != nullptr && category->kind != CategoryKind::Rates;
}

std::optional<std::u16string_view> ConverterModel::ChooseCategory(int category) {
  if (category != positions_.category) {
    positions_.category = PositionIn(UnitCategories(), category);
    LoadLists();
    ChooseInput(0);
    ChooseOutput(0);
  }
  const UnitCategory* chosen = Category();
  const bool isUsers = chosen != nullptr && chosen->kind == CategoryKind::UserDefined;
  return isUsers && inputs_.empty() ? std::optional(kNoUserConversionStored) : std::nullopt;
}

void ConverterModel::RereadUserConversions() {
  userConversions_ = LoadUserConversions(settings_);
  const int category = userConversions_.empty() ? 0 : positions_.category;
  positions_.category = kNone;  // So that its lists are loaded anew.
  (void)ChooseCategory(category);
}

void ConverterModel::TakeUserConversions() {
  const UnitCategory* category = Category();
  if (category == nullptr || category->kind != CategoryKind::UserDefined) {
    userConversions_ = LoadUserConversions(settings_);
    return;
  }
  const std::u16string chosen =
      positions_.input == kNone ? std::u16string() : At(inputs_, positions_.input);
  RereadUserConversions();
  if (userConversions_.empty()) return;
  const auto same = std::find(inputs_.begin(), inputs_.end(), chosen);
  if (same != inputs_.end()) ChooseInput(static_cast<int>(same - inputs_.begin()));
}

void ConverterModel::LoadLists() {
  inputs_.clear();
  outputs_.clear();
  const UnitCategory* category = Category();
  if (category == nullptr) return;
  switch (category->kind) {
    case CategoryKind::Rates:
      for (const Unit& unit : category->units) inputs_.emplace_back(unit.name);
      outputs_ = inputs_;
      return;
    case CategoryKind::Temperature:
      for (const auto& conversion : TemperatureConversions()) {
        inputs_.emplace_back(conversion.caption);
      }
      return;
    case CategoryKind::UserDefined:
      for (const auto& conversion : userConversions_) inputs_.push_back(Widen(conversion.text));
      return;
  }
}

void ConverterModel::ChooseInput(int position) {
  positions_.input = PositionIn(inputs_, position);
  reverse_ = ListsConversions() ? ReverseOf(positions_.input) : kNone;
}

void ConverterModel::ChooseOutput(int position) {
  positions_.output = PositionIn(outputs_, position);
}

int ConverterModel::ReverseOf(int position) const {
  if (position == kNone) return kNone;
  const UnitNames names = SplitConversion(At(inputs_, position));
  for (int i = 0; Has(inputs_, i); ++i) {
    const UnitNames other = SplitConversion(At(inputs_, i));
    if (other.source == names.target && other.target == names.source) return i;
  }
  return kNone;
}

bool ConverterModel::CanSwap() const {
  if (ListsConversions()) return reverse_ != kNone;
  return positions_.input != kNone && positions_.output != kNone;
}

void ConverterModel::Swap() {
  if (!CanSwap()) return;
  if (ListsConversions()) return ChooseInput(reverse_);
  std::swap(positions_.input, positions_.output);
}

Expected<double, std::u16string> ConverterModel::Value() const {
  auto number = ReadNumberField(text_, kValueIsNoNumber);
  if (number || CommaRefusal(text_) || LooksLikeNumber(text_)) return number;
  const AngleUnit unit = AngleUnitFromSetting(settings_.Get(kAngleType));
  const auto value = Evaluate(Narrow(WithoutThousands(text_)), {unit, BaseMode::Decimal});
  if (!value) return number;
  return *value;
}

std::optional<std::u16string> ConverterModel::TextRefusal() const {
  auto value = Value();
  return value ? std::nullopt : std::optional(std::move(value).error());
}

std::optional<double> ConverterModel::Converted() const {
  const auto value = Value();
  return value ? Convert(*value) : std::nullopt;
}

std::optional<double> ConverterModel::Convert(double value) const {
  const UnitCategory* category = Category();
  if (category == nullptr || positions_.input == kNone) return std::nullopt;
  switch (category->kind) {
    case CategoryKind::Rates:
      if (positions_.output == kNone) return std::nullopt;
      return ConvertUnits(value, At(category->units, positions_.input),
                          At(category->units, positions_.output));
    case CategoryKind::Temperature:
      return At(TemperatureConversions(), positions_.input).convert(value);
    case CategoryKind::UserDefined:
      return ConvertByRate(value, At(userConversions_, positions_.input).Rate());
  }
  return std::nullopt;
}

std::u16string ConverterModel::ShownResult() const {
  const auto converted = Converted();
  if (!converted) return {};
  return Widen(TextOrMessage(FormatNumber(*converted, format_)));
}

std::optional<std::u16string> ConverterModel::Result() const {
  const auto converted = Converted();
  if (!converted) return std::nullopt;
  const auto result = FormatForInsertion(*converted, format_);
  return result ? std::optional(Widen(*result)) : std::nullopt;
}

std::optional<std::u16string> ConverterModel::OkRefusal() const {
  if (auto comma = CommaRefusal(text_)) return comma;
  const auto converted = Converted();
  const bool cannotBeShown = converted && !std::isfinite(*converted);
  if (TextRefusal() || cannotBeShown) return std::u16string(kConvertingFailed);
  return std::nullopt;
}

}  // namespace kav
