#pragma once

#include "core/commands.h"
#include "toolkit/control.h"
#include "toolkit/panels.h"

#include <span>
#include <string>

namespace tavo {

class FrmViewer;
class Program;

// What the files of the viewer share.

// The tools of atbView, and the bands and menus that they stand on.
std::span<const Command> Viewer_Commands();
std::span<const BandPlan> Viewer_Bands();

// -- Rows. A position that is no row has an empty file.
bool Viewer_HasRow(const Program& p, int row);
std::string Viewer_File(const Program& p, int row);

// -- Display
// The row of the position stands in the view, and is loaded if it does not yet.
void Viewer_Show_Again(Program& p);
void Viewer_Show_Nothing(Program& p);
// The pan bars have moved.
void Viewer_Pan_Across(FrmViewer& v);
void Viewer_Pan_Down(FrmViewer& v);
// The picture follows the hand; places in twips from its corner.
void Viewer_Pan_Press(Program& p, const Control::Mouse& mouse);
void Viewer_Pan_Move(Program& p, const Control::Mouse& mouse);

// -- Commands
// The tools by the values that they mirror, and the colour of the view.
void Viewer_Look_Take(Program& p);
void Viewer_Preview_Click(Program& p);

// -- Slide show
void Viewer_Show_Stop(FrmViewer& v);
void Seconds_KeyFilter(int& key);
void Seconds_Enter(Tool& tool);
// The text becomes the number in it, from 1 to 60.
void Seconds_Hold(Tool& tool);
// Return: the delay is another at once.
void Seconds_Return(FrmViewer& v, Tool& tool);

// -- Preview of the row under the thumb of the position bar
void Viewer_Preview_Show(Program& p);

// -- What the tools do
void Cmd_ViewEnlarge(Program& p, Tool& tool);
void Cmd_ViewShrink(Program& p, Tool& tool);
void Cmd_ViewSizeWindow(Program& p, Tool& tool);
void Cmd_ViewBackColor(Program& p, Tool& tool);
void Cmd_ViewNext(Program& p, Tool& tool);
void Cmd_ViewPrev(Program& p, Tool& tool);
void Cmd_ViewShowTavo(Program& p, Tool& tool);
void Cmd_ViewTextLabels(Program& p, Tool& tool);
void Cmd_ViewHelp(Program& p, Tool& tool);
void Cmd_ViewAbout(Program& p, Tool& tool);
void Cmd_ViewExit(Program& p, Tool& tool);
void Cmd_ViewPlayForward(Program& p, Tool& tool);
void Cmd_ViewPlayReverse(Program& p, Tool& tool);
void Cmd_ViewStop(Program& p, Tool& tool);

} // namespace tavo
