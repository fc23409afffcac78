#pragma once
// The entries of the reference files as the searches read them, kept between searches while
// the file on disk stays the same. Any change to the file (its size, its times, a new file in
// its place) is seen at the next search, which reads and parses it anew, so an edited file
// answers at once. Faults of a damaged file are kept too and raised where a search of the
// file itself would raise them.

#include <exception>
#include <map>
#include <string>
#include <vector>

#include "framework/FolderItem.h"

struct ReferenceEntries {
    std::vector<std::string> keys;    // each Key folded for case-blind search, "" where it faults
    std::vector<std::string> values;  // each Value with the platform's line ends
    std::exception_ptr keyFault;      // the first entry whose Key cannot be read, if any
    std::vector<std::exception_ptr> valueFaults;  // per entry, where the Value cannot be read
};

class ReferenceCache {
public:
    // The entries of `file`, read now if it changed since the last time. Raises what reading or
    // parsing it raises, and the fault of an entry without a Key.
    const ReferenceEntries& Load(const fw::FolderItem& file);

private:
    struct Cached {
        fw::FileStamp stamp;
        ReferenceEntries entries;
    };
    std::map<std::string, Cached> files_;
};
