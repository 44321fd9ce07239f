// Works the editor of the user's own conversions as its user does.
#pragma once

#include <string>
#include <vector>

#include "screens/converter/user_conversion_dlg.h"
#include "screens/stored_list_driver.h"
#include "support/stored_conversions.h"

namespace kav::test {

using Conversions = std::vector<UserConversion>;

inline const Conversions kThree{
    {"inch -> cm", "2.54"}, {"mile -> km", "1.609344"}, {"h -> s", "3600"}};

class UserConversionDriver : public StoredListDriver {
 protected:
  UserConversionDriver() : StoredListDriver(RunUserConversions) {}

  void StoreThree() { StoreConversions(store_, kThree); }

  QLineEdit& Source() { return LineNamed(Dlg(), "Source unit"); }
  QLineEdit& Target() { return LineNamed(Dlg(), "Target unit"); }
  QLineEdit& Rate() { return LineNamed(Dlg(), "Rate"); }
  static void Type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  void Fill(const QString& source, const QString& target, const QString& rate) {
    Source().setText(source);
    Target().setText(target);
    Rate().setText(rate);
  }
  /// The three fields: "inch|cm|2.54".
  std::string Fields() {
    return (Source().text() + '|' + Target().text() + '|' + Rate().text()).toStdString();
  }
  bool IsEditing() { return Source().isEnabled(); }

  /// Taps "Delete" and answers its question; what stood below that.
  std::u16string Delete(QMessageBox::StandardButton answer) {
    return StoredListDriver::Delete(u"Are you sure you want to delete the selected unit convert?",
                                    answer);
  }
};

}  // namespace kav::test
