// SPDX-License-Identifier: MIT
// Runs the benchmarks with Qt set up for drawing, on no display at all.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <cstdlib>

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
