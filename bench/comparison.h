#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace velmbench {
using Workload = std::function<void(benchmark::State&)>;

/// Registers one workload in its two forms. Each is measured once a repetition; what it does before and after its loop
/// isn't counted.
void compare(const std::string& name, const Workload& ours, const Workload& yardstick, int repetitions = 7);
/// As compare(), of the bytes that the forms tell by setBytes() and not of their time.
void compareBytes(const std::string& name, const Workload& ours, const Workload& yardstick);

void setBytes(benchmark::State& state, double bytes);
/// What is allocated at present, with what malloc() itself needs for it.
double allocatedBytes();

/// Ends the program when a workload didn't do what it is measured for.
void verify(bool isRight, const char* what);

/// Runs everything in random order and prints a line a comparison: the medians and their ratio.
void runComparisons(int argc, char** argv);

void addTreeModels();
void addListModels();
void addSheetSet();
void addFilters();
void addTables();
void addFilterTree();
} // namespace velmbench
