// The macro editor: browsing, editing, what it refuses, and what it stores.
#include "screens/macros/macro_editor_dlg.h"

#include <gtest/gtest.h>

#include "macros/macro_saving.h"
#include "screens/dialog_layout.h"
#include "screens/macro_editor_driver.h"
#include "store/user_settings_store.h"
#include "support/is_stored.h"
#include "support/macro_fields.h"
#include "support/processor_time.h"
#include "support/temporary_folder.h"

namespace kav::test::macro_editor_dlg_test {
namespace {

using Names = std::vector<std::string>;

const std::vector<StoredMacro> kThree{{"sq", "TYPE1 : F(X)", "x^2"},
                                      {"add", "TYPE2 : F(X,Y)", "x+y"},
                                      {"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}};

class MacroEditorDlgTest : public MacroEditorDriver {
 protected:
  void StoreThree() { StoreMacros(store_, kThree); }
};

TEST_F(MacroEditorDlgTest, BrowsesWithTheFieldsDisabled) {
  StoreThree();
  Open([this] {
    EXPECT_EQ(Fields(), "sq|TYPE1 : F(X)|x^2");
    EXPECT_FALSE(Name().isEnabled());
    EXPECT_FALSE(Type().isEnabled());
    EXPECT_FALSE(Formula().isEnabled());
    EXPECT_TRUE(List().isEnabled());
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_EQ(List().currentRow(), 0);
    EXPECT_EQ(Labels(), (Texts{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Edit", u"Delete", u"Close"}));
  });
}

TEST_F(MacroEditorDlgTest, EditsWithTheListDisabled) {
  StoreThree();
  Open([this] {
    Tap(u"Edit");
    EXPECT_TRUE(Name().isEnabled());
    EXPECT_TRUE(Type().isEnabled());
    EXPECT_TRUE(Formula().isEnabled());
    EXPECT_FALSE(List().isEnabled());
    EXPECT_TRUE(HasFocus(Name()));
    EXPECT_EQ(Buttons(), (Texts{u"MEM", u"F(X)", u"Variables", u"Save", u"Cancel", u"(New)",
                                u"(Edit)", u"(Delete)"}));
  });
}

TEST_F(MacroEditorDlgTest, ItsCaptionsAreShown) {
  StoreThree();
  Open([this] {
    EXPECT_TRUE(Shows(u"Macro Name"));
    EXPECT_TRUE(Shows(u"Argument Type"));
    EXPECT_TRUE(Shows(u"Macro Expression(Max Len:150)"));
    EXPECT_TRUE(Shows(u"List(3/60)"));
    QStringList types;
    for (int i = 0; i < Type().count(); ++i) types << Type().itemText(i);
    EXPECT_EQ(types, (QStringList{"TYPE1 : F(X)", "TYPE2 : F(X,Y)", "TYPE3 : F(X,Y,Z)"}));
  });
}

TEST_F(MacroEditorDlgTest, WithoutMacrosOnlyNewCanBeginOne) {
  Open([this] {
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Close"}));
    EXPECT_TRUE(Shows(u"List(0/60)"));
    EXPECT_TRUE(HasFocus(*FindKey(Dlg(), u"New")));
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsEditing());
  });
}

TEST_F(MacroEditorDlgTest, WithSixtyMacrosNewIsHidden) {
  StoreNumbered(store_, 60);
  Open([this] {
    EXPECT_EQ(Buttons(), (Texts{u"Edit", u"Delete", u"Close"}));
    EXPECT_TRUE(Shows(u"List(60/60)"));
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Edit", u"Delete", u"Close"}));
    EXPECT_TRUE(Shows(u"List(59/60)"));
  });
}

TEST_F(MacroEditorDlgTest, TheListChoosesWhatIsShown) {
  StoreThree();
  Open([this] {
    SelectInList(2);
    EXPECT_EQ(Fields(), "vol|TYPE3 : F(X,Y,Z)|x*y*z");
    Press(Qt::Key_Up);
    EXPECT_EQ(Fields(), "add|TYPE2 : F(X,Y)|x+y");
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf(1));
    EXPECT_EQ(Fields(), "||");
    EXPECT_EQ(Buttons(), (Texts{u"New", u"(Edit)", u"(Delete)", u"Close"}));
  });
}

TEST_F(MacroEditorDlgTest, ANewMacroIsTypedAndSaved) {
  StoreThree();
  Open([this] {
    Tap(u"New");
    EXPECT_EQ(Fields(), "||");
    EXPECT_EQ(Type().currentIndex(), -1);
    EXPECT_TRUE(HasFocus(Name()));
    QTest::keyClicks(QApplication::focusWidget(), "  inv  ");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Down);
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Formula()));
    QTest::keyClicks(QApplication::focusWidget(), "1/x");
    Tap(u"Save");
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Labels().back(), u"inv(X)");
    EXPECT_EQ(List().currentRow(), 3);
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_TRUE(Shows(u"List(4/60)"));
    EXPECT_EQ(Fields(), "inv|TYPE1 : F(X)|1/x");
  });
  EXPECT_EQ(TextsOf(store_, 3), (MacroTexts{"inv", "TYPE1 : F(X)", "1/x"}));
}

TEST_F(MacroEditorDlgTest, AnEditedMacroIsReplaced) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    Tap(u"Edit");
    Fill("half", 0, u"x/2|");
    Tap(u"Save");
    EXPECT_EQ(Labels(), (Texts{u"sq(X)", u"half(X)", u"vol(X,Y,Z)"}));
    EXPECT_EQ(List().currentRow(), 1);
  });
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{"half", "TYPE1 : F(X)", "x/2"}));
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "half", "vol"}));
}

TEST_F(MacroEditorDlgTest, EachRefusalHasItsMessageAndItsField) {
  StoreThree();
  enum Field { kName, kType, kFormula };
  struct Row {
    const char* name;
    int type;
    std::u16string_view formula;
    std::u16string_view message;
    Field field;
  };
  const std::u16string_view marks = u"Can not use '(',')',':' in Macro Name.";
  const std::u16string tooLong(151, u'x');
  const Row rows[] = {
      {"", 0, u"x", u"Macro Name is NULL", kName},
      {"   ", 0, u"x", u"Macro Name is NULL", kName},
      {"f(x)", 0, u"x", marks, kName},
      {" f( ", 0, u"x", marks, kName},
      {"f)", 0, u"x", marks, kName},
      {"M:f", 0, u"x", marks, kName},
      {"add", 0, u"x", u"add exists already.", kName},
      {"  add ", 0, u"x", u"add exists already.", kName},
      {"f", -1, u"x", u"Argument Type is NULL", kType},
      {"f", 0, u"", u"Macro Expression is NULL", kFormula},
      {"f", 0, u"   ", u"Macro Expression is NULL", kFormula},
      {"f", 0, tooLong, u"Macro Expression has 151 characters, more than 150.", kFormula},
      {"f", 0, u"x+foo(2)", u"foo is not supported.", kFormula},
      {"f", 0, u"x+", u"Expression error.", kFormula},
      {"f", 0, u"1+2", u"Argument error : Missing variable X", kFormula},
      {"f", 0, u"x+y", u"Can not use variable Y", kFormula},
      {"f", 1, u"x", u"Argument error : Missing variable Y", kFormula},
      {"f", 1, u"x+y+z", u"Can not use variable Z", kFormula},
      {"f", 2, u"x+y", u"Argument error : Missing variable Z", kFormula},
  };
  Open([&, this] {
    Tap(u"Edit");
    for (const Row& row : rows) {
      Fill(row.name, row.type, row.formula);
      const std::string typed = Fields();
      EXPECT_EQ(RefusedSave(), row.message);
      QWidget* const fields[] = {&Name(), &Type(), &Formula()};
      EXPECT_TRUE(HasFocus(*fields[row.field])) << typed;
      EXPECT_TRUE(IsEditing());
      EXPECT_EQ(Fields(), typed);
    }
  });
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"sq", "TYPE1 : F(X)", "x^2"}));
}

TEST_F(MacroEditorDlgTest, The61stMacroIsRefused) {
  StoreNumbered(store_, 59);
  Open([this] {
    Tap(u"New");
    ASSERT_TRUE(SaveMacro({u"theirs", VariableType::X, u"x"}, std::nullopt, store_));
    Fill("mine", 0, u"x|");
    EXPECT_EQ(RefusedSave(), u"Maximum of macro is 60");
    EXPECT_EQ(Fields(), "mine|TYPE1 : F(X)|x");
  });
  EXPECT_EQ(MacroNames(store_).size(), 60U);
}

TEST_F(MacroEditorDlgTest, DeletingFromTheMiddleMovesTheRestUpAndBlanksTheLast) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    Delete(QMessageBox::No);
    EXPECT_EQ(Labels().size(), 3U);
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Labels(), (Texts{u"sq(X)", u"vol(X,Y,Z)"}));
    EXPECT_EQ(Fields(), "vol|TYPE3 : F(X,Y,Z)|x*y*z");
    EXPECT_EQ(List().currentRow(), 1);
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_TRUE(Shows(u"List(2/60)"));
  });
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{"vol", "TYPE3 : F(X,Y,Z)", "x*y*z"}));
  EXPECT_EQ(TextsOf(store_, 2), MacroTexts{});
  EXPECT_TRUE(test::IsStored(store_, "Macro2", "Name"));
  EXPECT_EQ(store_.Get(SettingKey<std::int32_t>{"MacroInfo", "TotalNumber", 0}), 2);
}

TEST_F(MacroEditorDlgTest, AfterTheLastDeletionOneBeginsAnew) {
  StoreNumbered(store_, 1);
  Open([this] {
    Delete(QMessageBox::Yes);
    EXPECT_EQ(Fields(), "||");
    EXPECT_EQ(Buttons(), (Texts{u"New", u"Close"}));
    EXPECT_TRUE(HasFocus(*FindKey(Dlg(), u"New")));
  });
}

TEST_F(MacroEditorDlgTest, CancelAndEscGiveUpWhatWasTyped) {
  StoreThree();
  for (const bool byKey : {false, true}) {
    Open([&, this] {
      Tap(u"Edit");
      Fill("other", 1, u"x*y|");
      byKey ? Press(Qt::Key_Escape) : Tap(u"Cancel");
      EXPECT_TRUE(Dlg().isVisible());
      EXPECT_FALSE(IsEditing());
      EXPECT_EQ(Fields(), "sq|TYPE1 : F(X)|x^2");
      EXPECT_TRUE(HasFocus(List()));
    });
  }
  EXPECT_EQ(MacroNames(store_), (Names{"sq", "add", "vol"}));
}

TEST_F(MacroEditorDlgTest, CloseAndEscCloseWhileBrowsing) {
  StoreThree();
  for (const bool byKey : {false, true}) {
    Open([&, this] {
      byKey ? Press(Qt::Key_Escape) : Tap(u"Close");
      EXPECT_FALSE(Dlg().isVisible());
    });
  }
}

TEST_F(MacroEditorDlgTest, ADoubleClickOrEnterInTheListEdits) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(1));
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(Fields(), "add|TYPE2 : F(X,Y)|x+y");
    Tap(u"Cancel");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(Fields(), "vol|TYPE3 : F(X,Y,Z)|x*y*z");
  });
}

TEST_F(MacroEditorDlgTest, EnterSavesFromEachField) {
  StoreThree();
  Open([this] {
    for (QWidget* field : std::initializer_list<QWidget*>{&Name(), &Type(), &Formula()}) {
      for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Tap(u"Edit");
        field->setFocus();
        Press(key);
        EXPECT_FALSE(IsEditing());
      }
    }
  });
  EXPECT_EQ(TextsOf(store_, 0), (MacroTexts{"sq", "TYPE1 : F(X)", "x^2"}));
}

TEST_F(MacroEditorDlgTest, TabLeadsThroughTheFieldsAndButtons) {
  StoreThree();
  Open([this] {
    Tap(u"Edit");
    Texts captions;
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Type()));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Formula()));
    for (int i = 0; i < 5; ++i) {
      Press(Qt::Key_Tab);
      captions.push_back(CaptionOf(*QApplication::focusWidget()).toStdU16String());
    }
    EXPECT_EQ(captions, (Texts{u"MEM", u"F(X)", u"Variables", u"Save", u"Cancel"}));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Name()));
    EXPECT_EQ(Fields(), "sq|TYPE1 : F(X)|x^2");
  });
}

TEST_F(MacroEditorDlgTest, WrongCountsOpenAndLoseNothing) {
  for (const std::int32_t wrong : {-1, 0, 2, 4, 60, 2147483647}) {
    StoreThree();
    store_.Set(SettingKey<std::int32_t>{"MacroInfo", "TotalNumber", 0}, wrong);
    Open([this] {
      EXPECT_EQ(Labels(), (Texts{u"sq(X)", u"add(X,Y)", u"vol(X,Y,Z)"}));
      EXPECT_TRUE(Shows(u"List(3/60)"));
    });
  }
}

TEST_F(MacroEditorDlgTest, MissingKeysReadAsEmpty) {
  store_.Set(NumberedKey{"Macro0", "Name", ""}, "bare");
  Open([this] {
    EXPECT_EQ(Labels(), Texts{u"bare(X,Y,Z)"});
    EXPECT_EQ(Fields(), "bare|TYPE3 : F(X,Y,Z)|");
  });
}

TEST_F(MacroEditorDlgTest, TextsOfAMegabyteOpenFluentlyAndAreNotLost) {
  const std::string name = "a\nb" + std::string(1 << 20, 'n');
  const std::string formula = "x\n" + std::string(1 << 20, '+');
  StoreMacros(store_, {{"fine", "TYPE1 : F(X)", "x"}, {name, "TYPE1 : F(X)", formula}});
  const ProcessorTime time;
  Open([this] {
    SelectInList(1);
    EXPECT_TRUE(Name().text().startsWith("a b"));
    EXPECT_TRUE(Formula().toPlainText().endsWith(QChar(u'…')));
    Tap(u"Edit");
    EXPECT_EQ(RefusedSave(), u"Macro Expression has 1001 characters, more than 150.");
    Tap(u"Cancel");
  });
  EXPECT_LT(time.Milliseconds(), 3000);
  EXPECT_EQ(TextsOf(store_, 1), (MacroTexts{name, "TYPE1 : F(X)", formula}));
}

TEST_F(MacroEditorDlgTest, ABrokenFormulaOpensAndCanBeMended) {
  StoreMacros(store_, {{"bad", "TYPE1 : F(X)", "x+foo("}});
  Open([this] {
    EXPECT_EQ(Fields(), "bad|TYPE1 : F(X)|x+foo(");
    Tap(u"Edit");
    EXPECT_EQ(RefusedSave(), u"foo is not supported.");
    PutFormula(u"x+1|");
    Tap(u"Save");
    EXPECT_FALSE(IsEditing());
  });
  EXPECT_EQ(TextsOf(store_, 0).formula, "x+1");
}

TEST_F(MacroEditorDlgTest, ItSharesTheSettingsWithOtherPrograms) {
  const TemporaryFolder folder;
  const std::string path = folder.File("settings.toml");
  UserSettingsStore own(path);
  UserSettingsStore other(path);
  EXPECT_TRUE(MacroNames(own).empty());
  ASSERT_TRUE(SaveMacro({u"theirs", VariableType::X, u"x"}, std::nullopt, other));
  Open(own, [&, this] {
    EXPECT_EQ(Labels(), Texts{u"theirs(X)"});
    Tap(u"New");
    ASSERT_TRUE(SaveMacro({u"second", VariableType::X, u"x"}, std::nullopt, other));
    Fill("mine", 0, u"x|");
    Tap(u"Save");
    EXPECT_EQ(Labels(), (Texts{u"theirs(X)", u"second(X)", u"mine(X)"}));
  });
  EXPECT_EQ(MacroNames(UserSettingsStore(path)), (Names{"theirs", "second", "mine"}));
}

TEST_F(MacroEditorDlgTest, EverythingHasRoomAtEverySize) {
  StoreNumbered(store_, 59);
  const std::string wide(300, 'W');
  StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}, {wide, "TYPE3 : F(X,Y,Z)", wide}});
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440), QSize(180, 240)}) {
    SCOPED_TRACE(size.width());
    Show(screen_, size);
    Open([&, this] {
      EXPECT_EQ(Dlg().size(), size);
      ExpectRoomForAll(Dlg());
      SelectInList(1);
      Tap(u"Edit");
      QCoreApplication::processEvents();
      ExpectRoomForAll(Dlg());
      EXPECT_GE(List().viewport()->height(), 2 * List().sizeHintForRow(0));
    });
  }
}

}  // namespace
}  // namespace kav::test::macro_editor_dlg_test
