#pragma once
// Files and folders by path, and text streams on them. Every write, appending too, goes to a
// temporary file that is renamed into place at Close, so a failure never leaves a file half
// written (framework/SafeWrite.h).

#include <cstdio>
#include <filesystem>
#include <string>

#include "framework/Ref.h"

namespace fw {

class FolderItem;
class TextInputStream;
class TextOutputStream;
using FolderItemRef = Ref<FolderItem>;
using TextInputStreamRef = Ref<TextInputStream>;
using TextOutputStreamRef = Ref<TextOutputStream>;

// What tells one version of a file from the next: any write changes at least one of these.
struct FileStamp {
    unsigned long long device = 0, inode = 0, size = 0;
    long long modified = 0, changed = 0;  // nanoseconds
    bool Known() const { return inode != 0; }
    bool operator==(const FileStamp&) const = default;
};

class FolderItem {
public:
    // A folder the program only reads from (the reference data) lists just what is there: its
    // missing children are nil, so that "file is missing" can be told at the lookup.
    enum class Lookup { AnyName, ExistingOnly };
    explicit FolderItem(std::filesystem::path path, Lookup lookup = Lookup::AnyName)
        : path_(std::move(path)), lookup_(lookup) {}
    const std::filesystem::path& Path() const { return path_; }
    std::string Name() const { return path_.filename().string(); }

    bool Exists() const;
    // The stamp of the file as it is now; not Known if it is not there.
    FileStamp Stamp() const;
    bool Directory() const;
    // The item of that name inside this folder: nil when this folder does not exist; an item
    // whose Exists is false when the folder exists and the name does not, or nil for an
    // ExistingOnly folder.
    FolderItemRef Child(const std::string& name) const;
    // Makes the folder and its parents; false if it cannot.
    bool CreateAsFolder() const;

    // nil if the file cannot be opened or is no regular file.
    TextInputStreamRef OpenAsTextFile() const;
    // Replaces the file, atomically at Close. nil if the folder cannot be written or the file is
    // there but no regular file. A symbolic link is written through and kept.
    TextOutputStreamRef CreateTextFile() const;
    // Writes behind the end, creating the file if need be; the same rules otherwise.
    TextOutputStreamRef AppendToTextFile() const;

private:
    TextOutputStreamRef OpenStream(bool append) const;

    std::filesystem::path path_;
    Lookup lookup_;
};

class TextInputStream {
public:
    explicit TextInputStream(std::string content) : content_(std::move(content)) {}
    std::string ReadAll();
    // The next line without its line end; "" at the end of the file.
    std::string ReadLine();
    // EOF of the logic; the name itself is taken by the C library.
    bool Eof() const { return position_ >= content_.size(); }
    void Close() {}

private:
    std::string content_;
    size_t position_ = 0;
};

class TextOutputStream {
public:
    // `target` is replaced at Close by `temporary`, which `file` writes.
    TextOutputStream(std::FILE* file, std::filesystem::path target, std::filesystem::path temporary);
    ~TextOutputStream();
    TextOutputStream(const TextOutputStream&) = delete;
    TextOutputStream& operator=(const TextOutputStream&) = delete;

    // Replaces `item`'s file anew; the same as FolderItem::CreateTextFile.
    static TextOutputStreamRef Create(const FolderItem& item) { return item.CreateTextFile(); }

    void Write(const std::string& text);
    void WriteLine(const std::string& text);
    // Commits the file; raises IOException, with the old file kept, if it could not be written.
    void Close();

private:
    std::FILE* file_;
    std::filesystem::path target_;
    std::filesystem::path temporary_;
    bool failed_ = false;
};

}  // namespace fw
