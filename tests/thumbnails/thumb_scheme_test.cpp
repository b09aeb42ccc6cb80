#include "thumb_ground.h"

#include "thumbnails/frm_thumb_resize.h"

namespace tavo {
namespace {

const std::string schemes = "[ThumbSchemes]\n"
                            "Wide=60,120,5,1,2,3,0,4,5,6\n"
                            "Same=80,80,3,1,2,3,1,4,5,6\n"
                            "wide=10,10,1\n";

std::string With_Scheme(const std::string& name)
{
    return schemes + "[Defaults]\nScheme=" + name + "\n";
}

std::string Look_Text(const ThumbLook& look)
{
    return std::to_string(look.Height) + "x" + std::to_string(look.Width) + " border "
           + std::to_string(look.BorderWidth) + " cell " + std::to_string(look.CellWidth) + "x"
           + std::to_string(look.CellHeight) + " margin " + std::to_string(look.Margin);
}

TEST(ThumbScheme, The_look_at_the_start_is_the_built_in_one)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    const SharedState& s = rig.Start().state;
    EXPECT_EQ(Look_Text(s.ThumbLook), "80x80 border 3 cell 90x90 margin 4");
    EXPECT_EQ(s.ThumbLook.CaptionHeight, 17);
    EXPECT_EQ(s.ThumbLook.Align, 2);
    EXPECT_TRUE(s.ThumbLook.CaptionShown);
    EXPECT_EQ(s.Scheme, "0");
    EXPECT_EQ(rig.Main().shpThumbsSelC.Width, 1350);
    EXPECT_EQ(rig.Main().shpThumbsSelC.Height, 1350);
    EXPECT_EQ(rig.Main().lblThumbs[1].Height, 252.0 / 15);
    EXPECT_TRUE(rig.Main().atbMain.Find("ID_AlignCenter")->Checked);
}

TEST(ThumbScheme, At_the_start_the_first_scheme_of_the_saved_name_is_applied)
{
    struct Row {
        const char *Name, *Look;
    };
    static constexpr Row rows[] = {
        {"Wide", "60x120 border 5 cell 134x74 margin 4"},
        {"WIDE", "60x120 border 5 cell 134x74 margin 4"},
        {"same", "80x80 border 3 cell 90x90 margin 4"},
        {"Tavo Default", "80x80 border 3 cell 90x90 margin 4"}, // not among those that are saved
        {"gone", "80x80 border 3 cell 90x90 margin 4"},
        {"", "80x80 border 3 cell 90x90 margin 4"},
    };
    for (const Row& row : rows) {
        ProgramRig rig(MemoryDisk::Flavour::Posix);
        const SharedState& s = rig.Start("", With_Scheme(row.Name)).state;
        EXPECT_EQ(Look_Text(s.ThumbLook), row.Look) << row.Name;
        EXPECT_EQ(s.Scheme, *row.Name ? row.Name : "0");
        // The side box keeps the size that the load gave it.
        EXPECT_EQ(rig.Main().shpThumbsSelC.Width, 1350) << row.Name;
    }
}

TEST(ThumbScheme, The_margin_is_6_from_the_first_layout_on)
{
    ThumbGround g(3);
    EXPECT_EQ(Look_Text(g.S().ThumbLook), "80x80 border 3 cell 90x90 margin 4");
    g.Show(2, 2);
    EXPECT_EQ(Look_Text(g.S().ThumbLook), "80x80 border 3 cell 90x90 margin 6");
    g.Rig.Click("ID_TSchemesDef");
    EXPECT_EQ(Look_Text(g.S().ThumbLook), "80x80 border 3 cell 92x92 margin 6");
    EXPECT_EQ(g.S().Scheme, "");
}

TEST(ThumbScheme, A_scheme_of_the_menu_colours_the_cells)
{
    ThumbGround g(4, schemes);
    g.Show(2, 2);
    g.Rig.Click("ID_Scheme1");
    EXPECT_EQ(g.S().Scheme, "Wide");
    EXPECT_EQ(Look_Text(g.S().ThumbLook), "60x120 border 5 cell 136x76 margin 6");
    EXPECT_EQ(g.F().picThumbs.BackColor, 6);
    EXPECT_TRUE(g.F().atbMain.Find("ID_AlignLeft")->Checked);
    EXPECT_FALSE(g.F().atbMain.Find("ID_AlignCenter")->Checked);
    for (int cell = 1; cell <= g.F().shpThumbsSel.High(); ++cell) {
        const Shape& frame = g.F().shpThumbsSel[cell];
        EXPECT_EQ(frame.BackColor, 1) << cell;
        EXPECT_EQ(frame.BorderWidth, 5) << cell;
        EXPECT_EQ(frame.BorderColor, cell == 1 ? 2 : 3) << cell;
        const Label& caption = g.F().lblThumbs[cell];
        EXPECT_EQ(caption.BackColor, 4) << cell;
        EXPECT_EQ(caption.ForeColor, 5) << cell;
        EXPECT_EQ(caption.Alignment, 0) << cell;
    }
    // A cell that comes later is like the others.
    g.S().RenCount = 4;
    g.Room(1, 1);
    EXPECT_EQ(g.F().shpThumbsSel.High(), 1);
    g.Room(2, 2);
    EXPECT_EQ(g.F().shpThumbsSel.High(), 4);
    EXPECT_EQ(g.F().shpThumbsSel[4].BackColor, 1);
    EXPECT_EQ(g.F().lblThumbs[4].ForeColor, 5);
}

TEST(ThumbScheme, An_alignment_that_is_none_counts_as_the_centre)
{
    ThumbGround g(1);
    g.Show(1, 1);
    Thumb_Scheme_Apply(g.P(), "80,80,3,1,2,3,7,4,5,6");
    EXPECT_EQ(g.S().ThumbLook.Align, 7);
    EXPECT_TRUE(g.F().atbMain.Find("ID_AlignCenter")->Checked);
    EXPECT_EQ(g.F().lblThumbs[1].Alignment, 2);
}

TEST(ThumbScheme, A_new_size_draws_the_pictures_anew_and_nothing_else_does)
{
    struct Row {
        const char *What, *Record;
        bool HasPictures, Resizes;
    };
    static constexpr Row rows[] = {
        {"the same size, other colours", "80,80,9,1,2,3,0,4,5,6", true, false},
        {"another height", "40,80,3", true, true},
        {"another width", "80,40,3", true, true},
        {"no pictures", "40,40,3", false, false},
    };
    for (const Row& row : rows) {
        ThumbGround g(3);
        g.Pictures(100, 50);
        g.Show(3, 1);
        if (row.HasPictures)
            Thumb_Create(g.P(), true);
        g.Rig.Desktop.Forms.clear();
        g.Rig.Desktop.Paintings.clear();
        if (row.Resizes)
            g.Rig.Desktop.OnModal([](Form& form) {
                EXPECT_EQ(form.Name(), "frmThumbResize");
                form.PersonActivate(true);
                EXPECT_FALSE(form.Loaded());
            });
        Thumb_Scheme_Apply(g.P(), row.Record);
        EXPECT_EQ(g.Rig.Desktop.Forms.size(), row.Resizes ? 1u : 0u) << row.What;
        EXPECT_EQ(g.Rig.Desktop.Paintings.size(), row.Resizes ? 3u : 0u) << row.What;
        EXPECT_EQ(g.Rig.Desktop.ModalsLeft(), 0) << row.What;
    }
}

TEST(ThumbScheme, Pictures_are_resized_from_memory_and_empty_slots_stay_empty)
{
    ThumbGround g(3);
    g.Pictures(100, 50);
    g.Rig.Desktop.Pictures.erase("/p/a02.jpg");
    g.Show(3, 1);
    Thumb_Create(g.P(), true);
    Thumb_Create(g.P(), true);
    const std::size_t slots = g.S().ThumbBuffer.size();
    g.Rig.Desktop.PictureWishes.clear();
    FrmThumbResize& form = g.P().ThumbResize();
    g.Rig.Desktop.OnModal([](Form& shown) { shown.PersonActivate(true); });
    Thumb_Scheme_Apply(g.P(), "200,160,3");
    EXPECT_TRUE(g.Rig.Desktop.PictureWishes.empty());
    EXPECT_EQ(g.S().ThumbBuffer.size(), slots);
    EXPECT_EQ(form.prbResize.Value, 100);
    EXPECT_EQ(form.lblResize.Caption.Get(), "Resizing Existing Thumbnails...");
    for (std::size_t slot = 1; slot < slots; ++slot) {
        const BitmapPtr& picture = g.S().ThumbBuffer[slot];
        ASSERT_EQ(picture != nullptr, slot <= 2) << slot;
        if (picture) {
            EXPECT_EQ(picture->Width(), 160) << slot;
            EXPECT_EQ(picture->Height(), 80) << slot;
        }
    }
}

TEST(ThumbScheme, In_the_list_view_only_the_look_changes)
{
    ThumbGround g(3, schemes);
    g.Rig.Click("ID_Scheme1");
    EXPECT_EQ(Look_Text(g.S().ThumbLook), "60x120 border 5 cell 134x74 margin 4");
    EXPECT_EQ(g.S().Columns, 0);
    EXPECT_EQ(g.F().shpThumbsSel.High(), 1);
    EXPECT_EQ(g.F().shpThumbsSel[1].BackColor, 1);
}

} // namespace
} // namespace tavo
