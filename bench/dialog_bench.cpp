// How long it takes from a tap to the dialog that it opens, painted: each opened over a window of
// the usual size, and the guide also at other pages.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <functional>
#include <initializer_list>
#include <memory>

#include "app/frame_window.h"
#include "screens/help/guide_dlg.h"
#include "screens/matrix/matrix_size_dlg.h"
#include "screens/memory/constants_dlg.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "settings/settings_store.h"

namespace kav {
namespace {

constexpr double kNanoseconds = 1e9;

/// Waits for the first picture of a dialog.
class FirstPicture final : public QObject {
 public:
  explicit FirstPicture(std::function<void(QWidget&)> painted) : painted_(std::move(painted)) {
    qApp->installEventFilter(this);
    elapsed_.start();
  }

  double Seconds() const { return seconds_; }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || event->type() != QEvent::Paint || isSeen_) return false;
    isSeen_ = true;
    // It is painted first, and what stands on it after it, without another event between them.
    QTimer::singleShot(0, dialog, [this, dialog] {
      seconds_ = static_cast<double>(elapsed_.nsecsElapsed()) / kNanoseconds;
      painted_(*dialog);
    });
    return false;
  }

  std::function<void(QWidget&)> painted_;
  QElapsedTimer elapsed_;
  double seconds_ = 0;
  bool isSeen_ = false;
};

using Open = std::function<void(QWidget& over, const ScreenDialogs& dialogs)>;

void Measure(benchmark::State& state, const Open& open) {
  MemorySettingsStore store;
  const ScreenDialogs dialogs = AllDialogs(store);
  QWidget window;
  window.resize(360, 560);
  window.show();
  QApplication::processEvents();
  for (auto _ : state) {
    const FirstPicture picture([](QWidget& dialog) { dialog.close(); });
    open(window, dialogs);
    while (picture.Seconds() == 0) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    state.SetIterationTime(picture.Seconds());
    QApplication::processEvents();
  }
}

/// From a link to the page behind it.
void FollowLink(benchmark::State& state, const char* page) {
  MemorySettingsStore store;
  const ScreenDialogs dialogs = AllDialogs(store);
  QWidget window;
  window.resize(360, 560);
  window.show();
  dialogs.guide(&window, GuidePage::Converter);
  QApplication::processEvents();
  auto* text = QApplication::activeWindow()->findChild<QTextBrowser*>();
  for (auto _ : state) {
    QElapsedTimer elapsed;
    elapsed.start();
    text->setSource(QUrl(page));
    text->viewport()->repaint();
    state.SetIterationTime(static_cast<double>(elapsed.nsecsElapsed()) / kNanoseconds);
    text->backward();
    QApplication::processEvents();
  }
  text->window()->close();
}

void AddAll() {
  struct Row {
    const char* name;
    Open open;
  };
  const std::initializer_list<Row> rows{
      {"guide, first",
       [](QWidget& over, const ScreenDialogs&) { RunGuide(&over, GuidePage::Scientific); }},
      {"guide, far page",
       [](QWidget& over, const ScreenDialogs&) { RunGuide(&over, GuidePage::TwoVariable); }},
      {"guide, again",
       [](QWidget& over, const ScreenDialogs& all) { all.guide(&over, GuidePage::Memory); }},
      {"keys", [](QWidget& over, const ScreenDialogs& all) { all.keys(&over, {}); }},
      {"display settings",
       [](QWidget& over, const ScreenDialogs& all) {
         all.displaySettings(&over, DisplayPage::Normal);
       }},
      {"unit editor", [](QWidget& over, const ScreenDialogs& all) { all.unitEditor(&over); }},
      {"macro editor", [](QWidget& over, const ScreenDialogs& all) { all.macroEditor(&over); }},
      {"macro list", [](QWidget& over, const ScreenDialogs& all) { all.macroList(&over); }},
      {"converter", [](QWidget& over, const ScreenDialogs& all) { all.converter(&over, {}); }},
      {"store", [](QWidget& over, const ScreenDialogs& all) { all.storeVariable(&over, u"1"); }},
      {"recall", [](QWidget& over, const ScreenDialogs& all) { all.recallVariable(&over); }},
      {"constants",
       [](QWidget& over, const ScreenDialogs&) { RunConstants(&over, {KAV_DATA_FOLDER}); }},
      {"matrix size",
       [](QWidget& over, const ScreenDialogs&) {
         RunMatrixSize(&over, {3, 3});
       }},
      {"message",
       [](QWidget& over, const ScreenDialogs&) { ShowStop(&over, u"Division by zero."); }},
      {"about", [](QWidget& over, const ScreenDialogs&) { ShowAbout(&over); }},
      {"file",
       [](QWidget& over, const ScreenDialogs&) {
         AskFileToOpen(&over, {u"Text (*.txt)", u"txt"});
       }},
  };
  for (const Row& row : rows) {
    benchmark::RegisterBenchmark(row.name, Measure, row.open)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
  }
  for (const char* page : {"units.md", "command-line.md", "keyboard.md"}) {
    benchmark::RegisterBenchmark(page, FollowLink, page)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace
}  // namespace kav

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  kav::AddAll();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
