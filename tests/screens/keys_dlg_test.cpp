// What the keys of a screen tell: tips, descriptions, their shortcuts and the list of them.
#include "screens/help/keys_dlg.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableWidget>
#include <QToolTip>
#include <functional>
#include <string>
#include <vector>

#include "app/frame_window.h"
#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "screens/widgets/app_events.h"
#include "screens/widgets/colour_scheme.h"

namespace kav::test::keys_dlg_test {
namespace {

class KeysDlgTest : public ScientificScreen {
 protected:
  ~KeysDlgTest() override { BoxWatch::Instance().TakeSeen(); }

  QAbstractButton& KeyOf(std::u16string_view caption) { return *FindKey(*dlg_, caption); }
  /// What a mouse that rests on the key is told.
  std::string TipOf(QAbstractButton& key) {
    QToolTip::hideText();
    const QPoint place = key.rect().center();
    QHelpEvent event(QEvent::ToolTip, place, key.mapToGlobal(place));
    QApplication::sendEvent(&key, &event);
    return QToolTip::text().replace(u'\n', u' ').toStdString();
  }
  /// Whether the key shows something else than its caption.
  bool HasChanged(const QImage& before, QAbstractButton& key) {
    return key.grab().toImage() != before;
  }
};

TEST_F(KeysDlgTest, TipsAndDescriptionsSayWhatAKeyDoesNow) {
  EXPECT_EQ(TipOf(KeyOf(u"Mac")), "Mac: write a call of one of your macros (Alt+A)");
  EXPECT_EQ(KeyOf(u"Mac").accessibleDescription(), "write a call of one of your macros (Alt+A)");
  EXPECT_EQ(TipOf(KeyOf(u"SIN")), "SIN: sine of an angle");
  Tap(u"Shift");
  EXPECT_EQ(TipOf(KeyOf(u"ASIN")), "ASIN: angle of a sine");
  EXPECT_EQ(KeyOf(u"ASIN").accessibleDescription(), "angle of a sine");
  Tap(u"Shift DEC");
  Choose(u"Hexadecimal");
  EXPECT_EQ(TipOf(KeyOf(u"AND")), "AND: logical and: the bits that both numbers have");
  EXPECT_EQ(TipOf(KeyOf(u"HEX")).substr(0, 28), "HEX: choose the number base:");
}

TEST_F(KeysDlgTest, TipsHaveTheLettersOfTheScreenAndNoLineThatIsWiderThanIt) {
  for (const QSize size : {QSize(180, 240), QSize(240, 320), QSize(480, 640)}) {
    dlg_->resize(size);
    TipOf(KeyOf(u"DEC"));
    EXPECT_EQ(QToolTip::font(), dlg_->findChild<QMenuBar*>()->font());
    for (const QString& line : QToolTip::text().split('\n')) {
      EXPECT_LE(QFontMetrics(QToolTip::font()).horizontalAdvance(line), size.width());
    }
  }
}

TEST_F(KeysDlgTest, TipsOfFieldsAreLikeThoseOfKeys) {
  const AppEvents events;
  const auto tipOf = [](QWidget& widget) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&widget, &event);
    return QToolTip::text();
  };
  QLineEdit& result = Result(*dlg_);
  const QString digits(100, u'8');
  result.setToolTip(digits);
  for (const QSize size : {QSize(240, 320), QSize(1080, 1440)}) {
    dlg_->resize(size);
    const QFont letters = dlg_->findChild<QMenuBar*>()->font();
    const QString tip = tipOf(result);
    EXPECT_EQ(QToolTip::font(), letters);
    for (const QString& line : tip.split(u'\n')) {
      EXPECT_LE(QFontMetrics(letters).horizontalAdvance(line), size.width());
    }
    EXPECT_EQ(QString(tip).remove(u'\n'), digits);
    tipOf(KeyOf(u"DEC"));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), ColourNow(Colour::ToolTipBase));
  }
}

TEST_F(KeysDlgTest, AFingerIsToldNothing) {
  QAbstractButton& key = KeyOf(u"SIN");
  const QPointF place = key.rect().center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const QPointF global = key.mapToGlobal(place);
    QMouseEvent event(type, place, global, global, Qt::LeftButton, Qt::LeftButton, {},
                      Qt::MouseEventSynthesizedBySystem);
    QApplication::sendEvent(&key, &event);
  }
  EXPECT_EQ(TipOf(key), "");
}

TEST_F(KeysDlgTest, CtrlHeldAloneShowsShortcutsUntilAnythingElseHappens) {
  QAbstractButton& mac = KeyOf(u"Mac");
  QAbstractButton& sin = KeyOf(u"SIN");
  const QImage before = mac.grab().toImage();
  const QImage sinBefore = sin.grab().toImage();
  QWidget* line = QApplication::focusWidget();
  QTest::keyPress(line, Qt::Key_Control);
  EXPECT_FALSE(HasChanged(before, mac)) << "whoever copies sees nothing";
  ASSERT_TRUE(QTest::qWaitFor([&] { return HasChanged(before, mac); }, 2000));
  EXPECT_FALSE(HasChanged(sinBefore, sin)) << "it has no shortcut";
  QTest::keyRelease(line, Qt::Key_Control);
  EXPECT_FALSE(HasChanged(before, mac));
  QTest::keyPress(line, Qt::Key_Control);
  ASSERT_TRUE(QTest::qWaitFor([&] { return HasChanged(before, mac); }, 2000));
  QTest::keyPress(line, Qt::Key_A, Qt::ControlModifier);
  EXPECT_FALSE(HasChanged(before, mac));
  QTest::keyRelease(line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyRelease(line, Qt::Key_Control);
}

TEST_F(KeysDlgTest, TheListHasAllOfThemAndIsSearched) {
  frame_.dialogs = AllDialogs(frame_.store);
  BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
    auto& table = *dialog.findChild<QTableWidget*>();
    const auto texts = [&table] {
      QStringList rows;
      for (int row = 0; row < table.rowCount(); ++row) {
        rows.append(table.item(row, 0)->text() + " | " + table.item(row, 1)->text());
      }
      return rows;
    };
    EXPECT_GT(table.rowCount(), 80);
    EXPECT_TRUE(texts().contains("Mac (Alt+A) | write a call of one of your macros"));
    EXPECT_TRUE(texts().contains("ASIN | angle of a sine"));
    EXPECT_TRUE(texts().contains("Ctrl+Y, Ctrl+Shift+Z | redo what was undone"));
    EXPECT_TRUE(texts().contains("Enter, = | evaluate the line"));
    EXPECT_TRUE(texts().contains("Esc | clear the line"));
    QTest::keyClicks(QApplication::focusWidget(), "angle sine");
    EXPECT_EQ(texts(), (QStringList{"SIN | sine of an angle", "ASIN | angle of a sine",
                                    "COS | cosine of an angle", "ACOS | angle of a cosine"}));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  ChooseFrom(*dlg_, u"&Help", u"&Keys");
}

TEST_F(KeysDlgTest, F1InADialogOpensItsPage) {
  const ScreenDialogs dialogs = AllDialogs(frame_.store);
  std::vector<GuidePage> pages;
  frame_.dialogs.guide = [&](QWidget* parent, GuidePage page) {
    EXPECT_NE(qobject_cast<QDialog*>(parent), nullptr);
    pages.push_back(page);
  };
  const auto visit = [](const std::function<void()>& open) {
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
      dialog.reject();
    });
    open();
  };
  visit([&] { dialogs.converter(dlg_.get(), {u"1", {}, 0}); });
  visit([&] { dialogs.unitEditor(dlg_.get()); });
  visit([&] { dialogs.macroEditor(dlg_.get()); });
  visit([&] { dialogs.macroList(dlg_.get()); });
  visit([&] { dialogs.storeVariable(dlg_.get(), u"1"); });
  visit([&] { dialogs.constants(dlg_.get()); });
  visit([&] { dialogs.displaySettings(dlg_.get(), DisplayPage::Normal); });
  visit([&] { dialogs.keys(dlg_.get(), {}); });
  EXPECT_EQ(pages, (std::vector{GuidePage::Converter, GuidePage::OwnUnits, GuidePage::Macros,
                                GuidePage::Macros, GuidePage::Memory, GuidePage::Constants,
                                GuidePage::Settings, GuidePage::Scientific}));
}

}  // namespace
}  // namespace kav::test::keys_dlg_test
