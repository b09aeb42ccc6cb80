#pragma once

#include <QSize>

#include <string>
#include <vector>

namespace tavo::bench {

// The sizes of photos as cameras make them, 12 to 24 megapixels. Each is a whole
// number of times 8, so that a decoder can halve it three times.
const std::vector<QSize>& Photo_Sizes();
inline constexpr QSize largestPhoto{6000, 4000};

// Fills a folder (with its slash) with JPEGs of these sizes in turn: shapes and
// slopes under the noise of a sensor, of some megabytes each. Gives their
// paths, by name.
std::vector<std::string> Photos_Make(const std::string& folder, const std::vector<QSize>& sizes,
                                     int count);

} // namespace tavo::bench
