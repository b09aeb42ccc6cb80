#include "settings/settings_file.h"
#include "settings/settings_table.h"

#include "core/screens.h"
#include "support/program_rig.h"
#include "viewer/frm_viewer.h"

#include <gtest/gtest.h>

namespace tavo {
namespace {

// What a first end writes when nothing was changed, on the default folder.
std::string Untouched_File(const std::string& path, const char* end)
{
    std::string text = "[Defaults]\nPath=" + path
                       + "\nRenMode=4\nColViewWin=-2147483643\nScheme=0\nThumbCaption=True\nGif=0\n"
                         "tbsAddress=1\ntbsTextLabels=1\ntbtTextLabels=1\ntbvTextLabels=1\n"
                         "SelPreview=0\nccMode=3\nccCap=1\nccWord=0\nccTemp1=* *\nccTemp2=*_*\n"
                         "ccTemp3=*-*\nccTemp4=**\nccTemp5=**\nccTemp6=**\nnnStyle=1\nnnStart=1\n"
                         "nnDigits=1\nnnAppTmpDef=0\nnnAppTmp=0\nnnAutoFill=1\nsrMode=3\n"
                         "srMatchCase=0\nsrType=1\ndtCreate=1\ndtMod=0\ndtAccess=0\nmcdMode=2\n"
                         "SortDis=1\nlsvView=3\n"
                         "[Settings]\nSavePos=1\nSaveDef=1\nactClose=0\nShowFile=1\nSetDigits=0\n"
                         "PreList=1\nProExt=1\nSupWarnRen=0\nSupWarnUndo=0\nAutoSelNext=1\n"
                         "AutoThumbs=0\nRetRename=1\n"
                         "[Position]\nMain=8400,3600,12000,9000,0\nViewer=9600,4500,9600,7200,0\n";
    std::string lines;
    for (const char c : text)
        lines += c == '\n' ? std::string(end) : std::string(1, c);
    return lines;
}

struct Ground {
    MemoryDisk::Flavour Flavour;
    ProfileDialect Dialect;
    const char *File, *Default, *LineEnd;
};

void PrintTo(const Ground& ground, std::ostream* out)
{
    *out << ground.File;
}

class SettingsSave : public testing::TestWithParam<Ground> {
protected:
    ProgramRig rig{GetParam().Flavour};
    const std::string file = GetParam().File;

    std::string Saved() { return rig.Profile.Text(file).value_or("(no file)"); }
    // The lines of one section of the saved file.
    std::string Section(const std::string& name)
    {
        std::string text = Saved();
        std::erase(text, '\r');
        const auto at = text.find("[" + name + "]\n");
        if (at == std::string::npos)
            return "(no section)";
        const auto begin = at + name.size() + 3;
        return text.substr(begin, text.find("[", begin) - begin);
    }
};

INSTANTIATE_TEST_SUITE_P(BothDialects, SettingsSave,
                         testing::Values(Ground{MemoryDisk::Flavour::Posix, ProfileDialect::Linux,
                                                "/app/Tavo.ini", "/app/Default.ini", "\n"},
                                         Ground{MemoryDisk::Flavour::Windows,
                                                ProfileDialect::Windows, "C:\\app\\Tavo.ini",
                                                "C:\\app\\Default.ini", "\r\n"}));

TEST_P(SettingsSave, The_end_writes_a_first_file_with_all_keys_in_their_order)
{
    rig.Start();
    rig.Main().Unload();
    EXPECT_EQ(Saved(), Untouched_File(rig.AppFolder, GetParam().LineEnd));
    EXPECT_EQ(rig.Profile.Saves(), 1);
}

TEST_P(SettingsSave, What_was_saved_is_saved_again_byte_for_byte)
{
    const std::string first = Untouched_File(rig.AppFolder, GetParam().LineEnd);
    rig.Start("", first);
    rig.Main().Unload();
    EXPECT_EQ(Saved(), first);
    EXPECT_EQ(rig.Profile.Saves(), 0) << "a file that is as wanted is not touched";
}

TEST_P(SettingsSave, Comments_foreign_sections_and_the_word_list_stay_where_they_were)
{
    const std::string kept = "; mine\n[Other]\nk = v ; x\n\n[CaseWordList]\n9=IBM\n1=usa\n";
    rig.Start("", kept + "[Settings]\nSaveDef=1\nunknown=5\n");
    rig.Main().Unload();
    EXPECT_TRUE(Saved().starts_with(kept)) << Saved();
    EXPECT_EQ(Saved().find("unknown"), std::string::npos) << "a section is written anew";
}

TEST_P(SettingsSave, Two_flags_choose_what_the_end_writes)
{
    struct Row {
        const char* Flags;
        bool Defaults, Position;
    };
    static constexpr Row rows[] = {{"SaveDef=1\nSavePos=1\n", true, true},
                                   {"SaveDef=0\nSavePos=1\n", false, true},
                                   {"SaveDef=1\nSavePos=0\n", true, false},
                                   {"SaveDef=0\nSavePos=0\n", false, false},
                                   {"SaveDef=2\nSavePos=-1\n", false, false}};
    for (const Row& row : rows) {
        ProgramRig one(GetParam().Flavour);
        const std::string settings = std::string("[Settings]\n") + row.Flags;
        one.Start("", settings);
        one.Main().Unload();
        const std::string text = one.Profile.Text(file).value_or("");
        EXPECT_EQ(text.find("[Defaults]") != std::string::npos, row.Defaults) << row.Flags;
        EXPECT_EQ(text.find("[Position]") != std::string::npos, row.Position) << row.Flags;
        if (!row.Defaults) {
            EXPECT_TRUE(text.starts_with(settings)) << text;
        }
    }
}

TEST_P(SettingsSave, With_neither_flag_no_file_comes_into_being)
{
    rig.Disk.AddFile(GetParam().Default);
    rig.Profile.SetText(GetParam().Default, "[Settings]\nSaveDef=0\nSavePos=0\n");
    rig.Start();
    rig.Main().Unload();
    EXPECT_EQ(rig.Profile.Text(file), std::nullopt);
}

TEST_P(SettingsSave, A_seed_is_read_and_never_written)
{
    const std::string seed = "[CaseWordList]\n1=IBM\n[Filters]\nPictures=*.jpg\n";
    rig.Disk.AddFile(GetParam().Default);
    rig.Profile.SetText(GetParam().Default, seed);
    Program& p = rig.Start();
    EXPECT_EQ(p.state.CaseWordList.back(), "IBM");
    rig.Main().Unload();
    EXPECT_EQ(rig.Profile.Text(GetParam().Default), seed);
    EXPECT_EQ(Section("Filters"), "Pictures=*.jpg\n");
    EXPECT_EQ(Section("CaseWordList"), "(no section)") << "gone at the second start";
}

TEST_P(SettingsSave, Built_in_rows_are_left_out_and_an_empty_list_leaves_no_section)
{
    Program& p = rig.Start("", "[Favorites]\nold=x\n[Templates]\nT=<ON>:<OE>\n");
    p.state.Favorites.assign(1, {"built-in", "never"});
    p.state.Windows = {{}, {"left", "0,0,1,1,0,0,0,0,0,0"}, {"max", "0,0,0,0,2,0,0,0,0,0"}};
    for (const char* section : {"Favorites", "Templates", "Filters", "ThumbSchemes", "Windows"})
        Ini_Save(p, section, file);
    EXPECT_EQ(Section("Favorites"), "(no section)");
    EXPECT_EQ(Section("Filters"), "(no section)");
    EXPECT_EQ(Section("ThumbSchemes"), "(no section)");
    EXPECT_EQ(Section("Templates"), "T=<ON>:<OE>\n");
    EXPECT_EQ(Section("Windows"), "left=0,0,1,1,0,0,0,0,0,0\nmax=0,0,0,0,2,0,0,0,0,0\n");
}

TEST_P(SettingsSave, Words_are_numbered_anew)
{
    Program& p = rig.Start("", "[CaseWordList]\n9=IBM\n1=usa\nx=NATO\n");
    Ini_Save(p, "CaseWordList", file);
    EXPECT_EQ(Section("CaseWordList"), "1=IBM\n2=usa\n3=NATO\n");
}

TEST_P(SettingsSave, A_name_that_was_cut_is_saved_cut_and_keeps_its_value)
{
    const std::string name(35, 'n');
    rig.Start("", "[Favorites]\n" + name + "=kept\n[Filters]\n" + name + "=*.x\n");
    rig.Main().Unload();
    EXPECT_EQ(Section("Favorites"), std::string(30, 'n') + "=kept\n");
    EXPECT_EQ(Section("Filters"), std::string(20, 'n') + "=*.x\n");
}

TEST_P(SettingsSave, An_empty_list_is_saved_as_the_empty_mode_and_comes_back_as_Name_and_Number)
{
    Program& p = rig.Start("", "[Settings]\nShowFile=0\n");
    EXPECT_EQ(p.state.RenMode, modeEmpty);
    rig.Main().Unload();
    EXPECT_NE(Section("Defaults").find("\nRenMode=7\n"), std::string::npos);
    ProgramRig next(GetParam().Flavour);
    EXPECT_EQ(next.Start("", "[Defaults]\nRenMode=7\n").state.RenMode, modeNameNumber);
}

TEST_P(SettingsSave, Blanks_at_the_ends_of_a_starred_text_survive)
{
    Program& p = rig.Start("", "[Defaults]\nccTemp1=* *\nccTemp4=*\t*\nccTemp5=***\n");
    Ini_Save(p, "Defaults", file);
    Ini_Load(p, "Defaults", file);
    EXPECT_EQ(p.state.ccTemp[1], " ");
    EXPECT_EQ(p.state.ccTemp[4], "\t");
    EXPECT_EQ(p.state.ccTemp[5], "*");
}

TEST_P(SettingsSave, The_distance_is_the_text_of_its_box)
{
    Program& p = rig.Start("", "[Defaults]\nSortDis=012\n");
    Ini_Save(p, "Defaults", file);
    EXPECT_NE(Section("Defaults").find("\nSortDis=012\n"), std::string::npos);
}

TEST_P(SettingsSave, A_window_that_is_maximised_keeps_its_normal_place)
{
    rig.Start("", "[Position]\nMain=150,300,9000,6000.5,0\n");
    rig.Main().Move(150, 300.5, 9000, 6000);
    rig.Main().SetState(WindowState::Maximised);
    rig.Main().Unload();
    EXPECT_EQ(Section("Position"), "Main=150,300.5,9000,6000,2\nViewer=9600,4500,9600,7200,0\n");
}

TEST_P(SettingsSave, Without_the_wish_a_saved_position_is_zero)
{
    Program& p = rig.Start("", "[Settings]\nSavePos=0\n[Position]\nMain=15,15,9000,6000,0\n");
    Ini_Save(p, "Position", file);
    EXPECT_EQ(Section("Position"), "Main=0,0,0,0,0\nViewer=0,0,0,0,0\n");
}

TEST_P(SettingsSave, The_place_of_a_viewer_never_used_is_the_middle_whatever_was_read)
{
    Program& p = rig.Start("", "[Position]\nViewer=10,20,30,40,2\n");
    EXPECT_EQ(p.state.ViewerPos.Width, 30);
    rig.Main().Unload();
    EXPECT_NE(Section("Position").find("Viewer=9600,4500,9600,7200,0\n"), std::string::npos);
    EXPECT_FALSE(p.Viewer().Loaded());
}

TEST_P(SettingsSave, The_viewers_place_is_written_out_of_sight_too)
{
    Program& p = rig.Start();
    Viewer_Open(p, 0);
    p.Viewer().Move(150, 300, 4500.5, 6000);
    p.Viewer().SetState(WindowState::Maximised);
    p.Viewer().PersonClose();
    Ini_Save(p, "Position", file);
    EXPECT_NE(Section("Position").find("Viewer=150,300,4500.5,6000,2\n"), std::string::npos);
    EXPECT_TRUE(p.Viewer().Loaded());
}

TEST_P(SettingsSave, Without_the_wish_no_viewer_is_made_for_it)
{
    Program& p = rig.Start("", "[Settings]\nSavePos=0\n");
    Ini_Save(p, "Position", file);
    EXPECT_EQ(Viewer_Find(p), nullptr);
}

TEST_P(SettingsSave, A_disk_that_refuses_leaves_the_old_file_and_ends_the_program)
{
    const std::string old = "[Filters]\nMine=*.x\n";
    rig.Start("", old);
    rig.Profile.RefuseWrites();
    rig.Main().Unload();
    EXPECT_EQ(Saved(), old);
    EXPECT_FALSE(rig.Main().Loaded());
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_P(SettingsSave, Save_Defaults_writes_that_section_alone)
{
    rig.Start("", "[Settings]\nProExt=0\n[Filters]\nMine=*.x\n");
    rig.Box(nnStartBox, "5");
    rig.Click("ID_DefSave");
    EXPECT_EQ(Section("Settings"), "ProExt=0\n");
    EXPECT_EQ(Section("Filters"), "Mine=*.x\n");
    EXPECT_NE(Section("Defaults").find("\nnnStart=5\n"), std::string::npos);
    EXPECT_EQ(Section("Position"), "(no section)");
    rig.Box(nnStartBox, "9");
    rig.Click("ID_DefLoad");
    EXPECT_EQ(rig.Main().txtNameNum[nnStartBox].Text.Get(), "5");
}

// A program without a folder in hand must not come back at the root.
TEST(SettingsSavePath, A_folder_that_never_was_in_hand_is_saved_as_none)
{
    ProgramRig rig(MemoryDisk::Flavour::Posix);
    Program& p = rig.Start("/no/such", "[Settings]\nShowFile=0\n");
    EXPECT_EQ(p.state.StartPath, "");
    rig.Main().Unload();
    EXPECT_NE(rig.Profile.Text("/app/Tavo.ini")->find("[Defaults]\nPath=\n"), std::string::npos);
}

} // namespace
} // namespace tavo
