#include "Measure.h"

#include "Clocks.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace {

double nanosecondsOf(const std::function<void()> &run, int count)
{
    const double before = processNanoseconds();
    for (int i = 0; i < count; ++i)
        run();
    return processNanoseconds() - before;
}

// Doubles the count until a slice is long enough to be measured; that warms everything up, too.
int runsPerSlice(const std::function<void()> &run, double sliceSeconds)
{
    const double wanted = sliceSeconds * 1e9;
    int count = 1;
    double taken = nanosecondsOf(run, count);
    while (taken < wanted / 4) {
        count *= 2;
        taken = nanosecondsOf(run, count);
    }
    return std::max(1, static_cast<int>(count * wanted / taken));
}

} // namespace

void takeTurns(Comparison &comparison, int rounds, double sliceSeconds)
{
    std::vector<int> counts;
    for (const Contender &contender : comparison.contenders)
        counts.push_back(runsPerSlice(contender.run, sliceSeconds));
    // In another order each round: whatever takes turns with us on this machine must not meet the same one each time.
    std::mt19937 generator;
    std::vector<std::size_t> order(counts.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    for (int round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), generator);
        for (const std::size_t i : order) {
            Contender &contender = comparison.contenders[i];
            contender.samples.push_back(nanosecondsOf(contender.run, counts[i]) / counts[i] / comparison.thingsPerRun);
        }
    }
}

double median(std::vector<double> values)
{
    if (values.empty())
        return std::nan("");
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double medianRatio(const std::vector<double> &values, const std::vector<double> &others)
{
    std::vector<double> ratios;
    for (std::size_t round = 0; round < std::min(values.size(), others.size()); ++round)
        ratios.push_back(values[round] / others[round]);
    return median(ratios);
}

double ratioTo(const Comparison &comparison, std::size_t contender)
{
    return medianRatio(comparison.contenders.front().samples, comparison.contenders[contender].samples);
}

double differenceTo(const Comparison &comparison, std::size_t contender)
{
    return median(comparison.contenders.front().samples) - median(comparison.contenders[contender].samples);
}

bool isKept(const Comparison &comparison)
{
    const Promise &promise = comparison.promise;
    if (promise.kind == Promise::Ratio && ratioTo(comparison, 1) > promise.limit)
        return false;
    if (promise.kind == Promise::Difference && differenceTo(comparison, 1) > promise.limit)
        return false;
    return std::all_of(promise.ahead.begin(), promise.ahead.end(),
                       [&comparison](std::size_t other) { return ratioTo(comparison, other) <= 1.0; });
}
