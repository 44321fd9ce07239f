#include "line/guide_pages.h"

#include <array>
#include <cstddef>

namespace kav {
namespace {

constexpr std::array<std::u16string_view, 12> kHeadings{
    u"Scientific calculator",
    u"Matrix calculator",
    u"Statistics of one variable",
    u"Statistics of two variables",
    u"Function plotter",
    u"Graph",
    u"Unit converter",
    u"Units of your own",
    u"Macros",
    u"Memory variables",
    u"Constants",
    u"Display settings",
};
static_assert(static_cast<std::size_t>(GuidePage::Settings) + 1 == kHeadings.size());

}  // namespace

std::u16string_view HeadingOf(GuidePage page) {
  return kHeadings[static_cast<std::size_t>(page)];
}

}  // namespace kav
