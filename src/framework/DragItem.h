#pragma once
// What a drop carries: only its first item is read.

#include <string>

namespace fw {

struct DragItem {
    bool TextAvailable = false;
    std::string Text;
};

}  // namespace fw
