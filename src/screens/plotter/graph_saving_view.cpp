#include "screens/plotter/graph_saving_view.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <array>

#include "plotter/graph_svg.h"
#include "plotter/plotter_texts.h"
#include "screens/plotter/graph_painter_view.h"
#include "screens/widgets/file_choice.h"
#include "screens/widgets/message_box.h"
#include "settings/atomic_file.h"

namespace kav {
namespace {

// In the order of GraphFile; the first is preset.
constexpr std::array kGraphFiles{FileKind{u"BMP(*.bmp)", u"bmp"}, FileKind{u"PNG(*.png)", u"png"},
                                 FileKind{u"SVG(*.svg)", u"svg"}, FileKind{u"PDF(*.pdf)", u"pdf"}};

/// The resolution that BMP files tell: 72 pixels an inch, in pixels a metre.
constexpr int kBmpResolution = 2835;

std::string PrintImage(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data().toStdString();
}

/// A page of the size of the picture, at the pixels an inch that documents count.
std::string PrintPdf(const GraphModel& model) {
  constexpr int kResolution = 96;
  constexpr double kPoints = 72;
  const QSize size = SizeAround(model.Area());
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter document(&buffer);
  document.setResolution(kResolution);
  document.setPageSize(QPageSize(QSizeF(size) * kPoints / kResolution, QPageSize::Point));
  document.setPageMargins({});
  QPainter painter(&document);
  PaintGraph(painter, model);
  painter.end();
  return buffer.data().toStdString();
}

}  // namespace

std::string PrintGraph(const GraphModel& model, GraphFile file) {
  if (file == GraphFile::Svg) return PrintGraphSvg(model);
  if (file == GraphFile::Pdf) return PrintPdf(model);
  QImage image;
  DrawGraph(model, image);
  if (file == GraphFile::Png) return PrintImage(image, "PNG");
  image.setDotsPerMeterX(kBmpResolution);
  image.setDotsPerMeterY(kBmpResolution);
  return PrintImage(image, "BMP");
}

void CopyGraph(const GraphModel& model) {
  QImage image;
  DrawGraph(model, image);
  QApplication::clipboard()->setImage(image);
}

void SaveGraph(QWidget* parent, const GraphModel& model) {
  const auto file = AskFileToSave(parent, kGraphFiles);
  if (!file) return;
  const auto error = SaveFile(file->path, PrintGraph(model, static_cast<GraphFile>(file->kind)));
  if (error) ShowStop(parent, kGraphFileError);
}

}  // namespace kav
