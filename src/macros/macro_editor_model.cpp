#include "macros/macro_editor_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/number_text.h"
#include "line/keypad.h"
#include "macros/macros_texts.h"

namespace kav {
namespace {

/// A function of the pop-up and the key that writes it. A separator is a key that writes nothing.
struct FunctionItem {
  std::u16string_view text;
  Key key = Key::Clear;
  Face face = Face::Plain;
};

// clang-format off
constexpr std::array kFunctionItems{
    FunctionItem{u"ABS(X)",  Key::Abs,     Face::Plain},
    FunctionItem{u"ACOS(X)", Key::Cos,     Face::Shifted},
    FunctionItem{u"ASIN(X)", Key::Sin,     Face::Shifted},
    FunctionItem{u"ATAN(X)", Key::Tan,     Face::Shifted},
    FunctionItem{u"COS(X)",  Key::Cos,     Face::Plain},
    FunctionItem{u"COSH(X)", Key::Cosh,    Face::Plain},
    FunctionItem{u"EXP(X)",  Key::Ln,      Face::Shifted},
    FunctionItem{u"FRAC(X)", Key::Percent, Face::Shifted},
    FunctionItem{u"INT(X)",  Key::Abs,     Face::Shifted},
    FunctionItem{u"LN(X)",   Key::Ln,      Face::Plain},
    FunctionItem{u"LOG(X)",  Key::Log,     Face::Plain},
    FunctionItem{u"SIN(X)",  Key::Sin,     Face::Plain},
    FunctionItem{u"SINH(X)", Key::Sinh,    Face::Plain},
    FunctionItem{u"SQRT(X)", Key::Sqrt,    Face::Plain},
    FunctionItem{u"TAN(X)",  Key::Tan,     Face::Plain},
    FunctionItem{u"TANH(X)", Key::Tanh,    Face::Plain},
    FunctionItem{u"XthR(X)", Key::Sqrt,    Face::Shifted},
    FunctionItem{},
    FunctionItem{u"%",       Key::Percent, Face::Plain},
    FunctionItem{u"X!",      Key::Pi,      Face::Shifted},
    FunctionItem{u"nPr",     Key::Ncr,     Face::Shifted},
    FunctionItem{u"nCr",     Key::Ncr,     Face::Plain},
    FunctionItem{},
    FunctionItem{u"Pi",      Key::Pi,      Face::Plain},
};
// clang-format on

struct VariableItem {
  std::u16string_view text;
  std::u16string_view written;
};

constexpr std::array kVariableItems{VariableItem{u"X", u"x"}, VariableItem{u"Y", u"y"},
                                    VariableItem{u"Z", u"z"}};

std::u16string ShownStored(std::string_view stored) {
  constexpr std::size_t kMostBytes = 4;  // of one character
  return ShownText(Widen(stored.substr(0, kMostBytes * (kLongestShownText + 1))));
}

MacroFields FieldsOf(const Macro& macro) {
  MacroFields fields{ShownStored(macro.name), macro.type, {}};
  fields.formula.Set(ShownStored(macro.formula), {});
  return fields;
}

}  // namespace

MacroEditorModel::MacroEditorModel(SettingsStore& settings) : settings_(settings), list_(settings) {
  Browse();
}

std::u16string MacroEditorModel::CountText() const {
  return MacroListCaption(static_cast<std::size_t>(list_.Count()), MacroStore::kCapacity);
}

bool MacroEditorModel::Shows(EditorButton button) const {
  switch (button) {
    case EditorButton::New:
      return list_.Count() < MacroStore::kCapacity;
    case EditorButton::Edit:
    case EditorButton::Delete:
      return list_.Count() > 0;
    case EditorButton::Close:
      return !isEditing_;
    default:
      return isEditing_;
  }
}

bool MacroEditorModel::Enables(EditorButton button) const {
  switch (button) {
    case EditorButton::New:
      return !isEditing_;
    case EditorButton::Edit:
    case EditorButton::Delete:
      return !isEditing_ && Selected().has_value();
    default:
      return true;
  }
}

EditorButton MacroEditorModel::DefaultButton() const {
  if (isEditing_) return EditorButton::Save;
  return Selected() ? EditorButton::Edit : EditorButton::New;
}

void MacroEditorModel::Select(std::optional<int> place) {
  if (isEditing_) return;
  list_.Select(place);
  Browse();
}

void MacroEditorModel::New() {
  BrowseAnew();
  fields_ = {};
  isEditing_ = true;
}

void MacroEditorModel::Edit() {
  BrowseAnew();
  edited_ = list_.SelectedIdentity();
  isEditing_ = edited_.has_value();
  const std::size_t end = fields_.formula.Text().size();
  fields_.formula.Select({end, end});
}

std::u16string_view MacroEditorModel::DeleteQuestion() {
  return kDeleteMacroQuestion;
}

void MacroEditorModel::Delete() {
  const auto macro = list_.SelectedIdentity();
  if (isEditing_ || !macro) return;
  RemoveMacro(*macro, settings_);
  list_.Reread();
  list_.Select(std::min(macro->index, list_.Count() - 1));
  Browse();
}

void MacroEditorModel::Take(MacroFields typed) {
  if (isEditing_) fields_ = std::move(typed);
}

std::optional<Refusal<MacroField>> MacroEditorModel::Save() {
  if (!isEditing_) return std::nullopt;
  TypedMacro typed{fields_.name, fields_.type, fields_.formula.Text()};
  // A name that nobody touched stays what it is, however much of it was shown.
  if (edited_ && typed.name == ShownStored(edited_->name)) typed.name = Widen(edited_->name);
  const auto saved = SaveMacro(typed, edited_, settings_);
  if (!saved) return saved.error();
  list_.Reread();
  list_.Select(*saved);
  Browse();
  return std::nullopt;
}

void MacroEditorModel::Cancel() {
  if (isEditing_) BrowseAnew();
}

PopUpTexts MacroEditorModel::FunctionItems() {
  PopUpTexts texts;
  for (const FunctionItem& item : kFunctionItems) texts.push_back(item.text);
  return texts;
}

void MacroEditorModel::ChooseFunction(std::size_t item) {
  if (!isEditing_ || item >= kFunctionItems.size()) return;
  const FunctionItem& function = kFunctionItems[item];
  ApplyFace(FaceOf(function.key, function.face), fields_.formula);
}

PopUpTexts MacroEditorModel::VariableItems() const {
  const auto last = static_cast<std::size_t>(fields_.type.value_or(VariableType::XYZ));
  PopUpTexts texts;
  for (std::size_t i = 0; i <= last; ++i) texts.push_back(kVariableItems[i].text);
  return texts;
}

void MacroEditorModel::ChooseVariable(std::size_t item) {
  if (item < VariableItems().size()) InsertIntoFormula(kVariableItems[item].written);
}

void MacroEditorModel::InsertIntoFormula(std::u16string_view text) {
  if (isEditing_) fields_.formula.InsertText(ShownText(text));
}

/// Browses the list as all programs have stored it by now.
void MacroEditorModel::BrowseAnew() {
  settings_.Refresh();
  list_.Reread();
  Browse();
}

void MacroEditorModel::Browse() {
  isEditing_ = false;
  edited_ = std::nullopt;
  const Macro* macro = list_.SelectedMacro();
  fields_ = macro != nullptr ? FieldsOf(*macro) : MacroFields{};
}

}  // namespace kav
