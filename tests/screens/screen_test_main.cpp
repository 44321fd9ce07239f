// The main program of the tests of screens: no display, no user's settings, no fonts but its own,
// no box unasked.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "screens/box_watch.h"
#include "screens/test_fonts.h"
#include "screens/widgets/look.h"
#include "support/one_file.h"
#include "support/own_environment.h"
#include "support/temporary_folder.h"

namespace {

/// What the display that is none cannot do, and says so each time, is not what a test is about.
void DropRemarks(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.startsWith("This plugin does not support")) return;
  std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!kav::test::ChooseTestsOfOneFile(argc, argv)) return 1;
  const kav::TemporaryFolder home;
  chmod(home.Path().c_str(), 0700);
  kav::test::TakeOwnEnvironment(home.Path());
  const kav::test::FontSet& fonts = kav::test::ChosenFontSet();
  kav::test::UseFonts(fonts, home.Path());
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  // Letters that the user's desktop has made larger, or a display of small pixels.
  for (const auto& [own, toolkits] :
       {std::pair("KAV_TEST_DPI", "QT_FONT_DPI"), std::pair("KAV_TEST_SCALE", "QT_SCALE_FACTOR")}) {
    if (const char* value = std::getenv(own)) setenv(toolkits, value, 1);
  }
  qInstallMessageHandler(DropRemarks);
  QApplication application(argc, argv);
  const std::string face = QFontInfo(kav::ScreenFont(20)).family().toStdString();
  if (face != fonts.face) {
    std::fprintf(stderr, "The screens have %s instead of the fonts %s\n", face.c_str(),
                 fonts.name.data());
    return 1;
  }
  QGuiApplication::setQuitOnLastWindowClosed(false);
  kav::test::BoxWatch::Instance();
  return RUN_ALL_TESTS();
}
