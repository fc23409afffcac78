#include "search/ReferenceCache.h"

#include "framework/Text.h"
#include "framework/Xml.h"

using namespace fw;

namespace {
ReferenceEntries Parse(const FolderItem& file) {
    TextInputStreamRef in = file.OpenAsTextFile();
    XmlDocument document(ReplaceLineEndings(in->ReadAll(), EndOfLine));
    XmlNodeList categories = document.Child(0)->Xql("Category");
    ReferenceEntries entries;
    const int count = categories.Length();
    entries.keys.resize(static_cast<size_t>(count));
    entries.values.resize(static_cast<size_t>(count));
    entries.valueFaults.resize(static_cast<size_t>(count));
    for (int index = 0; index < count; ++index) {
        const size_t at = static_cast<size_t>(index);
        XmlNodeRef category = categories.Item(index);
        try {
            entries.keys[at] = Lowercase(category->Xql("Key").Item(0)->Child(0)->Value());
        } catch (...) {
            if (!entries.keyFault) entries.keyFault = std::current_exception();
        }
        try {
            entries.values[at] = ReplaceLineEndings(category->Xql("Value").Item(0)->Child(0)->Value(), EndOfLine);
        } catch (...) {
            entries.valueFaults[at] = std::current_exception();
        }
    }
    return entries;
}
}  // namespace

const ReferenceEntries& ReferenceCache::Load(const FolderItem& file) {
    const FileStamp stamp = file.Stamp();
    auto found = files_.find(file.Path().string());
    if (found == files_.end() || !stamp.Known() || !(found->second.stamp == stamp)) {
        // A file that cannot be read or parsed is not kept: the next search tries it again.
        files_.erase(file.Path().string());
        found = files_.emplace(file.Path().string(), Cached{stamp, Parse(file)}).first;
    }
    const ReferenceEntries& entries = found->second.entries;
    if (entries.keyFault) std::rethrow_exception(entries.keyFault);
    return entries;
}
