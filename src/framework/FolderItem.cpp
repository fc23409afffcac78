#include "framework/FolderItem.h"

#include <system_error>
#include <unistd.h>

#include "framework/Text.h"

namespace fs = std::filesystem;

namespace fw {

bool FolderItem::Exists() const {
    std::error_code error;
    return fs::exists(path_, error);
}

bool FolderItem::Directory() const {
    std::error_code error;
    return fs::is_directory(path_, error);
}

FolderItemRef FolderItem::Child(const std::string& name) const {
    if (!Directory()) return nullptr;
    FolderItemRef child = MakeRef<FolderItem>(path_ / name, lookup_);
    if (lookup_ == Lookup::ExistingOnly && !child->Exists()) return nullptr;
    return child;
}

bool FolderItem::CreateAsFolder() const {
    std::error_code error;
    fs::create_directories(path_, error);
    return Directory();
}

TextInputStreamRef FolderItem::OpenAsTextFile() const {
    std::error_code error;
    if (!fs::is_regular_file(path_, error)) return nullptr;
    std::FILE* file = std::fopen(path_.c_str(), "rb");
    if (!file) return nullptr;
    // Read in one go at the size the file has now; a file still growing is read to its end.
    std::string content(static_cast<size_t>(fs::file_size(path_, error)), '\0');
    if (error) content.clear();
    content.resize(std::fread(content.data(), 1, content.size(), file));
    char chunk[4096];
    for (size_t got; (got = std::fread(chunk, 1, sizeof chunk, file)) > 0;) content.append(chunk, got);
    std::fclose(file);
    return MakeRef<TextInputStream>(std::move(content));
}

TextOutputStreamRef FolderItem::CreateTextFile() const {
    // The temporary file sits beside the target so that the rename stays on one file system.
    fs::path temporary = path_;
    temporary += ".tmp-" + std::to_string(::getpid());
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    if (!file) return nullptr;
    return MakeRef<TextOutputStream>(file, path_, temporary);
}

TextOutputStreamRef FolderItem::AppendToTextFile() const {
    std::FILE* file = std::fopen(path_.c_str(), "ab");
    if (!file) return nullptr;
    return MakeRef<TextOutputStream>(file, path_, fs::path());
}

std::string TextInputStream::ReadAll() {
    std::string rest = content_.substr(position_);
    position_ = content_.size();
    return rest;
}

std::string TextInputStream::ReadLine() {
    if (Eof()) return {};
    size_t end = content_.find_first_of("\r\n", position_);
    if (end == std::string::npos) end = content_.size();
    std::string line = content_.substr(position_, end - position_);
    position_ = end;
    if (position_ < content_.size()) {
        const bool crlf = content_[position_] == '\r' && position_ + 1 < content_.size() && content_[position_ + 1] == '\n';
        position_ += crlf ? 2 : 1;
    }
    return line;
}

TextOutputStream::TextOutputStream(std::FILE* file, fs::path target, fs::path temporary)
    : file_(file), target_(std::move(target)), temporary_(std::move(temporary)) {}

TextOutputStream::~TextOutputStream() {
    try {
        Close();
    } catch (...) {
        // A stream dropped without Close has nobody to tell; the old file stays as it was.
    }
}

void TextOutputStream::Write(const std::string& text) {
    if (!file_) throw IOException("write to a closed stream");
    if (!text.empty() && std::fwrite(text.data(), 1, text.size(), file_) != text.size()) failed_ = true;
}

void TextOutputStream::WriteLine(const std::string& text) {
    Write(text);
    Write(EndOfLine);
}

void TextOutputStream::Close() {
    if (!file_) return;
    bool ok = !failed_ && std::fflush(file_) == 0;
    if (ok && !temporary_.empty()) ok = ::fsync(::fileno(file_)) == 0;
    ok = (std::fclose(file_) == 0) && ok;
    file_ = nullptr;
    if (temporary_.empty()) {
        if (!ok) throw IOException("could not write " + target_.string());
        return;
    }
    std::error_code error;
    if (ok) fs::rename(temporary_, target_, error);
    if (!ok || error) {
        fs::remove(temporary_, error);
        throw IOException("could not replace " + target_.string());
    }
}

}  // namespace fw
