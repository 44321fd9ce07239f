#include "app/session.h"

#include <sys/signalfd.h>

#include <QApplication>
#include <QIcon>
#include <chrono>
#include <csignal>
#include <utility>

#include "matrix/temporary_matrices.h"
#include "screens/widgets/message_box.h"

namespace kav {
namespace {

/// Between two tries to save past lines: another program has their file for milliseconds only.
constexpr std::chrono::milliseconds kBetweenTries{100};

/// The signals that ask a program to end.
sigset_t EndSignals() {
  sigset_t ends;
  sigemptyset(&ends);
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&ends, number);
  return ends;
}

/// Where they are read.
FileDescriptor OpenEndSignals() {
  HoldEndSignals();
  const sigset_t ends = EndSignals();
  return FileDescriptor(signalfd(-1, &ends, SFD_CLOEXEC | SFD_NONBLOCK));
}

}  // namespace

void HoldEndSignals() {
  const sigset_t ends = EndSignals();
  pthread_sigmask(SIG_BLOCK, &ends, nullptr);
}

EndWatch::EndWatch() : signals_(OpenEndSignals()) {
  if (!signals_.IsOpen()) return;
  notifier_ = std::make_unique<QSocketNotifier>(signals_.Number(), QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, &context_,
                   [] { QApplication::exit(); });
}

Session::Session(SingleInstance instance, std::string settingsPath)
    : store_(std::move(settingsPath), StoreUser::Window),
      saver_(store_, [this] { return TellNotices(); }),
      past_(StoreUser::Window),
      instance_(std::move(instance)) {
  const auto later = [this](void (Session::*what)()) {
    return [this, what] {
      QMetaObject::invokeMethod(
          &context_, [this, what] { (this->*what)(); }, Qt::QueuedConnection);
    };
  };
  frame_ = std::make_unique<FrameWindow>(
      store_, AllScreens(), AllDialogs(store_),
      FrameHooks{[this] { Save(); }, later(&Session::Started), later(&Session::End), &past_,
                 [this] { return store_.Export(); },
                 [this](const std::string& toml) { return store_.Import(toml); }});
  QObject::connect(&pastTimer_, &QTimer::timeout, &context_, [this] { SavePastLines(); });
  frame_->show();
  WatchCalls();
}

Session::~Session() {
  frame_.reset();
  SaveAtLast();
}

void Session::Save() {
  SavePastLines();
  saver_.Save();
}

void Session::SavePastLines() {
  past_.TrySave() ? pastTimer_.stop() : pastTimer_.start(kBetweenTries);
}

void Session::SaveAtLast() {
  past_.SaveAtLast();
  saver_.SaveAtLast();
}

void Session::WatchCalls() {
  if (instance_.CallSocket() < 0) return;
  calls_ = std::make_unique<QSocketNotifier>(instance_.CallSocket(), QSocketNotifier::Read);
  QObject::connect(calls_.get(), &QSocketNotifier::activated, &context_, [this] {
    if (instance_.TakeCalls()) frame_->ComeToFront();
  });
}

void Session::Started() {
  // The icon for desktops that have no entry for the program; decoding it can wait until now.
  QApplication::setWindowIcon(QIcon(":/kav-calculator.png"));
  // Takes away what a run that was killed has left behind, whichever screen is shown.
  const TemporaryMatrices leftovers;
  saver_.Tell();
}

void Session::End() {
  // The next start is a new one from here on; it waits until this one has saved and is gone.
  calls_.reset();
  instance_.StopListening();
  frame_.reset();
  SaveAtLast();
  TellNotices();
  QApplication::exit();
}

bool Session::TellNotices() {
  // A box over another one, or over an open menu, would come between the user and that.
  const bool isUserBusy =
      QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr;
  if (isUserBusy) return !store_.HasNotice() && !past_.HasNotice();
  while (const auto notice = store_.TakeNotice()) {
    ShowNotice(frame_ ? frame_->Shown() : nullptr, *notice);
  }
  if (const auto notice = past_.TakeNotice()) {
    ShowNotice(frame_ ? frame_->Shown() : nullptr, *notice);
  }
  return true;
}

}  // namespace kav
