// The converter and the conversions that its user defines.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QKeyEvent>
#include <functional>
#include <string>
#include <utility>

#include "screens/box_watch.h"
#include "screens/converter_driver.h"
#include "support/stored_conversions.h"
#include "support/unit_places.h"

namespace kav::test::converter_user_conversions_test {
namespace {

using WithUserConversions = ConverterDriver;

TEST_F(WithUserConversions, ListsTheUsersConversions) {
  StoreConversions(store_, {{"inch -> cm", "2.54"}, {"dozen -> piece", "12"}});
  const auto outcome = Run({u"10", {}, 0}, [this] {
    Choose(Category(), "15. User Define");
    QComboBox& conversions = Choice("Conversion");
    EXPECT_EQ(conversions.count(), 2);
    EXPECT_EQ(ResultText(), u"25.4");
    EXPECT_FALSE(SwapButton().isEnabled());
    Choose(conversions, "dozen -> piece");
    EXPECT_EQ(ResultText(), u"120");
    Tap(u"OK");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{14, 1, -1}));
  EXPECT_EQ(outcome.result, u"120");
}

TEST_F(WithUserConversions, NamesOfAnyLengthAreShownCut) {
  const std::string longest = std::string(10000, 'W') + "\n -> " + std::string(10000, 'x');
  StoreConversions(store_, {{longest, "2"}, {"a -> b", "3"}});
  Run({u"5", {14, 0, -1}, 0}, [this] {
    EXPECT_LT(Choice("Conversion").currentText().size(), 500);
    EXPECT_EQ(ResultText(), u"10");
    EXPECT_EQ(dlg_->size(), screen_.size());
    EXPECT_TRUE(dlg_->rect().contains(Choice("Conversion").geometry()));
    EXPECT_TRUE(dlg_->rect().contains(Result().geometry()));
    Tap(u"Cancel");
  });
}

TEST_F(WithUserConversions, TheEditorOpensAtAnyTimeAndWhatIsChosenStays) {
  StoreConversions(store_, {{"inch -> cm", "2.54"}});
  const auto storeAnother = [this](QDialog& editor) {
    EXPECT_EQ(editor.windowTitle(), "Edit Unit Convert");
    StoreConversions(store_, {{"dozen -> piece", "12"}, {"inch -> cm", "2.5"}});
    editor.reject();
  };
  RunMiles([&, this] {
    Replace("2");
    BoxWatch::Instance().ExpectDialog(storeAnother);
    Click(*FindKey(*dlg_, u"Edit Unit Convert"));
    EXPECT_EQ(InputUnit().currentText(), "Miles");
    EXPECT_EQ(Value().text(), "2");
    Choose(Category(), "15. User Define");
    EXPECT_EQ(Choice("Conversion").count(), 2);
    Choose(Choice("Conversion"), "inch -> cm");
    EXPECT_EQ(ResultText(), u"5");
    BoxWatch::Instance().ExpectDialog([this](QDialog& editor) {
      StoreConversions(store_, {{"inch -> cm", "2.54"}});
      editor.reject();
    });
    FindKey(*dlg_, u"Cancel")->setFocus();
    Press(Qt::Key_Tab);
    EXPECT_EQ(dlg_->focusWidget(), FindKey(*dlg_, u"Edit Unit Convert"));
    Press(Qt::Key_Space);
    EXPECT_EQ(ResultText(), u"5.08") << "the same conversion with its new rate";
    Tap(u"Cancel");
  });
}

class WithoutUserConversions : public ConverterDriver {
 protected:
  /// Chooses the empty category; `inEditor` is run on the editor that opens then.
  void ChooseUserDefined(std::function<void(QDialog&)> inEditor) {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    BoxWatch::Instance().ExpectDialog(std::move(inEditor));
    Choose(Category(), "15. User Define");
    QCoreApplication::processEvents();
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, u"Not exist saved user-define unit convert");
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  }
};

TEST_F(WithoutUserConversions, TheEditorOpensAndWithoutAnyTheFirstCategoryFollows) {
  const auto outcome = RunMiles([this] {
    ChooseUserDefined([](QDialog& editor) {
      EXPECT_EQ(editor.windowTitle(), "Edit Unit Convert");
      editor.reject();
    });
    EXPECT_EQ(Category().currentText(), "01. Area");
    EXPECT_EQ(InputUnit().currentText(), "Acres");
    EXPECT_TRUE(OutputUnit().isVisible());
    EXPECT_EQ(ResultText(), u"1");
    Tap(u"Cancel");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{0, 0, 0}));
}

TEST_F(WithoutUserConversions, TheKeyboardIsToldOnceToo) {
  Run({u"1", {13, 0, 0}, 0}, [this] {
    Category().setFocus();
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    BoxWatch::Instance().ExpectDialog([](QDialog& editor) { editor.reject(); });
    Press(Qt::Key_Down);
    QCoreApplication::processEvents();
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
    EXPECT_EQ(Category().currentText(), "01. Area");
    Tap(u"Cancel");
  });
}

TEST_F(WithoutUserConversions, TheKeyThatEndsTheChoiceMayComeTwice) {
  Run({u"1", {13, 0, 0}, 0}, [this] {
    Click(Category());
    QAbstractItemView& list = *Category().view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list.isVisible(); }));
    QTest::keyClick(&list, Qt::Key_End);
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    BoxWatch::Instance().ExpectDialog([](QDialog& editor) { editor.reject(); });
    // As a screen reader's bus does, which hands each key on when it has read it.
    for (int i = 0; i < 2; ++i) {
      QKeyEvent key(QEvent::ShortcutOverride, Qt::Key_Return, Qt::NoModifier);
      QCoreApplication::sendEvent(&list, &key);
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
    EXPECT_EQ(Category().currentText(), "01. Area");
    Tap(u"Cancel");
  });
}

TEST_F(WithoutUserConversions, WhatIsWrittenInTheEditorIsListedAtOnce) {
  const auto outcome = RunMiles([this] {
    ChooseUserDefined([this](QDialog& editor) {
      StoreConversions(store_, {{"dozen -> piece", "12"}});
      editor.reject();
    });
    EXPECT_EQ(Category().currentText(), "15. User Define");
    EXPECT_EQ(Choice("Conversion").currentText(), "dozen -> piece");
    EXPECT_EQ(ResultText(), u"12");
    Tap(u"OK");
  });
  EXPECT_EQ(PlacesOf(outcome.positions), (Places{14, 0, -1}));
  EXPECT_EQ(outcome.result, u"12");
}

TEST_F(WithoutUserConversions, ARememberedCategoryThatIsEmptyOpensNothingUntilItIsChosen) {
  Run({u"1", {14, 0, -1}, 0}, [this] {
    EXPECT_EQ(Category().currentText(), "15. User Define");
    EXPECT_EQ(ResultText(), u"");
    ChooseUserDefined([](QDialog& editor) { editor.reject(); });
    EXPECT_EQ(Category().currentText(), "01. Area");
    Tap(u"Cancel");
  });
}

}  // namespace
}  // namespace kav::test::converter_user_conversions_test
