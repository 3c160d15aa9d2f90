#include "widgets/TravailFond.h"

namespace {

std::shared_future<void> dernier;

} // namespace

std::shared_future<void> FaitAuFond(std::function<void()> travail) {
    dernier = std::async(std::launch::async, [avant = dernier, travail = std::move(travail)]() mutable {
                  if (avant.valid()) avant.wait();
                  avant = {}; // or each job would keep all those before it
                  travail();
              }).share();
    return dernier;
}

void AttendFond() {
    if (dernier.valid()) dernier.wait();
}
