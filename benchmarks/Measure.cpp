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

// What one turn takes, for one thing.
std::function<double()> timing(const std::function<void()> &run, int thingsPerRun, double sliceSeconds)
{
    const int count = runsPerSlice(run, sliceSeconds);
    return [run, thingsPerRun, count] {
        return nanosecondsOf(run, count) / count / thingsPerRun;
    };
}

} // namespace

void prepare(Comparison &comparison)
{
    if (comparison.makeContenders && comparison.contenders.empty())
        comparison.contenders = comparison.makeContenders();
}

void takeTurns(Comparison &comparison, int rounds, double sliceSeconds)
{
    prepare(comparison);
    std::vector<std::function<double()>> turns;
    for (const Contender &contender : comparison.contenders)
        turns.push_back(contender.takeSample ? contender.takeSample
                                             : timing(contender.run, comparison.thingsPerRun, sliceSeconds));
    // In another order each round: whatever takes turns with us on this machine must not meet the same one each time.
    std::mt19937 generator;
    std::vector<std::size_t> order(turns.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    for (int round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), generator);
        for (const std::size_t i : order)
            comparison.contenders[i].samples.push_back(turns[i]());
    }
}

double median(std::vector<double> values)
{
    const bool isMissing = std::any_of(values.begin(), values.end(), [](double value) { return std::isnan(value); });
    if (values.empty() || isMissing)
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

bool isMeasured(const Comparison &comparison)
{
    return std::none_of(
        comparison.contenders.begin(), comparison.contenders.end(),
        [](const Contender &contender) { return std::isnan(median(contender.samples)); });
}

bool isLimitKept(const Comparison &comparison)
{
    const Promise &promise = comparison.promise;
    switch (promise.kind) {
    case Promise::Ratio: return ratioTo(comparison, 1) <= promise.limit;
    case Promise::Difference: return differenceTo(comparison, 1) <= promise.limit;
    case Promise::Nothing: break;
    }
    return true;
}

bool isAhead(const Comparison &comparison)
{
    const std::vector<std::size_t> &others = comparison.promise.ahead;
    return std::all_of(others.begin(), others.end(),
                       [&comparison](std::size_t other) { return ratioTo(comparison, other) <= 1.0; });
}

bool isKept(const Comparison &comparison)
{
    return isLimitKept(comparison) && isAhead(comparison);
}
