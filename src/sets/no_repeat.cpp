#include "sets/no_repeat.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

constexpr int lowestBound = -99;
constexpr int quickSortFrom = 26;

/// The walk restarts after every swap; the draws that it sorts are short.
void exchangeSort(std::vector<int>& numbers) {
    for (std::size_t i = 0; i + 1 < numbers.size();) {
        if (numbers[i] <= numbers[i + 1]) {
            ++i;
            continue;
        }
        std::swap(numbers[i], numbers[i + 1]);
        i = 0;
    }
}

} // namespace

float clsNoRepeat::Rnd2(int low, int high) {
    user_.pumpMessages();
    const double drawn = random_.draw() * (static_cast<double>(high) - low) + low;
    // Cut to 32 bits a draw just below the bound would reach it, and an index would leave its list.
    const float value = static_cast<float>(drawn);
    const float bound = static_cast<float>(high);
    return value < bound ? value : std::nextafter(bound, static_cast<float>(low));
}

int clsNoRepeat::drawFloor(int low, int high) {
    return static_cast<int>(std::floor(Rnd2(low, high)));
}

std::optional<std::vector<int>> clsNoRepeat::Non_Repeating_Numbers(int count, int maxValue, int lowValue,
                                                                   bool sortResult) {
    const auto refuse = [this](const QString& text) {
        user_.showMessage({MessageKind::error, u"Morvane Error"_s, text, true, false, false});
        return std::nullopt;
    };
    if (count < lowestBound || maxValue < lowestBound)
        return refuse(u"Cannot process values less than - minus one hundred."_s);
    if (lowValue >= maxValue)
        return refuse(u"The lowest possible number is greater than or equal to the maximum value."_s);
    if (count == 1) {
        int drawn = 0;
        for (int round = 0; round < 5; ++round)
            drawn = drawFloor(lowValue, maxValue); // the fifth stands
        return std::vector{drawn};
    }
    return drawMany(count, maxValue, lowValue, sortResult);
}

std::vector<int> clsNoRepeat::drawMany(int count, int maxValue, int lowValue, bool sortResult) {
    const int last = lowValue < 0 ? maxValue - lowValue : maxValue;
    std::vector<int> pool(static_cast<std::size_t>(std::max(last, 0)) + 1, lowValue);
    if (lowValue < 0)
        for (std::size_t i = 0; i < pool.size(); ++i)
            pool[i] = lowValue + static_cast<int>(i);
    Mix_The_Numbers(pool);
    std::vector<int> numbers;
    for (int i = 0; i < maxValue && static_cast<int>(numbers.size()) < count; ++i)
        if (pool[static_cast<std::size_t>(i)] >= lowValue)
            numbers.push_back(pool[static_cast<std::size_t>(i)]);
    numbers.resize(static_cast<std::size_t>(std::max(count, 0)), 0);
    if (sortResult && count >= quickSortFrom)
        QuickSort(numbers, 0, count - 1);
    else if (sortResult)
        exchangeSort(numbers);
    return numbers;
}

void clsNoRepeat::Mix_The_Numbers(std::vector<int>& numbers) {
    const int upper = static_cast<int>(numbers.size()) - 2; // the last element is never moved
    if (upper < 1) return;
    const int passes = drawFloor(5, 10);
    for (int pass = 0; pass < passes; ++pass)
        for (int i = 0; i <= upper; ++i) {
            // A draw below 1 is always 0: another index than 0 would never come.
            if (upper == 1 && i == 0) continue;
            int j = i;
            while (j == i)
                j = drawFloor(0, upper);
            std::swap(numbers[static_cast<std::size_t>(i)], numbers[static_cast<std::size_t>(j)]);
        }
}

void clsNoRepeat::QuickSort(std::vector<int>& numbers, int first, int last) {
    if (first >= last) return;
    const int pivot = numbers[static_cast<std::size_t>(roundToLong((first + last) / 2.0))];
    int low = first, high = last;
    while (low <= high) {
        while (numbers[static_cast<std::size_t>(low)] < pivot)
            ++low;
        while (numbers[static_cast<std::size_t>(high)] > pivot)
            --high;
        if (low <= high)
            std::swap(numbers[static_cast<std::size_t>(low++)], numbers[static_cast<std::size_t>(high--)]);
    }
    QuickSort(numbers, first, high);
    QuickSort(numbers, low, last);
}

} // namespace morvane
