#pragma once

#include "measure.h"

namespace tavo::bench {

// Each measures what the plan wants of its own works and adds to its results.
void Walks_Measure(Plan& plan);   // into the selection list
void Renames_Measure(Plan& plan); // on the disk
void Changes_Measure(Plan& plan); // of tags, times and attributes, and back
void Lists_Measure(Plan& plan);   // in memory
// These take Qt. Where Tavo is built without it there is nothing to measure.
void Pictures_Measure(Plan& plan); // read, drawn and kept
void Grid_Measure(Plan& plan);     // thumbnails painted

} // namespace tavo::bench
