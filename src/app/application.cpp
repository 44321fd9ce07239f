#include "app/application.h"

#include <QApplication>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/session.h"
#include "app/single_instance.h"
#include "display/text_scale.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/colour_scheme.h"
#include "screens/widgets/look.h"
#include "screens/widgets/message_box.h"
#include "settings/file_descriptor.h"
#include "store/settings_path.h"

namespace kav {
namespace {

/// How long a second copy waits for the first to answer.
constexpr std::chrono::milliseconds kPatience(2000);

constexpr int kWrongArguments = 2;

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

/// Whether this can be no option of the toolkit.
bool IsMistake(std::string_view argument) {
  return !argument.starts_with('-') || argument.starts_with("--");
}

int RefuseArguments() {
  std::fwrite(kTakesNoArguments.data(), 1, kTakesNoArguments.size(), stderr);
  return kWrongArguments;
}

SingleInstance Claim(std::chrono::milliseconds patience) {
  return SingleInstance::Claim(OpenMeetingFolder(Environment("XDG_RUNTIME_DIR"), "/tmp"), patience);
}

/// What becomes of this process if the user does not wait for the one that does not answer. Called
/// if there is nothing left to do.
SingleInstance BesideBusyOne() {
  const EndWatch end;
  UseColours(ColourChoice::System);  // the settings are not read yet
  const std::vector<std::u16string> answers{std::u16string(kStartAnother)};
  if (!AskWhich(nullptr, kDoesNotAnswer, answers)) return SingleInstance::Over();
  SingleInstance instance = Claim(std::chrono::milliseconds(0));
  if (instance.Result() != SingleInstance::Outcome::Busy) return instance;
  return SingleInstance::Claim(FileDescriptor(-1), kPatience);
}

}  // namespace

int RunApplication(int argc, char** argv) {
  if (argc > 1 && IsMistake(argv[1])) return RefuseArguments();
  SurviveSizeLimit();
  SingleInstance instance = Claim(kPatience);
  if (instance.Result() == SingleInstance::Outcome::Called) return 0;
  HoldEndSignals();
  // A menu bar of the desktop's own would not stand at the bottom of the screen.
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
  QApplication application(argc, argv);
  if (argc > 1) return RefuseArguments();
  QGuiApplication::setDesktopFileName("kav-calculator");
  QGuiApplication::setQuitOnLastWindowClosed(false);
  if (instance.Result() == SingleInstance::Outcome::Busy) instance = BesideBusyOne();
  if (instance.Result() == SingleInstance::Outcome::Called) return 0;
  SetDesktopTextShare(DesktopTextShare(QApplication::font().pointSizeF()));
  const Session session(std::move(instance), DefaultSettingsPath());
  return QApplication::exec();
}

}  // namespace kav
