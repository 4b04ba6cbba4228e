// The book of lent arrays, under a lock of its own.
#include "standin/model/loans.h"

namespace standin {

void LoanBook::lend(const void *array, int count) {
    const std::lock_guard<std::mutex> guard(lock_);
    lent_[array] = count;
}

int LoanBook::take_back(const void *array, int count) {
    const std::lock_guard<std::mutex> guard(lock_);
    const auto found = lent_.find(array);
    if (found == lent_.end()) return BCM_E_NOT_FOUND;
    if (found->second != count) return BCM_E_PARAM;
    lent_.erase(found);
    return BCM_E_NONE;
}

}  // namespace standin
