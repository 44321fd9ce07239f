#include "plotter/graph_svg.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <variant>

#include "common/number_text.h"
#include "plotter/plotter_texts.h"

namespace kav {
namespace {

// A hundredth of a pixel is not seen.
constexpr int kDecimals = 2;

std::string Short(double value) {
  std::string text = PrintFixed(value, kDecimals);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Hex(GraphColour colour) {
  constexpr int kRadix = 16;
  constexpr std::size_t kDigits = 6;
  const std::string digits = PrintInRadix(colour, kRadix);
  return '#' + std::string(kDigits - std::min(digits.size(), kDigits), '0') + digits;
}

/// ` name="value"`.
std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value).append("\"");
}
std::string Attribute(std::string_view name, double value) {
  return Attribute(name, Short(value));
}

/// `text` with what XML does not take written in other words, or left out if there are none.
std::string Escaped(std::u16string_view text) {
  std::string out;
  for (const char c : Narrow(OnOneLine(std::u16string(text)))) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string Box(double left, double top, double width, double height) {
  return "<rect" + Attribute("x", left) + Attribute("y", top) + Attribute("width", width) +
         Attribute("height", height);
}

/// Writes each shape that it is called with.
class SvgPrinter {
 public:
  SvgPrinter(const PlotArea& area, std::string& out)
      : scale_(area.Scale()),
        letters_(graph_measures::kTextHeight * area.TextScale()),
        unit_(area.TextScale()),
        out_(out) {}

  void operator()(const GraphFrame& frame) {
    const double line = RuleWidth();
    const PlotArea& area = frame.area;
    out_ += Box(area.left + line / 2, area.top + line / 2, area.right + 1. - area.left - line,
                area.bottom + 1. - area.top - line) +
            Attribute("fill", "none") + Attribute("stroke", Hex(graph_colour::kInk)) +
            Attribute("stroke-width", line) + "/>\n";
  }

  void operator()(const GraphRule& rule) {
    out_ += "<line" + Attribute("x1", rule.from.column + kMiddle) +
            Attribute("y1", rule.from.row + kMiddle) + Attribute("x2", rule.to.column + kMiddle) +
            Attribute("y2", rule.to.row + kMiddle) + Attribute("stroke", Hex(rule.colour)) +
            Attribute("stroke-width", RuleWidth()) + "/>\n";
  }

  void operator()(const GraphStroke& stroke) {
    std::string places;
    for (const auto& [column, row] : stroke.places) {
      if (!places.empty()) places += ' ';
      places += Short(column + kMiddle) + ',' + Short(row + kMiddle);
    }
    const double width =
        std::max(graph_measures::kNarrowestStroke, graph_measures::kStrokeGrowth * scale_);
    out_ += "<polyline" + Clipped() + Attribute("points", places) + Attribute("fill", "none") +
            Attribute("stroke", Hex(stroke.colour)) + Attribute("stroke-width", width) +
            Attribute("stroke-linecap", "square") + Attribute("stroke-linejoin", "round") + "/>\n";
  }

  void operator()(const GraphDot& dot) {
    const double side = std::max(std::round(scale_), 1.);
    const double before = std::floor(side / 2);
    out_ += "<rect" + Clipped() + Attribute("x", dot.place.column - before) +
            Attribute("y", dot.place.row - before) + Attribute("width", side) +
            Attribute("height", side) + Attribute("fill", Hex(dot.colour)) + "/>\n";
  }

  void operator()(const GraphDisc& disc) {
    out_ += "<circle" + Clipped() + Attribute("cx", disc.place.column + kMiddle) +
            Attribute("cy", disc.place.row + kMiddle) + Attribute("r", disc.radius * scale_) +
            Attribute("fill", Hex(disc.colour)) + "/>\n";
  }

  void operator()(const GraphBar& bar) {
    const auto [left, right] = std::minmax(bar.from.column, bar.to.column);
    const auto [top, bottom] = std::minmax(bar.from.row, bar.to.row);
    out_ += Box(left, top, right + 1 - left, bottom + 1 - top) +
            Attribute("fill", Hex(bar.colour)) + "/>\n";
  }

  void operator()(const GraphText& text) {
    const double part = text.anchor == TextAnchor::Start    ? 0
                        : text.anchor == TextAnchor::Middle ? 0.5
                                                            : 1;
    if (text.backing > 0) {
      // Nobody knows yet what letters the text is shown in; few are wider on average.
      constexpr double kLetterWidth = 0.6;
      const double width = kLetterWidth * letters_ * static_cast<double>(text.text.size());
      out_ += Box(text.place.column - part * width - unit_, text.place.row - text.backing,
                  width + 2 * unit_, text.backing) +
              Attribute("fill", Hex(graph_colour::kPaper)) +
              Attribute("fill-opacity", graph_measures::kBackingOpacity) + "/>\n";
    }
    constexpr std::string_view kAnchors[] = {"start", "middle", "end"};
    out_ += "<text" + Attribute("x", text.place.column) +
            Attribute("y", text.place.row - graph_measures::kDescent * unit_) +
            Attribute("font-family", "sans-serif") + Attribute("font-size", letters_) +
            Attribute("text-anchor", kAnchors[static_cast<std::size_t>(text.anchor)]) +
            Attribute("fill", Hex(text.colour)) + ">" + Escaped(text.text) + "</text>\n";
  }

 private:
  static constexpr double kMiddle = 0.5;  // of a pixel

  static std::string Clipped() { return Attribute("clip-path", "url(#plot)"); }
  double RuleWidth() const {
    return std::max(std::floor(graph_measures::kRuleGrowth * scale_), 1.);
  }

  double scale_;
  double letters_;
  double unit_;
  std::string& out_;
};

}  // namespace

std::string PrintSvg(const GraphPicture& shapes, const SvgPage& page) {
  const std::string width = PrintInteger(page.width);
  const std::string height = PrintInteger(page.height);
  std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg";
  out += Attribute("xmlns", "http://www.w3.org/2000/svg") + Attribute("width", width) +
         Attribute("height", height) + Attribute("viewBox", "0 0 " + width + ' ' + height) +
         Attribute("role", "img") + ">\n";
  if (!page.title.empty()) out += "<title>" + Escaped(page.title) + "</title>\n";
  if (!page.description.empty()) out += "<desc>" + Escaped(page.description) + "</desc>\n";
  const PlotArea& area = page.area;
  out += "<clipPath id=\"plot\">" +
         Box(area.left, area.top, area.right + 1. - area.left, area.bottom + 1. - area.top) +
         "/></clipPath>\n";
  out += Box(0, 0, page.width, page.height) + Attribute("fill", Hex(graph_colour::kPaper)) + "/>\n";
  SvgPrinter printer(area, out);
  for (const GraphShape& shape : shapes) std::visit(printer, shape);
  return out + "</svg>\n";
}

std::string PrintGraphSvg(const GraphModel& model) {
  const PlotArea& area = model.Area();
  std::u16string title;
  for (const GraphCurve& curve : model.Input().curves) {
    if (!title.empty()) title += kBetweenParts;
    title += curve.label;
  }
  return PrintSvg(BuildPicture(model), {area.left + area.right + 1, area.top + area.bottom + 1,
                                        area, title, model.Description()});
}

}  // namespace kav
