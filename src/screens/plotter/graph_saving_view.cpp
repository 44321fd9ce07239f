#include "screens/plotter/graph_saving_view.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <array>

#include "plotter/plotter_texts.h"
#include "screens/plotter/graph_painter_view.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "settings/atomic_file.h"

namespace kav {
namespace {

// In the order of GraphFile; the first is preset.
constexpr std::array kGraphFiles{FileKind{u"BMP(*.bmp)", u"bmp"}, FileKind{u"PNG(*.png)", u"png"},
                                 FileKind{u"SVG(*.svg)", u"svg"}};

// Pixels an inch, as documents count them.
constexpr int kDocumentResolution = 96;

/// The resolution that BMP files tell: 72 pixels an inch, in pixels a metre.
constexpr int kBmpResolution = 2835;

std::string PrintImage(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data().toStdString();
}

std::string PrintSvg(const GraphModel& model) {
  QBuffer buffer;
  QSvgGenerator document;
  document.setOutputDevice(&buffer);
  document.setResolution(kDocumentResolution);
  const QSize size = SizeAround(model.Area());
  document.setSize(size);
  document.setViewBox(QRect(QPoint(0, 0), size));
  QPainter painter(&document);
  PaintGraph(painter, model);
  painter.end();
  return buffer.data().toStdString();
}

}  // namespace

std::string PrintGraph(const GraphModel& model, GraphFile file) {
  if (file == GraphFile::Svg) return PrintSvg(model);
  QImage image;
  DrawGraph(model, image);
  if (file == GraphFile::Png) return PrintImage(image, "PNG");
  image.setDotsPerMeterX(kBmpResolution);
  image.setDotsPerMeterY(kBmpResolution);
  return PrintImage(image, "BMP");
}

void SaveGraph(QWidget* parent, const GraphModel& model) {
  const auto file = AskFileToSave(parent, kGraphFiles);
  if (!file) return;
  const auto error = SaveFile(file->path, PrintGraph(model, static_cast<GraphFile>(file->kind)));
  if (error) ShowStop(parent, kGraphFileError);
}

}  // namespace kav
