#include "core/command_handlers.h"

#include "core/tools.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_grid.h"

namespace tavo {

namespace {

struct AlignTool {
    std::string_view Id;
    int Alignment;
};

constexpr AlignTool alignTools[] = {
    {"ID_AlignLeft", 0}, {"ID_AlignRight", 1}, {"ID_AlignCenter", 2}};

} // namespace

void Cmd_ThumbLayout(Program& p, Tool&)
{
    if (!p.Busy())
        Thumb_Layout_Edit(p);
}

void Cmd_ThumbClear(Program& p, Tool&)
{
    Thumb_Clear(p);
}

void Cmd_ThumbCreateAll(Program& p, Tool&)
{
    Thumb_Create(p, true);
}

void Cmd_ThumbCreateSel(Program& p, Tool&)
{
    Thumb_Create(p, false);
}

void Cmd_ThumbUpdateAll(Program& p, Tool&)
{
    Thumb_Update(p, true);
}

void Cmd_ThumbUpdateSel(Program& p, Tool&)
{
    Thumb_Update(p, false);
}

void Cmd_ThumbCaption(Program& p, Tool&)
{
    Thumb_Caption_Flip(p);
}

void Cmd_Align(Program& p, Tool& tool)
{
    for (const AlignTool& row : alignTools)
        if (row.Id == tool.Name())
            Thumb_Align(p, row.Alignment);
}

// In the mode that its last caller left.
void Cmd_SchemeAdd(Program& p, Tool&)
{
    if (!p.Busy())
        Thumb_Editor_Show(p);
}

void Cmd_SchemeDefault(Program& p, Tool&)
{
    if (p.Busy())
        return;
    Thumb_Scheme_Apply(p, std::string(p.state.ThumbSchemes[0].Data));
    p.state.Scheme.clear();
}

} // namespace tavo
