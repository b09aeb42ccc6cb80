#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tavo {

class FrmThumbEditor;
class Program;
class Tool;
struct BandPlan;
struct Command;

// What the files of the thumbnail editor share.

// Sizes of a picture that can be typed, in pixels.
inline constexpr int smallestSize = 60, largestSize = 128;

// The tools of atbThumbs, and the bands and menus that they stand on.
std::span<const Command> Editor_Commands();
std::span<const BandPlan> Editor_Bands();

// -- The look (thumb_editor_look.cpp)
// Takes the look in force, or the record, into the form.
void Editor_Open(Program& p, FrmThumbEditor& f);
void Editor_Align(FrmThumbEditor& f, int alignment);
void Editor_Color(FrmThumbEditor& f, int index, std::int32_t color);
// What is in the boxes of the sizes, and of the border, is in force.
void Editor_Sizes_Take(FrmThumbEditor& f);
void Editor_Border_Take(FrmThumbEditor& f);
// The chip: lets the person choose a colour. The label: puts the built-in one.
void Editor_Chip_Click(Program& p, FrmThumbEditor& f, int index);
void Editor_Label_Click(FrmThumbEditor& f, int index);
void Editor_Ok(Program& p, FrmThumbEditor& f);

// -- The tools (thumb_editor_tools.cpp)
// They stand as the mode and the settings say; the menu of schemes is filled.
void Editor_Tools_Begin(Program& p, FrmThumbEditor& f);
void Editor_Tool_Click(Program& p, Tool& tool);
void Editor_Tool_KeyPress(FrmThumbEditor& f, Tool& tool, int& key);
void Editor_Tool_LostFocus(FrmThumbEditor& f, Tool& tool);

} // namespace tavo
