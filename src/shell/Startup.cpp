// From the built window to the small target that waits for a drop.

#include "framework/EventBoundary.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
struct DataFileReport {
    const char* file;
    const char* present;
    const char* absent;
    const char* missingFile;  // the file the second line names
};

// The math file's failure names the astronomy file: that is how the report has always read.
const DataFileReport kDataFiles[] = {
    {"convert.txt", "Conversion Data from XML file loaded", "Conversion Data from XML file not loaded", "convert.txt"},
    {"physicaldata.txt", "Physical Data is ready to be loaded from XML file when needed",
     "Physical Data fromXML file not loaded", "physicaldata.txt"},
    {"AstrDataXML.txt", "Astro Data is ready to be loaded from XML file when needed",
     "Astro Data from XML file not loaded", "AstrDataXML.txt"},
    {"Mathformulas.txt", "Math Data is ready to be loaded from XML file when needed",
     "Math Data from XML file not loaded", "AstrDataXML.txt"},
};
}  // namespace

void Window1::Open() {
    // Each Open event is an event of its own: a control whose data is damaged must not keep
    // the rest of the window from opening.
    for (Control* control : Controls()) RunEvent(platform, [control] { control->FireOpen(); });
    RunEvent(platform, [this] { Event_Open(); });
}

void Window1::Event_Open() {
    const std::time_t date = platform.Now();
    const std::time_t time = platform.Now();
    LogLine("Startup: Date " + platform.ShortDate(date) + " Time " + platform.ShortTime(time));
    LogLine("Application Version:" + Str(VELMORA_VERSION_MAJOR) + "." + Str(VELMORA_VERSION_MINOR) + "." +
            Str(VELMORA_VERSION_PATCH));
    const std::string system = platform.SystemVersion();
    if (!system.empty()) LogLine("Linux Version):" + system);
    LogLine("Initial State:");
    ReadPreferences();

    FolderItemRef data = platform.Folder(SpecialFolder::ApplicationData);
    FolderItemRef support = data ? data->Child("VLSupport") : FolderItemRef();
    for (const DataFileReport& report : kDataFiles) {
        // Only a nil handle counts as missing; the file is not opened here.
        if (support && support->Child(report.file)) {
            LogLine(report.present);
        } else {
            LogLine(report.absent);
            LogLine(std::string("A file called '") + report.missingFile +
                    "' is missing from the folder 'VLSupport' in your application Support/Data folder");
        }
    }
    LogLine("----begin---");
    wincon = 0;
    for (int number = 5; number <= 40; ++number) Find("PushButton" + std::to_string(number))->SetEnabled(true);
    PushButton42.SetEnabled(true);
    PushButton3.SetEnabled(true);
    placeit = "For maximum compatibility all output  is in ASCII" + EndOfLine +
              "That's what can be typed on your keyboard using only the shift key as a modifier" + EndOfLine;
    placeit2 = "Because of this restriction subscripts are denoted by [ ], thus 'A subscript 0' will be written as "
               "A[0]. A superscript will be represented by '^', thus meter squared will be m^2.";
    AcceptTextDrop();
    SetSize(64, 96);
    unt = " ";
}
