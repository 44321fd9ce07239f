// The editor of the user's own conversions, worked by keys.
#include <gtest/gtest.h>

#include "screens/dialog_layout.h"
#include "screens/user_conversion_driver.h"

namespace kav::test::user_conversion_keyboard_test {
namespace {

using UserConversionKeyboardTest = UserConversionDriver;

TEST_F(UserConversionKeyboardTest, ANewOneIsTypedAndSavedByKeysAlone) {
  StoreThree();
  Open([this] {
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(*FindKey(Dlg(), u"New")));
    Press(Qt::Key_Space);
    EXPECT_EQ(Fields(), "||0");
    EXPECT_TRUE(HasFocus(Source()));
    Type("  ft ");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Target()));
    Type("m");
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Rate()));
    Press(Qt::Key_A, Qt::ControlModifier);
    Type("3.048E-1");
    Press(Qt::Key_Return);
    EXPECT_FALSE(IsEditing());
    EXPECT_EQ(Labels().back(), u"ft -> m");
    EXPECT_EQ(List().currentRow(), 3);
    EXPECT_TRUE(HasFocus(List()));
    EXPECT_TRUE(Shows(u"List(4/60)"));
    EXPECT_EQ(Fields(), "ft|m|3.048E-1");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Dlg().isVisible());
  });
  EXPECT_EQ(StoredConversion(store_, 3), (UserConversion{"ft -> m", "3.048E-1"}));
  EXPECT_EQ(store_.Get(kConversionCount), 4);
}

TEST_F(UserConversionKeyboardTest, CancelAndEscGiveUpWhatWasTyped) {
  StoreThree();
  for (const bool byKey : {false, true}) {
    Open([&, this] {
      Tap(u"Edit");
      Fill("a", "b", "1");
      byKey ? Press(Qt::Key_Escape) : Tap(u"Cancel");
      EXPECT_TRUE(Dlg().isVisible());
      EXPECT_FALSE(IsEditing());
      EXPECT_EQ(Fields(), "inch|cm|2.54");
      EXPECT_TRUE(HasFocus(List()));
    });
  }
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionKeyboardTest, CloseAndEscCloseWhileBrowsing) {
  StoreThree();
  for (const bool byKey : {false, true}) {
    Open([&, this] {
      byKey ? Press(Qt::Key_Escape) : Tap(u"Close");
      EXPECT_FALSE(Dlg().isVisible());
    });
  }
}

TEST_F(UserConversionKeyboardTest, ADoubleClickOrEnterInTheListEdits) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(1));
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(Fields(), "mile|km|1.609344");
    Tap(u"Cancel");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(Fields(), "h|s|3600");
  });
}

TEST_F(UserConversionKeyboardTest, EnterSavesFromEachField) {
  StoreThree();
  Open([this] {
    for (QLineEdit* field : {&Source(), &Target(), &Rate()}) {
      for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Tap(u"Edit");
        field->setFocus();
        Press(key);
        EXPECT_FALSE(IsEditing());
      }
    }
  });
  EXPECT_EQ(StoredConversions(store_), kThree);
}

TEST_F(UserConversionKeyboardTest, TabLeadsThroughTheFieldsAndButtons) {
  StoreThree();
  Open([this] {
    Tap(u"Edit");
    Source().setFocus();
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Target()));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Rate()));
    Texts captions;
    for (int i = 0; i < 3; ++i) {
      Press(Qt::Key_Tab);
      captions.push_back(CaptionOf(*QApplication::focusWidget()).toStdU16String());
    }
    EXPECT_EQ(captions, (Texts{u"MEM", u"Save", u"Cancel"}));
    Press(Qt::Key_Tab);
    EXPECT_TRUE(HasFocus(Source()));
  });
}

TEST_F(UserConversionKeyboardTest, WhatWasShownBeforeDoesNotComeBackByUndo) {
  StoreThree();
  Open([this] {
    SelectInList(1);
    Tap(u"Edit");
    Type("9");
    Press(Qt::Key_Z, Qt::ControlModifier);
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Fields(), "mile|km|1.609344");
  });
}

}  // namespace
}  // namespace kav::test::user_conversion_keyboard_test
