// Text operations: case-blind searching, fields and replacing, trimming, characters and line
// endings. Numbers in and out of text are in Numbers.cpp.

#include "framework/Text.h"

#include <string.h>

#include <algorithm>
#include <cstring>

namespace fw {

namespace {

// Folding keeps the byte length: ASCII letters, and Latin-1 capitals (0xC3 0x80-0x9E but the
// multiplication sign) to their small letters, so folded copies line up byte for byte.
unsigned char FoldAscii(unsigned char c) { return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c + 32) : c; }

// The second byte of a two-byte character that begins with 0xC3.
unsigned char FoldLatin1(unsigned char c) {
    return c >= 0x80 && c <= 0x9E && c != 0x97 ? static_cast<unsigned char>(c + 32) : c;
}

void FoldInPlace(std::string& s) {
    for (size_t i = 0; i < s.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(s[i]);
        s[i] = static_cast<char>(FoldAscii(c));
        if (c == 0xC3 && i + 1 < s.size()) {
            ++i;
            s[i] = static_cast<char>(FoldLatin1(static_cast<unsigned char>(s[i])));
        }
    }
}

std::string Folded(std::string_view s) {
    std::string copy(s);
    FoldInPlace(copy);
    return copy;
}

// Whether folding can change what `needle` matches: only letters and non-ASCII bytes fold.
bool HasFoldable(std::string_view needle) {
    for (unsigned char c : needle)
        if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c >= 0x80) return true;
    return false;
}

// Whether folding changes `s` at all; a scan is cheaper than the copy it saves.
bool Folds(std::string_view s) {
    for (unsigned char c : s)
        if ((c >= 'A' && c <= 'Z') || c == 0xC3) return true;
    return false;
}

// A quick no for the common case of a rewrite that does not apply: the needle's first byte, in
// either case, is nowhere in the text.
bool MayContain(std::string_view text, std::string_view needle) {
    const unsigned char first = static_cast<unsigned char>(needle.front());
    // A lead byte never folds: only the byte after 0xC3 does.
    if (first >= 0xC0) return text.find(needle.front()) != std::string_view::npos;
    if (first >= 0x80) return true;
    const char lower = static_cast<char>(FoldAscii(first));
    const char upper = lower >= 'a' && lower <= 'z' ? static_cast<char>(lower - 32) : lower;
    return text.find(lower) != std::string_view::npos || (upper != lower && text.find(upper) != std::string_view::npos);
}

// A text searched with case ignored. It is folded only when the needle holds something that
// folds: separators and digits match the same places either way, and skipping the copy keeps
// field and line splitting of long texts cheap.
class Caseless {
public:
    Caseless(std::string_view source, std::string_view needle) {
        if (Folds(needle)) {
            foldedNeedle_ = Folded(needle);
            needle_ = foldedNeedle_;
        } else {
            needle_ = needle;
        }
        hay_ = source;
        if (!needle_.empty() && HasFoldable(needle_) && Folds(source)) {
            // A long text is searched as if folded, without the copy: megabytes of a drop are
            // searched for a dozen rewrites, each of which would otherwise fold it anew.
            streaming_ = source.size() > kLongText;
            if (!streaming_) hay_ = folded_ = Folded(source);
        }
    }
    // glibc's memmem skips ahead where string_view::find stops at every first byte: long texts
    // full of blanks are searched for blank-led words many times over.
    size_t Find(size_t from) const {
        if (from > hay_.size()) return std::string::npos;
        if (streaming_) return FindFolding(from);
        const void* at = ::memmem(hay_.data() + from, hay_.size() - from, needle_.data(), needle_.size());
        return at ? static_cast<size_t>(static_cast<const char*>(at) - hay_.data()) : std::string::npos;
    }
    size_t NeedleSize() const { return needle_.size(); }
    bool NeedleEmpty() const { return needle_.empty(); }

private:
    static constexpr size_t kLongText = 1 << 16;

    unsigned char At(size_t i) const { return static_cast<unsigned char>(hay_[i]); }

    // Whether the byte at `i` is the second of a pair that begins with 0xC3, as FoldInPlace
    // pairs them from the start: it follows an odd run of 0xC3. The run is counted back only to
    // the place last asked about, so a text of nothing but 0xC3 is still read once.
    bool SecondByte(size_t i) const {
        if (i < knownAt_) knownAt_ = 0, knownSecond_ = false;
        size_t run = 0;
        while (i - run > knownAt_ && At(i - 1 - run) == 0xC3) ++run;
        const bool second = i - run > knownAt_ ? run % 2 == 1 : (run % 2 == 1) != knownSecond_;
        knownAt_ = i;
        knownSecond_ = second;
        return second;
    }

    bool MatchesAt(size_t at) const {
        bool second = SecondByte(at);
        for (size_t k = 0; k < needle_.size(); ++k) {
            const unsigned char c = At(at + k);
            if ((second ? FoldLatin1(c) : FoldAscii(c)) != static_cast<unsigned char>(needle_[k])) return false;
            second = !second && c == 0xC3;
        }
        return true;
    }

    // The first match from `from` in the text as folded, found among the bytes that fold to
    // the needle's first byte.
    size_t FindFolding(size_t from) const {
        const unsigned char first = static_cast<unsigned char>(needle_[0]);
        // The one other byte that can fold to it, under either rule.
        int other = -1;
        if ((first >= 'a' && first <= 'z') || (first >= 0xA0 && first <= 0xBE && first != 0xB7)) other = first - 32;
        const size_t last = hay_.size() - std::min(hay_.size(), needle_.size() - 1);
        auto next = [&](int byte, size_t at) {
            const void* found = byte < 0 || at >= last ? nullptr : std::memchr(hay_.data() + at, byte, last - at);
            return found ? static_cast<size_t>(static_cast<const char*>(found) - hay_.data()) : std::string::npos;
        };
        size_t atFirst = next(first, from), atOther = next(other, from);
        for (;;) {
            const size_t at = std::min(atFirst, atOther);
            if (at == std::string::npos) return at;
            if (MatchesAt(at)) return at;
            if (atFirst == at) atFirst = next(first, at + 1);
            if (atOther == at) atOther = next(other, at + 1);
        }
    }

    std::string foldedNeedle_;
    std::string folded_;
    std::string_view needle_;
    std::string_view hay_;
    bool streaming_ = false;
    mutable size_t knownAt_ = 0;
    mutable bool knownSecond_ = false;
};

bool IsContinuation(unsigned char c) { return (c & 0xC0) == 0x80; }

// Byte offset of character `index` (0-based), or the size when past the end.
size_t ByteOffset(std::string_view s, int index) {
    size_t i = 0;
    for (int n = 0; i < s.size() && n < index; ++n) {
        ++i;
        while (i < s.size() && IsContinuation(static_cast<unsigned char>(s[i]))) ++i;
    }
    return i;
}

int CharCount(std::string_view s, size_t bytes) {
    int count = 0;
    for (size_t i = 0; i < bytes && i < s.size(); ++i)
        if (!IsContinuation(static_cast<unsigned char>(s[i]))) ++count;
    return count;
}

bool IsWhite(std::string_view s, size_t i, size_t& width) {
    unsigned char c = static_cast<unsigned char>(s[i]);
    width = 1;
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f') return true;
    if (c == 0xC2 && i + 1 < s.size() && static_cast<unsigned char>(s[i + 1]) == 0xA0) {
        width = 2;
        return true;
    }
    return false;
}

}  // namespace

bool StrEq(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    if (a == b) return true;
    // Folds both in step, as FoldInPlace would, without copying either.
    for (size_t i = 0; i < a.size(); ++i) {
        const unsigned char x = FoldAscii(static_cast<unsigned char>(a[i]));
        if (x != FoldAscii(static_cast<unsigned char>(b[i]))) return false;
        if (x == 0xC3 && i + 1 < a.size()) {
            ++i;
            if (FoldLatin1(static_cast<unsigned char>(a[i])) != FoldLatin1(static_cast<unsigned char>(b[i]))) return false;
        }
    }
    return true;
}

int InStr(std::string_view source, std::string_view find) { return InStr(1, source, find); }

int InStr(int start, std::string_view source, std::string_view find) {
    if (start < 1) start = 1;
    const size_t from = ByteOffset(source, start - 1);
    // Folding keeps lengths, so a longer needle is never found, and is not folded to learn it.
    if (find.size() > source.size() - from) return 0;
    const Caseless hay(source, find);
    if (from >= source.size() && !hay.NeedleEmpty()) return 0;
    const size_t at = hay.NeedleEmpty() ? from : hay.Find(from);
    return at == std::string::npos ? 0 : CharCount(source, at) + 1;
}

std::string NthField(std::string_view source, std::string_view separator, int n) {
    if (n < 1) return {};
    if (separator.empty()) return n == 1 ? std::string(source) : std::string();
    const Caseless hay(source, separator);
    size_t begin = 0;
    for (int field = 1; field < n; ++field) {
        const size_t at = hay.Find(begin);
        if (at == std::string::npos) return {};
        begin = at + hay.NeedleSize();
    }
    const size_t end = hay.Find(begin);
    return std::string(source.substr(begin, end == std::string::npos ? std::string::npos : end - begin));
}

int CountFields(std::string_view source, std::string_view separator) {
    if (separator.empty()) return 1;
    const Caseless hay(source, separator);
    int count = 1;
    for (size_t at = hay.Find(0); at != std::string::npos; at = hay.Find(at + hay.NeedleSize())) ++count;
    return count;
}

std::vector<std::string> Split(std::string_view source, std::string_view separator) {
    std::vector<std::string> fields;
    if (source.empty()) return fields;
    if (separator.empty()) {
        fields.emplace_back(source);
        return fields;
    }
    const Caseless hay(source, separator);
    size_t begin = 0;
    for (size_t at = hay.Find(0); at != std::string::npos; at = hay.Find(begin)) {
        fields.emplace_back(source.substr(begin, at - begin));
        begin = at + hay.NeedleSize();
    }
    fields.emplace_back(source.substr(begin));
    return fields;
}

std::string ReplaceAll(std::string_view source, std::string_view oldText, std::string_view newText) {
    if (oldText.empty() || source.size() < oldText.size() || !MayContain(source, oldText)) return std::string(source);
    const Caseless hay(source, oldText);
    size_t at = hay.Find(0);
    if (at == std::string::npos) return std::string(source);
    std::string result;
    result.reserve(source.size());
    size_t begin = 0;
    for (; at != std::string::npos; at = hay.Find(begin)) {
        result.append(source.substr(begin, at - begin));
        result.append(newText);
        begin = at + hay.NeedleSize();
    }
    result.append(source.substr(begin));
    return result;
}

std::string ReplaceAll(std::string&& source, std::string_view oldText, std::string_view newText) {
    if (oldText.empty() || source.size() < oldText.size() || !MayContain(source, oldText)) return std::move(source);
    return ReplaceAll(std::string_view(source), oldText, newText);
}

std::string LTrim(std::string_view s) {
    size_t i = 0, width = 1;
    while (i < s.size() && IsWhite(s, i, width)) i += width;
    return std::string(s.substr(i));
}

std::string RTrim(std::string_view s) {
    size_t end = s.size();
    while (end > 0) {
        const unsigned char last = static_cast<unsigned char>(s[end - 1]);
        if (last == ' ' || last == '\t' || last == '\r' || last == '\n' || last == '\v' || last == '\f') --end;
        else if (last == 0xA0 && end >= 2 && static_cast<unsigned char>(s[end - 2]) == 0xC2) end -= 2;
        else break;
    }
    return std::string(s.substr(0, end));
}

std::string Trim(std::string_view s) { return RTrim(LTrim(s)); }

std::string Lowercase(std::string_view s) { return Folded(s); }

std::string Uppercase(std::string_view s) {
    std::string copy(s);
    for (size_t i = 0; i < copy.size(); ++i) {
        unsigned char c = static_cast<unsigned char>(copy[i]);
        if (c >= 'a' && c <= 'z') {
            copy[i] = static_cast<char>(c - 32);
        } else if (c == 0xC3 && i + 1 < copy.size()) {
            unsigned char next = static_cast<unsigned char>(copy[i + 1]);
            if (next >= 0xA0 && next <= 0xBE && next != 0xB7) copy[i + 1] = static_cast<char>(next - 32);
            ++i;
        }
    }
    return copy;
}

std::string Left(std::string_view s, int n) { return n <= 0 ? std::string() : std::string(s.substr(0, ByteOffset(s, n))); }

std::string Right(std::string_view s, int n) {
    const int length = Len(s);
    if (n <= 0) return {};
    if (n >= length) return std::string(s);
    return std::string(s.substr(ByteOffset(s, length - n)));
}

std::string Mid(std::string_view s, int start, int n) {
    if (start < 1) start = 1;
    const size_t begin = ByteOffset(s, start - 1);
    if (n < 0) return std::string(s.substr(begin));
    const size_t end = begin + ByteOffset(s.substr(begin), n);
    return std::string(s.substr(begin, end - begin));
}

int Len(std::string_view s) { return CharCount(s, s.size()); }

std::string Chr(int codePoint) {
    std::string out;
    if (codePoint < 0 || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) return out;
    const auto cp = static_cast<unsigned>(codePoint);
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
    return out;
}

std::string UTF8Chr(int codePoint) { return Chr(codePoint); }

std::string ReplaceLineEndings(std::string_view text, std::string_view lineEnd) {
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            out.append(lineEnd);
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else if (text[i] == '\n') {
            out.append(lineEnd);
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace fw
