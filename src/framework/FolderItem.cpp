#include "framework/FolderItem.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "framework/SafeWrite.h"

#include "framework/Text.h"

namespace fs = std::filesystem;

namespace fw {

bool FolderItem::Exists() const {
    std::error_code error;
    return fs::exists(path_, error);
}

FileStamp FolderItem::Stamp() const {
    struct stat info {};
    if (::stat(path_.c_str(), &info) != 0) return {};
    auto nanoseconds = [](const timespec& time) { return time.tv_sec * 1000000000LL + time.tv_nsec; };
    return {static_cast<unsigned long long>(info.st_dev), static_cast<unsigned long long>(info.st_ino),
            static_cast<unsigned long long>(info.st_size), nanoseconds(info.st_mtim), nanoseconds(info.st_ctim)};
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
    struct stat info {};
    const int fd = OpenRegular(path_, &info);
    if (fd < 0) return nullptr;
    std::string content;
    bool ok = true;
    // Read at the size the file has now, and on to its end if it is still growing.
    content.reserve(static_cast<size_t>(info.st_size));
    char chunk[1 << 16];
    while (ok) {
        const ssize_t got = ::read(fd, chunk, sizeof chunk);
        if (got > 0) content.append(chunk, static_cast<size_t>(got));
        else if (got == 0) break;
        else ok = errno == EINTR;
    }
    ::close(fd);
    return ok ? MakeRef<TextInputStream>(std::move(content)) : nullptr;
}

TextOutputStreamRef FolderItem::CreateTextFile() const { return OpenStream(false); }

TextOutputStreamRef FolderItem::AppendToTextFile() const { return OpenStream(true); }

TextOutputStreamRef FolderItem::OpenStream(bool append) const {
    // Appending too goes through a whole new file: a kill in the midst of a long formula must
    // not leave half of it to be glued to the next one.
    const fs::path target = WriteTarget(path_);
    fs::path temporary;
    std::FILE* file = OpenReplacement(target, append, &temporary);
    if (!file) return nullptr;
    return MakeRef<TextOutputStream>(file, target, temporary);
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
    std::FILE* file = file_;
    file_ = nullptr;
    if (!CommitReplacement(file, failed_, temporary_, target_))
        throw IOException("could not write " + target_.string() + ": the old file is kept");
}

}  // namespace fw
