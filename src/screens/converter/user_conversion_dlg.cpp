#include "screens/converter/user_conversion_dlg.h"

#include "converter/converter_texts.h"
#include "converter/user_conversion_model.h"
#include "screens/converter/user_conversion_fields_view.h"
#include "screens/memory/memory_variables_dlg.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/stored_list_dlg.h"

namespace kav {
namespace {

class CUserConversionDlg final
    : public StoredListDlg<UserConversionModel, UserConversionFieldsView> {
 public:
  CUserConversionDlg(QWidget* parent, SettingsStore& store);

 private:
  void OnMemory();
  bool ConfirmsDelete() override;

  SettingsStore& store_;
};

CUserConversionDlg::CUserConversionDlg(QWidget* parent, SettingsStore& store)
    : StoredListDlg(parent, store, kUserConversionsTitle, kUserConversionsName), store_(store) {
  SetPage(GuidePage::OwnUnits);
  AddButton(EditorButton::Memory, kMemoryCaption, [this] { OnMemory(); });
  Start({{EditorButton::Memory, EditorButton::Save, EditorButton::Cancel}});
}

void CUserConversionDlg::OnMemory() {
  TakeFields();
  const auto value = RunRecallVariable(this, store_);
  if (value) Editor().TakeRate(*value);
  RefreshAndFocus(ConversionField::Rate);
}

bool CUserConversionDlg::ConfirmsDelete() {
  // The warning has to know the rates that other programs stored meanwhile.
  Editor().Reload();
  Browse();
  return Editor().Selected() && AskYesNo(this, Editor().DeleteQuestion(), Editor().DeleteWarning());
}

}  // namespace

void RunUserConversions(QWidget* parent, SettingsStore& store) {
  CUserConversionDlg(parent, store).RunModal();
}

}  // namespace kav
