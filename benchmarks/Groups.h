// What is measured, by group. Each function gives comparisons that are ready to take their turns; what they need lives
// in them.
#pragma once

#include "Measure.h"

#include <vector>

inline const QString nanoseconds = QStringLiteral("ns");
inline const QString kibibytes = QStringLiteral("KiB");

/** The styles that standard widgets are painted under, by name: ours first, then Fusion, then what this machine has. */
std::vector<QString> contendingStyles();

/** Standard widgets under each style, everything warm. */
std::vector<Comparison> warmPainting();

/** The same with the pixmap cache cleared before each painting. */
std::vector<Comparison> coldPainting();

/** A push button beside the least that painting one can take. */
std::vector<Comparison> leastPainting();

/** Controls of ours, each beside the widget of Qt under Fusion that a user would take in its place. */
std::vector<Comparison> houseControls();

/** Lookups of the registry, its start-up, and a log scope that is switched off. */
std::vector<Comparison> registry();

/** Processes that show a form: CPU time to the first painting, and memory then. And how long the registry starts. */
std::vector<Comparison> wholeProcesses();

/** The argument with which zel_bench only starts the registry, where Qt's fonts are ready, and tells its time. */
inline const QString registryStartOption = QStringLiteral("--registry-start");
double registryStartNanoseconds();
