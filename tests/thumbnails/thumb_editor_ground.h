#pragma once

#include "thumb_ground.h"

#include "thumbnails/frm_thumb_editor.h"

namespace tavo {

// A system colour by its number.
constexpr std::int32_t System(std::uint32_t number)
{
    return static_cast<std::int32_t>(0x80000000u | number);
}

inline constexpr std::int32_t builtIn[] = {System(0x0F), System(0x0D), System(0x0F),
                                           System(0x12), System(0x05), System(0x05)};

// The editor of a program, opened without a modal loop.
class Editor : public testing::Test {
protected:
    void Begin(const std::string& settings = "") { rig.Start("", settings); }
    void Open()
    {
        f().EnsureLoaded();
        f().SetVisible(true);
    }
    void OpenLook() { Open(false); }
    void OpenScheme(const std::string& record)
    {
        s().SchemeEditText = record;
        Open(true);
    }
    void Open(bool scheme)
    {
        s().SchemeEditMode = scheme;
        Open();
    }

    FrmThumbEditor& f() { return rig.P().ThumbEditor(); }
    SharedState& s() { return rig.P().state; }
    Tool& tool(std::string_view id) { return *f().atbThumbs.Find(id); }
    std::string Text(std::string_view id) { return tool(id).Box->Text; }
    void Type(std::string_view id, std::string_view text)
    {
        TextBox& box = *tool(id).Box;
        box.SetFocus();
        box.Select(0, 99);
        for (const char c : text)
            f().PersonKey(&box, Key_FromChar(static_cast<char32_t>(c)));
    }
    void Press(std::string_view id, int code)
    {
        f().PersonKey(tool(id).Box.get(), Key_FromChar(static_cast<char32_t>(code)));
    }
    // "height x width border cell width x height" of the look as edited.
    std::string Sizes() { return Sizes_Of(f().Work); }
    static std::string Sizes_Of(const ThumbLook& look)
    {
        return std::to_string(look.Height) + "x" + std::to_string(look.Width) + " border "
               + std::to_string(look.BorderWidth) + " cell " + std::to_string(look.CellWidth) + "x"
               + std::to_string(look.CellHeight);
    }
    std::string Pressed()
    {
        std::string pressed;
        for (const auto* id : {"ID_AlignLeft", "ID_AlignRight", "ID_AlignCenter"})
            if (tool(id).Checked)
                pressed += std::string(id).substr(8);
        return pressed;
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
};

} // namespace tavo
