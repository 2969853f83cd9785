// A stable sort that survives a comparison function that contradicts itself, as users' functions sometimes do.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

// Less(A, B) says whether A belongs before B. When it throws, the elements are all there in an unspecified order.
template <class T, class Compare>
void MergeSort(std::vector<T>& Items, const Compare& Less)
{
    std::vector<T*> Order;
    Order.reserve(Items.size());
    for (T& Item : Items)
        Order.push_back(&Item);

    std::vector<T*> Merged(Order.size());
    for (size_t Run = 1; Run < Order.size(); Run *= 2) {
        for (size_t Start = 0; Start < Order.size(); Start += 2 * Run) {
            auto First = Order.begin() + static_cast<std::ptrdiff_t>(Start);
            auto Middle = Order.begin() + static_cast<std::ptrdiff_t>(std::min(Start + Run, Order.size()));
            auto Last = Order.begin() + static_cast<std::ptrdiff_t>(std::min(Start + 2 * Run, Order.size()));
            std::merge(First, Middle, Middle, Last, Merged.begin() + static_cast<std::ptrdiff_t>(Start),
                       [&](T* A, T* B) { return Less(*A, *B); });
        }
        Order.swap(Merged);
    }

    std::vector<T> Sorted;
    Sorted.reserve(Items.size());
    for (T* Item : Order)
        Sorted.push_back(std::move(*Item));
    Items.swap(Sorted);
}
