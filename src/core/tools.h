#pragma once

#include "core/frm_main.h"
#include "core/program.h"

#include <initializer_list>
#include <string_view>

namespace tavo {

// The tools of the main window by their ids. An id that is no tool is passed
// over.

inline void Tools_Enable(Program& p, std::initializer_list<std::string_view> ids, bool on)
{
    for (const std::string_view id : ids)
        if (Tool* tool = p.main.atbMain.Find(id))
            tool->Enabled = on;
}

inline void Tools_Show(Program& p, std::initializer_list<std::string_view> ids, bool on)
{
    for (const std::string_view id : ids)
        if (Tool* tool = p.main.atbMain.Find(id))
            tool->Visible = on;
}

inline void Tool_Check(Program& p, std::string_view id, bool on)
{
    if (Tool* tool = p.main.atbMain.Find(id))
        tool->Checked = on;
}

inline void Tool_Caption(Program& p, std::string_view id, std::string_view caption)
{
    if (Tool* tool = p.main.atbMain.Find(id))
        tool->Caption = std::string(caption);
}

// The box of an edit or combo tool.
inline TextBox* Tool_Box(Program& p, std::string_view id)
{
    Tool* tool = p.main.atbMain.Find(id);
    return tool ? tool->Box.get() : nullptr;
}

inline ComboBox* Tool_Combo(Program& p, std::string_view id)
{
    Tool* tool = p.main.atbMain.Find(id);
    return tool ? tool->Combo() : nullptr;
}

} // namespace tavo
