#include "plotter/graph_svg.h"

#include <gtest/gtest.h>

#include <string>

#include "support/graph_inputs.h"

namespace kav::graph_svg_test {
namespace {

using test::GraphOf;

constexpr PlotArea kArea{2, 3, 231, 232};

std::string Printed(const GraphShape& shape) {
  return PrintSvg({shape}, {234, 236, kArea, u"", u""});
}

bool Has(const std::string& text, std::string_view part) {
  return text.find(part) != text.npos;
}

TEST(GraphSvgTest, APageHasItsSizeAndPaper) {
  const std::string text = PrintSvg({}, {234, 236, kArea, u"", u""});
  EXPECT_EQ(text,
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"234\" height=\"236\" "
            "viewBox=\"0 0 234 236\" role=\"img\">\n"
            "<clipPath id=\"plot\"><rect x=\"2\" y=\"3\" width=\"230\" height=\"230\"/>"
            "</clipPath>\n"
            "<rect x=\"0\" y=\"0\" width=\"234\" height=\"236\" fill=\"#ffffff\"/>\n"
            "</svg>\n");
}

TEST(GraphSvgTest, TitleAndDescriptionAreEscaped) {
  const std::string text = PrintSvg({}, {1, 1, kArea, u"a<b & \"c\"\x01\u03c0", u"1>0"});
  EXPECT_TRUE(Has(text, "<title>a&lt;b &amp; &quot;c&quot; \xCF\x80</title>\n"));
  EXPECT_TRUE(Has(text, "<desc>1&gt;0</desc>\n"));
}

TEST(GraphSvgTest, NumbersAreShort) {
  const std::string text = Printed(GraphStroke{{{1. / 3, -0.501}, {10, 2.25}}, 0x00FF00});
  EXPECT_TRUE(Has(text, "points=\"0.83,0 10.5,2.75\"")) << text;
  EXPECT_TRUE(Has(text, "stroke=\"#00ff00\" stroke-width=\"1.5\""));
}

TEST(GraphSvgTest, EachShapeIsWritten) {
  EXPECT_TRUE(Has(Printed(GraphFrame{kArea}),
                  "<rect x=\"2.5\" y=\"3.5\" width=\"229\" "
                  "height=\"229\" fill=\"none\" stroke=\"#000000\""));
  EXPECT_TRUE(Has(Printed(GraphRule{{2, 10}, {231, 10}, 0xC0C0C0}),
                  "<line x1=\"2.5\" y1=\"10.5\" x2=\"231.5\" y2=\"10.5\" stroke=\"#c0c0c0\""));
  EXPECT_TRUE(Has(Printed(GraphDot{{7, 8}, 0xFF}), "x=\"7\" y=\"8\" width=\"1\" height=\"1\""));
  EXPECT_TRUE(Has(Printed(GraphDisc{{7, 8}, 2, 0xFF}), "cx=\"7.5\" cy=\"8.5\" r=\"2\""));
  EXPECT_TRUE(Has(Printed(GraphBar{{9, 20}, {5, 10}, 0xFF}),
                  "<rect x=\"5\" y=\"10\" width=\"5\" height=\"11\" fill=\"#0000ff\"/>"));
  EXPECT_TRUE(Has(Printed(GraphText{{7, 8}, u"a<b", 0, TextAnchor::Middle}),
                  "text-anchor=\"middle\" fill=\"#000000\">a&lt;b</text>"));
}

TEST(GraphSvgTest, TheEquationsOfAGraphAreItsTitle) {
  GraphInput input = GraphOf({"x", "x^2"});
  input.curves[0].label = u"R:F1(X)=x";
  input.curves[1].label = u"G:F2(x)=x^2";
  GraphModel model(input);
  model.SetArea(kArea);
  const std::string text = PrintGraphSvg(model);
  EXPECT_TRUE(Has(text, "<title>R:F1(X)=x; G:F2(x)=x^2</title>"));
  EXPECT_TRUE(Has(text, "width=\"234\" height=\"236\""));
  EXPECT_TRUE(Has(text, "x min=-10"));
  EXPECT_EQ(text, PrintGraphSvg(model));
}

}  // namespace
}  // namespace kav::graph_svg_test
