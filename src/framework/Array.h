#pragma once
// Checked element access: an index outside the array is the run-time layer's fault, not
// undefined behaviour.

#include <string>
#include <vector>

#include "framework/Exceptions.h"

namespace fw {

template <class T>
const T& Item(const std::vector<T>& array, long long index) {
    if (index < 0 || index >= static_cast<long long>(array.size()))
        throw OutOfBoundsException("array index " + std::to_string(index));
    return array[static_cast<size_t>(index)];
}

}  // namespace fw
