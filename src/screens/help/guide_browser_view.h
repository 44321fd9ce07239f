// The text of the guide, with its pictures and links.
#pragma once

#include <QHash>
#include <QTextBrowser>
#include <QUrl>
#include <optional>
#include <string_view>
#include <vector>

namespace kav {

/// A heading of a document: its place among the blocks of the text.
struct GuideHeading {
  QString text;
  int block;
};

/// Shows the guide, and the documents that it links to. Pictures are as wide as there is room, up
/// to their usual width. Tab leaves it: Left and Right go from link to link, and Enter follows one.
/// Links that lead out of the documents are left to the desktop.
class GuideBrowser final : public QTextBrowser {
 public:
  GuideBrowser();

  /// Shows the guide at the page called `heading`.
  void Open(std::u16string_view heading);
  /// Scrolls to that heading of the document that is shown.
  void GoTo(const GuideHeading& heading);

  /// The headings of the pages of the document that is shown.
  const std::vector<GuideHeading>& Pages() const { return pages_; }
  /// The page that is seen at the top, as an index of them; -1 before the first.
  int PageNow() const;

  /// Selects the next place of `text`, from the beginning on after the last one; whether there is
  /// one.
  bool FindNext(const QString& text);

  void SetFont(const QFont& font);

  // To the place where the document was left.
  void backward() override;
  void forward() override;

 private:
  QVariant loadResource(int type, const QUrl& name) override;
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  /// Shows what is written, changed for the screen before it is first laid out.
  void Read(const QString& markdown);
  void ColourLinks(QTextDocument& text);
  void Space(QTextDocument& text);
  int Letters() const;
  bool event(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void PaintOutline();
  bool focusNextPrevChild(bool next) override;
  void GoToLink(int links);
  void FindPages();
  int BlockAtTop() const;
  void NoteLeft();
  void ReturnToLeft();
  void NotePlace();
  void KeepPlace();
  void FitPictures(QTextDocument& text);
  void FitPicture(QTextCursor& cursor, int place);
  int TopOf(int block) const;

  std::vector<GuideHeading> pages_;
  QString markdown_;  ///< has been read, and is not shown yet
  int pictureWidth_ = 0;
  QHash<QUrl, int> left_;     ///< the block that was at the top of a document when it was left
  std::optional<int> place_;  ///< the block to stay at the top, if the user has not scrolled since
};

}  // namespace kav
