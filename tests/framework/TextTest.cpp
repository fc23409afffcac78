#include <gtest/gtest.h>

#include <random>
#include <string>

#include "framework/Text.h"

namespace {
// Every case-blind match of `find`, left to right, replaced in `text`: the rule written plainly
// over folded copies, for the long texts that are searched without one.
std::string ReplaceAllPlainly(const std::string& text, const std::string& find, const std::string& with) {
    const std::string hay = fw::Lowercase(text), needle = fw::Lowercase(find);
    std::string result;
    size_t begin = 0;
    for (size_t at = hay.find(needle); at != std::string::npos; at = hay.find(needle, begin)) {
        result += text.substr(begin, at - begin) + with;
        begin = at + needle.size();
    }
    return result + text.substr(begin);
}

// Letters of both cases, Latin-1 pairs, lone and doubled 0xC3 bytes (invalid UTF-8 folds by how
// bytes pair from the start), and blanks.
TEST(Text, LongTextsMatchAsTheirFoldedCopies) {
    const std::string alphabet[] = {"a", "A", "b", "B", "\xC3", "\xC3\x85", "\xC3\xA5", "\x85", "\xA5", " "};
    std::mt19937 random(13);
    auto pick = [&](int count) {
        std::string text;
        for (int i = 0; i < count; ++i) text += alphabet[random() % std::size(alphabet)];
        return text;
    };
    for (int round = 0; round < 60; ++round) {
        const std::string text = pick(60000 + static_cast<int>(random() % 20000));
        const std::string find = pick(1 + static_cast<int>(random() % 3));
        ASSERT_EQ(fw::ReplaceAll(text, find, "#"), ReplaceAllPlainly(text, find, "#")) << "round " << round;
        const size_t at = fw::Lowercase(text).find(fw::Lowercase(find));
        EXPECT_EQ(fw::InStr(text, find) != 0, at != std::string::npos);
    }
    // A long run of lead bytes is read once, not once for each of its bytes.
    const std::string leads(1 << 20, '\xC3');
    EXPECT_EQ(fw::ReplaceAll(leads + "\xC3\x85", "\xC3\xA5", "x"), ReplaceAllPlainly(leads + "\xC3\x85", "\xC3\xA5", "x"));
}
}  // namespace
