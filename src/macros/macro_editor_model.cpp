#include "macros/macro_editor_model.h"

#include <array>
#include <utility>

#include "common/number_text.h"
#include "line/keypad.h"

namespace kav {
namespace {

/// A function of the pop-up menu and the key that writes it. The key of a separator writes nothing.
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

}  // namespace

MacroFields MacroEditorTraits::FieldsOf(const Macro& macro) {
  MacroFields fields{ShownStored(macro.name), macro.type, {}};
  fields.formula.Set(ShownStored(macro.formula), {});
  return fields;
}

MacroFields MacroEditorTraits::FieldsToEdit(const Macro& macro) {
  MacroFields fields = FieldsOf(macro);
  const std::size_t end = fields.formula.Text().size();
  fields.formula.Select({end, end});
  return fields;
}

TypedMacro MacroEditorTraits::TypedOf(const MacroFields& fields,
                                      const std::optional<StoredIdentity>& edited) {
  TypedMacro typed{fields.name, fields.type, fields.formula.Text()};
  // A name that nobody touched stays what it is, even if it was cut in its field.
  if (edited && typed.name == ShownStored(edited->name)) typed.name = Widen(edited->name);
  return typed;
}

PopUpTexts MacroEditorModel::FunctionItems() {
  PopUpTexts texts;
  texts.reserve(kFunctionItems.size());
  for (const FunctionItem& item : kFunctionItems) texts.push_back(item.text);
  return texts;
}

void MacroEditorModel::ChooseFunction(std::size_t item) {
  if (item >= kFunctionItems.size()) return;
  const FunctionItem& function = kFunctionItems[item];
  MacroFields fields = Fields();
  ApplyFace(FaceOf(function.key, function.face), fields.formula);
  Take(std::move(fields));
}

PopUpTexts MacroEditorModel::VariableItems() const {
  const auto last = static_cast<std::size_t>(Fields().type.value_or(VariableType::XYZ));
  PopUpTexts texts;
  texts.reserve(last + 1);
  for (std::size_t i = 0; i <= last; ++i) texts.push_back(kVariableItems[i].text);
  return texts;
}

void MacroEditorModel::ChooseVariable(std::size_t item) {
  if (item < VariableItems().size()) InsertIntoFormula(kVariableItems[item].written);
}

void MacroEditorModel::InsertIntoFormula(std::u16string_view text) {
  MacroFields fields = Fields();
  fields.formula.InsertText(ShownText(text));
  Take(std::move(fields));
}

}  // namespace kav
