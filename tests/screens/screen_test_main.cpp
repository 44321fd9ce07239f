// The main program of every test of screens: no display, no user's settings, no box unasked.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

#include "screens/box_watch.h"
#include "settings/temporary_folder.h"

namespace {

/// What the display that is none cannot do, and says so each time, is not what a test is about.
void DropRemarks(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const kav::TemporaryFolder home;
  chmod(home.Path().c_str(), 0700);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME"}) {
    setenv(name, home.Path().c_str(), 1);
  }
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  qInstallMessageHandler(DropRemarks);
  QApplication application(argc, argv);
  QGuiApplication::setQuitOnLastWindowClosed(false);
  kav::test::BoxWatch::Instance();
  return RUN_ALL_TESTS();
}
