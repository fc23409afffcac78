// Replays the fuzzer's saved inputs: each must end in an error or an answer, never a crash.

#include "ScriptHarness.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace script::test {
namespace {

TEST(ScriptFuzzCorpus, EveryInputRunsAsExpressionAndAsScript)
{
    const std::filesystem::path folder = std::filesystem::path(VELMORA_TEST_DATA_DIR) / "fuzz/script";
    ASSERT_TRUE(std::filesystem::is_directory(folder)) << folder;
    int files = 0;
    TestContext context;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream in(entry.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        for (const std::string& source : {CalculatorScript(input), input}) {
            RecordingScript script;
            script.Context = &context;
            script.Source = source;
            script.Run();
            // A failed compile runs nothing.
            if (!script.compilerErrors.empty()) {
                EXPECT_TRUE(script.prints.empty()) << entry.path();
            }
        }
        ++files;
    }
    EXPECT_GT(files, 0);
}

}  // namespace
}  // namespace script::test
