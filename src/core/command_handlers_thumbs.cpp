#include "core/command_handlers.h"

#include "core/tools.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_grid.h"

#include <algorithm>
#include <iterator>

namespace tavo {

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
    const auto* const id = std::ranges::find(alignTools, tool.Name());
    Thumb_Align(p, static_cast<int>(id - std::begin(alignTools)));
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
