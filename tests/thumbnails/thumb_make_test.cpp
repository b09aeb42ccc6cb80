#include "thumb_ground.h"

namespace tavo {
namespace {

std::string Tags(ThumbGround& g)
{
    std::string tags;
    for (int row = 1; row <= g.List().Count(); ++row)
        tags += (row > 1 ? "," : "") + std::string(g.List().Tag(row));
    return tags;
}

int Last_Slot(ThumbGround& g)
{
    return static_cast<int>(g.S().ThumbBuffer.size()) - 1;
}

std::string Shown(const ImageBox& image)
{
    return *image.PropertyText("Picture");
}

TEST(ThumbFit, Pictures_fill_the_box_by_whole_numbers)
{
    struct Row {
        int Width, Height, FitWidth, FitHeight;
    };
    static constexpr Row rows[] = {{100, 300, 26, 80}, {10, 10, 80, 80},     {80, 80, 80, 80},
                                   {300, 100, 80, 26}, {160, 80, 80, 40},    {1, 1000, 0, 80},
                                   {1000, 1, 80, 0},   {4000, 3000, 80, 60}, {3000, 4000, 60, 80},
                                   {81, 80, 80, 79},   {0, 5, 0, 0}};
    for (const Row& row : rows)
        EXPECT_EQ(Thumb_Fit(ThumbLook(), row.Width, row.Height),
                  (PixelSize{row.FitWidth, row.FitHeight}))
            << row.Width << "x" << row.Height;
}

TEST(ThumbCreate, Each_row_gets_the_next_slot_and_one_stays_empty_at_the_top)
{
    ThumbGround g(4);
    g.Pictures(160, 80);
    g.Rig.Desktop.Pictures.erase("/p/a03.jpg");
    g.Show(4, 1);
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Tags(g), "1,2,,3");
    EXPECT_EQ(Last_Slot(g), 4);
    EXPECT_EQ(Shown(g.F().imgThumbs[1]), "80x40");
    EXPECT_EQ(Shown(g.F().imgThumbs[3]), "icon P");
    EXPECT_TRUE(g.Rig.Desktop.Boxes.back().Box.Text.starts_with("Would you like"));
    EXPECT_EQ(g.F().stbMain.Panel(2), "a01.jpg");
    EXPECT_EQ(Shown(g.F().imgOriginal), "none");
    EXPECT_EQ(*g.F().picThumb.PropertyText("Picture"), "none");
}

TEST(ThumbCreate, A_second_run_makes_nothing_and_uses_up_numbers)
{
    ThumbGround g(4);
    g.Pictures(160, 80);
    g.Show(4, 1);
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Last_Slot(g), 5);
    g.Rig.Desktop.PictureWishes.clear();
    Thumb_Create(g.P(), true);
    EXPECT_TRUE(g.Rig.Desktop.PictureWishes.empty());
    EXPECT_EQ(Tags(g), "1,2,3,4");
    EXPECT_EQ(Last_Slot(g), 10);
    for (int slot = 5; slot <= 10; ++slot)
        EXPECT_EQ(g.S().ThumbBuffer[static_cast<std::size_t>(slot)], nullptr) << slot;
    // The next picture comes behind the numbers that were used up.
    g.List().SetTag(2, "");
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Tags(g), "1,12,3,4");
    EXPECT_EQ(Last_Slot(g), 15);
}

TEST(ThumbCreate, The_buffer_grows_by_fifty_slots)
{
    ThumbGround g(120);
    g.Pictures(8, 8);
    g.Show(4, 2);
    std::vector<int> bounds;
    g.Rig.Desktop.EachTurn = [&](int) {
        if (bounds.empty() || bounds.back() != Last_Slot(g))
            bounds.push_back(Last_Slot(g));
    };
    Thumb_Create(g.P(), true);
    EXPECT_EQ(bounds, (std::vector<int>{1, 51, 101, 151}));
    EXPECT_EQ(Last_Slot(g), 121);
}

TEST(ThumbCreate, Of_the_selected_rows_alone)
{
    ThumbGround g(5);
    g.Pictures(8, 8);
    g.List().SetAllSelected(false);
    for (const int row : {2, 4})
        g.List().SetSelected(row, true);
    g.Rig.Click("ID_ThumbCreateSel");
    EXPECT_EQ(g.S().CurScreen, screenThumbnails);
    EXPECT_EQ(Tags(g), ",1,,2,");
    EXPECT_EQ(g.Selected(), "2 4");
}

TEST(ThumbCreate, Gif_goes_by_the_type_cell_and_the_setting)
{
    struct Row {
        int Gif;
        const char *Type, *Tags;
    };
    static constexpr Row rows[] = {
        {0, "gif", ",1"}, {0, "GIF", ",1"}, {1, "gif", "1,2"}, {0, "jpg", "1,2"}};
    for (const Row& row : rows) {
        ThumbGround g(2);
        g.Pictures(8, 8);
        g.S().Gif = static_cast<std::uint8_t>(row.Gif);
        g.List().SetCell(1, g.S().colType, row.Type);
        Thumb_Create(g.P(), true);
        EXPECT_EQ(Tags(g), row.Tags) << row.Type << row.Gif;
    }
}

TEST(ThumbCreate, Escape_stops_behind_the_row_in_hand)
{
    ThumbGround g(5);
    g.Pictures(8, 8);
    g.Show(5, 1);
    g.F().stbMain.SetPanel(2, "before");
    const int turn = g.Rig.Desktop.Turns();
    // The first turn is that of the busy state, then one a row.
    g.Rig.Desktop.At(turn + 4, [&] {
        EXPECT_EQ(g.F().stbMain.Panel(2), "Press ESC to Cancel Thumbnail Creation");
        Key escape;
        escape.Code = keyEscape;
        g.F().PersonKey(nullptr, escape);
    });
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Tags(g), "1,2,3,,");
    EXPECT_EQ(Last_Slot(g), 4);
    EXPECT_EQ(g.F().stbMain.Panel(2), "before");
}

TEST(ThumbCreate, Every_row_gives_a_turn_also_one_that_is_skipped)
{
    ThumbGround g(4);
    g.Pictures(8, 8);
    g.Rig.Desktop.Pictures.erase("/p/a02.jpg");
    g.List().SetCell(3, g.S().colType, "gif");
    g.List().SetTag(4, "9");
    g.Show(4, 1);
    const int turn = g.Rig.Desktop.Turns();
    Thumb_Create(g.P(), true);
    EXPECT_EQ(g.Rig.Desktop.Turns() - turn, 1 + 4);
}

TEST(ThumbCreate, Meanwhile_the_rows_stand_still_and_the_page_scrolls)
{
    ThumbGround g(12);
    g.Pictures(8, 8);
    g.Show(2, 2);
    const int turn = g.Rig.Desktop.Turns();
    g.Rig.Desktop.At(turn + 2, [&] {
        EXPECT_TRUE(g.P().Busy());
        EXPECT_EQ(g.Rig.Desktop.PointerNow(), Pointer::Busy);
        for (const char* id : {"ID_RenAll", "ID_SelDelete", "ID_NewList", "ID_mnuThumbnail"})
            EXPECT_FALSE(g.F().atbMain.Find(id)->Enabled) << id;
        const std::string order = g.Order(), selected = g.Selected();
        g.ClickCell(3);
        g.F().picThumbs.PersonClick();
        EXPECT_EQ(g.Selected(), selected);
        g.F().vsbThumbs.PersonScroll(4);
        EXPECT_EQ(g.F().vsbThumbs.Value, 4);
        EXPECT_EQ(g.F().imgThumbs[1].ToolTipText.Get(), "a07.jpg");
        // None of these starts inside it.
        Thumb_Create(g.P(), true);
        Thumb_Update(g.P(), true);
        Thumb_Clear(g.P());
    });
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Tags(g), "1,2,3,4,5,6,7,8,9,10,11,12");
    EXPECT_FALSE(g.P().Busy());
    EXPECT_EQ(g.Rig.Desktop.PointerNow(), Pointer::Default);
    EXPECT_TRUE(g.F().atbMain.Find("ID_RenAll")->Enabled);
    EXPECT_TRUE(g.F().picThumbnails.Enabled);
}

TEST(ThumbCreate, The_page_follows_the_work)
{
    ThumbGround g(12);
    g.Pictures(8, 8);
    g.Show(2, 2);
    std::vector<int> tops;
    g.Rig.Desktop.EachTurn = [&](int) { tops.push_back(g.F().vsbThumbs.Value); };
    Thumb_Create(g.P(), true);
    EXPECT_EQ(tops, (std::vector<int>{1, 1, 1, 1, 1, 3, 3, 3, 3, 5, 5, 5, 5}));
}

TEST(ThumbCreate, Before_the_first_layout_nothing_fails)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    g.Rig.Desktop.Answer(BoxAnswer::Ok);
    g.Rig.Click("ID_ArrangeThumb");
    EXPECT_EQ(g.S().Columns, 0);
    EXPECT_EQ(Tags(g), "1,2,3");
    g.F().tmrRedrawThumbs.Tick();
    EXPECT_EQ(Shown(g.F().imgThumbs[3]), "80x80");
}

TEST(ThumbCreate, A_close_in_the_midst_ends_it)
{
    ThumbGround g(5);
    g.Pictures(8, 8);
    g.Show(5, 1);
    g.Rig.Desktop.At(g.Rig.Desktop.Turns() + 3, [&] { g.F().PersonClose(); });
    Thumb_Create(g.P(), true);
    EXPECT_EQ(Tags(g), "1,2,,,");
    g.P().Settle();
    EXPECT_FALSE(g.F().Loaded());
}

TEST(ThumbOffer, Is_made_while_the_buffer_is_empty)
{
    ThumbGround g(2);
    g.Pictures(8, 8);
    auto& desktop = g.Rig.Desktop;
    desktop.Answer(BoxAnswer::Cancel);
    g.Rig.Click("ID_Views");
    ASSERT_EQ(desktop.Boxes.size(), 1u);
    const MessageBox& box = desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "Would you like to Create Thumbnail Images Now?");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Question);
    EXPECT_EQ(box.Buttons, BoxButtons::OkCancel);
    EXPECT_EQ(Last_Slot(g), 0);
    g.Rig.Click("ID_Views"); // back to the list, without a question
    EXPECT_EQ(desktop.Boxes.size(), 1u);
    desktop.Answer(BoxAnswer::Ok);
    g.Rig.Click("ID_ArrangeThumb");
    EXPECT_EQ(desktop.Boxes.size(), 2u);
    EXPECT_EQ(Last_Slot(g), 3);
    g.Rig.Click("ID_ArrangeList");
    g.Rig.Click("ID_ArrangeThumb");
    EXPECT_EQ(desktop.Boxes.size(), 2u);
}

TEST(ThumbOffer, An_empty_list_stays_without_its_commands)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start("", "[Settings]\nShowFile=0\n");
    ASSERT_EQ(p.state.CurScreen, screenRename);
    rig.Desktop.Answer(BoxAnswer::Ok);
    rig.Click("ID_ArrangeThumb");
    EXPECT_EQ(rig.Desktop.Boxes.size(), 1u);
    EXPECT_EQ(p.state.CurScreen, screenThumbnails);
    for (const char* id : {"ID_RenAll", "ID_SelDelete", "ID_Viewer"})
        EXPECT_FALSE(p.main.atbMain.Find(id)->Enabled) << id;
    EXPECT_TRUE(p.main.atbMain.Find("ID_NewList")->Enabled);
}

TEST(ThumbUpdate, Takes_rows_that_have_a_picture_and_no_others)
{
    ThumbGround g(4);
    g.Pictures(100, 50);
    g.Show(4, 1);
    Thumb_Create(g.P(), true);
    g.List().SetTag(2, "");
    const int last = Last_Slot(g);
    g.Pictures(50, 100);
    g.Rig.Desktop.Pictures.erase("/p/a03.jpg");
    g.Rig.Desktop.PictureWishes.clear();
    const std::size_t boxes = g.Rig.Desktop.Boxes.size();
    Thumb_Update(g.P(), true);
    EXPECT_EQ(g.Rig.Desktop.PictureWishes,
              (std::vector<std::string>{"/p/a01.jpg", "/p/a03.jpg", "/p/a04.jpg"}));
    EXPECT_EQ(Tags(g), "1,,,4");
    EXPECT_EQ(Last_Slot(g), last);
    EXPECT_EQ(g.S().ThumbBuffer[3], nullptr);
    EXPECT_EQ(g.Rig.Desktop.Boxes.size(), boxes);
    EXPECT_EQ(Shown(g.F().imgThumbs[1]), "40x80");
    // The picture is gone at once, the icon comes with the next refresh.
    EXPECT_EQ(Shown(g.F().imgThumbs[3]), "none");
    Thumb_Refresh(g.P());
    EXPECT_EQ(Shown(g.F().imgThumbs[3]), "icon P");
}

TEST(ThumbUpdate, Without_thumbnails_nothing_changes)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    Thumb_Update(g.P(), true);
    EXPECT_TRUE(g.Rig.Desktop.PictureWishes.empty());
    EXPECT_EQ(Last_Slot(g), 0);
    EXPECT_EQ(g.S().CurScreen, screenThumbnails);
}

TEST(ThumbUpdate, Says_so_in_the_status_bar_and_puts_the_text_back)
{
    ThumbGround g(2);
    g.Pictures(8, 8);
    Thumb_Create(g.P(), true);
    g.F().stbMain.SetPanel(2, "before");
    std::string during;
    g.Rig.Desktop.EachTurn = [&](int) { during = g.F().stbMain.Panel(2); };
    Thumb_Update(g.P(), false);
    EXPECT_EQ(during, "Press ESC to Cancel Thumbnail Update");
    EXPECT_EQ(g.F().stbMain.Panel(2), "before");
}

// Tags are the program's own, but a row that names no slot must not fail.
TEST(ThumbUpdate, A_tag_that_is_no_slot_shows_the_icon)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    g.Show(3, 1);
    g.List().SetTag(1, "x");
    g.List().SetTag(2, "77");
    g.List().SetTag(3, "-1");
    Thumb_Update(g.P(), true);
    for (int cell = 1; cell <= 3; ++cell)
        EXPECT_EQ(Shown(g.F().imgThumbs[cell]), "icon P") << cell;
    EXPECT_EQ(Last_Slot(g), 0);
}

TEST(ThumbClear, Drops_pictures_tags_and_the_parked_one)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    g.Show(3, 1);
    Thumb_Create(g.P(), true);
    g.Drag(2);
    g.F().PersonDragOver(&g.F().imgThumbsC, 10, 10);
    g.F().PersonDragDrop();
    EXPECT_EQ(g.F().imgThumbsC.ToolTipText.Get(), "a02.jpg");
    g.Rig.Click("ID_ThumbClear");
    EXPECT_EQ(Last_Slot(g), 0);
    EXPECT_EQ(Tags(g), ",,");
    EXPECT_EQ(Shown(g.F().imgThumbsC), "none");
    EXPECT_EQ(g.F().imgThumbsC.ToolTipText.Get(), "");
    EXPECT_EQ(Shown(g.F().imgThumbs[1]), "icon P");
}

TEST(Thumbnails, A_new_list_loses_them_and_a_refresh_keeps_them)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    Thumb_Create(g.P(), true);
    g.Rig.Click("ID_RefreshList");
    g.F().cmdActDone.PersonClick();
    EXPECT_EQ(Tags(g), "1,2,3");
    EXPECT_EQ(Last_Slot(g), 4);
    g.Rig.Click("ID_NewList");
    g.F().lsvSelMain.PersonSelectAll();
    g.Rig.Click("ID_CreateList");
    EXPECT_EQ(Tags(g), ",,");
    EXPECT_EQ(Last_Slot(g), 0);
}

TEST(Thumbnails, A_rename_keeps_the_picture)
{
    ThumbGround g(3);
    g.Pictures(8, 8);
    g.Show(3, 1);
    Thumb_Create(g.P(), true);
    g.Rig.Box(nnName, "b_<#>");
    g.Rig.Desktop.Answer(BoxAnswer::Ok);
    g.Rig.Click("ID_RenAll");
    EXPECT_EQ(Tags(g), "1,2,3");
    EXPECT_TRUE(g.List().Text(1).starts_with("b_")) << g.List().Text(1);
}

} // namespace
} // namespace tavo
