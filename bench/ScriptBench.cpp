// The calculator's three-line script, compiled, run and printed by a fresh engine each time, as
// the calculator does for every answer.

#include "script/RbScript.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

class CapturingScript : public script::RbScript {
public:
    std::string output;

protected:
    void Event_Print(const std::string& msg) override { output = msg; }
};

const std::string kQuadraticScript =
    "Dim x As double\nx = 1.0*((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)\nprint Str(x)";

void BM_ScriptCompileRunPrint(benchmark::State& state)
{
    for (auto _ : state) {
        CapturingScript script;
        script.Source = kQuadraticScript;
        script.Run();
        benchmark::DoNotOptimize(script.output.data());
    }
}
BENCHMARK(BM_ScriptCompileRunPrint);

}  // namespace
