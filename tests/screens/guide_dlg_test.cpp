// The guide and the list of keys on the screen.
#include "screens/help/guide_dlg.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/guide_caller.h"
#include "screens/widgets/look.h"

namespace kav::test::guide_dlg_test {
namespace {

class GuideDlgTest : public testing::Test {
 protected:
  ~GuideDlgTest() override { BoxWatch::Instance().TakeSeen(); }

  /// Opens the guide over a window of that size, and closes it after `use`.
  static void WithGuide(GuidePage page, QSize size, const std::function<void(QDialog&)>& use) {
    QWidget window;
    Show(window, size);
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      use(dialog);
      dialog.hide();
    });
    RunGuide(&window, page);
  }
  /// Opens the guide beside `window`, where it stays.
  static QDialog* OpenBeside(QWidget& window, Guide& guide) {
    BoxWatch::Instance().ExpectDialog([](QDialog&) {});
    guide.Open(&window, GuidePage::Graph);
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->isVisible() && top->windowTitle() == "Guide") return qobject_cast<QDialog*>(top);
    }
    return nullptr;
  }
  static QTextBrowser& TextIn(QWidget& guide) { return *guide.findChild<QTextBrowser*>(); }
  static QComboBox& PagesIn(QWidget& guide) { return *guide.findChild<QComboBox*>(); }
  static QLabel* FindLabel(QWidget& guide, const char* text) {
    for (auto* label : guide.findChildren<QLabel*>()) {
      if (label->isVisible() && label->text() == text) return label;
    }
    return nullptr;
  }
  /// The text of the block at the top.
  static QString Top(QWidget& guide) {
    const QTextBrowser& text = TextIn(guide);
    return text.cursorForPosition({5, 5}).block().text();
  }
};

TEST_F(GuideDlgTest, OpensAtThePageOfWhatIsAskedFor) {
  const std::vector<std::pair<GuidePage, const char*>> rows{
      {GuidePage::TwoVariable, "Statistics of two variables"},
      {GuidePage::Converter, "Unit converter"}};
  for (const auto& [page, heading] : rows) {
    WithGuide(page, {360, 560}, [&, heading = heading](QDialog& guide) {
      EXPECT_EQ(Top(guide).toStdString(), heading);
      EXPECT_EQ(PagesIn(guide).currentText().toStdString(), heading);
      EXPECT_EQ(QApplication::focusWidget(), &TextIn(guide));
    });
  }
}

TEST_F(GuideDlgTest, ItsLinksCanBeReadInEveryScheme) {
  WithGuide(GuidePage::Scientific, {360, 560}, [](QDialog& guide) {
    QTextBrowser& text = TextIn(guide);
    for (const auto choice :
         {ColourChoice::Dark, ColourChoice::HighContrast, ColourChoice::Light}) {
      UseColours(choice);
      int links = 0;
      for (auto block = text.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
          const QTextCharFormat format = part.fragment().charFormat();
          if (!format.isAnchor()) continue;
          ++links;
          EXPECT_GE(
              ContrastBetween(format.foreground().color(), text.palette().color(QPalette::Base)),
              4.5)
              << part.fragment().text().toStdString();
        }
      }
      EXPECT_GT(links, 0);
    }
  });
}

TEST_F(GuideDlgTest, ItsPicturesHaveRoomAtEverySize) {
  for (const QSize size : {QSize(180, 240), QSize(480, 640)}) {
    WithGuide(GuidePage::Scientific, size, [&](QDialog& guide) {
      QCoreApplication::processEvents();
      QTextBrowser& text = TextIn(guide);
      int pictures = 0;
      for (auto block = text.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
          const auto format = part.fragment().charFormat().toImageFormat();
          if (!format.isValid()) continue;
          ++pictures;
          EXPECT_GT(format.width(), 90);
          EXPECT_LE(format.width(), text.viewport()->width());
          const QVariant picture =
              text.document()->resource(QTextDocument::ImageResource, format.name());
          EXPECT_EQ(picture.value<QImage>().deviceIndependentSize(),
                    QSizeF(format.width(), format.height()))
              << format.name().toStdString();
        }
      }
      EXPECT_EQ(pictures, 14);
      EXPECT_EQ(Top(guide).toStdString(), "Scientific calculator");
    });
  }
}

TEST_F(GuideDlgTest, ItsPartsStandApartAndTablesHaveNoEmptyRow) {
  WithGuide(GuidePage::Scientific, QSize(480, 640), [](QDialog& guide) {
    QTextDocument& text = *TextIn(guide).document();
    const double letters = QFontInfo(text.defaultFont()).pixelSize();
    int tables = 0;
    for (QTextFrame* frame : text.rootFrame()->childFrames()) {
      auto* table = qobject_cast<QTextTable*>(frame);
      if (table == nullptr) continue;
      ++tables;
      EXPECT_GE(table->format().cellPadding(), letters / 5);
      bool isEmpty = true;
      for (int column = 0; column < table->columns(); ++column) {
        if (!table->cellAt(0, column).begin().currentBlock().text().isEmpty()) isEmpty = false;
      }
      EXPECT_FALSE(isEmpty) << "table " << tables;
    }
    EXPECT_GT(tables, 0);
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
      if (block.blockFormat().headingLevel() == 0) continue;
      EXPECT_GE(block.blockFormat().topMargin(), letters / 2) << block.text().toStdString();
    }
  });
}

TEST_F(GuideDlgTest, ItsPicturesGrowWithItsLetters) {
  const auto width = [](QSize size) {
    double widest = 0;
    WithGuide(GuidePage::Scientific, size, [&](QDialog& guide) {
      QTextDocument& text = *TextIn(guide).document();
      for (auto block = text.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
          const auto picture = part.fragment().charFormat().toImageFormat();
          if (picture.isValid()) widest = std::max(widest, picture.width());
        }
      }
    });
    return widest;
  };
  EXPECT_EQ(width(QSize(480, 640)), 240);
  EXPECT_GE(width(QSize(1080, 1440)), 400);
}

TEST_F(GuideDlgTest, PagesAreChosenFromTheirList) {
  WithGuide(GuidePage::Scientific, {360, 560}, [&](QDialog& guide) {
    EXPECT_EQ(PagesIn(guide).count(), 12);
    PagesIn(guide).setCurrentText("Macros");
    EXPECT_EQ(Top(guide), "Macros");
    TextIn(guide).verticalScrollBar()->setValue(0);
    EXPECT_EQ(PagesIn(guide).currentIndex(), -1);
  });
}

TEST_F(GuideDlgTest, LinksLeadToTheOtherDocumentsAndBack) {
  WithGuide(GuidePage::Matrix, {360, 560}, [&](QDialog& guide) {
    QAbstractButton& back = *FindKey(guide, u"Back");
    EXPECT_FALSE(back.isEnabled());
    for (const char* name : {"matrix.md", "plotter.md", "statistics.md", "constants.md"}) {
      TextIn(guide).setSource(QUrl(name));
      EXPECT_GT(TextIn(guide).document()->characterCount(), 1500) << name;
      EXPECT_TRUE(back.isEnabled());
      Click(back);
      EXPECT_EQ(Top(guide), "Matrix calculator") << "it is where it was left";
    }
    EXPECT_FALSE(back.isEnabled());
    EXPECT_EQ(PagesIn(guide).count(), 12);
    for (const char* name : {"units.md", "command-line.md"}) {
      EXPECT_TRUE(QFile::exists(QString(":/guide/") + name)) << name;
    }
  });
}

TEST_F(GuideDlgTest, TheKeyboardGoesFromLinkToLink) {
  WithGuide(GuidePage::Matrix, {360, 560}, [&](QDialog& guide) {
    QTextBrowser& text = TextIn(guide);
    const auto linkAfter = [&](Qt::Key key) {
      QTest::keyClick(&text, key);
      return text.textCursor().selectedText().toStdString();
    };
    EXPECT_EQ(linkAfter(Qt::Key_Right), "matrix.md");
    EXPECT_EQ(linkAfter(Qt::Key_Right), "statistics.md");
    EXPECT_EQ(linkAfter(Qt::Key_Left), "matrix.md");
    EXPECT_EQ(linkAfter(Qt::Key_Left), "matrix.md") << "it is the first";
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(text.source().fileName(), "matrix.md");
    EXPECT_EQ(PagesIn(guide).itemText(0), "What the line understands");
    QTest::keyClick(&text, Qt::Key_Tab);
    EXPECT_NE(QApplication::focusWidget(), &text);
  });
}

TEST_F(GuideDlgTest, WordsAreSearchedFromPlaceToPlace) {
  WithGuide(GuidePage::Converter, {360, 560}, [&](QDialog& guide) {
    QTest::keyClick(&TextIn(guide), Qt::Key_F, Qt::ControlModifier);
    auto* search = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(search, nullptr);
    EXPECT_EQ(search->accessibleName(), "Search");
    QTest::keyClicks(search, "mortgage");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_EQ(TextIn(guide).textCursor().selectedText(), "mortgage");
    EXPECT_EQ(PagesIn(guide).currentText(), "Scientific calculator");
    QTest::keyClicks(search, "xyz");
    QTest::keyClick(search, Qt::Key_Return);
    EXPECT_NE(FindLabel(guide, "not found"), nullptr);
    QTest::keyClick(search, Qt::Key_Backspace);
    EXPECT_EQ(FindLabel(guide, "not found"), nullptr);
    EXPECT_TRUE(guide.isVisible());
  });
}

TEST_F(GuideDlgTest, StaysOpenBesideAScreenAndIsOneWindow) {
  QWidget window;
  Show(window, {240, 320});
  Guide guide;
  QDialog* const dialog = OpenBeside(window, guide);
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(dialog->isModal());
  EXPECT_FALSE(dialog->geometry().intersects(window.geometry())) << "the desktop has room for both";
  guide.Open(&window, GuidePage::Memory);
  EXPECT_EQ(Top(*dialog), "Memory variables");
  QTest::keyClick(dialog, Qt::Key_Escape);
  EXPECT_FALSE(dialog->isVisible());
  BoxWatch::Instance().ExpectDialog([](QDialog&) {});
  guide.Open(&window, GuidePage::Memory);
  EXPECT_TRUE(dialog->isVisible());
  dialog->hide();
}

TEST_F(GuideDlgTest, FollowsTheSizeOfTextsWhileItIsOpen) {
  QWidget window;
  Show(window, {240, 320});
  Guide guide;
  QDialog* const dialog = OpenBeside(window, guide);
  ASSERT_NE(dialog, nullptr);
  const int usual = TextIn(*dialog).font().pixelSize();
  SetTextShare(1.5);
  ScaleOpenDialogs();
  EXPECT_GT(TextIn(*dialog).font().pixelSize(), usual);
  EXPECT_EQ(Top(*dialog), "Graph") << "it stays where it was";
  SetTextShare(1);
  // Also who only asks for another page gets it in the size of now.
  guide.Open(&window, GuidePage::Memory);
  EXPECT_EQ(TextIn(*dialog).font().pixelSize(), usual);
  EXPECT_EQ(Top(*dialog), "Memory variables");
  dialog->hide();
}

/// A screen that notes what it is told.
struct NotingScreen final : QWidget, GuideCaller {
  void OpenGuide(QWidget*, std::optional<GuidePage>) override {}
  void Obey(ScreenCommand command) override { told.push_back(command); }

  std::vector<ScreenCommand> told;
};

TEST_F(GuideDlgTest, ItsShortcutsForTheSizeOfTextsAreThoseOfTheScreen) {
  NotingScreen screen;
  Show(screen, {240, 320});
  Guide guide;
  BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Equal, Qt::Key_Minus, Qt::Key_0}) {
      QTest::keyClick(&TextIn(dialog), key, Qt::ControlModifier);
    }
    dialog.hide();
  });
  guide.Open(&screen, GuidePage::Graph);
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.told.size() == 4; }));
  EXPECT_EQ(screen.told, (std::vector{ScreenCommand::LargerText, ScreenCommand::LargerText,
                                      ScreenCommand::SmallerText, ScreenCommand::UsualText}));
}

}  // namespace
}  // namespace kav::test::guide_dlg_test
