// Arrays that the SDK hands out and gets back through a destroy call.
//
// Each array is remembered by address and length, so that a destroy call with anything else is
// answered and does no harm. Null arrays of length 0 are never handed out.
#pragma once
#include <cstddef>
#include <mutex>
#include <unordered_map>
#include <vector>

#include "sdk/constants.h"

namespace standin {

class LoanBook {
  public:
    void lend(const void *array, int count);
    // BCM_E_NOT_FOUND: not handed out, or back already; BCM_E_PARAM: another length.
    int take_back(const void *array, int count);

  private:
    std::mutex lock_;
    std::unordered_map<const void *, int> lent_;
};

// One book for each type of element.
template <class T>
LoanBook &loan_book() {
    static LoanBook &book = *new LoanBook;
    return book;
}

template <class T>
T *lend(const std::vector<T> &items) {
    T *const array = new T[items.size() + 1]();
    for (std::size_t i = 0; i < items.size(); ++i) array[i] = items[i];
    loan_book<T>().lend(array, static_cast<int>(items.size()));
    return array;
}

template <class T>
int take_back(T *array, int count) {
    const int status = loan_book<T>().take_back(array, count);
    if (status == BCM_E_NONE) delete[] array;
    return status;
}

// Hands a list to a caller who gave two addresses.
template <class T>
int give_list(const std::vector<T> &items, T **list, int *count) {
    if (list == nullptr || count == nullptr) return BCM_E_PARAM;
    *list = lend(items);
    *count = static_cast<int>(items.size());
    return BCM_E_NONE;
}

// Fills a caller's array of `max` elements. Nothing but the number for `max` 0. `count` is how
// many were written, or how many there are for `max` 0.
template <class T>
int give_array(const std::vector<T> &items, int max, T *array, int *count) {
    if (max < 0 || (max > 0 && array == nullptr) || count == nullptr) return BCM_E_PARAM;
    const int size = static_cast<int>(items.size());
    *count = max == 0 || size < max ? size : max;
    for (int i = 0; max > 0 && i < *count; ++i) array[i] = items[static_cast<std::size_t>(i)];
    return BCM_E_NONE;
}

}  // namespace standin
