#include "screens/plotter/graph_saving_view.h"

#include <QBuffer>
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
                                 FileKind{u"SVG(*.svg)", u"svg"}};

/// The resolution that BMP files tell: 72 pixels an inch, in pixels a metre.
constexpr int kBmpResolution = 2835;

std::string PrintImage(const QImage& image, const char* format) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data().toStdString();
}

}  // namespace

std::string PrintGraph(const GraphModel& model, GraphFile file) {
  if (file == GraphFile::Svg) return PrintGraphSvg(model);
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
