// What the buttons of the macro editor, and keys and pasting, do to the formula.
#include <gtest/gtest.h>

#include <QClipboard>

#include "screens/macro_editor_driver.h"
#include "screens/offer_driver.h"
#include "support/macro_function_rows.h"

namespace kav::test::macro_editor_formula_test {
namespace {

class MacroEditorFormulaTest : public MacroEditorDriver {
 protected:
  /// Opens the editor with a new macro of the first type.
  void OpenNew(const std::function<void()>& use) {
    Open([&, this] {
      Tap(u"New");
      Type().setCurrentIndex(0);
      use();
    });
  }
  /// What `marked` becomes when `item` is chosen from the pop-up menu of `button`.
  std::u16string After(std::u16string_view marked, std::u16string_view button,
                       std::u16string_view item) {
    PutFormula(marked);
    Tap(button);
    Choose(item);
    EXPECT_TRUE(HasFocus(Formula()));
    return MarkedFormula();
  }
  Texts OfferedBy(std::u16string_view button) {
    Tap(button);
    const Texts offered = Offered(OpenMenu());
    if (OpenMenu() != nullptr) OpenMenu()->close();
    return offered;
  }
};

TEST_F(MacroEditorFormulaTest, FunctionsAreOfferedInThreeGroups) {
  OpenNew([this] {
    EXPECT_EQ(OfferedBy(u"F(X)"),
              (Texts{u"ABS(X)",  u"ACOS(X)", u"ASIN(X)", u"ATAN(X)", u"COS(X)",  u"COSH(X)",
                     u"EXP(X)",  u"FRAC(X)", u"INT(X)",  u"LN(X)",   u"LOG(X)",  u"SIN(X)",
                     u"SINH(X)", u"SQRT(X)", u"TAN(X)",  u"TANH(X)", u"XthR(X)", u"-",
                     u"%",       u"X!",      u"nPr",     u"nCr",     u"-",       u"Pi"}));
  });
}

TEST_F(MacroEditorFormulaTest, TheFunctionsHaveTheirPlaceOnTheScreen) {
  OpenNew([this] {
    Tap(u"F(X)");
    const QWidget& dialog = *OpenMenu()->parentWidget();
    EXPECT_EQ(OpenMenu()->x(), dialog.mapToGlobal(QPoint(dialog.width() * 110 / 240, 0)).x());
    OpenMenu()->close();
  });
}

TEST_F(MacroEditorFormulaTest, EachFunctionWritesAroundTheCaretOrTheSelection) {
  OpenNew([&, this] {
    for (const MacroFunctionRow& row : kMacroFunctionRows) {
      EXPECT_EQ(After(u"1+|2", u"F(X)", row.item), row.bare);
      EXPECT_EQ(After(u"1+[x]2", u"F(X)", row.item), row.selected);
    }
  });
}

TEST_F(MacroEditorFormulaTest, ASelectionMadeFromRightToLeftIsTheSame) {
  OpenNew([this] { EXPECT_EQ(After(u"1+]x[2", u"F(X)", u"SIN(X)"), u"1+sin(x)|2"); });
}

TEST_F(MacroEditorFormulaTest, VariablesAreThoseOfTheChosenType) {
  OpenNew([this] {
    EXPECT_EQ(OfferedBy(u"Variables"), Texts{u"X"});
    Type().setCurrentIndex(1);
    EXPECT_EQ(OfferedBy(u"Variables"), (Texts{u"X", u"Y"}));
    Type().setCurrentIndex(2);
    EXPECT_EQ(OfferedBy(u"Variables"), (Texts{u"X", u"Y", u"Z"}));
    Type().setCurrentIndex(-1);
    EXPECT_EQ(OfferedBy(u"Variables"), (Texts{u"X", u"Y", u"Z"}));
  });
}

TEST_F(MacroEditorFormulaTest, VariablesAreWrittenInLowerCase) {
  OpenNew([this] {
    Type().setCurrentIndex(2);
    EXPECT_EQ(After(u"1+|2", u"Variables", u"X"), u"1+x|2");
    EXPECT_EQ(After(u"1+[5]2", u"Variables", u"Y"), u"1+y|2");
    EXPECT_EQ(After(u"|", u"Variables", u"Z"), u"z|");
  });
}

TEST_F(MacroEditorFormulaTest, APopUpThatIsLeftChangesNothing) {
  OpenNew([this] {
    PutFormula(u"1+[x]2");
    Tap(u"F(X)");
    OpenMenu()->close();
    EXPECT_EQ(MarkedFormula(), u"1+[x]2");
  });
}

TEST_F(MacroEditorFormulaTest, AMemoryVariableIsInsertedAsItsText) {
  store_.Set(NumberedKey{"MemoryVar", "Var1", "0"}, "-1.50e3");
  OpenNew([this] {
    PutFormula(u"x*[2]+1");
    BoxWatch::Instance().ExpectDialog([](QDialog& memory) {
      memory.findChild<QListWidget*>()->setCurrentRow(1);
      test::Tap(memory, u"Recall");
    });
    Tap(u"MEM");
    EXPECT_EQ(MarkedFormula(), u"x*-1.50e3|+1");
    EXPECT_TRUE(HasFocus(Formula()));
  });
}

TEST_F(MacroEditorFormulaTest, NothingIsInsertedIfNoVariableIsChosen) {
  OpenNew([this] {
    Name().setText("f");
    PutFormula(u"x*[2]+1");
    BoxWatch::Instance().ExpectDialog([](QDialog& memory) { memory.reject(); });
    Tap(u"MEM");
    EXPECT_EQ(MarkedFormula(), u"x*[2]+1");
    EXPECT_EQ(Fields(), "f|TYPE1 : F(X)|x*2+1");
  });
}

TEST_F(MacroEditorFormulaTest, EachPieceIsOneStepForUndo) {
  OpenNew([this] {
    QTest::keyClicks(&Formula(), "x");
    Tap(u"F(X)");
    Choose(u"SIN(X)");
    Tap(u"Variables");
    Choose(u"X");
    EXPECT_EQ(Formula().toPlainText(), "xsin(x)");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Formula().toPlainText(), "xsin()");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Formula().toPlainText(), "x");
  });
}

TEST_F(MacroEditorFormulaTest, TheFormulaShownBeforeDoesNotComeBackByUndo) {
  StoreMacros(store_, {{"sq", "TYPE1 : F(X)", "x^2"}});
  for (const std::u16string_view begin : {u"New", u"Edit"}) {
    Open([&, this] {
      Tap(begin);
      const QString before = Formula().toPlainText();
      Formula().setFocus();
      Press(Qt::Key_Z, Qt::ControlModifier);
      EXPECT_EQ(Formula().toPlainText(), before);
    });
  }
}

TEST_F(MacroEditorFormulaTest, WhatIsPastedStaysOneLine) {
  OpenNew([this] {
    Name().setText("f");
    QApplication::clipboard()->setText("x\n+\t1\r\n");
    Formula().setFocus();
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Formula().blockCount(), 1);
    Tap(u"Save");
    EXPECT_EQ(Fields(), "f|TYPE1 : F(X)|x + 1");
  });
  EXPECT_EQ(TextsOf(store_, 0).formula, "x + 1");
}

TEST_F(MacroEditorFormulaTest, WhatIsMuchTooLongIsCutVisiblyAndCannotBeSaved) {
  const QString huge(1 << 20, QChar('1'));
  store_.Set(NumberedKey{"MemoryVar", "Var0", "0"}, huge.toStdString());
  OpenNew([&, this] {
    Name().setText("f");
    QApplication::clipboard()->setText(huge);
    Formula().setFocus();
    Press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Formula().toPlainText(), QString(1000, QChar('1')) + QChar(u'…'));
    EXPECT_EQ(RefusedSave(), u"Macro Expression has 1001 characters, more than 150.");
    PutFormula(u"x|");
    BoxWatch::Instance().ExpectDialog([](QDialog& memory) {
      memory.findChild<QListWidget*>()->setCurrentRow(0);
      test::Tap(memory, u"Recall");
    });
    Tap(u"MEM");
    EXPECT_EQ(RefusedSave(), u"Macro Expression has 1002 characters, more than 150.");
  });
}

TEST_F(MacroEditorFormulaTest, NoKeyBreaksTheLine) {
  OpenNew([this] {
    PutFormula(u"x|");
    Formula().setFocus();
    Press(Qt::Key_Return, Qt::ShiftModifier);
    Press(Qt::Key_Return, Qt::ControlModifier);
    Press(Qt::Key_Tab, Qt::ControlModifier);
    Formula().setFocus();
    EXPECT_EQ(Formula().toPlainText(), "x");
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(HasFocus(Type()));
    EXPECT_EQ(Formula().toPlainText(), "x");
  });
}

TEST_F(MacroEditorFormulaTest, ACommaIsAskedAboutBeforeTheFormulaIsSaved) {
  OpenNew([this] {
    Name().setText("F");
    PutFormula(u"x*1,5|");
    Tap(u"Save");
    EXPECT_EQ(Asked(Dlg()), "15 or 1.5?");
    TapOffer(Dlg(), "1.5");
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Formula().toPlainText(), "x*1.5");
  });
}

}  // namespace
}  // namespace kav::test::macro_editor_formula_test
