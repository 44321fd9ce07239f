// The dialog of the display settings: two pages that share one set of boxes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/refusal.h"
#include "display/display_settings.h"
#include "display/look_settings.h"

namespace kav {

/// Whose numbers a page is about: those of the scientific screen, or those in matrix cells. In the
/// order of the tabs.
enum class DisplayPage { Normal, Matrix };

/// Where the focus goes after a refusal.
enum class DisplayField { Precision, ColumnWidth };

/// What the shared boxes hold, and what each page keeps while the other one is shown. Nothing is
/// stored before Accept.
class DisplaySettingsModel {
 public:
  DisplaySettingsModel(const SettingsStore& store, DisplayPage first);

  DisplayPage Page() const { return page_; }
  std::u16string_view GroupCaption() const;
  /// Whether the defaults of new matrices and the recommended type are shown.
  bool ShowsMatrixParts() const { return page_ == DisplayPage::Matrix; }
  /// Whether the look of all windows is shown: where the other page has the defaults of matrices.
  bool ShowsLook() const { return page_ == DisplayPage::Normal; }

  // The boxes, as the user left them.
  DisplayType Type() const { return type_; }
  const std::u16string& Precision() const { return precision_; }
  const std::u16string& ColumnWidth() const { return columnWidth_; }
  int MatrixRows() const { return kept_.matrixRows; }
  int MatrixColumns() const { return kept_.matrixColumns; }
  CellAlignment Alignment() const { return kept_.alignment; }
  const LookSettings& Look() const { return look_; }
  /// Whether the precision box is enabled.
  bool TakesPrecision() const { return UsesPrecision(type_); }

  void ChooseType(DisplayType type) { type_ = type; }
  void TypePrecision(std::u16string text) { precision_ = std::move(text); }
  void TypeColumnWidth(std::u16string text) { columnWidth_ = std::move(text); }
  /// `rows` and `columns` are in kMatrixSizeRange.
  void ChooseMatrixRows(int rows) { kept_.matrixRows = rows; }
  void ChooseMatrixColumns(int columns) { kept_.matrixColumns = columns; }
  void ChooseAlignment(CellAlignment alignment) { kept_.alignment = alignment; }

  void ChooseLook(const LookSettings& look) { look_ = look; }

  /// A large and a small number, a line each, as the type and the precision in the boxes show them;
  /// if the precision box holds none, what it may hold.
  std::u16string Example() const;

  // Both take the boxes over first. If an entry is refused, the number boxes show the last accepted
  // numbers again and nothing else happens.
  /// Shows `page`.
  std::optional<Refusal<DisplayField>> TurnTo(DisplayPage page);
  /// Stores all settings.
  std::optional<Refusal<DisplayField>> Accept(SettingsStore& store);

 private:
  DisplayFormat DisplaySettings::*PageFormat() const;
  const DisplayFormat& KeptFormat() const { return kept_.*PageFormat(); }
  std::optional<DisplayFormat> TypedFormat() const;
  std::optional<Refusal<DisplayField>> TakeOver();
  void FillBoxes();

  DisplaySettings kept_;
  LookSettings look_;
  DisplayPage page_;
  DisplayType type_;
  std::u16string precision_;
  std::u16string columnWidth_;
};

}  // namespace kav
