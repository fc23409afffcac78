#pragma once
// The variables a script declares, found by case-blind name. Names point into the source text.

#include "script/Program.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace script {

struct Symbol {
    std::string_view name;
    ValueType type = ValueType::Number;
    std::int32_t slot = 0;
};

class SymbolTable {
public:
    const Symbol* Find(std::string_view name) const;
    // nullptr when the name is already declared.
    Symbol* Add(std::string_view name);
    Symbol& At(std::size_t index) { return symbols_[index]; }
    std::size_t Size() const { return symbols_.size(); }

private:
    struct FoldedHash {
        std::size_t operator()(std::string_view name) const;
    };
    struct FoldedEqual {
        bool operator()(std::string_view a, std::string_view b) const;
    };

    // A short list is searched; a long one gets a hash index so that compiling stays linear.
    static constexpr std::size_t kIndexFrom = 16;
    std::vector<Symbol> symbols_;
    std::unordered_map<std::string_view, std::size_t, FoldedHash, FoldedEqual> index_;
};

}  // namespace script
