#pragma once
// How a file is changed so that it is never seen half written: the new content goes to a
// temporary file beside the real one, is flushed to the disk, and is renamed over it. A kill
// at any instant or a full disk leaves the old content or the new, whole.

#include <cstdio>
#include <filesystem>
#include <sys/stat.h>

namespace fw {

// Opens `path` for reading if it is a regular file, and fills `info`; -1 otherwise. A FIFO in a
// file's place is never waited on.
int OpenRegular(const std::filesystem::path& path, struct stat* info);

// The file that writing to `path` really changes: a symbolic link is followed to its end, so
// that a linked file is replaced and the link kept.
std::filesystem::path WriteTarget(const std::filesystem::path& path);

// Opens a temporary file beside `target` and names it in `temporary`. With `keepContent` it
// starts with the target's content, so that writing to it appends. nil when the target is
// there but no regular file (a FIFO would block us for ever), or cannot be read or copied.
std::FILE* OpenReplacement(const std::filesystem::path& target, bool keepContent, std::filesystem::path* temporary);

// Flushes and closes `file` and renames it over `target`; false, with the target untouched and
// the temporary file gone, if any step fails.
bool CommitReplacement(std::FILE* file, bool writeFailed, const std::filesystem::path& temporary,
                       const std::filesystem::path& target);

// Removes temporary files in `folder` left by copies of the program that died while writing.
void RemoveStaleTemporaries(const std::filesystem::path& folder);

}  // namespace fw
