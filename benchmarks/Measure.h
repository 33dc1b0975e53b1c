// Measuring side by side: contenders take turns in short slices, so that whatever else the machine does meets all.
#pragma once

#include <QString>

#include <functional>
#include <vector>

/** One way of doing a thing. */
struct Contender
{
    QString name;
    std::function<void()> run;
    std::vector<double> samples;                  // what it took, one for each round; NaN where it failed
    std::function<double()> takeSample = nullptr; // in place of `run`, where that is not the time of this process
};

/** What is promised of the first contender. */
struct Promise
{
    enum Kind
    {
        Nothing,
        Ratio,     // to the second contender, at most
        Difference // to the second contender, at most, in the comparison's unit
    };
    Kind kind = Nothing;
    double limit = 0;
    std::vector<std::size_t> ahead; // of these contenders, too
};

/** A thing that is done in several ways. The first one is ours. */
struct Comparison
{
    QString group;
    QString name;
    QString unit; // of the samples
    std::vector<Contender> contenders;
    Promise promise;
    int thingsPerRun = 1;                                             // where a single one is too short to be measured
    std::function<std::vector<Contender>()> makeContenders = nullptr; // where they are not for nothing
};

/** Makes the contenders where they are not made yet. */
void prepare(Comparison &comparison);

/**
 * Fills the samples: `rounds` turns of each contender. With nanoseconds, each of so many runs that it takes about
 * `sliceSeconds`; or with what the contender takes by itself.
 */
void takeTurns(Comparison &comparison, int rounds, double sliceSeconds);

/** NaN where there is none, or one of them is NaN. */
double median(std::vector<double> values);

/** The median of the ratios within each round. */
double medianRatio(const std::vector<double> &values, const std::vector<double> &others);

/** Of the first contender to another one. */
double ratioTo(const Comparison &comparison, std::size_t contender);

/** The median of the first contender less that of another one. */
double differenceTo(const Comparison &comparison, std::size_t contender);

/** Whether no sample of any contender is missing. */
bool isMeasured(const Comparison &comparison);

/** The limit to the second contender. A figure that is missing keeps no promise. */
bool isLimitKept(const Comparison &comparison);

/** Of all contenders that the promise names. */
bool isAhead(const Comparison &comparison);

/** All that is promised. */
bool isKept(const Comparison &comparison);
