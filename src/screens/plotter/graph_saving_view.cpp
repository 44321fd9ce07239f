#include "screens/plotter/graph_saving_view.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <array>
#include <vector>

#include "plotter/bitmap_file.h"
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

// Pixels in an inch as documents count them.
constexpr int kDocumentResolution = 96;

std::string PrintBmp(const QImage& image) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(image.width()) *
                 static_cast<std::size_t>(image.height()));
  for (int row = 0; row < image.height(); ++row) {
    const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(row));
    for (int column = 0; column < image.width(); ++column) {
      pixels.push_back(line[column] & RGB_MASK);
    }
  }
  return PrintBitmap({image.width(), image.height(), pixels});
}

std::string PrintPng(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
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
  return file == GraphFile::Png ? PrintPng(image) : PrintBmp(image);
}

void SaveGraph(QWidget* parent, const GraphModel& model) {
  const auto file = AskFileToSave(parent, kGraphFiles);
  if (!file) return;
  const auto error = SaveFile(file->path, PrintGraph(model, static_cast<GraphFile>(file->kind)));
  if (error) ShowStop(parent, kGraphFileError);
}

}  // namespace kav
