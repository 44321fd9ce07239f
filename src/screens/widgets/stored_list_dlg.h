// The dialog of a StoredListEditor: the fields, the buttons that belong to them, and the list with
// its own buttons.
#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <functional>
#include <initializer_list>
#include <map>
#include <string_view>
#include <utility>

#include "screens/widgets/dialog.h"
#include "screens/widgets/dialog_texts.h"
#include "screens/widgets/field_door.h"
#include "screens/widgets/label_list.h"
#include "screens/widgets/message_box.h"
#include "screens/widgets/qt_text.h"
#include "settings/settings_store.h"
#include "settings/stored_list_editor.h"

namespace kav {

/// `Model` is the StoredListEditor. `FieldsView` is the widget of its fields, which has
///   Typed()             what stands in them
///   Write(fields)       makes them show that
///   Inputs()            the widgets of them that are enabled while editing
///   Focus(field)        moves the focus there, or nowhere for None
template <class Model, class FieldsView>
class StoredListDlg : public Dialog {
 public:
  /// Esc and the closing of the window cancel the editing first.
  void reject() override {
    if (model_.IsEditing()) return OnCancel();
    Dialog::reject();
  }

 protected:
  using ButtonRow = std::initializer_list<EditorButton>;

  /// `store` must outlive the dialog. The constructor of a derived class adds its own buttons, then
  /// calls Start.
  StoredListDlg(QWidget* parent, SettingsStore& store, std::u16string_view title,
                std::u16string_view listName)
      : Dialog(parent, title), model_(store), list_(new LabelList(listName)) {
    AddButton(EditorButton::New, kNewCaption, [this] { OnNew(); });
    AddButton(EditorButton::Edit, kEditCaption, [this] { OnEdit(); });
    AddButton(EditorButton::Delete, kDeleteCaption, [this] { OnDelete(); });
    AddButton(EditorButton::Close, kCloseCaption, [this] { reject(); });
    AddButton(EditorButton::Save, kSaveCaption, [this] { OnSave(); });
    AddButton(EditorButton::Cancel, kCancelCaption, [this] { OnCancel(); });
  }

  /// Each button of a row given to Start must have been added.
  void AddButton(EditorButton button, std::u16string_view caption, std::function<void()> onClick) {
    auto* added = new DialogButton(caption, Model::HelpOf(button));
    connect(added, &QPushButton::clicked, this, std::move(onClick));
    buttons_[button] = added;
  }
  /// Lays out all parts, with `rows` of buttons below the fields, and begins to browse.
  void Start(std::initializer_list<ButtonRow> rows) {
    LayOut(rows);
    connect(list_, &QListWidget::itemSelectionChanged, this, [this] { OnSelect(); });
    connect(list_, &QListWidget::itemDoubleClicked, this, [this] { OnEdit(); });
    Browse();
  }

  Model& Editor() { return model_; }
  /// A button that was added.
  DialogButton& ButtonOf(EditorButton button) const { return *buttons_.at(button); }
  /// Hands what stands in the fields to the editor.
  void TakeFields() { model_.Take(fields_->Typed()); }
  void RefreshAndFocus(typename Model::Field field) {
    Refresh();
    fields_->Focus(field);
  }
  /// Refreshes; the focus goes to the list, or to the button that begins one.
  void Browse() {
    Refresh();
    if (model_.Labels().empty()) return ButtonOf(EditorButton::New).setFocus();
    list_->setFocus();
  }
  /// Whether the user wants the selected entry deleted.
  virtual bool ConfirmsDelete() { return AskYesNo(this, Model::DeleteQuestion()); }

 private:
  void LayOut(std::initializer_list<ButtonRow> rows) {
    auto* all = new QVBoxLayout(this);
    all->addWidget(fields_);
    for (const ButtonRow& row : rows) all->addLayout(NewRow(row));
    all->addWidget(count_);
    all->addWidget(list_, 1);
    all->addLayout(
        NewRow({EditorButton::New, EditorButton::Edit, EditorButton::Delete, EditorButton::Close}));
  }
  QLayout* NewRow(ButtonRow row) const {
    auto* layout = new QHBoxLayout;
    for (const EditorButton button : row) layout->addWidget(&ButtonOf(button), 1);
    return layout;
  }
  void Refresh() {
    // Before they are enabled, so that undo does not bring back what was shown last.
    fields_->Write(model_.Fields());
    for (QWidget* input : fields_->Inputs()) input->setEnabled(model_.IsEditing());
    count_->setText(ToQt(model_.CountText()));
    list_->Write(model_.Labels(), model_.Selected());
    list_->setEnabled(!model_.IsEditing());
    for (const auto& [button, widget] : buttons_) {
      widget->setVisible(model_.Shows(button));
      widget->setEnabled(model_.Enables(button));
    }
    ButtonOf(model_.DefaultButton()).setDefault(true);
  }

  void OnSelect() {
    model_.Select(list_->Selected());
    Refresh();
  }
  void OnNew() {
    model_.New();
    RefreshAndFocus(model_.FirstField());
  }
  void OnEdit() {
    model_.Edit();
    if (!model_.IsEditing()) return Browse();
    RefreshAndFocus(model_.FirstField());
  }
  void OnDelete() {
    if (!ConfirmsDelete()) return;
    model_.Delete();
    Browse();
  }
  void OnSave() {
    if (AsksFirst(*fields_, [this] { OnSave(); })) return;
    TakeFields();
    const auto refusal = model_.Save();
    if (!refusal) return Browse();
    ShowStop(this, refusal->text);
    fields_->Focus(refusal->focus);
  }
  void OnCancel() {
    model_.Cancel();
    Browse();
  }

  Model model_;
  FieldsView* fields_ = new FieldsView;
  QLabel* count_ = new QLabel;
  LabelList* list_;
  std::map<EditorButton, DialogButton*> buttons_;
};

}  // namespace kav
