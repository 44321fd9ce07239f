#include "screens/help/guide_dlg.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cstddef>
#include <memory>
#include <vector>

#include "common/number_text.h"
#include "line/screen_commands.h"
#include "screens/help/guide_browser_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/choice_box.h"
#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/guide_caller.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr int kLongestSearch = 100;

/// Has the screen beside the guide do what it does by its own shortcut.
void AskScreen(ScreenCommand command) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* screen = dynamic_cast<GuideCaller*>(window);
    if (screen != nullptr && window->isVisible()) return screen->Obey(command);
  }
}

class CGuideDlg final : public Dialog {
 public:
  explicit CGuideDlg(QWidget* parent);

  void Open(GuidePage page);

 private:
  void LayOut();
  void Connect();
  void OnSearch();
  void ShowPages();
  void ShowPageNow();
  void SetTextHeight(int text) override;

  ChoiceBox* pages_ = new ChoiceBox(kGuidePagesName);
  DialogButton* back_ = new DialogButton(kBackCaption, kBackHelp);
  GuideBrowser* text_ = new GuideBrowser;
  QLineEdit* search_ = new QLineEdit;
  QLabel* found_ = new QLabel;
  DialogButton* close_ = new DialogButton(kCloseCaption);
};

CGuideDlg::CGuideDlg(QWidget* parent) : Dialog(parent, kGuideTitle) {
  search_->setPlaceholderText(ToQt(kSearchCaption));
  search_->setAccessibleName(ToQt(kSearchCaption));
  search_->setMaxLength(kLongestSearch);
  back_->setEnabled(false);
  pages_->KeepRoomFor({HeadingOf(GuidePage::TwoVariable)});
  for (DialogButton* button : {back_, close_}) button->setAutoDefault(false);
  LayOut();
  Connect();
}

void CGuideDlg::LayOut() {
  auto* top = new QHBoxLayout;
  top->addWidget(pages_, 1);
  top->addWidget(back_);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(search_, 1);
  bottom->addWidget(found_);
  bottom->addWidget(close_);
  auto* all = new QVBoxLayout(this);
  all->addLayout(top);
  all->addWidget(text_, 1);
  all->addLayout(bottom);
  found_->hide();
}

void CGuideDlg::Connect() {
  connect(pages_, &QComboBox::currentIndexChanged, this, [this](int page) {
    if (page >= 0) text_->GoTo(text_->Pages()[static_cast<std::size_t>(page)]);
  });
  connect(text_, &QTextBrowser::sourceChanged, this, &CGuideDlg::ShowPages);
  connect(text_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
  connect(text_->verticalScrollBar(), &QScrollBar::valueChanged, this, &CGuideDlg::ShowPageNow);
  connect(back_, &QPushButton::clicked, text_, &QTextBrowser::backward);
  connect(close_, &QPushButton::clicked, this, &QDialog::accept);
  connect(search_, &QLineEdit::returnPressed, this, &CGuideDlg::OnSearch);
  connect(search_, &QLineEdit::textChanged, found_, &QWidget::hide);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, this, &CGuideDlg::OnSearch);
  for (const ScreenCommand command :
       {ScreenCommand::LargerText, ScreenCommand::SmallerText, ScreenCommand::UsualText}) {
    auto* shortcut = new QShortcut(this);
    shortcut->setKeys(QKeySequence::listFromString(ToQt(Widen(ShortcutOf(command)))));
    connect(shortcut, &QShortcut::activated, this, [command] { AskScreen(command); });
  }
}

void CGuideDlg::Open(GuidePage page) {
  text_->Open(HeadingOf(page));
  text_->setFocus();
}

void CGuideDlg::OnSearch() {
  const bool isFound = text_->FindNext(search_->text());
  found_->setText(isFound ? QString() : ToQt(kNotFound));
  found_->setVisible(!isFound);
}

void CGuideDlg::ShowPages() {
  const QSignalBlocker noChoice(pages_);
  pages_->clear();
  for (const GuideHeading& page : text_->Pages()) pages_->addItem(page.text);
  ShowPageNow();
}

void CGuideDlg::ShowPageNow() {
  const QSignalBlocker noChoice(pages_);
  pages_->setCurrentIndex(text_->PageNow());
}

void CGuideDlg::SetTextHeight(int text) {
  Dialog::SetTextHeight(text);
  text_->SetFont(font());
}

}  // namespace

void RunGuide(QWidget* parent, GuidePage page) {
  CGuideDlg guide(parent);
  guide.Open(page);
  guide.RunModal();
}

Guide::Guide() = default;
Guide::~Guide() = default;

void Guide::Open(QWidget* window, GuidePage page) {
  if (QApplication::activeModalWidget() != nullptr) return RunGuide(window, page);
  if (!dialog_) dialog_ = std::make_unique<CGuideDlg>(nullptr);
  auto& guide = static_cast<CGuideDlg&>(*dialog_);
  guide.ShowBeside(*window);
  guide.Open(page);
}

}  // namespace kav
