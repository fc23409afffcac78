#include "script/CompileError.h"
#include "script/Parser.h"
#include "ScriptHarness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace script::test {

double TestContext::CallFunction(int id, double argument)
{
    if (id == 0)
        probed.push_back(argument);
    if (id == 1)
        return std::log(argument);
    if (id == 2)
        throw fw::OutOfBoundsException("fail");
    return argument;
}

namespace {

const double kInf = std::numeric_limits<double>::infinity();

// Runs "x = probe(expression)" and gives the exact double the script computed.
double Evaluate(const std::string& expression, RecordingScript* events = nullptr)
{
    TestContext context;
    RecordingScript script;
    script.Context = &context;
    script.Source = "Dim x As double\nx = probe(" + expression + ")";
    script.Run();
    if (events != nullptr)
        *events = script;
    EXPECT_TRUE(script.compilerErrors.empty())
        << expression << " gave error " << script.compilerErrors[0].number;
    EXPECT_EQ(context.probed.size(), 1u) << expression;
    return context.probed.empty() ? -999.0 : context.probed[0];
}

TEST(ScriptEngine, ArithmeticPrecedenceAndFunctions)
{
    const struct {
        const char* expression;
        double expected;
    } cases[] = {
        {"2+3", 5}, {"2-3*4", -10}, {"(2-3)*4", -4}, {"8/2/2", 2}, {"10-2-3", 5},
        {"2*3^2", 18}, {"1.0*-5", -5}, {"2^-1", 0.5}, {"--3", 3}, {"+-+3", -3},
        {"-2^2", -4}, {"2^3^2", 512}, {"2^-2^2", 0.0625}, {"(-2)^2", 4}, {"3*-2^2", -12},
        {"2e6", 2e6}, {"2E6", 2e6}, {".5", 0.5}, {"5.", 5}, {"1.5e-3", 1.5e-3}, {"1e+2", 100},
        {"007", 7}, {" \t2 *\t3 ", 6}, {"2 ' a comment", 2}, {"2 // a comment", 2},
        {"sin(0)", 0}, {"COS(0)", 1}, {"Sqrt(16)", 4}, {"exp(0)", 1}, {"Log(1)", 0},
        {"tan(0)", 0}, {"asin(1)", std::asin(1.0)}, {"ACOS(0)", std::acos(0.0)},
        {"atan(1)*4", 4 * std::atan(1.0)}, {"abs(-2)", 2}, {"round(2.5)", 3}, {"round(-2.5)", -3},
        {"floor(-1.5)", -2}, {"ceil(1.2)", 2}, {"pow(2,10)", 1024}, {"atan2(1,1)", std::atan(1.0)},
        {"max(2,3)", 3}, {"min(2,3)", 2}, {"val(\"12.5\")", 12.5}, {"ln(1)", 0}, {"LN(1)", 0},
        {"x+1", 1}, {"probe(3)", 3},
        {"1.0*((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)", 2},
        {"1/0", kInf}, {"-1/0", -kInf}, {"1e308*10", kInf}, {"Log(0)", -kInf},
        {"1e999", kInf}, {"1e-999", 0}, {"0.000e99999", 0},
    };
    for (const auto& c : cases) {
        // probe() records the argument first, so only the outer value is compared.
        TestContext context;
        RecordingScript script;
        script.Context = &context;
        script.Source = std::string("Dim x As double\nx = ") + c.expression + "\nx = probe(x)";
        script.Run();
        ASSERT_TRUE(script.compilerErrors.empty())
            << c.expression << " gave error " << script.compilerErrors[0].number;
        ASSERT_FALSE(context.probed.empty()) << c.expression;
        EXPECT_DOUBLE_EQ(context.probed.back(), c.expected) << c.expression;
    }
}

TEST(ScriptEngine, NotANumberAndInfinityRaiseNoError)
{
    for (const char* expression : {"sqrt(-1)", "0/0", "Log(-1)", "1/0-1/0", "asin(2)"}) {
        RecordingScript events;
        EXPECT_TRUE(std::isnan(Evaluate(expression, &events))) << expression;
        EXPECT_TRUE(events.runtimeErrorLines.empty()) << expression;
    }
    RecordingScript script;
    script.Source = CalculatorScript("1/0");
    script.Run();
    EXPECT_EQ(script.prints.size(), 1u);
    EXPECT_TRUE(script.runtimeErrorLines.empty());
}

TEST(ScriptEngine, LongLiteralsConvertAsStrtod)
{
    for (const char* literal :
         {"3.1415926535897932384626433832795", "0.1000000000000000055511151231257827",
          "9007199254740993", "2.2250738585072011e-308", "4.9406564584124654e-324",
          "1.7976931348623157e308", "123456789012345678901234567890123",
          "0.000000000000000000000000000000000000001234567890123456789"}) {
        EXPECT_EQ(Evaluate(literal), std::strtod(literal, nullptr)) << literal;
    }
}

TEST(ScriptEngine, CompilerErrorNumbersAndLines)
{
    const struct {
        std::string source;
        int number;
        int line;
    } cases[] = {
        {CalculatorScript(""), 1, 2},
        {CalculatorScript("2 3"), 1, 2},
        {CalculatorScript("(2"), 1, 2},
        {CalculatorScript("2)"), 1, 2},
        {CalculatorScript("2e"), 1, 2},
        {CalculatorScript("1 # 2"), 1, 2},
        {CalculatorScript("1.2.3"), 1, 2},
        {CalculatorScript("sin(1,)"), 1, 2},
        {CalculatorScript(std::string("2\0", 2)), 1, 2},
        {CalculatorScript("\xff"), 1, 2},
        {CalculatorScript("print"), 1, 2},
        {"Dim x As double\nx = 1\nprint Str(x", 1, 3},
        {"Dim x As double\r\nx = 1\r\nprint Str(x", 1, 3},
        {"Dim x As double\rx = 1\rprint Str(x", 1, 3},
        {"\n\nDim x As double\n\nprint \"abc", 1, 5},
        {"Dim print As double", 1, 1},
        {"Dim x double", 1, 1},
        {"Dim x, y As double = 1", 1, 1},
        {"Dim x As double\nx 5", 1, 2},
        {"Dim x As double\nsin = 5", 1, 2},
        {"Dim x As double\nx = 1.0*\"a\"+1", 12, 2},
        {"Dim x As double\nx = sin(1)+\"a\"", 2, 2},
        {"print 5", 2, 1},
        {"print \"a\" + Str(1) + 2", 2, 1},
        {CalculatorScript("sin(1, 2)"), 6, 2},
        {CalculatorScript("Str(1, 2)"), 6, 2},
        {CalculatorScript("ln(1, 2)"), 6, 2},
        {"print \"a\", \"b\"", 6, 1},
        {CalculatorScript("sqrt()"), 7, 2},
        {CalculatorScript("pow(2)"), 7, 2},
        {"print Format(1)", 7, 1},
        {"print", 7, 1},
        {CalculatorScript("sqrt"), 8, 2},
        {CalculatorScript("ln + 1"), 8, 2},
        {"print Str", 8, 1},
        {CalculatorScript("sin(\"a\")"), 9, 2},
        {"print Str(\"a\")", 9, 1},
        {"print Format(1, 2)", 9, 1},
        {"print Format(\"1\", \"0\")", 9, 1},
        {"Dim x As double\nx = \"a\"", 10, 2},
        {"Dim s As string\ns = 1", 10, 2},
        {"Dim x As Double = \"a\"", 10, 1},
        {"x = 1", 11, 1},
        {CalculatorScript("y"), 11, 2},
        {CalculatorScript("foo(3)"), 11, 2},
        {"Dim x As Foo", 11, 1},
        {"Dim x As double\nx = 1\nprint Str(y)", 11, 3},
        {"print \"a\" * 2", 12, 1},
        {"print \"a\" - \"b\"", 12, 1},
        {"print -\"a\"", 12, 1},
        {CalculatorScript("1 & 2"), 12, 2},
        {"print \"a\" ^ 2", 12, 1},
        {CalculatorScript("x(3)"), 15, 2},
        {"Dim x As double\nx(1) = 2", 15, 2},
        {"Dim x As double\nDim X As Double", 22, 2},
        {"Dim a, b, A As double", 22, 1},
        {"sin(1)", 31, 1},
        {"ln(1)", 31, 1},
        {CalculatorScript(std::string(10000, '(')), 5, 2},
        {CalculatorScript(std::string(10000, '-') + "1"), 5, 2},
        {CalculatorScript(std::string(300, '+') + "1"), 5, 2},
        {"print " + std::string(10000, '(') + "\"a\"", 5, 1},
    };
    std::string powerTower = "2";
    for (int i = 0; i < 10000; ++i)
        powerTower += "^2";
    std::string nestedCalls;
    for (int i = 0; i < 10000; ++i)
        nestedCalls += "sin(";
    TestContext context;
    for (const auto& c : cases) {
        RecordingScript script;
        script.Context = &context;
        script.Source = c.source;
        script.Run();
        ASSERT_EQ(script.compilerErrors.size(), 1u) << c.source.substr(0, 60);
        EXPECT_EQ(script.compilerErrors[0].number, c.number) << c.source.substr(0, 60);
        EXPECT_EQ(script.compilerErrors[0].line, c.line) << c.source.substr(0, 60);
        EXPECT_EQ(script.compilerErrors[0].message, CompileErrorText(c.number));
        EXPECT_TRUE(script.prints.empty()) << "a failed compile must not run";
    }
    for (const std::string& deep : {powerTower, nestedCalls}) {
        RecordingScript script;
        script.Source = CalculatorScript(deep);
        script.Run();
        ASSERT_EQ(script.compilerErrors.size(), 1u);
        EXPECT_EQ(script.compilerErrors[0].number, 5);
    }
}

TEST(ScriptEngine, NestingJustInsideTheLimitCompiles)
{
    const int depth = Parser::kMaxDepth - 1;
    RecordingScript script;
    script.Source = CalculatorScript(std::string(depth, '(') + "1" + std::string(depth, ')'));
    script.Run();
    EXPECT_TRUE(script.compilerErrors.empty());
    EXPECT_EQ(script.prints.size(), 1u);
}

TEST(ScriptEngine, ErrorTexts)
{
    EXPECT_EQ(CompileErrorText(1), "Syntax does not make sense.");
    EXPECT_EQ(CompileErrorText(15), "Can't call a non-function.");
    EXPECT_EQ(CompileErrorText(42), "Can't use 'Super' keyword in a class that has no parent.");
    for (int unknown : {-1, 0, 36, 37, 38, 39, 43, 1000})
        EXPECT_EQ(CompileErrorText(unknown), "unknown error") << unknown;
}

TEST(ScriptEngine, StringsAndPrinting)
{
    const struct {
        const char* source;
        std::vector<std::string> prints;
    } cases[] = {
        {"print \"a\" + \"b\" & \"c\"", {"abc"}},
        {"print \"say \"\"hi\"\"\"", {"say \"hi\""}},
        {"print \"\"", {""}},
        {"PRINT(\"a\")", {"a"}},
        {"print \"a\"\nprint \"b\"", {"a", "b"}},
        {"Dim s As String\ns = \"q\"\nprint s + s", {"qq"}},
        {"Dim s As String = \"v\"\nprint s", {"v"}},
        {"rem print \"no\"\n' print \"no\"\nprint \"yes\" // comment", {"yes"}},
        {"print Str(2+3)", {fw::Str(5.0)}},
        {"print \"x=\" & Str(1.5)", {"x=" + fw::Str(1.5)}},
        {"print Format(200, \"0.0#############e+##\")", {fw::Format(200, "0.0#############e+##")}},
        {"Dim x As double\nx = 1.0*2+3\nprint Str(x)", {fw::Str(5.0)}},
        {"dim X as DOUBLE\nx = 7\nprint str(X)", {fw::Str(7.0)}},
        {"", {}},
        {"\n\r\n\r", {}},
    };
    for (const auto& c : cases) {
        RecordingScript script;
        script.Source = c.source;
        script.Run();
        EXPECT_TRUE(script.compilerErrors.empty()) << c.source;
        EXPECT_EQ(script.prints, c.prints) << c.source;
    }
}

TEST(ScriptEngine, HostFaultStopsTheRunAtItsLine)
{
    TestContext context;
    RecordingScript script;
    script.Context = &context;
    script.Source = "Dim x As double\nprint \"before\"\n\nx = 1 + fail(2)\nprint \"after\"";
    script.Run();
    EXPECT_TRUE(script.compilerErrors.empty());
    EXPECT_EQ(script.prints, std::vector<std::string>{"before"});
    EXPECT_EQ(script.runtimeErrorLines, std::vector<int>{4});
}

TEST(ScriptEngine, RecompilesOnlyWhenSourceOrContextChanged)
{
    TestContext context;
    RecordingScript script;
    script.Context = &context;
    script.Source = "print Str(ln(1))";
    script.Run();
    script.Run();
    EXPECT_EQ(script.prints.size(), 2u);
    script.Context = nullptr;  // the compiled call into the host must not survive this
    script.Run();
    ASSERT_EQ(script.compilerErrors.size(), 1u);
    EXPECT_EQ(script.compilerErrors[0].number, 11);
    script.Source = "print \"new\"";
    script.Run();
    script.Reset();
    script.Run();
    EXPECT_EQ(script.prints, (std::vector<std::string>{fw::Str(0.0), fw::Str(0.0), "new", "new"}));
    EXPECT_TRUE(script.runtimeErrorLines.empty());
}

// A handler that resets and reruns its own script while that script is running.
class ReentrantScript : public RecordingScript {
protected:
    void Event_Print(const std::string& msg) override
    {
        RecordingScript::Event_Print(msg);
        if (prints.size() == 1) {
            Reset();
            Source = "print \"inner\"";
            Run();
        }
    }
};

TEST(ScriptEngine, EventHandlerMayResetAndRerun)
{
    ReentrantScript script;
    script.Source = "print \"a\"\nprint \"b\"";
    script.Run();
    EXPECT_EQ(script.prints, (std::vector<std::string>{"a", "inner", "b"}));
}

TEST(ScriptEngine, HugeAndBinaryInputEndsInErrorOrAnswer)
{
    std::string noise(1 << 20, '\0');
    unsigned state = 12345;
    for (char& c : noise) {
        state = state * 1103515245 + 12345;
        c = static_cast<char>(state >> 16);
    }
    std::string manyDims;
    for (int i = 0; i < 20000; ++i)
        manyDims += "Dim v" + std::to_string(i) + " As double\n";
    manyDims += "v19999 = 1\nprint Str(v19999)";
    std::string longSum = "1";
    for (int i = 0; i < 200000; ++i)
        longSum += "+1";
    std::string longConcat = "print \"a\"";
    for (int i = 0; i < 100000; ++i)
        longConcat += "+\"a\"";
    const std::string inputs[] = {
        noise,
        CalculatorScript(noise),
        CalculatorScript(std::string(1 << 20, '9')),
        CalculatorScript("0." + std::string(1 << 20, '0') + "1"),
        CalculatorScript(std::string(1 << 20, '\n')),
        "print \"" + std::string(1 << 20, 'a') + "\"",
        manyDims,
        CalculatorScript(longSum),
        longConcat,
    };
    for (const std::string& input : inputs) {
        RecordingScript script;
        script.Source = input;
        script.Run();
        EXPECT_LE(script.compilerErrors.size() + script.prints.size(), 2u);
    }
}

}  // namespace
}  // namespace script::test
