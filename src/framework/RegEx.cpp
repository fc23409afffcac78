#include "framework/RegEx.h"

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include "framework/Exceptions.h"

namespace fw {

struct RegEx::Compiled {
    std::string pattern;
    bool caseSensitive = false;
    pcre2_code* code = nullptr;
    pcre2_match_data* match = nullptr;
    ~Compiled() {
        if (match) pcre2_match_data_free(match);
        if (code) pcre2_code_free(code);
    }
};

std::string RegExMatch::SubExpressionString(int index) const {
    if (index < 0 || index >= SubExpressionCount()) throw OutOfBoundsException("sub-expression " + std::to_string(index));
    return groups_[static_cast<size_t>(index)];
}

RegEx::RegEx() = default;
RegEx::~RegEx() = default;

RegEx::Compiled& RegEx::Compile() {
    if (compiled_ && compiled_->pattern == SearchPattern && compiled_->caseSensitive == CaseSensitive) return *compiled_;
    auto fresh = std::make_unique<Compiled>();
    fresh->pattern = SearchPattern;
    fresh->caseSensitive = CaseSensitive;
    // Text from other programs may be broken UTF-8; it must match as far as it is valid, not fail.
    uint32_t options = PCRE2_UTF | PCRE2_MATCH_INVALID_UTF;
    if (!CaseSensitive) options |= PCRE2_CASELESS;
    int error = 0;
    PCRE2_SIZE errorOffset = 0;
    fresh->code = pcre2_compile(reinterpret_cast<PCRE2_SPTR>(SearchPattern.data()), SearchPattern.size(), options,
                                &error, &errorOffset, nullptr);
    if (!fresh->code) throw RuntimeException("bad regular expression at " + std::to_string(errorOffset));
    pcre2_jit_compile(fresh->code, PCRE2_JIT_COMPLETE);
    fresh->match = pcre2_match_data_create_from_pattern(fresh->code, nullptr);
    compiled_ = std::move(fresh);
    return *compiled_;
}

std::unique_ptr<RegExMatch> RegEx::MatchAt(size_t offset) {
    Compiled& compiled = Compile();
    if (offset > target_.size()) return nullptr;
    const int rc = pcre2_match(compiled.code, reinterpret_cast<PCRE2_SPTR>(target_.data()), target_.size(), offset, 0,
                               compiled.match, nullptr);
    if (rc < 0) return nullptr;
    const PCRE2_SIZE* ovector = pcre2_get_ovector_pointer(compiled.match);
    std::vector<std::string> groups;
    const int count = rc == 0 ? static_cast<int>(pcre2_get_ovector_count(compiled.match)) : rc;
    for (int i = 0; i < count; ++i) {
        const PCRE2_SIZE start = ovector[2 * i], end = ovector[2 * i + 1];
        groups.push_back(start == PCRE2_UNSET ? std::string() : target_.substr(start, end - start));
    }
    const size_t matchStart = ovector[0], matchEnd = ovector[1];
    // An empty match must still move on, or a loop over Search() would never end.
    nextOffset_ = matchEnd > matchStart ? matchEnd : matchEnd + 1;
    return std::make_unique<RegExMatch>(std::move(groups), static_cast<int>(matchStart));
}

std::unique_ptr<RegExMatch> RegEx::Search(const std::string& target) {
    target_ = target;
    nextOffset_ = 0;
    return MatchAt(0);
}

std::unique_ptr<RegExMatch> RegEx::Search() { return MatchAt(nextOffset_); }

std::string RegEx::Replace(const std::string& text) {
    target_ = text;
    auto match = MatchAt(0);
    if (!match) return text;
    std::string replacement;
    for (size_t i = 0; i < ReplacementPattern.size(); ++i) {
        const char c = ReplacementPattern[i];
        if ((c == '\\' || c == '$') && i + 1 < ReplacementPattern.size() && ReplacementPattern[i + 1] >= '0' &&
            ReplacementPattern[i + 1] <= '9') {
            const int group = ReplacementPattern[++i] - '0';
            if (group < match->SubExpressionCount()) replacement += match->SubExpressionString(group);
        } else {
            replacement += c;
        }
    }
    const size_t start = static_cast<size_t>(match->SubExpressionStartB(0));
    return text.substr(0, start) + replacement + text.substr(start + match->SubExpressionString(0).size());
}

}  // namespace fw
