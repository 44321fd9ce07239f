#include "screens/widgets/comma_question.h"

#include <utility>
#include <vector>

#include "screens/widgets/offer_strip.h"

namespace kav {

void AskForCommas(const QWidget& field, std::u16string_view text, const CommaQuestion& question,
                  const std::function<void(CommaMeaning)>& take, std::function<void()> giveUp) {
  std::vector<Offer> offers;
  offers.reserve(question.meanings.size());
  for (const CommaMeaning meaning : question.meanings) {
    offers.push_back(
        {CommaMeaningText(question.number, meaning), [take, meaning] { take(meaning); }});
  }
  OfferStripOf(field).Offers(field, text, std::move(offers), std::move(giveUp));
}

}  // namespace kav
