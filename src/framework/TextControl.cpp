#include "framework/Controls.h"
#include "framework/Text.h"

namespace fw {

TextControl::TextControl(Window& owner, Kind kind, std::string name, std::string text)
    : Control(owner, kind, std::move(name)), text_(std::move(text)) {}

void TextControl::SetText(const std::string& text) {
    if (text_ == text) return;
    text_ = text;
    lastAppendSize_ = 0;
    const int length = Len(text_);
    if (selStart_ > length) selStart_ = length;
    if (selStart_ + selLength_ > length) selLength_ = length - selStart_;
    Notify(Property::Text);
    if (TextChange) TextChange();
}

void TextControl::AppendText(const std::string& more) {
    if (more.empty()) return;
    text_ += more;
    lastAppendSize_ = more.size();
    Notify(Property::TextAppended);
    if (TextChange) TextChange();
}

std::string_view TextControl::LastAppended() const {
    return std::string_view(text_).substr(text_.size() - lastAppendSize_);
}

void TextControl::SetBackColor(int rgb) {
    backColor_ = rgb;
    Notify(Property::Style);
}

void TextControl::SetSelection(int start, int length) {
    const int total = Len(text_);
    if (start < 0) start = 0;
    if (start > total) start = total;
    if (length < 0) length = 0;
    if (start + length > total) length = total - start;
    selStart_ = start;
    selLength_ = length;
}

void TextControl::InsertAtCaret(const std::string& text) {
    const size_t begin = Left(text_, selStart_).size();
    const size_t end = Left(text_, selStart_ + selLength_).size();
    std::string updated = text_.substr(0, begin) + text + text_.substr(end);
    const int caret = selStart_ + Len(text);
    SetText(updated);
    SetSelection(caret, 0);
    Notify(Property::Selection);
}

void TextControl::TypeKey(const std::string& key) {
    if (KeyDown && KeyDown(key)) return;
    if (ReadOnly) return;
    InsertAtCaret(key);
}

}  // namespace fw
