#include "screens/widgets/comma_question.h"

#include <optional>
#include <string>
#include <vector>

#include "screens/widgets/message_box.h"

namespace kav {

std::optional<CommaMeaning> AskForCommas(QWidget* parent, const CommaQuestion& question) {
  std::vector<std::u16string> answers;
  answers.reserve(question.meanings.size());
  for (const CommaMeaning meaning : question.meanings) {
    answers.push_back(CommaMeaningText(question.number, meaning));
  }
  const auto chosen = AskWhich(parent, CommaQuestionText(question), answers);
  if (!chosen) return std::nullopt;
  return question.meanings[*chosen];
}

}  // namespace kav
