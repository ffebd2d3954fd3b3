// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/outcome.h"

#include <cstdlib>

namespace zelvar::bench {

namespace {

bool anyFailed = false;

}  // namespace

void Fail(benchmark::State& state, const std::string& error) {
    anyFailed = true;
    state.SkipWithError(error.c_str());
}

int RunBenchmarks(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    benchmark::RunSpecifiedBenchmarks();
    return anyFailed ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace zelvar::bench
