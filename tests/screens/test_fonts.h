// The fonts that screens find in tests: those of one set and no others, whatever is installed.
#pragma once

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace kav::test {

/// Fonts that a machine may have; of each the packages that ./test installs have the files.
struct FontSet {
  std::string_view name;
  std::string_view face;  ///< that the screens then have
  std::string_view folder;
  std::vector<std::string_view> files;
};

inline const std::vector<FontSet>& FontSets() {
  static const std::vector<FontSet> sets{
      // The one that the keys are made for.
      {"dejavu-condensed",
       "DejaVu Sans Condensed",
       "/usr/share/fonts/truetype/dejavu",
       {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSansCondensed.ttf",
        "DejaVuSansCondensed-Bold.ttf"}},
      {"dejavu-core",
       "DejaVu Sans",
       "/usr/share/fonts/truetype/dejavu",
       {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSansMono.ttf", "DejaVuSerif.ttf"}},
      {"liberation-sans",
       "Liberation Sans",
       "/usr/share/fonts/truetype/liberation",
       {"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf"}},
      {"noto-sans",
       "Noto Sans",
       "/usr/share/fonts/truetype/noto",
       {"NotoSans-Regular.ttf", "NotoSans-Bold.ttf"}},
      // Its lines are half as high again as those of the others, too.
      {"wide",
       "OpenDyslexic",
       "/usr/share/fonts/opentype/opendyslexic",
       {"OpenDyslexic-Regular.otf", "OpenDyslexic-Bold.otf"}},
      {"narrow",
       "Liberation Sans Narrow",
       "/usr/share/fonts/truetype/liberation",
       {"LiberationSansNarrow-Regular.ttf", "LiberationSansNarrow-Bold.ttf"}},
  };
  return sets;
}

/// The set that $KAV_TEST_FONTS names, the first where it names none. Ends the program where there
/// is no such set: a test must not pass with other fonts than it was to have.
inline const FontSet& ChosenFontSet() {
  const char* name = std::getenv("KAV_TEST_FONTS");
  const auto& sets = FontSets();
  if (name == nullptr) return sets.front();
  const auto set = std::find_if(sets.begin(), sets.end(), [name](const FontSet& candidate) {
    return candidate.name == name;
  });
  if (set == sets.end()) {
    std::cerr << "KAV_TEST_FONTS names no set of fonts: " << name << '\n';
    std::exit(1);
  }
  return *set;
}

/// Makes `folder` hold the fonts of `set` and lets all programs started from now on find those
/// alone. Ends the program where one of them is not installed.
inline void UseFonts(const FontSet& set, const std::filesystem::path& folder) {
  const std::filesystem::path fonts = folder / "fonts";
  std::filesystem::create_directories(fonts);
  for (const std::string_view name : set.files) {
    const std::filesystem::path file = std::filesystem::path(set.folder) / name;
    if (!std::filesystem::exists(file)) {
      std::cerr << file.string() << " is not installed: scripts/packages.sh test installs it\n";
      std::exit(1);
    }
    std::filesystem::create_symlink(file, fonts / name);
  }
  const std::filesystem::path config = folder / "fonts.conf";
  std::ofstream(config) << "<?xml version=\"1.0\"?>\n<fontconfig>\n<dir>" << fonts.string()
                        << "</dir>\n<cachedir>" << (folder / "font-cache").string()
                        << "</cachedir>\n</fontconfig>\n";
  setenv("FONTCONFIG_FILE", config.c_str(), 1);
}

}  // namespace kav::test
