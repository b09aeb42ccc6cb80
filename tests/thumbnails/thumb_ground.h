#pragma once

#include "support/program_rig.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_grid.h"
#include "toolkit/numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavo {

// A program whose rename list holds rows named a01, a02 ... and shows them as
// thumbnails, in a grid of so many columns and lines.
class ThumbGround {
public:
    explicit ThumbGround(int rows, const std::string& settings = "")
    {
        for (int row = 1; row <= rows; ++row)
            Rig.Disk.AddFile("/p/" + Name(row), "x");
        Rig.Start("/p/", settings);
        Rig.Main().lsvSelMain.PersonSelectAll();
        Rig.Click("ID_CreateList");
    }

    static std::string Name(int row)
    {
        const std::string digits = std::to_string(row);
        return "a" + std::string(digits.size() < 2 ? 1 : 0, '0') + digits + ".jpg";
    }

    Program& P() { return Rig.P(); }
    FrmMain& F() { return Rig.Main(); }
    ListView& List() { return Rig.Main().lsvRename; }
    SharedState& S() { return Rig.P().state; }

    // Every row's file is a picture of this size.
    void Pictures(int width, int height)
    {
        for (int row = 1; row <= List().Count(); ++row)
            Rig.Desktop.Pictures["/p/" + Name(row)] = {width, height};
    }

    // To the thumbnail view without its offer, laid out.
    void Show(int columns, int lines)
    {
        if (S().CurScreen != screenThumbnails) {
            Rig.Desktop.Answer(BoxAnswer::Cancel);
            Rig.Click("ID_ArrangeThumb");
        }
        Room(columns, lines);
    }
    // A grid of this size has room for so many cells, and a little more.
    void Room(int columns, int lines)
    {
        constexpr int spare = 20;
        const ThumbLook& look = S().ThumbLook;
        const int caption = look.CaptionShown ? look.CaptionHeight : 0;
        F().picThumbs.Width = 15 * (6 + columns * (look.CellWidth + 6) + spare);
        F().picThumbs.Height = 15 * (6 + lines * (look.CellHeight + 6 + caption) + spare);
        Thumb_Layout(P());
    }

    // The names from the top, by their number.
    std::string Order()
    {
        std::string order;
        for (int row = 1; row <= List().Count(); ++row) {
            const std::string name(List().Text(row));
            order += (row > 1 ? " " : "") + IntToText(static_cast<int>(Val(name.substr(1))));
        }
        return order;
    }
    std::string Selected()
    {
        std::string rows;
        for (const int row : List().SelectedRows())
            rows += (rows.empty() ? "" : " ") + std::to_string(row);
        return rows;
    }

    void Press(int cell, int shift = shiftNone, int button = 1)
    {
        F().imgThumbs[cell].MouseDown({button, shift, 300, 300});
    }
    void Release(int cell, int shift = shiftNone)
    {
        F().imgThumbs[cell].MouseUp({1, shift, 300, 300});
    }
    void ClickCell(int cell, int shift = shiftNone)
    {
        Press(cell, shift);
        Release(cell, shift);
    }
    // Presses and moves far enough; the drag is then under way.
    void Drag(int cell)
    {
        Press(cell);
        DragPressed(cell);
    }
    void DragPressed(int cell) { F().imgThumbs[cell].MouseMove({1, shiftNone, 900, 300}); }
    void DropOn(int cell, bool rightHalf)
    {
        const double width = F().imgThumbs[cell].Width * 15;
        F().PersonDragOver(&F().imgThumbs[cell], rightHalf ? width - 15 : 15, 15);
        F().PersonDragDrop();
    }

    ProgramRig Rig{MemoryDisk::Flavour::Posix};
};

} // namespace tavo
