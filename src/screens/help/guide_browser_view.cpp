#include "screens/help/guide_browser_view.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QImage>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "screens/help/guide_spacing_view.h"
#include "screens/widgets/app_texts.h"
#include "screens/widgets/qt_text.h"

namespace kav {
namespace {

constexpr const char* kGuideFile = "qrc:/guide/guide.md";
constexpr int kUsualPictureWidth = 240;
/// Pictures grow with the text, up to what is there of them.
constexpr int kMostPicture = 480;
constexpr int kLettersInPicture = 10;
constexpr int kOutline = 2;
constexpr int kPageLevel = 2;
constexpr QLatin1String kPictures(":/guide/images/");
/// Behind the name of a picture: the size in pixels of the screen that it is to have.
constexpr const char* kPixels = "%1x%2";

/// The parts of a text whose format `isWanted`.
template <class IsWanted>
std::vector<QTextFragment> PartsOf(const QTextDocument& text, IsWanted isWanted) {
  std::vector<QTextFragment> parts;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      if (isWanted(part.fragment().charFormat())) parts.push_back(part.fragment());
    }
  }
  return parts;
}

/// The links of a text, each selected.
std::vector<QTextCursor> LinksIn(const QTextDocument& text) {
  std::vector<QTextCursor> links;
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      const QTextFragment fragment = part.fragment();
      if (!fragment.charFormat().isAnchor()) continue;
      QTextCursor link(block);
      link.setPosition(fragment.position());
      link.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      links.push_back(link);
    }
  }
  return links;
}

/// The places of the pictures of a text.
std::vector<int> PicturesIn(const QTextDocument& text) {
  std::vector<int> places;
  const auto isPicture = [](const QTextCharFormat& format) { return format.isImageFormat(); };
  const std::vector<QTextFragment> parts = PartsOf(text, isPicture);
  places.reserve(parts.size());
  for (const QTextFragment& part : parts) places.push_back(part.position());
  return places;
}

/// The documents have some pictures in a notation behind which the toolkit does not go on reading.
QString WithPlainPictures(QString text) {
  static const QRegularExpression kPicture("<img src=\"([^\"]*)\"[^>]* alt=\"([^\"]*)\">");
  static const QRegularExpression kFrame("</?p[^>]*>");
  return text.replace(kPicture, "![\\2](\\1)").remove(kFrame);
}

/// The picture that FitPicture has given this name, to be read when it is first painted. Drawn
/// smaller, the toolkit would leave pixels out.
QImage PictureOf(const QUrl& name) {
  static const QRegularExpression kSize("(\\d+)x(\\d+)");
  const QRegularExpressionMatch size = kSize.match(name.query());
  // Before it has that, it is measured only.
  if (!size.hasMatch()) return {1, 1, QImage::Format_RGB32};
  return QImage(kPictures + name.fileName())
      .scaled(size.captured(1).toInt(), size.captured(2).toInt(), Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation);
}

}  // namespace

GuideBrowser::GuideBrowser() {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(kOutline);
  setAccessibleName(ToQt(kGuideTitle));
  setOpenExternalLinks(true);
  connect(this, &QTextBrowser::sourceChanged, this, [this] {
    place_.reset();
    if (!markdown_.isEmpty()) Read(std::exchange(markdown_, {}));
  });
  connect(verticalScrollBar(), &QAbstractSlider::actionTriggered, this, [this] { place_.reset(); });
  // A text becomes as long as it is while it is laid out, which goes on behind a change.
  connect(verticalScrollBar(), &QAbstractSlider::rangeChanged, this, [this] { KeepPlace(); });
}

void GuideBrowser::Open(std::u16string_view heading) {
  setSource(QUrl(kGuideFile), QTextDocument::MarkdownResource);
  const auto page = std::find_if(pages_.begin(), pages_.end(), [heading](const GuideHeading& one) {
    return one.text == ToQt(heading);
  });
  if (page != pages_.end()) GoTo(*page);
}

void GuideBrowser::GoTo(const GuideHeading& heading) {
  setTextCursor(QTextCursor(document()->findBlockByNumber(heading.block)));
  place_ = heading.block;
  KeepPlace();
}

void GuideBrowser::KeepPlace() {
  if (place_) verticalScrollBar()->setValue(TopOf(*place_));
}

int GuideBrowser::BlockAtTop() const {
  return place_.value_or(cursorForPosition(QPoint(0, 0)).blockNumber());
}

void GuideBrowser::NotePlace() {
  place_ = BlockAtTop();
}

void GuideBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  NoteLeft();
  QTextBrowser::doSetSource(name, type);
}

void GuideBrowser::backward() {
  NoteLeft();
  QTextBrowser::backward();
  ReturnToLeft();
}

void GuideBrowser::forward() {
  NoteLeft();
  QTextBrowser::forward();
  ReturnToLeft();
}

void GuideBrowser::NoteLeft() {
  left_[source()] = BlockAtTop();
}

void GuideBrowser::ReturnToLeft() {
  place_ = left_.value(source());
  KeepPlace();
}

int GuideBrowser::TopOf(int block) const {
  const QTextBlock wanted = document()->findBlockByNumber(block);
  return static_cast<int>(document()->documentLayout()->blockBoundingRect(wanted).top());
}

int GuideBrowser::PageNow() const {
  const int top = verticalScrollBar()->value();
  const auto behind = std::find_if(pages_.begin(), pages_.end(), [&](const GuideHeading& page) {
    return TopOf(page.block) > top + height() / 4;
  });
  return static_cast<int>(behind - pages_.begin()) - 1;
}

bool GuideBrowser::FindNext(const QString& text) {
  if (text.isEmpty()) return true;
  place_.reset();
  if (find(text)) return true;
  const QTextCursor before = textCursor();
  moveCursor(QTextCursor::Start);
  if (find(text)) return true;
  setTextCursor(before);
  return false;
}

void GuideBrowser::SetFont(const QFont& font) {
  if (document()->defaultFont() == font) return;
  NotePlace();
  setFont(font);
  document()->setDefaultFont(font);
  KeepPlace();
}

void GuideBrowser::Read(const QString& markdown) {
  QTextDocument* before = document();
  auto* text = new QTextDocument(this);
  text->setUndoRedoEnabled(false);
  text->setDefaultFont(before->defaultFont());
  text->setBaseUrl(before->baseUrl());
  text->setMarkdown(markdown);
  Space(*text);
  ColourLinks(*text);
  pictureWidth_ = 0;
  if (isVisible()) FitPictures(*text);
  const bool isOurs = before->parent() == this;
  setDocument(text);
  if (isOurs) delete before;
  FindPages();
}

void GuideBrowser::Space(QTextDocument& text) {
  SpaceOut(text, Letters(), palette().color(QPalette::Mid));
}

int GuideBrowser::Letters() const {
  return QFontInfo(document()->defaultFont()).pixelSize();
}

QVariant GuideBrowser::loadResource(int type, const QUrl& name) {
  switch (type) {
    case QTextDocument::ImageResource:
      return PictureOf(name);
    case QTextDocument::MarkdownResource:
      markdown_ = WithPlainPictures(
          QString::fromUtf8(QTextBrowser::loadResource(type, name).toByteArray()));
      // Set here, it would be laid out again after each block and each cell: Read has it.
      return QString(" ");
    default:
      return QTextBrowser::loadResource(type, name);
  }
}

/// A document has its links in the colour of the desktop's, whatever is below them.
void GuideBrowser::ColourLinks(QTextDocument& text) {
  const auto isLink = [](const QTextCharFormat& format) { return format.isAnchor(); };
  QTextCharFormat colour;
  colour.setForeground(palette().link());
  const std::vector<QTextFragment> links = PartsOf(text, isLink);
  QTextCursor cursor(&text);
  cursor.beginEditBlock();
  for (const QTextFragment& link : links) {
    cursor.setPosition(link.position());
    cursor.setPosition(link.position() + link.length(), QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(colour);
  }
  cursor.endEditBlock();
}

void GuideBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  const bool hasOtherColours = event->type() == QEvent::PaletteChange;
  if (!hasOtherColours && event->type() != QEvent::FontChange) return;
  QTextDocument& text = *document();
  Space(text);
  if (hasOtherColours) ColourLinks(text);
  if (isVisible()) FitPictures(text);
}

void GuideBrowser::resizeEvent(QResizeEvent* event) {
  NotePlace();
  QTextBrowser::resizeEvent(event);
  if (isVisible()) FitPictures(*document());
  KeepPlace();
}

void GuideBrowser::showEvent(QShowEvent* event) {
  QTextBrowser::showEvent(event);
  FitPictures(*document());
  KeepPlace();
}

bool GuideBrowser::event(QEvent* event) {
  const bool isDone = QTextBrowser::event(event);
  // Painted over the frame, whose own colour is that of a text.
  if (event->type() == QEvent::Paint) PaintOutline();
  return isDone;
}

void GuideBrowser::PaintOutline() {
  const int width = frameWidth();
  QPainter painter(this);
  painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), width));
  const int half = width / 2;
  painter.drawRect(rect().adjusted(half, half, -half - 1, -half - 1));
}

void GuideBrowser::focusInEvent(QFocusEvent* event) {
  QTextBrowser::focusInEvent(event);
  update();
}

void GuideBrowser::focusOutEvent(QFocusEvent* event) {
  QTextBrowser::focusOutEvent(event);
  update();
}

void GuideBrowser::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return GoToLink(-1);
    case Qt::Key_Right:
      return GoToLink(1);
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      const QString link = textCursor().charFormat().anchorHref();
      if (textCursor().hasSelection() && !link.isEmpty()) setSource(QUrl(link));
      return;
    }
    default:
      return QTextBrowser::keyPressEvent(event);
  }
}

bool GuideBrowser::focusNextPrevChild(bool next) {
  // Past its parent class, which would lead to the next link.
  return QAbstractScrollArea::focusNextPrevChild(next);  // NOLINT(bugprone-parent-virtual-call)
}

void GuideBrowser::GoToLink(int links) {
  const std::vector<QTextCursor> all = LinksIn(*document());
  const QTextCursor now = textCursor();
  const auto behind =
      std::find_if(all.begin(), all.end(), [&](const QTextCursor& link) { return now < link; });
  auto wanted = behind - all.begin();
  if (links < 0) wanted -= now.hasSelection() ? 2 : 1;
  if (wanted < 0 || wanted >= static_cast<std::ptrdiff_t>(all.size())) return;
  place_.reset();
  setTextCursor(all[static_cast<std::size_t>(wanted)]);
}

void GuideBrowser::FindPages() {
  pages_.clear();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() != kPageLevel) continue;
    pages_.push_back({block.text(), block.blockNumber()});
  }
}

void GuideBrowser::FitPictures(QTextDocument& text) {
  const int room = viewport()->width() - 2 * static_cast<int>(text.documentMargin());
  const int wanted = std::clamp(Letters() * kLettersInPicture, kUsualPictureWidth, kMostPicture);
  const int width = std::clamp(room, 1, wanted);
  if (width == pictureWidth_) return;
  pictureWidth_ = width;
  QTextCursor cursor(&text);
  // All at once: each would have the text laid out anew.
  cursor.beginEditBlock();
  for (const int place : PicturesIn(text)) FitPicture(cursor, place);
  cursor.endEditBlock();
}

void GuideBrowser::FitPicture(QTextCursor& cursor, int place) {
  cursor.setPosition(place);
  cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
  QTextImageFormat format = cursor.charFormat().toImageFormat();
  QUrl name(format.name());
  const QSize whole = QImageReader(kPictures + name.fileName()).size();
  if (whole.isEmpty()) return;
  const double scale = devicePixelRatioF();
  const QSize pixels =
      whole.scaled(qRound(pictureWidth_ * scale), whole.height(), Qt::KeepAspectRatio);
  name.setQuery(QString(kPixels).arg(pixels.width()).arg(pixels.height()));
  format.setName(name.toString());
  format.setWidth(pixels.width() / scale);
  format.setHeight(pixels.height() / scale);
  cursor.setCharFormat(format);
}

}  // namespace kav
