// Stored formulas: the m and mr keys, the list shown under Evaluate, and VLmemory.txt.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
// The memory lives beside the application, like the saved logs, not in the data folder.
FolderItemRef MemoryFile(Platform& platform) {
    FolderItemRef folder = platform.Folder(SpecialFolder::Application);
    return folder ? folder->Child("VLmemory.txt") : FolderItemRef();
}
}  // namespace

void Window1::WireMemory() {
    PushButton33.Action = [this] { PushButton33_Action(); };
    PushButton34.Action = [this] { PushButton34_Action(); };
    Listbox3.Open = [this] { Listbox3_Open(); };
    Listbox3.Close = [this] { Listbox3_Close(); };
    Listbox3.CellClick = [this](int row, int column, int x, int y) { return Listbox3_CellClick(row, column, x, y); };
    PushButton46.Action = [this] { PushButton46_Action(); };
}

void Window1::PushButton33_Action() {
    FolderItemRef file = MemoryFile(platform);
    TextOutputStreamRef out = file->Exists() ? file->AppendToTextFile() : file->CreateTextFile();
    // One Write, so that the line and its end reach the file together.
    out->Write(EditField4.Text() + EndOfLine);
    out->Close();
    Listbox3.AddRow(EditField4.Text());
}

void Window1::PushButton34_Action() {
    FolderItemRef file = MemoryFile(platform);
    if (!file || !file->Exists()) {
        platform.MsgBox("Nothing In Memory");
        return;
    }
    TextInputStreamRef in = file->OpenAsTextFile();
    bool ended = false;
    if (formnumber == 1) {
        EditField4.SetText(in->ReadLine());
    } else {
        for (std::int32_t line = 1; line <= formnumber - 1; ++line) in->ReadLine();
        const std::string next = in->ReadLine();
        // The first empty line ends the cycle, so formulas stored behind it stay out of reach.
        if (!next.empty()) EditField4.SetText(next);
        else ended = true;
    }
    ++formnumber;
    in->Close();
    if (ended) {
        // Never recurses twice: with formnumber 1 the first line is shown whatever it holds.
        formnumber = 1;
        PushButton34.Push();
    }
}

void Window1::Listbox3_Open() {
    Listbox3.SetColumnType(0, 1);
    Listbox3.SetColumnType(1, 2);
    FolderItemRef file = MemoryFile(platform);
    if (!file || !file->Exists()) return;
    TextInputStreamRef in = file->OpenAsTextFile();
    // The test stands behind the read: a file of no bytes still gives one empty row.
    do {
        Listbox3.AddRow(in->ReadLine());
    } while (!in->Eof());
    in->Close();
}

void Window1::Listbox3_Close() {
    // An empty list writes nothing, so deleting every formula only lasts until the next launch.
    if (Listbox3.ListCount() <= 0) return;
    TextOutputStreamRef out = TextOutputStream::Create(*MemoryFile(platform));
    for (int row = 0; row <= Listbox3.ListCount() - 1; ++row) out->WriteLine(Listbox3.Cell(row, 0));
    out->Close();
}

bool Window1::Listbox3_CellClick(int row, int column, int, int) {
    if (column == 0) EditField4.SetText(Listbox3.Cell(row, 0));
    // False lets the click reach the cell, so the tick box still toggles.
    return false;
}

void Window1::PushButton46_Action() {
    if (Listbox3.ListCount() == 0) {
        platform.MsgBox("There are no items to delete");
        return;
    }
    // The bound is taken anew each time, and the index steps back so the row that moved up is seen.
    for (int i = 0; i <= Listbox3.ListCount() - 1; ++i) {
        if (Listbox3.CellCheck(i, 1)) {
            Listbox3.RemoveRow(i);
            --i;
        }
    }
}
