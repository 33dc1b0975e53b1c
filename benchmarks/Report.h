// Comparisons for people and for programs.
#pragma once

#include "Measure.h"

void printTable(const std::vector<Comparison> &comparisons);
void printJson(const std::vector<Comparison> &comparisons, int rounds);
