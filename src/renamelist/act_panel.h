#pragma once

#include <string_view>

namespace tavo {

class Program;

// Hides the three pairs of labels. Unless `hideOnly`, writes the captions,
// takes away values and tips, and shows the pairs up to the last caption that
// is not empty; three empty captions leave it at the hiding.
void Act_Panel_Setup(Program& p, bool hideOnly, std::string_view label1, std::string_view label2,
                     std::string_view label3);
// Shows each count above 0; a count of 0 leaves its label as it is.
void Act_Panel_Update(Program& p, int count1, int count2, int count3);
// The text that tells what is being done.
void Act_Stage(Program& p, std::string_view text);
// Bar and window caption for row `step` of `count`.
void Act_Progress(Program& p, int step, int count);

} // namespace tavo
