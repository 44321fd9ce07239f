#include "display/display_settings.h"

#include <algorithm>

#include "settings/keys.h"

namespace kav {
namespace {

int Nearest(std::int32_t stored, const IntegerRange& range) {
  return std::clamp<int>(stored, range.least, range.most);
}

DisplayFormat LoadFormat(const SettingsStore& store, const IntegerKey& type,
                         const IntegerKey& precision) {
  const std::int32_t stored = store.Get(type);
  return DisplayFormatFromSettings(IsDisplayType(stored) ? stored : type.fallback,
                                   Nearest(store.Get(precision), kPrecisionRange));
}

void StoreFormat(const DisplayFormat& format, SettingsStore& store, const IntegerKey& type,
                 const IntegerKey& precision) {
  store.Set(type, static_cast<std::int32_t>(format.type));
  store.Set(precision, format.precision);
}

}  // namespace

DisplaySettings LoadDisplaySettings(const SettingsStore& store) {
  DisplaySettings settings;
  settings.normal = LoadFormat(store, kDisplayType, kPrecision);
  settings.matrix = LoadFormat(store, kMatrixDisplayType, kMatrixPrecision);
  settings.matrixRows = Nearest(store.Get(kMatrixRows), kMatrixSizeRange);
  settings.matrixColumns = Nearest(store.Get(kMatrixColumns), kMatrixSizeRange);
  settings.alignment = static_cast<CellAlignment>(Nearest(store.Get(kMatrixAlignment), {0, 1}));
  settings.columnWidth = Nearest(store.Get(kMatrixColumnWidth), kColumnWidthRange);
  return settings;
}

void StoreDisplaySettings(const DisplaySettings& settings, SettingsStore& store) {
  store.Change([&] {
    StoreFormat(settings.normal, store, kDisplayType, kPrecision);
    StoreFormat(settings.matrix, store, kMatrixDisplayType, kMatrixPrecision);
    store.Set(kMatrixRows, settings.matrixRows);
    store.Set(kMatrixColumns, settings.matrixColumns);
    store.Set(kMatrixAlignment, static_cast<std::int32_t>(settings.alignment));
    store.Set(kMatrixColumnWidth, settings.columnWidth);
  });
}

}  // namespace kav
