// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace zelvar::bench {

/// Ends a benchmark with an error, which the program's exit status then shows.
void Fail(benchmark::State& state, const std::string& error);

/// Runs the benchmarks of the program. @return its exit status
int RunBenchmarks(int argc, char** argv);

}  // namespace zelvar::bench
