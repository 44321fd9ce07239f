// Uses the graph on the screen as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QListWidget>
#include <QPainter>
#include <QTemporaryDir>
#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/number_text.h"
#include "screens/box_watch.h"
#include "screens/plotter/graph_view.h"
#include "screens/screen_driver.h"
#include "support/graph_inputs.h"

namespace kav::test {

/// Curves with the labels that the plotter gives them, in radians over -10 to 10.
inline GraphInput LabelledGraphOf(std::initializer_list<std::string_view> formulas) {
  constexpr std::u16string_view kPrefixes[] = {u"R:F1(X)=", u"G:F2(x)=", u"B:F3(X)="};
  GraphInput input = GraphOf(formulas);
  std::size_t i = 0;
  for (const std::string_view formula : formulas) {
    input.curves[i].label = std::u16string(kPrefixes[i]) + Widen(formula);
    ++i;
  }
  return input;
}

/// A graph over a window of its own. The graph is modal, so a test hands Open a function that uses
/// it.
class GraphScreen : public testing::Test {
 protected:
  ~GraphScreen() override { EXPECT_TRUE(BoxWatch::Instance().TakeSeen().empty()); }

  /// Opens the graph, runs `use` and closes what is still open. The plot of a window 240 pixels
  /// wide is 230 pixels wide.
  void Open(GraphInput input, const std::function<void()>& use, QSize size = {240, 320}) {
    Show(window_, size);
    BoxWatch::Instance().ExpectDialog([&](QDialog& dialog) {
      dlg_ = &dialog;
      use();
      dialog.hide();
    });
    RunGraphView(&window_, std::move(input));
    dlg_ = nullptr;
  }

  QDialog& Dlg() { return *dlg_; }
  QWidget& Plot() {
    QWidget* plot = nullptr;
    for (auto* widget : dlg_->findChildren<QWidget*>()) {
      if (widget->accessibleName() == "Graph") plot = widget;
    }
    EXPECT_NE(plot, nullptr);
    return *plot;
  }
  /// Where the plot is on its widget: two pixels from its sides, three from top and bottom, of a
  /// plot 230 pixels wide.
  QRect Area() {
    const double scale = Plot().width() / 234.;
    const int side = qRound(2 * scale);
    const int top = qRound(3 * scale);
    return Plot().rect().adjusted(side, top, -side, -top);
  }
  QLineEdit& X() { return LineNamed(*dlg_, "X"); }
  QComboBox& Selector() { return *dlg_->findChild<QComboBox*>(); }
  QCheckBox& Trace() { return *dlg_->findChild<QCheckBox*>(); }
  QListWidget& Results() { return *dlg_->findChild<QListWidget*>(); }
  Texts Lines() {
    Texts lines;
    for (int i = 0; i < Results().count(); ++i) {
      lines.push_back(Results().item(i)->text().toStdU16String());
    }
    return lines;
  }
  std::optional<int> SelectedLine() {
    const auto items = Results().selectedItems();
    return items.isEmpty() ? std::nullopt : std::optional(Results().row(items.front()));
  }

  void TapKey(std::u16string_view caption) { Click(*FindKey(*dlg_, caption)); }
  void TapPlot(QPoint place) { QTest::mouseClick(&Plot(), Qt::LeftButton, {}, place); }
  void Drag(QPoint from, QPoint to) {
    QTest::mousePress(&Plot(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&Plot(), (from + to) / 2);
    QTest::mouseMove(&Plot(), to);
    QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, to);
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    // After a dialog, the window has to become active first.
    dlg_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dlg_));
    QTest::keyClick(dlg_->focusWidget(), key, modifiers);
  }
  void ChooseFromMenu(std::u16string_view entry) { ChooseFrom(*dlg_, u"&Graph", entry); }
  /// Whether the menu offers "Undo".
  bool CanUndo() {
    for (const QAction* action : MenuOf(*dlg_, u"&Graph")->actions()) {
      if (action->text() == "U&ndo") return action->isEnabled();
    }
    ADD_FAILURE() << "the menu has no Undo";
    return false;
  }
  /// Taps, so that the results stand below the plot as from then on.
  void ShowResults() { TapPlot(Area().center()); }
  void Calculate(const QString& x) {
    X().setText(x);
    TapKey(u"Cal");
  }

  /// The number that a tap shows in the results list.
  double TappedY() {
    const QString line = ToQt(Lines().at(0));
    EXPECT_TRUE(line.startsWith("y = ")) << line.toStdString();
    return line.mid(4).remove(',').toDouble();
  }
  double TappedX() { return X().text().remove(',').toDouble(); }
  /// The range of the plot, read by tapping its corners.
  PlotRange Range() {
    PlotRange range;
    TapPlot(Area().topLeft());
    range.xMin = TappedX();
    range.yMax = TappedY();
    // Only now: with the first results the plot gets lower.
    const QRect area = Area();
    TapPlot(area.bottomRight());
    range.xMax = TappedX();
    // A tap in the lowest row shows y min plus the height of a row.
    range.yMin = TappedY() - (range.yMax - TappedY()) / (area.height() - 1);
    return range;
  }
  void ExpectRange(const PlotRange& expected) {
    const PlotRange range = Range();
    const double tolerance = 1e-9 * (1 + std::fabs(expected.xMax) + std::fabs(expected.yMax));
    EXPECT_NEAR(range.xMin, expected.xMin, tolerance);
    EXPECT_NEAR(range.xMax, expected.xMax, tolerance);
    EXPECT_NEAR(range.yMin, expected.yMin, tolerance);
    EXPECT_NEAR(range.yMax, expected.yMax, tolerance);
  }

  /// Runs `act`, and expects a box with a stop icon that says `text`.
  void ExpectStop(std::u16string_view text, const std::function<void()>& act) {
    BoxWatch::Instance().Expect(QMessageBox::Ok);
    act();
    const auto seen = BoxWatch::Instance().TakeSeen();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen.front().text, text);
    EXPECT_EQ(seen.front().icon, QMessageBox::Critical);
  }

  /// The plot as it is seen. The margin, where the focus is shown, is left black.
  QImage Picture() {
    const QImage seen = Plot().grab().toImage();
    QImage picture(seen.size(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter(&picture).drawImage(Area().topLeft(), seen, Area());
    return picture;
  }

  QString Path(const QString& name) { return folder_.filePath(name); }
  /// Expects a dialog that asks for a file, and types `path` into it.
  static void ExpectFile(const QString& path) {
    BoxWatch::Instance().ExpectDialog([path](QDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>();
      name->setText(path);
      QTest::keyClick(name, Qt::Key_Return);
    });
  }
  void SaveTo(const QString& path) {
    ExpectFile(path);
    TapKey(u"Save Graph");
  }
  /// The picture that "Save Graph" makes of `input`.
  QImage Saved(GraphInput input, QSize size = {240, 320}) {
    Open(
        std::move(input),
        [this] {
          ShowResults();
          SaveTo(Path("picture.bmp"));
        },
        size);
    QImage picture(Path("picture.bmp"), "BMP");
    QFile::remove(Path("picture.bmp"));
    EXPECT_FALSE(picture.isNull());
    return picture.convertToFormat(QImage::Format_RGB32);
  }

  QWidget window_;
  QDialog* dlg_ = nullptr;
  QTemporaryDir folder_;
};

}  // namespace kav::test
