#include "macros/macro_call.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "support/marked_line.h"
#include "support/stored_macros.h"

namespace kav::macro_call_test {
namespace {

using test::Marked;
using test::MarkedLine;

/// Settings that other programs share: what they stored meanwhile comes with Refresh.
class SharedStore final : public SettingsStore {
 public:
  void Refresh() override {
    MarkChanged();
    ++refreshes_;
    test::StoreMacros(*this, {{"F", "TYPE1 : F(X)", "x^2"}});
  }
  int Refreshes() const { return refreshes_; }

 private:
  std::optional<StoredSetting> Read(std::string_view section,
                                    std::string_view name) const override {
    const auto found = settings_.find({std::string(section), std::string(name)});
    if (found == settings_.end()) return std::nullopt;
    return found->second;
  }
  void Write(std::string_view section, std::string_view name, StoredSetting value) override {
    settings_[{std::string(section), std::string(name)}] = std::move(value);
  }

  std::map<std::pair<std::string, std::string>, StoredSetting> settings_;
  int refreshes_ = 0;
};

TEST(MacroCall, ListIsAskedForWhereThereAreMacros) {
  MemorySettingsStore store;
  test::StoreMacros(store, {{"F", "TYPE1 : F(X)", "x^2"}});
  EXPECT_TRUE(std::holds_alternative<OpenMacroList>(RequestMacro(store, MacroStore(store))));
}

TEST(MacroCall, EditorIsAskedForWhereThereIsNone) {
  MemorySettingsStore store;
  const auto request = RequestMacro(store, MacroStore(store));
  const auto* editor = std::get_if<OpenMacroEditor>(&request);
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->message, u"Not exist saved macro");
}

TEST(MacroCall, FirstMacroThatAnotherProgramStoredIsFound) {
  SharedStore store;
  EXPECT_TRUE(std::holds_alternative<OpenMacroList>(RequestMacro(store, MacroStore(store))));
}

TEST(MacroCall, CallHasAPlaceForEachArgument) {
  MemorySettingsStore store;
  test::StoreMacros(store, {{"F1", "TYPE1 : F(X)", "x"},
                            {"F2", "TYPE2 : F(X,Y)", "x+y"},
                            {"F3", "TYPE3 : F(X,Y,Z)", "x+y+z"}});
  const MacroStore macros(store);
  struct Row {
    int index;
    std::u16string_view before;
    std::u16string_view after;
  };
  for (const Row& row : {
           Row{0, u"|", u"M:F1(| )"},
           Row{1, u"|", u"M:F2(| , )"},
           Row{2, u"|", u"M:F3(| , , )"},
           Row{1, u"[2]", u"M:F2(2 , )|"},
           Row{0, u"1+[2]*3", u"1+M:F1(2 )|*3"},
           Row{-1, u"1|2", u"1|2"},
           Row{3, u"1|2", u"1|2"},
       }) {
    ExpressionLine line = MarkedLine(row.before);
    WriteMacroCall(row.index, macros, line);
    EXPECT_EQ(Marked(line), row.after) << row.index;
  }
}

TEST(MacroCall, CallsAreEvaluatedWithTheMacrosOfNow) {
  SharedStore store;
  const MacroStore macros(store);
  const CalcModes modes{AngleUnit::Degrees, BaseMode::Decimal};
  const auto value = EvaluateTypedLine(u" 2*M:F(3) ", modes, store, macros);
  ASSERT_TRUE(value);
  EXPECT_EQ(*value, 18);
}

TEST(MacroCall, LineWithoutACallDoesNotAskOtherPrograms) {
  SharedStore store;
  const MacroStore macros(store);
  const auto value =
      EvaluateTypedLine(u" cos(60 + 30) ", {AngleUnit::Degrees, BaseMode::Decimal}, store, macros);
  ASSERT_TRUE(value);
  EXPECT_EQ(*value, 0);
  EXPECT_EQ(store.Refreshes(), 0);
}

}  // namespace
}  // namespace kav::macro_call_test
