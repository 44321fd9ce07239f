#include "converter/user_conversion_model.h"

#include <algorithm>
#include <utility>

#include "common/number_text.h"
#include "converter/converter_texts.h"

namespace kav {
namespace {

/// A field that holds much more is no longer fluent.
std::u16string Shown(std::u16string_view text) {
  constexpr std::size_t kMostShown = 16'384;
  return Shortened(text, kMostShown);
}

TypedConversion EmptyFields() {
  return {{}, {}, u"0"};
}

TypedConversion FieldsOf(const UserConversion& conversion) {
  const UnitNames names = SplitConversion(Widen(conversion.text));
  return {Shown(names.source), Shown(names.target), Shown(Widen(conversion.rateText))};
}

/// A name that nobody touched stays what it is, however much of it was shown.
void RestoreUntouched(TypedConversion& typed, const ConversionIdentity& edited) {
  UnitNames names = SplitConversion(Widen(edited.text));
  if (typed.source == Shown(names.source)) typed.source = std::move(names.source);
  if (typed.target == Shown(names.target)) typed.target = std::move(names.target);
}

}  // namespace

UserConversionModel::UserConversionModel(SettingsStore& settings) : settings_(settings) {
  settings_.Refresh();
  conversions_ = LoadUserConversions(settings_);
  Put(0);
}

std::vector<std::u16string> UserConversionModel::Labels() const {
  std::vector<std::u16string> labels;
  labels.reserve(conversions_.size());
  for (const UserConversion& conversion : conversions_) labels.push_back(Widen(conversion.text));
  return labels;
}

std::u16string UserConversionModel::CountText() const {
  return UserConversionsCaption(Count(), kMostUserConversions);
}

bool UserConversionModel::Shows(ConversionButton button) const {
  switch (button) {
    case ConversionButton::New:
      return !isEditing_ && Count() < kMostUserConversions;
    case ConversionButton::Edit:
    case ConversionButton::Delete:
      return !isEditing_ && Count() > 0;
    case ConversionButton::Close:
      return !isEditing_;
    default:
      return isEditing_;
  }
}

bool UserConversionModel::Enables(ConversionButton button) const {
  const bool needsSelection =
      button == ConversionButton::Edit || button == ConversionButton::Delete;
  return !needsSelection || selected_.has_value();
}

ConversionButton UserConversionModel::DefaultButton() const {
  if (isEditing_) return ConversionButton::Save;
  return selected_ ? ConversionButton::Edit : ConversionButton::New;
}

void UserConversionModel::Select(std::optional<int> place) {
  if (!isEditing_) Put(place);
}

void UserConversionModel::LookAgain() {
  if (!isEditing_) BrowseAnew();
}

void UserConversionModel::New() {
  BrowseAnew();
  fields_ = EmptyFields();
  isEditing_ = true;
}

void UserConversionModel::Edit() {
  BrowseAnew();
  edited_ = SelectedIdentity();
  isEditing_ = edited_.has_value();
}

ConversionField UserConversionModel::FirstField() const {
  return edited_ ? ConversionField::Rate : ConversionField::Source;
}

std::u16string_view UserConversionModel::DeleteQuestion() {
  return kDeleteConversionQuestion;
}

std::u16string UserConversionModel::DeleteWarning() const {
  // Sixty names would not fit any screen.
  constexpr std::size_t kMostNamed = 5;
  constexpr std::size_t kMostOfName = 40;
  const auto losing = LosingDigits(conversions_, selected_.value_or(-1));
  if (losing.empty()) return {};
  std::u16string warning(kRatesWillLoseDigits);
  const std::size_t named = std::min(losing.size(), kMostNamed);
  for (std::size_t i = 0; i < named; ++i) {
    warning += u"\n" + Shortened(Widen(losing[i].text), kMostOfName);
  }
  if (losing.size() > named) warning += u"\n" + AndMoreConversions(losing.size() - named);
  return warning;
}

void UserConversionModel::Delete() {
  const auto removed = SelectedIdentity();
  if (isEditing_ || !removed) return;
  RemoveConversion(*removed, settings_);
  Reload();
  Put(std::min(removed->index, Count() - 1));
}

void UserConversionModel::Take(TypedConversion typed) {
  if (isEditing_) fields_ = std::move(typed);
}

void UserConversionModel::TakeRate(std::u16string_view text) {
  if (isEditing_) fields_.rate = Shown(text);
}

std::optional<Refusal<ConversionField>> UserConversionModel::Save() {
  if (!isEditing_) return std::nullopt;
  TypedConversion typed = fields_;
  if (edited_) RestoreUntouched(typed, *edited_);
  const auto saved = SaveConversion(typed, edited_, settings_);
  if (!saved) return saved.error();
  Reload();
  Put(*saved);
  return std::nullopt;
}

void UserConversionModel::Cancel() {
  if (isEditing_) BrowseAnew();
}

const UserConversion* UserConversionModel::SelectedConversion() const {
  return selected_ ? &conversions_[static_cast<std::size_t>(*selected_)] : nullptr;
}

std::optional<ConversionIdentity> UserConversionModel::SelectedIdentity() const {
  if (!selected_) return std::nullopt;
  return ConversionIdentity{*selected_, SelectedConversion()->text};
}

/// Browses with the conversion of that place selected and shown.
void UserConversionModel::Put(std::optional<int> place) {
  const bool isThere = place && *place >= 0 && *place < Count();
  selected_ = isThere ? place : std::nullopt;
  isEditing_ = false;
  edited_ = std::nullopt;
  const UserConversion* shown = SelectedConversion();
  fields_ = shown != nullptr ? FieldsOf(*shown) : EmptyFields();
}

void UserConversionModel::Reload() {
  conversions_ = LoadUserConversions(settings_);
}

/// Browses the list as all programs have stored it by now.
void UserConversionModel::BrowseAnew() {
  const auto selected = SelectedIdentity();
  settings_.Refresh();
  Reload();
  Put(selected ? PlaceOf(*selected, conversions_) : std::nullopt);
}

}  // namespace kav
