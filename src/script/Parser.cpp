#include "script/Parser.h"

#include "script/Builtins.h"
#include "script/ScriptContext.h"

#include <algorithm>
#include <array>
#include <string>

namespace script {

namespace {

constexpr std::array<std::string_view, 4> kKeywords = {"Dim", "As", "Print", "Rem"};

bool IsKeyword(std::string_view name)
{
    return std::any_of(kKeywords.begin(), kKeywords.end(),
                       [name](std::string_view keyword) { return SameName(keyword, name); });
}

// Every host function takes one double and returns one.
const Builtin kHostFunction{"", ValueType::Number, 1, 1, {ValueType::Number, ValueType::Number},
                            Op::CallHost};

}  // namespace

class Parser::DepthGuard {
public:
    explicit DepthGuard(Parser& parser) : parser_(parser)
    {
        if (++parser_.depth_ > kMaxDepth)
            parser_.Fail(ErrorNumber::StackOverflow);
    }
    ~DepthGuard() { --parser_.depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    Parser& parser_;
};

Parser::Parser(std::string_view source, const ScriptContext* context)
    : lexer_(source), context_(context)
{
}

void Parser::Fail(ErrorNumber number, int line)
{
    throw Failure{CompileError{number, line}};
}

bool Parser::AtKeyword(std::string_view keyword) const
{
    return token_.kind == TokenKind::Name && SameName(token_.text, keyword);
}

bool Parser::AtLineEnd() const
{
    return token_.kind == TokenKind::Newline || token_.kind == TokenKind::End;
}

void Parser::MarkLine(int line)
{
    // Run-time errors name the line of the statement that was running.
    if (line != markedLine_) {
        out_->Emit(Op::Line, line);
        markedLine_ = line;
    }
}

std::optional<CompileError> Parser::Compile(Program& out)
{
    out_ = &out;
    try {
        Advance();
        for (;;) {
            Statement();
            if (token_.kind == TokenKind::End)
                break;
            if (token_.kind != TokenKind::Newline)
                Fail(ErrorNumber::Syntax);
            Advance();
        }
    } catch (const Failure& failure) {
        return failure.error;
    }
    return std::nullopt;
}

void Parser::Statement()
{
    if (AtLineEnd())
        return;
    if (token_.kind != TokenKind::Name)
        Fail(ErrorNumber::Syntax);
    if (AtKeyword("Dim")) {
        Dim();
    } else if (AtKeyword("Print")) {
        Print();
    } else if (AtKeyword("Rem")) {
        lexer_.SkipLine();
        Advance();
    } else {
        Assignment();
    }
}

void Parser::Dim()
{
    Advance();
    // Names are declared as they come and typed once "As" has named the type.
    const std::size_t first = symbols_.Size();
    for (;;) {
        if (token_.kind != TokenKind::Name || IsKeyword(token_.text))
            Fail(ErrorNumber::Syntax);
        if (symbols_.Add(token_.text) == nullptr)
            Fail(ErrorNumber::DuplicateIdentifier);
        Advance();
        if (token_.kind != TokenKind::Comma)
            break;
        Advance();
    }
    if (!AtKeyword("As"))
        Fail(ErrorNumber::Syntax);
    Advance();
    if (token_.kind != TokenKind::Name || IsKeyword(token_.text))
        Fail(ErrorNumber::Syntax);
    ValueType type = ValueType::Number;
    if (SameName(token_.text, "String"))
        type = ValueType::String;
    else if (!SameName(token_.text, "Double"))
        Fail(ErrorNumber::UndefinedIdentifier);
    const int typeLine = token_.line;
    Advance();
    for (std::size_t i = first; i < symbols_.Size(); ++i) {
        symbols_.At(i).type = type;
        symbols_.At(i).slot = out_->AddVariable(type);
    }
    if (token_.kind != TokenKind::Equals)
        return;
    // An initial value is allowed for a single name only.
    if (symbols_.Size() - first != 1)
        Fail(ErrorNumber::Syntax);
    Advance();
    MarkLine(typeLine);
    if (Expression() != type)
        Fail(ErrorNumber::IncompatibleAssignment, typeLine);
    const Symbol& symbol = symbols_.At(first);
    out_->Emit(type == ValueType::Number ? Op::StoreNumber : Op::StoreString, symbol.slot);
}

void Parser::Print()
{
    const int line = token_.line;
    Advance();
    if (AtLineEnd())
        Fail(ErrorNumber::NotEnoughParameters, line);
    MarkLine(line);
    if (Expression() != ValueType::String)
        Fail(ErrorNumber::TypeMismatch, line);
    if (token_.kind == TokenKind::Comma)
        Fail(ErrorNumber::TooManyParameters);
    out_->Emit(Op::Print);
}

void Parser::Assignment()
{
    const Token name = token_;
    Advance();
    const Symbol* symbol = symbols_.Find(name.text);
    if (symbol == nullptr) {
        const bool function = FindBuiltin(name.text) != nullptr ||
                              (context_ != nullptr && context_->FindFunction(name.text) >= 0);
        if (!function)
            Fail(ErrorNumber::UndefinedIdentifier, name.line);
        // A function cannot be assigned to, and a bare call would drop its result.
        Fail(token_.kind == TokenKind::Equals ? ErrorNumber::Syntax : ErrorNumber::IgnoredResult,
             name.line);
    }
    if (token_.kind == TokenKind::LParen)
        Fail(ErrorNumber::NotAFunction, name.line);
    if (token_.kind != TokenKind::Equals)
        Fail(ErrorNumber::Syntax);
    Advance();
    MarkLine(name.line);
    if (Expression() != symbol->type)
        Fail(ErrorNumber::IncompatibleAssignment, name.line);
    out_->Emit(symbol->type == ValueType::Number ? Op::StoreNumber : Op::StoreString, symbol->slot);
}

ValueType Parser::Expression()
{
    ValueType left = Term();
    while (token_.kind == TokenKind::Plus || token_.kind == TokenKind::Minus ||
           token_.kind == TokenKind::Ampersand) {
        const TokenKind op = token_.kind;
        const int line = token_.line;
        Advance();
        left = Combine(op, left, Term(), line);
    }
    return left;
}

ValueType Parser::Term()
{
    ValueType left = Unary();
    while (token_.kind == TokenKind::Star || token_.kind == TokenKind::Slash) {
        const TokenKind op = token_.kind;
        const int line = token_.line;
        Advance();
        left = Combine(op, left, Unary(), line);
    }
    return left;
}

ValueType Parser::Unary()
{
    // A sign binds looser than ^ (-2^2 is -4) and may follow any operator ("2^-1", "1.0*-5").
    if (token_.kind == TokenKind::Minus || token_.kind == TokenKind::Plus) {
        DepthGuard guard(*this);
        const bool negate = token_.kind == TokenKind::Minus;
        const int line = token_.line;
        Advance();
        if (Unary() != ValueType::Number)
            Fail(ErrorNumber::UndefinedOperator, line);
        if (negate)
            out_->Emit(Op::Negate);
        return ValueType::Number;
    }
    const ValueType base = Primary();
    if (token_.kind != TokenKind::Caret)
        return base;
    // ^ groups to the right: the exponent is itself a signed power.
    DepthGuard guard(*this);
    const int line = token_.line;
    Advance();
    return Combine(TokenKind::Caret, base, Unary(), line);
}

ValueType Parser::Combine(TokenKind op, ValueType left, ValueType right, int line)
{
    if (left == ValueType::Number && right == ValueType::Number) {
        switch (op) {
        case TokenKind::Plus: out_->Emit(Op::Add); break;
        case TokenKind::Minus: out_->Emit(Op::Subtract); break;
        case TokenKind::Star: out_->Emit(Op::Multiply); break;
        case TokenKind::Slash: out_->Emit(Op::Divide); break;
        case TokenKind::Caret: out_->Emit(Op::Power); break;
        default: Fail(ErrorNumber::UndefinedOperator, line);  // & joins strings only
        }
        return ValueType::Number;
    }
    // Strings know only concatenation; for it, both sides must be strings.
    if (op != TokenKind::Plus && op != TokenKind::Ampersand)
        Fail(ErrorNumber::UndefinedOperator, line);
    if (left != right)
        Fail(ErrorNumber::TypeMismatch, line);
    out_->Emit(Op::Concat);
    return ValueType::String;
}

ValueType Parser::Primary()
{
    switch (token_.kind) {
    case TokenKind::Number:
        out_->EmitNumber(token_.number);
        Advance();
        return ValueType::Number;
    case TokenKind::String:
        EmitString(token_.text);
        Advance();
        return ValueType::String;
    case TokenKind::LParen: {
        DepthGuard guard(*this);
        Advance();
        const ValueType type = Expression();
        if (token_.kind != TokenKind::RParen)
            Fail(ErrorNumber::Syntax);
        Advance();
        return type;
    }
    case TokenKind::Name:
        return Name();
    default:
        Fail(ErrorNumber::Syntax);
    }
}

void Parser::EmitString(std::string_view literal)
{
    // Drop the outer quotes and undo the doubling of inner ones.
    std::string text;
    text.reserve(literal.size() - 2);
    for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
        text += literal[i];
        if (literal[i] == '"')
            ++i;
    }
    out_->Emit(Op::PushString, out_->AddString(std::move(text)));
}

ValueType Parser::Name()
{
    const Token name = token_;
    if (IsKeyword(name.text))
        Fail(ErrorNumber::Syntax);
    Advance();
    if (const Symbol* symbol = symbols_.Find(name.text)) {
        if (token_.kind == TokenKind::LParen)
            Fail(ErrorNumber::NotAFunction, name.line);
        out_->Emit(symbol->type == ValueType::Number ? Op::LoadNumber : Op::LoadString, symbol->slot);
        return symbol->type;
    }
    if (const Builtin* builtin = FindBuiltin(name.text))
        return Call(*builtin, -1, name.line);
    if (context_ != nullptr) {
        const int id = context_->FindFunction(name.text);
        if (id >= 0)
            return Call(kHostFunction, id, name.line);
    }
    Fail(ErrorNumber::UndefinedIdentifier, name.line);
}

ValueType Parser::Call(const Builtin& function, int hostId, int line)
{
    // Without brackets the arguments are not there at all, which is neither too few nor too many.
    if (token_.kind != TokenKind::LParen)
        Fail(ErrorNumber::WrongParameterCount, line);
    DepthGuard guard(*this);
    Advance();
    int count = 0;
    bool typesFit = true;
    if (token_.kind != TokenKind::RParen) {
        for (;;) {
            const ValueType type = Expression();
            if (count < function.maxArgs && type != function.params[count])
                typesFit = false;
            ++count;
            if (token_.kind != TokenKind::Comma)
                break;
            Advance();
        }
    }
    if (token_.kind != TokenKind::RParen)
        Fail(ErrorNumber::Syntax);
    Advance();
    if (count > function.maxArgs)
        Fail(ErrorNumber::TooManyParameters, line);
    if (count < function.minArgs)
        Fail(ErrorNumber::NotEnoughParameters, line);
    if (!typesFit)
        Fail(ErrorNumber::IncompatibleParameters, line);
    switch (function.op) {
    case Op::CallNumber1: out_->EmitCall(function.fn1); break;
    case Op::CallNumber2: out_->EmitCall(function.fn2); break;
    case Op::CallHost: out_->Emit(Op::CallHost, hostId); break;
    default: out_->Emit(function.op); break;
    }
    return function.result;
}

}  // namespace script
