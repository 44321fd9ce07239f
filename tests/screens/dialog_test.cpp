// What all dialogs have in common: where they open, how they scale, and how their lines are shown.
#include "screens/widgets/dialog.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <vector>

#include "screens/box_watch.h"
#include "screens/help/guide_dlg.h"
#include "screens/help/keys_dlg.h"
#include "screens/screen_driver.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "settings/keys.h"

namespace kav::test::dialog_test {
namespace {

class SampleDialog final : public Dialog {
 public:
  explicit SampleDialog(QWidget* parent) : Dialog(parent, u"Sample") {
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(field = new QLineEdit("text"));
    rows->addWidget(combo = new QComboBox);
    rows->addWidget(radio = new QRadioButton("choice"));
    rows->addWidget(button = new DialogButton(u"Variables"));
    combo->addItems({"Left", "Right"});
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
  }

  QLineEdit* field;
  QComboBox* combo;
  QRadioButton* radio;
  DialogButton* button;
};

class DialogTest : public testing::Test {
 protected:
  void Open(QSize size, const std::function<void(SampleDialog&)>& use) {
    Show(screen_, size);
    SampleDialog dialog(&screen_);
    BoxWatch::Instance().ExpectDialog([&](QDialog&) {
      use(dialog);
      dialog.reject();
    });
    EXPECT_FALSE(dialog.RunModal());
    EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty());
  }

  QWidget screen_;
};

TEST_F(DialogTest, CoversTheScreenThatOpensIt) {
  Open({480, 640}, [this](const SampleDialog& dialog) {
    EXPECT_EQ(dialog.geometry(), screen_.geometry());
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), "Sample");
  });
}

TEST_F(DialogTest, CoversOnlyTheUprightPartOfAWideScreen) {
  Open({800, 400}, [this](const SampleDialog& dialog) {
    EXPECT_EQ(dialog.size(), QSize(300, 400));
    EXPECT_EQ(dialog.geometry().center().x(), screen_.geometry().center().x());
  });
}

TEST_F(DialogTest, TextsGrowWithTheHeight) {
  std::vector<int> sizes;
  for (const QSize size : {QSize(240, 320), QSize(480, 640), QSize(960, 1280)}) {
    Open(size, [&](const SampleDialog& dialog) {
      sizes.push_back(dialog.field->font().pixelSize());
      EXPECT_EQ(dialog.button->font().pixelSize(), sizes.back());
      EXPECT_GE(dialog.field->height(), dialog.field->fontMetrics().height());
      EXPECT_GE(dialog.combo->height(), dialog.combo->fontMetrics().height());
    });
  }
  ASSERT_EQ(sizes.size(), 3U);
  EXPECT_GE(sizes[0], 11);
  EXPECT_NEAR(sizes[1], 2 * sizes[0], 2);
  EXPECT_NEAR(sizes[2], 4 * sizes[0], 4);
}

/// Whether the caption of the choice is seen whole.
bool IsWhole(const SampleDialog& dialog) {
  return dialog.radio->width() >= dialog.radio->sizeHint().width() &&
         dialog.rect().contains(dialog.radio->geometry());
}

TEST_F(DialogTest, TextsAreSmallerWhereOneOfThemWouldBeCut) {
  int usual = 0;
  Open({240, 320}, [&](const SampleDialog& dialog) { usual = dialog.font().pixelSize(); });
  Open({240, 320}, [&](SampleDialog& dialog) {
    dialog.radio->setText("a caption that is longer than the smallest screen is wide");
    QCoreApplication::processEvents();
    EXPECT_LT(dialog.font().pixelSize(), usual);
    EXPECT_GT(dialog.font().pixelSize(), usual / 3);
    EXPECT_EQ(dialog.button->font().pixelSize(), dialog.font().pixelSize());
    EXPECT_TRUE(IsWhole(dialog));
    EXPECT_EQ(dialog.size(), QSize(240, 320));
  });
}

TEST_F(DialogTest, TextsAreSmallerInAWindowThatIsNarrowForItsHeight) {
  Open({240, 480}, [](SampleDialog& dialog) {
    dialog.radio->setText("a caption for a square window");
    QCoreApplication::processEvents();
    EXPECT_TRUE(IsWhole(dialog));
  });
}

TEST_F(DialogTest, ALargerWindowGivesTheTextsTheirSizeBack) {
  Open({240, 320}, [](SampleDialog& dialog) {
    dialog.radio->setText("a caption that is longer than the smallest screen is wide");
    QCoreApplication::processEvents();
    const int small = dialog.font().pixelSize();
    dialog.resize(960, 320);
    QCoreApplication::processEvents();
    EXPECT_GT(dialog.font().pixelSize(), small);
    EXPECT_TRUE(IsWhole(dialog));
  });
}

TEST_F(DialogTest, AButtonGivesTheRoomAroundItsCaptionFirst) {
  Open({240, 320}, [](const SampleDialog& dialog) {
    const int text = dialog.button->fontMetrics().horizontalAdvance(dialog.button->text());
    EXPECT_GT(dialog.button->minimumSizeHint().width(), text);
    EXPECT_LT(dialog.button->minimumSizeHint().width(), dialog.button->sizeHint().width());
    EXPECT_GE(dialog.button->minimumSizeHint().height(), dialog.button->fontMetrics().height());
  });
}

TEST_F(DialogTest, MarksGrowWithTheTexts) {
  Open({960, 1280}, [](const SampleDialog& dialog) {
    const int mark = dialog.radio->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr,
                                                        dialog.radio);
    EXPECT_GT(mark, dialog.radio->fontMetrics().height() / 2);
  });
}

TEST_F(DialogTest, ACaptionHasRoomOnItsButton) {
  Open({240, 320}, [](const SampleDialog& dialog) {
    const int text = dialog.button->fontMetrics().horizontalAdvance(dialog.button->text());
    EXPECT_LT(text, dialog.button->sizeHint().width());
  });
}

TEST_F(DialogTest, AcceptingIsTheAnswerYes) {
  Show(screen_, {480, 640});
  SampleDialog dialog(&screen_);
  BoxWatch::Instance().ExpectDialog([&](QDialog&) { Click(*dialog.button); });
  EXPECT_TRUE(dialog.RunModal());
}

TEST_F(DialogTest, EscapeIsTheAnswerNo) {
  Show(screen_, {480, 640});
  SampleDialog dialog(&screen_);
  BoxWatch::Instance().ExpectDialog([](QDialog& open) { QTest::keyClick(&open, Qt::Key_Escape); });
  EXPECT_FALSE(dialog.RunModal());
}

/// What stands over a screen that is a column beside the history.
class DialogOverColumnTest : public testing::Test {
 protected:
  DialogOverColumnTest() : screen_(MakeScientificScreen(frame_)) {}

  void ShowAt(QPoint place, QSize size) {
    screen_->move(place);
    Show(*screen_, size);
  }
  /// In its frame, what `open` shows, which is closed then.
  QRect PlaceOf(const std::function<void(QWidget* over)>& open) {
    QRect place;
    QTimer::singleShot(0, [&] {
      QWidget* shown = QApplication::activeModalWidget();
      ASSERT_NE(shown, nullptr);
      place = shown->geometry();
      EXPECT_TRUE(shown->screen()->availableGeometry().contains(shown->frameGeometry()));
      static_cast<QDialog*>(shown)->reject();
    });
    open(screen_.get());
    return place;
  }

  /// A box is placed by its frame: so far its middle may be from that of the screen.
  static constexpr int kFrame = 4;

  struct Row {
    const char* name;
    std::function<void(QWidget*)> open;
  };
  // Each kind of them finds its place by itself.
  const std::vector<Row> rows_{
      {"dialog", [](QWidget* over) { SampleDialog(over).RunModal(); }},
      {"keys", [](QWidget* over) { RunKeys(over, {}); }},
      {"file",
       [](QWidget* over) {
         AskFileToOpen(over, {u"Text (*.txt)", u"txt"});
       }},
  };
  const Row box_{"box", [](QWidget* over) { ShowStop(over, u"Division by zero."); }};

  FakeFrame frame_;
  std::unique_ptr<QWidget> screen_;
};

TEST_F(DialogOverColumnTest, TheyStandOverTheColumnAndNotOverTheMiddle) {
  ShowAt({20, 30}, {1280, 720});
  const QRect column(screen_->geometry().topLeft(), QSize(540, 720));
  for (const Row& row : rows_) {
    BoxWatch::Instance().ExpectDialog([](QDialog&) {});
    EXPECT_EQ(PlaceOf(row.open), column) << row.name;
  }
  BoxWatch::Instance().Expect(QMessageBox::NoButton);
  const QRect box = PlaceOf(box_.open);
  EXPECT_LE((box.center() - column.center()).manhattanLength(), kFrame);
  BoxWatch::Instance().TakeSeen();
}

TEST_F(DialogOverColumnTest, AColumnBeyondTheDesktopHasThemAtItsEdge) {
  ShowAt({-700, 30}, {1280, 720});
  for (const Row& row : rows_) {
    BoxWatch::Instance().ExpectDialog([](QDialog&) {});
    EXPECT_LT(PlaceOf(row.open).x(), 10) << row.name;
  }
  BoxWatch::Instance().Expect(QMessageBox::NoButton);
  EXPECT_LT(PlaceOf(box_.open).center().x(), 540 / 2 + 10);
  BoxWatch::Instance().TakeSeen();
}

TEST_F(DialogOverColumnTest, WithoutAHistoryTheyStandInTheMiddle) {
  frame_.store.Set(kHistoryShown, 0);
  screen_ = MakeScientificScreen(frame_);
  ShowAt({20, 30}, {800, 600});
  const QRect window = screen_->geometry();
  const QRect middle(window.x() + 175, window.y(), 450, 600);
  for (const Row& row : rows_) {
    BoxWatch::Instance().ExpectDialog([](QDialog&) {});
    EXPECT_EQ(PlaceOf(row.open), middle) << row.name;
  }
  BoxWatch::Instance().Expect(QMessageBox::NoButton);
  EXPECT_LE((PlaceOf(box_.open).center() - window.center()).manhattanLength(), kFrame);
  BoxWatch::Instance().TakeSeen();
}

TEST_F(DialogOverColumnTest, TheGuideStandsBesideTheColumnWhereTheDesktopHasNoOtherRoom) {
  ShowAt({20, 30}, {760, 500});
  Guide guide;
  BoxWatch::Instance().ExpectDialog([](QDialog&) {});
  guide.Open(screen_.get(), GuidePage::Graph);
  QWidget* dialog = nullptr;
  for (QWidget* top : QApplication::topLevelWidgets()) {
    if (top->isVisible() && top->windowTitle() == "Guide") dialog = top;
  }
  ASSERT_NE(dialog, nullptr);
  const QRect column(screen_->geometry().topLeft(), QSize(375, 500));
  EXPECT_EQ(dialog->geometry(), column.translated(375, 0));
  dialog->close();
  BoxWatch::Instance().TakeSeen();
}

TEST(OneLine, KeepsAShortText) {
  EXPECT_EQ(OneLine(u""), "");
  EXPECT_EQ(OneLine(u"M:größe(1)"), QStringView(u"M:größe(1)").toString());
  EXPECT_EQ(OneLine(std::u16string(400, u'x')), QString(400, 'x'));
}

TEST(OneLine, MakesBreaksAndTabsBlanks) {
  EXPECT_EQ(OneLine(u"a\nb\tc\r\nd"), "a b c  d");
}

TEST(OneLine, CutsWhatNoScreenHasRoomFor) {
  EXPECT_EQ(OneLine(std::u16string(1'000'000, u'x')), QString(400, 'x') + QChar(u'…'));
}

}  // namespace
}  // namespace kav::test::dialog_test
