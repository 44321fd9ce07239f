#include "screens/widgets/leaving.h"

#include "screens/widgets/message_box.h"

namespace kav {
namespace {

Decision Ask(QWidget* parent, LeaveReason reason, std::u16string_view question) {
  if (reason == LeaveReason::Ending) return AskYesNoCancel(parent, question);
  return AskYesNo(parent, question) ? Decision::Yes : Decision::No;
}

}  // namespace

bool AskToSave(QWidget* parent, LeaveReason reason, std::u16string_view question,
               const std::function<SaveEnd()>& save) {
  const Decision decision = Ask(parent, reason, question);
  if (decision != Decision::Yes) return decision == Decision::No;
  const SaveEnd end = save();
  if (end == SaveEnd::Cancelled) return reason != LeaveReason::Ending;
  return end == SaveEnd::Saved;
}

}  // namespace kav
