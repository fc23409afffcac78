#pragma once
// Recursive-descent compiler from script text to a Program. It stops at the first error.

#include "script/CompileError.h"
#include "script/Lexer.h"
#include "script/Program.h"
#include "script/SymbolTable.h"

#include <optional>
#include <string_view>

namespace script {

class ScriptContext;
struct Builtin;

class Parser {
public:
    // The source must outlive the parser. The context, if any, is asked for function names.
    Parser(std::string_view source, const ScriptContext* context);

    // Compiles into an empty program; returns the first error, if any.
    std::optional<CompileError> Compile(Program& out);

    // Nesting depth (brackets, signs, powers, calls) beyond which error 5 is given, so that
    // the parser's own recursion stays far from the end of the thread's stack.
    static constexpr int kMaxDepth = 256;

private:
    struct Failure {
        CompileError error;
    };
    class DepthGuard;

    [[noreturn]] void Fail(ErrorNumber number, int line);
    [[noreturn]] void Fail(ErrorNumber number) { Fail(number, token_.line); }
    void Advance() { token_ = lexer_.Next(); }
    bool AtKeyword(std::string_view keyword) const;
    bool AtLineEnd() const;

    void Statement();
    void Dim();
    void Print();
    void Assignment();
    ValueType Expression();
    ValueType Term();
    ValueType Unary();
    ValueType Primary();
    ValueType Name();
    ValueType Call(const Builtin& function, int hostId, int line);
    ValueType Combine(TokenKind op, ValueType left, ValueType right, int line);
    void EmitString(std::string_view literal);
    void MarkLine(int line);

    Lexer lexer_;
    Token token_;
    const ScriptContext* context_;
    Program* out_ = nullptr;
    SymbolTable symbols_;
    int depth_ = 0;
    int markedLine_ = 0;
};

}  // namespace script
