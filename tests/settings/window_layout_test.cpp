#include "settings/window_layout.h"

#include "support/program_rig.h"
#include "viewer/frm_viewer.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

struct Row {
    const char *What, *Record, *Place;
};

// The window stands at 150,300 with 9000 x 6000, normal, before each.
constexpr Row rows[] = {
    {"all fields", "15,30,7500,4500,0,1,2,3,4,0", "15,30,7500,4500,0"},
    {"zeros move nothing", "0,0,0,0,0,0,0,0,0,0", "150,300,9000,6000,0"},
    {"a record taken while maximised", "0,0,0,0,2,0,0,0,0,0", "150,300,9000,6000,2"},
    {"one taken while minimised", "0,0,0,0,1,0,0,0,0,0", "150,300,9000,6000,1"},
    {"a place with another state is not gone to", "15,30,7500,4500,2", "150,300,9000,6000,2"},
    {"no width", "15,30,0,4500,0", "150,300,9000,6000,0"},
    {"a height below 1", "15,30,7500,0.9,0", "150,300,9000,6000,0"},
    {"without its state", "15,30,7500,4500", "150,300,9000,6000,0"},
    {"nothing at all", "", "150,300,9000,6000,0"},
    {"an empty state is 0", "15,30,7500,4500,,1", "15,30,7500,4500,0"},
    {"empty fields are 0", ",,7500,4500,0", "0,0,7500,4500,0"},
    {"a number ends where it ends", "15x,30 twips,7500.5,4500,0", "15,30,7500.5,4500,0"},
    {"left of the screen", "-900,-30,7500,4500,0", "-900,-30,7500,4500,0"},
    {"no number", "a,b,c,d,e", "150,300,9000,6000,0"},
    {"no state", "15,30,7500,4500,9", "150,300,9000,6000,0"},
    {"beyond any screen", "1e300,30,1e300,4500,0", "150,300,9000,6000,0"},
};

TEST(WindowLayout, A_record_places_the_main_window)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    for (const Row& row : rows) {
        p.main.SetState(WindowState::Normal);
        p.main.Move(150, 300, 9000, 6000);
        Win_Layout_Apply(p, row.Record);
        EXPECT_EQ(Pos_Text(p.main), row.Place) << row.What;
    }
}

TEST(WindowLayout, A_normal_layout_brings_a_maximised_window_back)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    p.main.SetState(WindowState::Maximised);
    Win_Layout_Apply(p, "15,30,7500,4500,0,0,0,0,0,0");
    EXPECT_EQ(Pos_Text(p.main), "15,30,7500,4500,0");
}

TEST(WindowLayout, A_record_without_a_state_leaves_a_maximised_window_alone)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    p.main.SetState(WindowState::Maximised);
    Win_Layout_Apply(p, "15,30");
    EXPECT_EQ(p.main.State(), WindowState::Maximised);
}

TEST(WindowLayout, Its_entry_in_the_menu_applies_it)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start("", "[Windows]\nsmall=15,30,7500,4500,0,0,0,0,0,0\nbig=0,0,0,0,2\n");
    rig.Click("ID_Window1");
    EXPECT_EQ(Pos_Text(p.main), "15,30,7500,4500,0");
    rig.Click("ID_Window2");
    EXPECT_EQ(p.main.State(), WindowState::Maximised);
}

// The viewer stands at 150,300 with 9000 x 6000, normal, before each.
constexpr Row viewerRows[] = {
    {"all fields", "0,0,0,0,0,15,30,7500,4500,0", "15,30,7500,4500,0"},
    {"zeros move nothing", "15,30,7500,4500,0,0,0,0,0,0", "150,300,9000,6000,0"},
    {"taken while maximised", "0,0,0,0,0,0,0,0,0,2", "150,300,9000,6000,2"},
    {"a place with another state is not gone to", "0,0,0,0,0,15,30,7500,4500,1",
     "150,300,9000,6000,1"},
    {"a width below 1", "0,0,0,0,0,15,30,0.9,4500,0", "150,300,9000,6000,0"},
    {"no fields of its own", "15,30,7500,4500,0", "150,300,9000,6000,0"},
    {"without its state", "0,0,0,0,0,15,30,7500,4500", "150,300,9000,6000,0"},
    {"nothing at all", "", "150,300,9000,6000,0"},
};

TEST(WindowLayout, A_record_places_the_viewer_while_it_is_in_sight)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    Viewer_Open(p, 0);
    for (const Row& row : viewerRows) {
        p.Viewer().SetState(WindowState::Normal);
        p.Viewer().Move(150, 300, 9000, 6000);
        Win_Layout_Apply(p, row.Record);
        EXPECT_EQ(Pos_Text(p.Viewer()), row.Place) << row.What;
    }
}

TEST(WindowLayout, A_record_without_a_state_leaves_a_maximised_viewer_alone)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    Viewer_Open(p, 0);
    p.Viewer().SetState(WindowState::Maximised);
    Win_Layout_Apply(p, "0,0,0,0,0,15,30,7500,4500");
    EXPECT_EQ(p.Viewer().State(), WindowState::Maximised);
}

TEST(WindowLayout, A_viewer_out_of_sight_stays_where_it_is)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start();
    Win_Layout_Apply(p, "0,0,0,0,0,15,30,7500,4500,0");
    EXPECT_EQ(Viewer_Find(p), nullptr);
    Viewer_Open(p, 0);
    const std::string place = Pos_Text(p.Viewer());
    p.Viewer().PersonClose();
    Win_Layout_Apply(p, "0,0,0,0,0,15,30,7500,4500,2");
    EXPECT_EQ(Pos_Text(p.Viewer()), place);
}

} // namespace
} // namespace tavo
