#include "line/converter_link.h"

#include <utility>

#include "settings/keys.h"

namespace kav {

ConverterLink::ConverterLink(const SettingsStore& store)
    : positions{store.Get(kConverterClass), store.Get(kConverterInput),
                store.Get(kConverterOutput)} {}

void ConverterLink::Save(SettingsStore& store) const {
  store.Set(kConverterClass, positions.category);
  store.Set(kConverterInput, positions.input);
  store.Set(kConverterOutput, positions.output);
}

OpenConverter ConverterLink::Request(std::u16string value) const {
  return {{std::move(value), positions, memory}};
}

void ConverterLink::Take(const ConverterOutcome& outcome, ExpressionLine& line) {
  if (outcome.result) line.InsertText(*outcome.result);
  positions = outcome.positions;
  memory = outcome.memory;
}

}  // namespace kav
