// The peer in process: muparser parsing and evaluating the same sine as a dropped "2*sin(30)",
// built only where muparser is installed (bench/peers.sh installs it).

#include <benchmark/benchmark.h>

#include <muParser.h>

namespace {
void MuparserParseAndEvaluate(benchmark::State& state) {
    for (auto _ : state) {
        mu::Parser parser;
        parser.SetExpr("2*sin(30*_pi/180)");
        benchmark::DoNotOptimize(parser.Eval());
    }
}
BENCHMARK(MuparserParseAndEvaluate);

// A parser kept between evaluations, as a program would that evaluates one formula often.
void MuparserEvaluateOnly(benchmark::State& state) {
    mu::Parser parser;
    parser.SetExpr("2*sin(30*_pi/180)");
    for (auto _ : state) benchmark::DoNotOptimize(parser.Eval());
}
BENCHMARK(MuparserEvaluateOnly);
}  // namespace
