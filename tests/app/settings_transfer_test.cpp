// All settings taken out into a file and back, by the File menu of the program.
#include "app/settings_transfer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileDialog>
#include <memory>

#include "app/session.h"
#include "screens/box_watch.h"
#include "screens/screen_driver.h"
#include "screens/widgets/colour_scheme.h"
#include "settings/keys.h"
#include "support/temporary_folder.h"

namespace kav::test::settings_transfer_test {
namespace {

class SettingsTransferTest : public testing::Test {
 protected:
  SettingsTransferTest() {
    chmod(folder_.Path().c_str(), 0700);
    session_ = std::make_unique<Session>(
        SingleInstance::Claim(OpenMeetingFolder(folder_.Path(), "/nowhere"),
                              std::chrono::milliseconds(100)),
        Path());
    WaitForScreen();
  }

  QWidget* Screen() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && !window->findChildren<QLineEdit*>().isEmpty()) return window;
    }
    return nullptr;
  }
  void WaitForScreen() {
    ASSERT_TRUE(QTest::qWaitFor([this] { return Screen() != nullptr; }));
    QTest::qWait(20);
  }
  void Export(const std::string& name) {
    ExpectName(name);
    ChooseFrom(*Screen(), u"&File", u"Ex&port Settings...");
  }
  /// The box that follows is answered by `answer`.
  void Import(const std::string& name, QMessageBox::StandardButton answer) {
    ExpectName(name);
    BoxWatch::Instance().Expect(answer);
    ChooseFrom(*Screen(), u"&File", u"&Import Settings...");
  }
  /// The next dialog is that of a file, and gets this name.
  void ExpectName(const std::string& name) {
    BoxWatch::Instance().ExpectDialog([path = folder_.File(name)](QDialog& dialog) {
      auto& files = dynamic_cast<QFileDialog&>(dialog);
      files.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(path));
      QMetaObject::invokeMethod(&files, "accept");
    });
  }
  std::string Path() { return folder_.File("settings.toml"); }

  TemporaryFolder folder_;
  std::unique_ptr<Session> session_;
};

TEST_F(SettingsTransferTest, WhatIsExportedStandsAgainAfterAnImport) {
  Tap(*Screen(), u"DEG");
  EXPECT_NE(FindKey(*Screen(), u"RAD"), nullptr);
  PutLine(*Screen(), u"6*7|");
  Tap(*Screen(), u"=");
  ChooseFrom(*Screen(), u"&Mode", u"1-Var Statistics");
  QTest::qWait(20);
  Export("all.toml");
  ChooseFrom(*Screen(), u"&Mode", u"Scientific Calculator");
  QTest::qWait(20);
  Tap(*Screen(), u"RAD");
  PutLine(*Screen(), u"1+1|");
  Tap(*Screen(), u"=");
  BoxWatch::Instance().TakeSeen();

  Import("all.toml", QMessageBox::Yes);
  QTest::qWait(20);
  WaitForScreen();
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  // The screen that was exported, and behind it all the rest.
  EXPECT_EQ(Screen()->windowTitle(), u"Kav Calculator");
  EXPECT_NE(FindKey(*Screen(), u"Load"), nullptr);
  ChooseFrom(*Screen(), u"&Mode", u"Scientific Calculator");
  QTest::qWait(20);
  EXPECT_NE(FindKey(*Screen(), u"RAD"), nullptr);
  session_.reset();
  UserSettingsStore stored(Path());
  EXPECT_EQ(stored.Get(kCalHistoryCount), 2);
  EXPECT_EQ(stored.Get(CalHistoryEntry(2)), "6*7");
  EXPECT_NE(FileContent(Path() + ".before-import").find("1+1"), std::string::npos);
}

TEST_F(SettingsTransferTest, WindowsHaveTheColoursOfTheImportAtOnce) {
  EXPECT_EQ(SchemeNow(), ColourScheme::Light);
  Export("all.toml");
  std::string text = FileContent(folder_.File("all.toml"));
  const std::string section = "[Config]\n";
  ASSERT_NE(text.find(section), std::string::npos);
  text.insert(text.find(section) + section.size(), "\"Colour Scheme\" = 2\n");
  PutFile(folder_.File("dark.toml"), text);
  Import("dark.toml", QMessageBox::Yes);
  QTest::qWait(20);
  WaitForScreen();
  EXPECT_LT(Screen()->grab().toImage().pixelColor(0, 0).lightness(), 60);
  BoxWatch::Instance().TakeSeen();
  session_.reset();
  UseColours(ColourChoice::Light);
}

TEST_F(SettingsTransferTest, NoChangesNothingAndWhatIsNoExportIsRefused) {
  PutLine(*Screen(), u"6*7|");
  Export("all.toml");
  Import("all.toml", QMessageBox::No);
  QTest::qWait(20);
  EXPECT_EQ(BoxWatch::Instance().TakeSeen().size(), 1U);
  EXPECT_EQ(LineOf(*Screen()), u"6*7|");

  PutFile(folder_.File("other.toml"), "a = 1\n");
  Import("other.toml", QMessageBox::Ok);
  QTest::qWait(20);
  const auto seen = BoxWatch::Instance().TakeSeen();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen.front().text,
            u"This is no file of settings that the calculator has exported. Nothing was changed.");
  EXPECT_EQ(LineOf(*Screen()), u"6*7|");
}

}  // namespace
}  // namespace kav::test::settings_transfer_test
