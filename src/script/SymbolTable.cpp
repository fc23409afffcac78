#include "script/SymbolTable.h"

#include "script/Lexer.h"

namespace script {

std::size_t SymbolTable::FoldedHash::operator()(std::string_view name) const
{
    // FNV-1a over ASCII-folded bytes: names are ASCII, and equal names must hash alike.
    std::size_t hash = 14695981039346656037ull;
    for (char c : name) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ull;
    }
    return hash;
}

bool SymbolTable::FoldedEqual::operator()(std::string_view a, std::string_view b) const
{
    return SameName(a, b);
}

const Symbol* SymbolTable::Find(std::string_view name) const
{
    if (symbols_.size() > kIndexFrom) {
        const auto it = index_.find(name);
        return it == index_.end() ? nullptr : &symbols_[it->second];
    }
    for (const Symbol& symbol : symbols_) {
        if (SameName(symbol.name, name))
            return &symbol;
    }
    return nullptr;
}

Symbol* SymbolTable::Add(std::string_view name)
{
    if (Find(name) != nullptr)
        return nullptr;
    symbols_.push_back(Symbol{name});
    if (symbols_.size() == kIndexFrom + 1) {
        for (std::size_t i = 0; i < symbols_.size(); ++i)
            index_.emplace(symbols_[i].name, i);
    } else if (symbols_.size() > kIndexFrom + 1) {
        index_.emplace(name, symbols_.size() - 1);
    }
    return &symbols_.back();
}

}  // namespace script
