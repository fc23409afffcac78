// Rewriting dropped text into an expression, by plain replacement: the order of the
// replacements is the logic. The drop handler and ButtonAct differ in the steps that say so.

#include <cstdint>

#include "calc/FactorialText.h"
#include "framework/RegEx.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
const char* const kPiDigits = "3.1415926535897932384626433832795";

// A double as a 32-bit integer, wrapping where it is too large; beyond any integer it is -1.
std::int32_t ToInt32(double value) {
    if (!(value > -9.2e18 && value < 9.2e18)) return -1;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(value)));
}
}  // namespace

std::string Window1::fact(std::int32_t n) {
    if (n < 0) return "";
    // 32-bit wrap-around on purpose: 13! is 1932053504. From 34! on the product wraps to 0.
    std::uint32_t product = 1;
    for (std::int32_t factor = n; factor >= 2 && product != 0; --factor) product *= static_cast<std::uint32_t>(factor);
    return Str(static_cast<std::int64_t>(static_cast<std::int32_t>(product)));
}

std::string Window1::FrontRewrite(std::string text, bool purge) {
    text = ReplaceAll(std::move(text), " ", "");
    text = ReplaceAll(std::move(text), ",", "");
    if (purge) text = PurgePretty(text);
    return ReplaceAll(std::move(text), "x10", "e");
}

std::string Window1::PurgePretty(const std::string& text) {
    static const std::string emDash = UTF8Chr(8212), ringedA = UTF8Chr(197), enDash = UTF8Chr(8211),
                             timesSign = UTF8Chr(215);
    std::string purged = ReplaceAll(text, emDash, "-");
    purged = ReplaceAll(std::move(purged), ringedA, "x");
    purged = ReplaceAll(std::move(purged), "~", "");
    purged = ReplaceAll(std::move(purged), enDash, "-");
    purged = ReplaceAll(std::move(purged), timesSign, "x");
    if (purged != text) LogLine("Unprettfied: " + purged);
    return purged;
}

std::string Window1::ReplaceFactorials(std::string text) {
    // Without a "!" the pattern cannot match; most texts have none, and compiling it costs more
    // than the whole calculation.
    if (text.find('!') == std::string::npos) return text;
    RegEx factorial;
    factorial.SearchPattern = "\\d+!";
    FactorialText working(text);
    // Later matches come from the text as it was at the first search, not the rewritten one.
    for (auto match = factorial.Search(text); match; match = factorial.Search()) {
        // Once no run can match, no later match can change anything.
        if (!working.CanMatch()) break;
        const std::string found = match->SubExpressionString(0);
        working.ReplaceAll(found, fact(ToInt32(Val(found))));
    }
    return working.Text();
}

std::string Window1::ReplacePi(const std::string& text) { return ReplaceAll(text, "PI", kPiDigits); }

void Window1::CalculateRewriteForDrop(std::string text) {
    unt = " ";
    if (RadioButton4.Value() && InStr(text, "log") > 0) text = ReplaceAll(std::move(text), "log(", "log10(");
    if (RadioButton2.Value()) {
        // Each inverse goes first, so that its name no longer holds the plain name and "(".
        text = ReplaceAll(std::move(text), "Asin(", "AsinD(");
        text = ReplaceAll(std::move(text), "sin(", "sin((PI/180)*");
        text = ReplaceAll(std::move(text), "Acos(", "AcosD(");
        text = ReplaceAll(std::move(text), "cos(", "cos((PI/180)*");
        text = ReplaceAll(std::move(text), "Atan(", "AtanD(");
        text = ReplaceAll(std::move(text), "tan(", "tan((PI/180)*");
    }
    text = ReplacePi(ReplaceFactorials(std::move(text)));
    EditField1.SetText(text);
    PushButton1.Push();
}

void Window1::CalculateRewriteForButton(std::string text) {
    unt = " ";
    if (RadioButton4.Value() && InStr(text, "log") > 0) text = ReplaceAll(std::move(text), "log", "0.4342945*log");
    if (RadioButton2.Value()) {
        // The plain function is left alone where its inverse stands, which the inverse's
        // rewriting would otherwise hit again.
        const std::pair<const char*, const char*> pairs[] = {{"Asin(", "sin("}, {"Acos(", "cos("}, {"Atan(", "tan("}};
        for (const auto& [inverse, plain] : pairs) {
            if (InStr(text, inverse) > 0) text = ReplaceAll(std::move(text), inverse, std::string("(180/PI)*") + inverse);
            else text = ReplaceAll(std::move(text), plain, std::string(plain) + "(PI/180)*");
        }
    }
    text = ReplacePi(ReplaceFactorials(text));
    EditField1.SetText(text);
    PushButton1.Push();
}
