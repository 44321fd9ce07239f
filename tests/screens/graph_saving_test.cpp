// "Save Graph": the files, the dialog that asks for them, and what happens when they fail.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QSvgRenderer>
#include <array>

#include "screens/graph_driver.h"
#include "screens/plotter/graph_painter_view.h"
#include "screens/plotter/graph_saving_view.h"
#include "screens/widgets/colour_scheme.h"

namespace kav::test::graph_saving_test {
namespace {

class GraphSavingTest : public GraphScreen {
 protected:
  QByteArray Content(const QString& name) {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }
  void Write(const QString& name, const QByteArray& content) {
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QStringList Files() { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }
  /// Like SaveTo, with the filter `row` entries below the preset one.
  void SaveAs(int row, const QString& path) {
    BoxWatch::Instance().ExpectDialog([row, path](QDialog& dialog) {
      auto* filters = dialog.findChild<QComboBox*>("fileTypeCombo");
      filters->setFocus();
      for (int i = 0; i < row; ++i) QTest::keyClick(filters, Qt::Key_Down);
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
    TapKey(u"Save Graph");
  }
};

/// The little-endian number of `size` bytes at `at`.
std::uint32_t NumberAt(const QByteArray& bytes, int at, int size) {
  std::uint32_t number = 0;
  for (int i = size - 1; i >= 0; --i) {
    number = number << 8U | static_cast<unsigned char>(bytes[at + i]);
  }
  return number;
}

TEST_F(GraphSavingTest, TheDialogOffersBmpFirst) {
  Open(LabelledGraphOf({"x"}), [this] {
    BoxWatch::Instance().ExpectDialog([](QDialog& dialog) {
      auto* filters = dialog.findChild<QComboBox*>("fileTypeCombo");
      ASSERT_EQ(filters->count(), 4);
      EXPECT_EQ(filters->itemText(0), "BMP(*.bmp)");
      EXPECT_EQ(filters->itemText(1), "PNG(*.png)");
      EXPECT_EQ(filters->itemText(2), "SVG(*.svg)");
      EXPECT_EQ(filters->itemText(3), "PDF(*.pdf)");
      EXPECT_EQ(filters->currentIndex(), 0);
      dialog.reject();
    });
    TapKey(u"Save Graph");
    EXPECT_EQ(Files(), QStringList());
  });
}

TEST_F(GraphSavingTest, ABmpHasItsHeadersAndItsRows) {
  Open(LabelledGraphOf({"x"}), [this] {
    SaveTo(Path("a.bmp"));
    const QByteArray bytes = Content("a.bmp");
    const auto width = static_cast<std::uint32_t>(Plot().width());
    const auto height = static_cast<std::uint32_t>(Plot().height());
    EXPECT_EQ(width, 234U);
    const std::uint32_t row = (width * 3 + 3) / 4 * 4;
    EXPECT_EQ(bytes.left(2), "BM");
    EXPECT_EQ(NumberAt(bytes, 2, 4), 14 + 40 + row * height);
    EXPECT_EQ(NumberAt(bytes, 6, 4), 0U);
    EXPECT_EQ(NumberAt(bytes, 10, 4), 14U + 40U);
    EXPECT_EQ(NumberAt(bytes, 14, 4), 40U);
    EXPECT_EQ(NumberAt(bytes, 18, 4), width);
    EXPECT_EQ(NumberAt(bytes, 22, 4), height);
    EXPECT_EQ(NumberAt(bytes, 26, 2), 1U);
    EXPECT_EQ(NumberAt(bytes, 28, 2), 24U);
    EXPECT_EQ(NumberAt(bytes, 30, 4), 0U);
    EXPECT_EQ(NumberAt(bytes, 34, 4), row * height);
    // 72 pixels an inch are 2834.6 a metre.
    EXPECT_EQ(NumberAt(bytes, 38, 4), 2835U);
    EXPECT_EQ(NumberAt(bytes, 42, 4), 2835U);
    EXPECT_EQ(NumberAt(bytes, 46, 4), 0U);
    EXPECT_EQ(NumberAt(bytes, 50, 4), 0U);
    EXPECT_EQ(bytes.size(), 14 + 40 + row * height);
  });
}

// Rows of four consecutive widths are filled up with 0 to 3 bytes.
TEST(GraphSaving, TheRowsOfABmpStandFromTheBottomAndAreFilledUp) {
  GraphModel model(LabelledGraphOf({"x^2", "10*sin(x)", "1/x"}));
  for (const QSize size : {QSize(234, 236), QSize(235, 301), QSize(236, 57), QSize(237, 236),
                           QSize(1080, 900), QSize(4, 6)}) {
    model.SetArea(AreaWithin(size));
    QImage drawn;
    DrawGraph(model, drawn);
    const QByteArray bytes = QByteArray::fromStdString(PrintGraph(model, GraphFile::Bmp));
    const int rowSize = (drawn.width() * 3 + 3) / 4 * 4;
    ASSERT_EQ(bytes.size(), 54 + rowSize * drawn.height());
    QImage read(drawn.size(), drawn.format());
    for (int row = 0; row < read.height(); ++row) {
      const int start = 54 + (read.height() - 1 - row) * rowSize;
      for (int column = 0; column < read.width(); ++column) {
        read.setPixel(column, row, 0xFF000000U | NumberAt(bytes, start + 3 * column, 3));
      }
      const int filling = rowSize - 3 * drawn.width();
      ASSERT_EQ(bytes.mid(start + 3 * drawn.width(), filling), QByteArray(filling, '\0'));
    }
    EXPECT_EQ(read, drawn);
  }
}

TEST_F(GraphSavingTest, ASavedPictureIsLightOnADarkScreen) {
  const GraphModel model = [] {
    GraphModel light(LabelledGraphOf({"x^2", "10*sin(x)", "1/x"}));
    light.SetArea(AreaWithin({234, 236}));
    return light;
  }();
  const auto printed = [&] {
    return std::array{PrintGraph(model, GraphFile::Bmp), PrintGraph(model, GraphFile::Png),
                      PrintGraph(model, GraphFile::Svg)};
  };
  const auto light = printed();
  UseColours(ColourChoice::Dark);
  EXPECT_EQ(printed(), light);
  QImage seen;
  DrawGraph(model, seen, SchemeNow());
  EXPECT_LT(seen.pixelColor(0, 0).lightness(), 60);
  Open(LabelledGraphOf({"x^2"}), [this] {
    // Beside all lines.
    const auto paper = [this] {
      const QPoint beside(Area().width() / 30, Area().height() / 8);
      return Picture().pixelColor(Area().center() - beside).lightness();
    };
    EXPECT_LT(paper(), 60);
    UseColours(ColourChoice::Light);
    EXPECT_EQ(paper(), 255) << "what was drawn before is drawn anew";
  });
  UseColours(ColourChoice::Light);
}

TEST_F(GraphSavingTest, ThePictureIsWhatIsSeenFromTwoPixelsLeftAndThreeAboveThePlot) {
  Open(LabelledGraphOf({"x^2", "10*sin(x)", "1/x"}), [this] {
    SaveTo(Path("a.bmp"));
    const QImage saved = QImage(Path("a.bmp"), "BMP").convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(saved.size(), Plot().size());
    EXPECT_EQ(saved.copy(Area()), Picture().copy(Area()));
    EXPECT_EQ(saved.pixelColor(2, 3), QColor(Qt::black));
    EXPECT_EQ(saved.pixelColor(1, 3), QColor(Qt::white));
    EXPECT_EQ(saved.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(saved.pixelColor(0, 0), QColor(Qt::white));
  });
}

TEST_F(GraphSavingTest, TheTraceMarkerIsNotSaved) {
  Open(LabelledGraphOf({"x"}), [this] {
    ShowResults();
    SaveTo(Path("a.bmp"));
    TapKey(u"Trace");
    TapPlot(Area().center());
    SaveTo(Path("b.bmp"));
    EXPECT_EQ(Content("a.bmp"), Content("b.bmp"));
  });
}

TEST_F(GraphSavingTest, APngHasThePixelsOfTheBmp) {
  Open(LabelledGraphOf({"x^2"}), [this] {
    SaveTo(Path("a.bmp"));
    SaveAs(1, Path("a.png"));
    const QImage bmp(Path("a.bmp"), "BMP");
    const QImage png(Path("a.png"), "PNG");
    ASSERT_FALSE(png.isNull());
    EXPECT_EQ(png.convertToFormat(QImage::Format_RGB32), bmp.convertToFormat(QImage::Format_RGB32));
  });
}

TEST_F(GraphSavingTest, AnSvgShowsTheSameInShapes) {
  GraphInput input = LabelledGraphOf({"0*x-5", "0*x+5"});
  input.options = {false, true, false};
  Open(input, [this] {
    SaveAs(2, Path("a.svg"));
    const QByteArray text = Content("a.svg");
    EXPECT_TRUE(text.contains("<polyline"));
    EXPECT_FALSE(text.contains("<image"));
    QSvgRenderer renderer(text);
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBox().size(), Plot().size());
    QImage drawn(Plot().size(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    renderer.render(&painter);
    painter.end();
    const QRect area = Area();
    const auto rowOf = [&](double y) {
      return static_cast<int>(area.bottom() - (area.height() - 1) / 20. * (y + 10));
    };
    EXPECT_EQ(drawn.pixelColor(50, rowOf(-5)), QColor(255, 0, 0));
    EXPECT_EQ(drawn.pixelColor(50, rowOf(5)), QColor(0, 255, 0));
    EXPECT_EQ(drawn.pixelColor(50, rowOf(2.5)), QColor(Qt::white));
    EXPECT_EQ(drawn.pixelColor(area.left(), rowOf(2.5)), QColor(Qt::black));
  });
}

TEST_F(GraphSavingTest, ANameWithoutASuffixGetsThatOfTheFilter) {
  Open(LabelledGraphOf({"x"}), [this] {
    SaveAs(0, Path("a"));
    SaveAs(1, Path("b"));
    SaveAs(2, Path("c"));
  });
  EXPECT_EQ(Files(), QStringList({"a.bmp", "b.png", "c.svg"}));
  EXPECT_TRUE(Content("a.bmp").startsWith("BM"));
  EXPECT_TRUE(Content("b.png").startsWith("\x89PNG"));
  EXPECT_TRUE(Content("c.svg").contains("<svg"));
}

TEST_F(GraphSavingTest, TheSuffixOfANameSaysWhatIsSaved) {
  Open(LabelledGraphOf({"x"}), [this] {
    SaveAs(0, Path("a.png"));
    SaveAs(0, Path("b.SVG"));
    SaveAs(0, Path("c.graph"));
  });
  EXPECT_EQ(Files(), QStringList({"a.png", "b.SVG", "c.graph"}));
  EXPECT_TRUE(Content("a.png").startsWith("\x89PNG"));
  EXPECT_TRUE(Content("b.SVG").contains("<svg"));
  EXPECT_TRUE(Content("c.graph").startsWith("BM"));
}

TEST_F(GraphSavingTest, AnExistingFileIsReplacedOnceTheUserAgrees) {
  Write("a.bmp", QByteArray(1 << 20, 'x'));
  Open(LabelledGraphOf({"x"}), [this] {
    BoxWatch::Instance().ExpectDialog([this](QDialog& dialog) {
      BoxWatch::Instance().Expect(QMessageBox::Yes);
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(Path("a.bmp"));
      QTest::keyClick(name, Qt::Key_Return);
    });
    TapKey(u"Save Graph");
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  });
  EXPECT_EQ(Files(), QStringList({"a.bmp"}));
  EXPECT_TRUE(Content("a.bmp").startsWith("BM"));
  EXPECT_LT(Content("a.bmp").size(), 1 << 20);
}

TEST_F(GraphSavingTest, AnExistingFileIsKeptWhereTheUserDoesNotAgree) {
  Write("a.bmp", "old");
  Open(LabelledGraphOf({"x"}), [this] {
    BoxWatch::Instance().ExpectDialog([this](QDialog& dialog) {
      BoxWatch::Instance().Expect(QMessageBox::No);
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(Path("a.bmp"));
      QTest::keyClick(name, Qt::Key_Return);
      EXPECT_TRUE(dialog.isVisible());
      dialog.reject();
    });
    TapKey(u"Save Graph");
    EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  });
  EXPECT_EQ(Content("a.bmp"), "old");
}

TEST_F(GraphSavingTest, AFileThatCannotBeMadeIsTold) {
  Open(LabelledGraphOf({"x"}), [this] {
    for (const char* path : {"/proc/self/graph.bmp", "/proc/self/graph.png", "/proc/graph.svg"}) {
      SCOPED_TRACE(path);
      ExpectFile(path);
      ExpectStop(u"File Error", [this] { TapKey(u"Save Graph"); });
      EXPECT_FALSE(QFile::exists(path));
      EXPECT_TRUE(Dlg().isVisible());
    }
  });
}

TEST_F(GraphSavingTest, NothingIsWrittenIntoAFolderThatMayNotBeWritten) {
  if (geteuid() == 0) GTEST_SKIP() << "the user may write everywhere";
  chmod(folder_.path().toLocal8Bit().constData(), 0500);
  Open(LabelledGraphOf({"x"}), [this] {
    BoxWatch::Instance().ExpectDialog([this](QDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(Path("a.bmp"));
      QTest::keyClick(name, Qt::Key_Return);
    });
    ExpectStop(u"File Error", [this] { TapKey(u"Save Graph"); });
  });
  EXPECT_EQ(Files(), QStringList());
  chmod(folder_.path().toLocal8Bit().constData(), 0700);
}

TEST_F(GraphSavingTest, LettersHaveNoColouredFringes) {
  GraphInput input = LabelledGraphOf({"0*x+20"});
  input.range = {1, 2, 1, 2};
  input.options = {false, true, true};
  const QImage image = Saved(input);
  for (int row = 0; row < image.height(); ++row) {
    for (int column = 0; column < image.width(); ++column) {
      const QRgb pixel = image.pixel(column, row);
      ASSERT_TRUE(qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel));
    }
  }
}

}  // namespace
}  // namespace kav::test::graph_saving_test
