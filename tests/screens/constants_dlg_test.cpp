#include "screens/memory/constants_dlg.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QWidget>
#include <string>
#include <utility>
#include <vector>

#include "screens/constants_driver.h"
#include "support/effort.h"

namespace kav::test::constants_dlg_test {
namespace {

using ConstantsDlgTest = ConstantsDriver;

TEST_F(ConstantsDlgTest, ShowsTheTableInTwoColumns) {
  Run([](Constants c) {
    EXPECT_EQ(c.dialog.windowTitle(), "Constants");
    const QAbstractItemModel& model = *c.List().model();
    EXPECT_EQ(model.columnCount(), 2);
    EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "Name");
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Value");
    EXPECT_EQ(c.Column(0), (ShownTexts{"inch", "foot", "pound", "ounce", "pound force"}));
    EXPECT_EQ(c.Column(1), (ShownTexts{"0.0254", "0.3048", "0.45359237", " 0.03 ", "4.4"}));
    EXPECT_EQ(c.Marked(), "");
    EXPECT_EQ(c.Name().text(), "");
    EXPECT_EQ(c.Value().text(), "");
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, ATappedRowIsShownAndTakenWithOk) {
  const auto value = Run([](Constants c) {
    c.Tap(3);
    EXPECT_EQ(c.Marked(), "ounce");
    EXPECT_EQ(c.Name().text(), "ounce");
    EXPECT_EQ(c.Value().text(), " 0.03 ");
    EXPECT_TRUE(c.Value().isReadOnly());
    c.Press("OK");
  });
  EXPECT_EQ(value, Chosen(u" 0.03 "));
}

TEST_F(ConstantsDlgTest, ADoubleTapTakesTheRow) {
  EXPECT_EQ(Run([](Constants c) { c.DoubleTap(1); }), Chosen(u"0.3048"));
}

TEST_F(ConstantsDlgTest, ADoubleTapBelowTheRowsDoesNothing) {
  Run([](Constants c) {
    const QPoint below(c.PlaceOf(0).x(), c.List().viewport()->height() - 2);
    QTest::mouseDClick(c.List().viewport(), Qt::LeftButton, Qt::NoModifier, below);
    EXPECT_TRUE(c.dialog.isVisible());
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, OkWithoutASelectionAsksForOneAndStays) {
  const auto value = Run([this](Constants c) {
    Expect(QMessageBox::Ok);
    c.Press("OK");
    EXPECT_TRUE(c.dialog.isVisible());
    const SeenBox box = Seen();
    EXPECT_EQ(box.text, u"Please select a constant");
    EXPECT_EQ(box.icon, QMessageBox::Critical);
    c.Tap(0);
    c.Press("OK");
  });
  EXPECT_EQ(value, Chosen(u"0.0254"));
}

TEST_F(ConstantsDlgTest, CancelAndEscapeChooseNothing) {
  EXPECT_EQ(Run([](Constants c) {
              c.Tap(0);
              c.Press("Cancel");
            }),
            std::nullopt);
  EXPECT_EQ(Run([](Constants c) {
              c.Tap(0);
              c.Key(Qt::Key_Escape);
            }),
            std::nullopt);
}

TEST_F(ConstantsDlgTest, WithoutTheFileTheUserIsToldAndTheListIsEmpty) {
  ASSERT_EQ(unlink(folder_.File("constable.dat").c_str()), 0);
  Expect(QMessageBox::Ok);
  EXPECT_EQ(Run([this](Constants c) {
              EXPECT_EQ(c.Column(0), ShownTexts());
              c.Key(Qt::Key_Down);
              const SeenBox missing = Seen();
              const std::string path = folder_.File("constable.dat");
              EXPECT_EQ(missing.text,
                        std::u16string(path.begin(), path.end()) + u" file was not found.");
              EXPECT_EQ(missing.icon, QMessageBox::Critical);
              Expect(QMessageBox::Ok);
              c.Press("OK");
              EXPECT_EQ(Seen().text, u"Please select a constant");
              c.Press("Cancel");
            }),
            std::nullopt);
}

TEST_F(ConstantsDlgTest, AFileThatIsTooLargeIsNotRead) {
  Put(std::string((std::size_t{4} << 20U) + 1, ' '));
  Expect(QMessageBox::Ok);
  Run([this](Constants c) {
    EXPECT_EQ(c.Column(0), ShownTexts());
    const std::string path = folder_.File("constable.dat");
    EXPECT_EQ(Seen().text, std::u16string(path.begin(), path.end()) +
                               u" file is larger than 4 MB: it is no table of constants.");
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheListFollowsTheFilterAsItIsTyped) {
  Run([](Constants c) {
    c.Type("p");
    EXPECT_EQ(c.Column(0), (ShownTexts{"pound", "pound force"}));
    c.Type("ound f");
    EXPECT_EQ(c.Column(0), (ShownTexts{"pound force"}));
    c.Type("x");
    EXPECT_EQ(c.Column(0), ShownTexts());
    c.Filter().clear();
    EXPECT_EQ(c.Column(0).size(), 5U);
    c.Type("MASS");
    EXPECT_EQ(c.Column(0), (ShownTexts{"pound", "ounce"}));
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheCountFollowsTheFilter) {
  Run([](Constants c) {
    const auto shows = [&](const QString& text) {
      for (const QLabel* label : c.dialog.findChildren<QLabel*>()) {
        if (label->text() == text) return true;
      }
      return false;
    };
    EXPECT_TRUE(shows("5 of 5"));
    c.Type("pound");
    EXPECT_TRUE(shows("2 of 5"));
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheSelectionStaysWhileItsRowIsShown) {
  Run([](Constants c) {
    c.Tap(4);
    c.Filter().setFocus();
    c.Type("pound");
    EXPECT_EQ(c.Marked(), "pound force");
    EXPECT_EQ(c.Value().text(), "4.4");
    c.Filter().clear();
    EXPECT_EQ(c.Marked(), "pound force");
    c.Type("inch");
    EXPECT_EQ(c.Marked(), "");
    EXPECT_EQ(c.Name().text(), "");
    EXPECT_EQ(c.Value().text(), "");
    c.Filter().clear();
    EXPECT_EQ(c.Marked(), "");
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheKeyboardAloneFindsAndTakesAConstant) {
  const auto value = Run([](Constants c) {
    EXPECT_EQ(c.dialog.focusWidget(), &c.Filter());
    c.Type("pound");
    c.Key(Qt::Key_Down);
    EXPECT_EQ(c.Marked(), "pound");
    c.Key(Qt::Key_Down);
    EXPECT_EQ(c.Marked(), "pound force");
    c.Key(Qt::Key_Up);
    EXPECT_EQ(c.Marked(), "pound");
    EXPECT_EQ(c.Filter().text(), "pound");
    EXPECT_EQ(c.dialog.focusWidget(), &c.Filter());
    c.Key(Qt::Key_Return);
  });
  EXPECT_EQ(value, Chosen(u"0.45359237"));
}

TEST_F(ConstantsDlgTest, PageKeysMoveByWhatIsInSight) {
  std::string many;
  for (int i = 0; i < 200; ++i) many += "]c" + std::to_string(i) + "=1;";
  Put(many);
  Run([](Constants c) {
    c.Key(Qt::Key_Down);
    c.Key(Qt::Key_PageDown);
    const QRect viewport = c.List().viewport()->rect();
    const int row = c.List().currentIndex().row();
    EXPECT_GT(row, 2);
    EXPECT_LT(row, 100);
    EXPECT_TRUE(viewport.contains(c.PlaceOf(row)));
    c.Key(Qt::Key_PageDown);
    EXPECT_EQ(c.List().currentIndex().row(), 2 * row);
    EXPECT_TRUE(viewport.contains(c.PlaceOf(2 * row)));
    c.Key(Qt::Key_PageUp);
    c.Key(Qt::Key_PageUp);
    c.Key(Qt::Key_PageUp);
    EXPECT_EQ(c.Marked(), "c0");
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheListTakesTheSameKeysAndEnter) {
  const auto value = Run([](Constants c) {
    c.Key(Qt::Key_Tab);
    EXPECT_EQ(c.dialog.focusWidget(), &c.List());
    EXPECT_EQ(c.Marked(), "");
    c.Key(Qt::Key_Down);
    EXPECT_EQ(c.Marked(), "inch");
    c.Key(Qt::Key_End);
    EXPECT_EQ(c.Marked(), "pound force");
    c.Key(Qt::Key_Home);
    EXPECT_EQ(c.Marked(), "inch");
    c.Type("o");
    EXPECT_EQ(c.Marked(), "ounce");
    c.Key(Qt::Key_Return);
  });
  EXPECT_EQ(value, Chosen(u" 0.03 "));
}

TEST_F(ConstantsDlgTest, EnterWithoutASelectionAsksForOne) {
  Run([this](Constants c) {
    Expect(QMessageBox::Ok);
    c.Key(Qt::Key_Return);
    EXPECT_EQ(Seen().text, u"Please select a constant");
    EXPECT_TRUE(c.dialog.isVisible());
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, TheValueIsBlackOnYellowAndTheButtonsAreGreen) {
  Run([](Constants c) {
    c.Tap(0);
    EXPECT_EQ(c.Value().palette().color(QPalette::Text), QColor(Qt::black));
    const QImage value = c.Value().grab().toImage();
    EXPECT_EQ(value.pixelColor(value.width() - 8, value.height() / 2), QColor(255, 255, 192));
    for (const char* caption : {"OK", "Cancel"}) {
      const QImage image = c.Button(caption).grab().toImage();
      int green = 0;
      for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, image.height() / 4);
        green += colour.green() > colour.red() + 20 && colour.green() > colour.blue() + 20 ? 1 : 0;
      }
      EXPECT_GT(green, image.width() / 2) << caption;
    }
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, HostileTextsStayInTheirPlaces) {
  const std::string large(1 << 20, 'x');
  Put("]" + large + "=" + large + ";]<b>a\nb</b>=1\n2;");
  const auto value = Run([&](Constants c) {
    c.Tap(0);
    EXPECT_EQ(c.Column(0).front().size(), 401);
    EXPECT_LE(c.dialog.width(), 240);
    EXPECT_LE(c.dialog.height(), 320);
    c.Tap(1);
    EXPECT_EQ(c.Name().text(), "<b>a b</b>");
    EXPECT_EQ(c.Name().textFormat(), Qt::PlainText);
    EXPECT_EQ(c.Value().text(), "1 2");
    c.Press("OK");
  });
  EXPECT_EQ(value, Chosen(u"1\n2"));
}

TEST_F(ConstantsDlgTest, AHostOfRowsIsFilteredAsOneTypes) {
  std::string rows;
  while (rows.size() + 100 < Sized(std::size_t{4} << 20U)) rows += "]a=1;";
  Put(rows + "]last=2;");
  EXPECT_EQ(Run([](Constants c) {
              c.Type("last");
              c.Key(Qt::Key_Down);
              c.Key(Qt::Key_Return);
            }),
            Chosen(u"2"));
}

TEST_F(ConstantsDlgTest, AScreenReaderFindsEverythingByName) {
  Run([](Constants c) {
    const auto nameOf = [](QWidget& widget) {
      return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    };
    EXPECT_EQ(nameOf(c.Filter()), "Filter");
    EXPECT_EQ(c.Filter().placeholderText(), "Filter");
    EXPECT_EQ(nameOf(c.List()), "Constants");
    EXPECT_EQ(nameOf(c.Name()), "Constant Name");
    EXPECT_EQ(nameOf(c.Value()), "Constant Value");
    c.Press("Cancel");
  });
}

TEST_F(ConstantsDlgTest, NamesAndValuesAreWholeAndRowsNoHigherThanTheyNeed) {
  Put(FileContent(std::string(KAV_DATA_FOLDER) + "/constable.dat"));
  for (const QSize size : {QSize(240, 320), QSize(360, 560), QSize(1080, 1440)}) {
    parent_.resize(size);
    Run([&](Constants c) {
      const QTreeView& list = c.List();
      const QFontMetrics letters = list.fontMetrics();
      QFont small = list.font();
      small.setPixelSize(small.pixelSize() / 2 + 1);
      const int margin =
          2 * (list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1);
      for (int row = 0; row < list.model()->rowCount(); ++row) {
        const QModelIndex name = list.model()->index(row, 0);
        const QModelIndex value = list.model()->index(row, 1);
        const QRect room(0, 0, list.columnWidth(0) - margin, 10000);
        const QString text = name.data().toString();
        const QRect lines = letters.boundingRect(room, Qt::TextWordWrap, text);
        // A word that is wider than the column is broken.
        const int needed = lines.width() <= room.width() ? lines.height() : letters.height();
        const int height = list.sizeHintForIndex(name).height();
        EXPECT_GE(height, needed) << text.toStdString();
        const bool isShort = letters.horizontalAdvance(text) <= room.width();
        EXPECT_TRUE(!isShort || height < 2 * letters.height()) << text.toStdString();
        EXPECT_LT(list.sizeHintForIndex(value).height(), 2 * letters.height());
        EXPECT_LE(QFontMetrics(small).horizontalAdvance(value.data().toString()),
                  list.columnWidth(1) - margin)
            << text.toStdString() << size.width();
      }
      c.Press("Cancel");
    });
  }
}

TEST_F(ConstantsDlgTest, EverythingIsInSightAtEverySize) {
  Put(FileContent(std::string(KAV_DATA_FOLDER) + "/constable.dat"));
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(1080, 1440)}) {
    parent_.resize(size);
    Run([&](Constants c) {
      EXPECT_EQ(c.dialog.size(), size);
      c.Type("polarizability");
      c.Key(Qt::Key_Down);
      std::vector<QWidget*> shown{&c.Filter(), &c.List(),       &c.Name(),
                                  &c.Value(),  &c.Button("OK"), &c.Button("Cancel")};
      for (QLabel* label : c.dialog.findChildren<QLabel*>()) shown.push_back(label);
      for (QWidget* widget : shown) {
        const QRect place(widget->mapTo(&c.dialog, QPoint()), widget->size());
        EXPECT_TRUE(c.dialog.rect().contains(place)) << size.width();
        EXPECT_GE(widget->height(), widget->fontMetrics().height()) << size.width();
        for (QWidget* other : shown) {
          const QRect otherPlace(other->mapTo(&c.dialog, QPoint()), other->size());
          EXPECT_TRUE(widget == other || !place.intersects(otherPlace)) << size.width();
        }
      }
      EXPECT_GE(c.List().height(), size.height() / 3);
      // The longest name and the value have room in full below the list.
      const QRect name = c.Name().fontMetrics().boundingRect(QRect(0, 0, c.Name().width(), 10000),
                                                             Qt::TextWordWrap, c.Name().text());
      EXPECT_LE(name.height(), c.Name().height()) << size.width();
      EXPECT_LT(c.Value().fontMetrics().horizontalAdvance(c.Value().text()), c.Value().width());
      c.Press("Cancel");
    });
  }
}

}  // namespace
}  // namespace kav::test::constants_dlg_test
