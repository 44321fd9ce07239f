// The scientific screen, used at random. Each byte is a key, a choice from a menu, a selection or a
// piece of text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "scientific/scientific_model.h"
#include "settings/keys.h"

namespace {

using kav::Key;
using kav::ScientificModel;

constexpr std::uint8_t kKeyCount = static_cast<std::uint8_t>(Key::F) + 1;

/// With one macro, so that calls get further than their names.
void StoreMacro(kav::SettingsStore& store) {
  store.Set(kav::kMacroCount, 1);
  store.Set(kav::MacroName(0), "f");
  store.Set(kav::MacroType(0), "TYPE1 : F(X)");
  store.Set(kav::MacroFormula(0), "x^2");
}

void Act(ScientificModel& model, std::uint8_t action, std::uint8_t detail) {
  if (action < kKeyCount) {
    (void)model.Press(static_cast<Key>(action));
    return;
  }
  const std::size_t length = model.Line().Text().size();
  switch (action % 6) {
    case 0:
      return (void)model.Choose(Key::PlayBack, detail % 24);
    case 1:
      return (void)model.Choose(Key::Dec, 32804 + detail % 6);
    case 2:
      return (void)model.Choose(Key::MemoryMenu, detail % 12);
    case 3:
      return model.TakeMacro(detail % 3 - 1);
    case 4:
      return model.SetLine(model.Line().Text(), {detail, (detail * 7U) % (length + 2)});
    default:
      return model.SetLine(model.Line().Text() + static_cast<char16_t>(detail * 0x0101U),
                           {length + 1, length + 1});
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kav::MemorySettingsStore store;
  StoreMacro(store);
  ScientificModel model(store);
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    Act(model, data[i], data[i + 1]);
    const auto selected = model.Line().Selected();
    const std::size_t length = model.Line().Text().size();
    if (selected.start > length || selected.end > length) std::abort();
  }
  model.Save();
  return 0;
}
