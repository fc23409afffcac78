#pragma once
// Conversion tables of the tests' own, and picking a conversion as a user does.

#include <filesystem>
#include <fstream>
#include <string>

#include "framework/Text.h"

#include "support/Session.h"

namespace convert_test {

inline const char* const kWorkedFile =
    "<Conversions>\n<Category><Name>Power</Name><List>\n<SubList convert=\"*745.7\">hp->W</SubList>\n"
    "<SubList convert=\"/745.7\">W->hp</SubList>\n</List></Category>\n<Category><Name>Number</Name><List>\n"
    "<SubList>Decimal(Integer)->Hex</SubList>\n<SubList>Hex->Decimal</SubList>\n</List></Category>\n"
    "<Category><Name>Temperature</Name><List>\n<SubList>C->K</SubList>\n<SubList>K->R</SubList>\n"
    "</List></Category>\n</Conversions>\n";

// Every kind of row the conversion paths tell apart, unknown and broken rows included.
inline const char* const kTable =
    "<Conversions>\r\n<Category><Name>Power</Name><List><SubList convert=\"*745.7\">hp->W</SubList></List></Category>"
    "<Category><Name>Area</Name><List><SubList convert=\"*0.09290304\">ft^2->m^2</SubList></List></Category>\r\n"
    "<Category><Name>Length</Name><List><SubList convert=\"*1000\">km->m</SubList>"
    "<SubList convert=\"*1000\">km->metre long</SubList></List></Category>\n"
    "<Category><Name>Number</Name><List><SubList>Decimal(Integer)->Hex</SubList><SubList>Hex->Decimal</SubList>"
    "<SubList>Oct->Decimal</SubList><SubList>Decimal->Binary</SubList>"
    "<SubList>Binary->Decimal</SubList><SubList>Roman->Decimal</SubList></List></Category>\n"
    "<Category><Name>Temperature</Name><List><SubList>Fahrenheit(F)->C</SubList><SubList>C->K</SubList>"
    "<SubList>K->F</SubList><SubList>Reaumur->C</SubList></List></Category>\n"
    "<Category><Name>Broken</Name><List><SubList convert=\"*(\">bad->x</SubList></List></Category>\n"
    "</Conversions>\n";

// Prepares a home whose convert.txt is `xml`; nullptr leaves out the VLSupport folder.
inline auto WithFile(const char* xml) {
    return [xml](const std::filesystem::path& home) {
        if (!xml) return;
        std::filesystem::create_directories(home / "data" / "VLSupport");
        std::ofstream(home / "data" / "VLSupport" / "convert.txt", std::ios::binary) << xml;
    };
}

inline std::string Rows(const fw::RowControl& list) {
    std::string rows;
    for (int row = 0; row < list.ListCount(); ++row) rows += (row ? "|" : "") + list.List(row);
    return rows;
}

inline void Pick(Session& s, const std::string& category, const std::string& label) {
    auto set = [&s](const fw::RowControl& list, const std::string& text) {
        for (int row = 0; row < list.ListCount(); ++row)
            if (list.List(row) == text) s.Run("set " + list.Name() + " " + std::to_string(row));
    };
    set(s.w().PopupMenu2, category);
    set(s.w().popconvert, label);
}

inline std::string LogFrom(Session& s, size_t mark) { return s.w().EditField2.Text().substr(mark); }

}  // namespace convert_test
