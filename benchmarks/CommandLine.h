// What the programs that measure have in common for those who call them: options, the choice by names, exit statuses.
#pragma once

#include "Measure.h"

#include <QCommandLineParser>

#include <optional>

enum ExitStatus
{
    AllKept = 0,
    NotKept = 1, // or not measured
    WrongArguments = 2
};

/** --only, --list, --json and --help. */
void addCommonOptions(QCommandLineParser &parser);

/** What --only knows it by: "painting: push button". */
QString fullName(const Comparison &comparison);

/** Keeps the one whose full name the text is; where there is none, those that have the text in it. */
void keepChosen(std::vector<Comparison> &comparisons, const QString &text);

/** Keeps what --only chooses. The status to end with where nothing is left to measure, or --list just wants the names.
 */
std::optional<int> choose(const QCommandLineParser &parser, std::vector<Comparison> &comparisons);

/** Prints the table, or JSON. The status to end with. */
int report(const QCommandLineParser &parser, const std::vector<Comparison> &comparisons, int rounds);

/** Says on stderr what is wrong. The status to end with. */
int refuse(const QString &message);
