#include "selection/frm_export_dir.h"

#include "support/program_rig.h"

#include <gtest/gtest.h>

namespace tavo {

namespace {

using namespace std::string_literals;

using Cells = std::vector<std::string>;
using Step = std::function<void(FrmExportDir& form)>;

const std::string target = "/out/list.txt";

// A person at the export of a list of rows that need no files.
class ExportList : public testing::Test {
protected:
    ExportList() : list(rig.Start("/d/").main.lsvSelMain), form(rig.P().ExportDir())
    {
        rig.Disk.AddFolder("/out/");
        rig.Desktop.SaveChoice = target;
    }

    void Fill(const std::vector<Cells>& rows)
    {
        list.DeleteAllItems();
        for (const Cells& row : rows) {
            const std::vector<std::string_view> cells(row.begin(), row.end());
            list.AddRow(cells.data(), static_cast<int>(cells.size()), "");
        }
    }
    void Names(const Cells& names)
    {
        std::vector<Cells> rows;
        for (const std::string& name : names)
            rows.push_back({name, "/d/", "1KB", "txt", "m"});
        Fill(rows);
    }
    // Opens the dialog, does the step in it and leaves.
    void Open(const Step& step)
    {
        rig.Desktop.OnModal([step](Form& up) {
            auto& dialog = dynamic_cast<FrmExportDir&>(up);
            step(dialog);
            dialog.Unload();
        });
        rig.Click("ID_ExportList");
    }
    // The same with a save behind the step. What lies there then; "none" for
    // no file.
    std::string Export(const Step& step = [](FrmExportDir&) {})
    {
        Open([&](FrmExportDir& dialog) {
            step(dialog);
            dialog.cmdSave.PersonClick();
        });
        return Written();
    }
    std::string Written() const { return rig.Disk.Content(target).value_or("none"); }
    // Runs at each turn of the walk over the rows, with the row's number.
    void AtEachRow(std::function<void(int row)> step)
    {
        const int before = rig.Desktop.Turns() + 1; // the one behind the question
        rig.Desktop.EachTurn = [step, before](int turn) {
            if (turn > before)
                step(turn - before);
        };
    }
    static void Columns(FrmExportDir& dialog) { dialog.optStyle[1].PersonClick(); }
    static void OnlyNames(FrmExportDir& dialog)
    {
        Columns(dialog);
        for (int i = exportPath; i <= exportModified; ++i)
            dialog.chkColumn[i].PersonClick();
    }

    ProgramRig rig{MemoryDisk::Flavour::Posix};
    ListView& list;
    FrmExportDir& form;
};

const std::vector<Cells> twoGroups = {
    {"photo.jpg", "/pics/", "     12KB", "jpg", "03/07/2001 09:05 PM"},
    {"long name.jpeg", "/pics/", "  1,203KB", "jpeg", "03/07/2001 09:06 PM"},
    {"a", "/pics/sub/", "0KB", "", "01/01/2000 12:00 AM"},
};

const std::string twoGroupsText = "** /pics/\r\n"
                                  "photo.jpg          12KB  jpg   03/07/2001 09:05 PM\r\n"
                                  "long name.jpeg  1,203KB  jpeg  03/07/2001 09:06 PM\r\n"
                                  "\r\n"
                                  "** /pics/sub/\r\n"
                                  "a  0KB    01/01/2000 12:00 AM\r\n";

} // namespace

// -- The dialog.

TEST_F(ExportList, Its_texts_read_to_the_letter)
{
    EXPECT_EQ(form.Caption(), "Export Selection List as Text File");
    EXPECT_EQ(form.lblExport[0].Caption.Get(), "1. Check the File List Columns to Export ");
    EXPECT_EQ(form.lblExport[1].Caption.Get(), "2. Select the Output Style ");
    const Cells columns = {"Name", "Path", "Size", "Type", "Modified"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(form.chkColumn[i].Caption.Get(), columns[static_cast<std::size_t>(i)]);
    EXPECT_EQ(form.optStyle[0].Caption.Get(), "Save File Names under Folder Name");
    EXPECT_EQ(form.optStyle[1].Caption.Get(), "Save File List with Columns Separated by :");
    EXPECT_EQ(form.cboSeperator.Items(), (Cells{"Tab Key", "Return + Linefeed", "Null Character"}));
    EXPECT_EQ(form.cmdSave.Caption.Get(), "&Save");
    EXPECT_EQ(form.cmdCancel.Caption.Get(), "Cancel");
    EXPECT_EQ(form.cmdExit.Caption.Get(), "E&xit");
}

TEST_F(ExportList, Each_opening_begins_anew)
{
    const auto check = [](FrmExportDir& dialog) {
        EXPECT_TRUE(dialog.optStyle[0].Value);
        EXPECT_FALSE(dialog.optStyle[1].Value);
        for (int i = 0; i < 5; ++i) {
            EXPECT_EQ(dialog.chkColumn[i].Value, 1) << i;
            EXPECT_EQ(dialog.chkColumn[i].Enabled, i > exportPath) << i;
        }
        EXPECT_EQ(dialog.cboSeperator.Text.Get(), ",");
        EXPECT_EQ(dialog.cboSeperator.ListIndex(), -1);
        EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Waiting to Start...");
        EXPECT_EQ(dialog.prbProgress.Value, 0);
        EXPECT_TRUE(dialog.cmdSave.Enabled);
        EXPECT_TRUE(dialog.cmdExit.Enabled);
        EXPECT_FALSE(dialog.cmdCancel.Enabled);
    };
    Open([&](FrmExportDir& dialog) {
        check(dialog);
        OnlyNames(dialog);
        dialog.cboSeperator.PersonChoose(1);
        dialog.cmdSave.PersonClick();
    });
    Open(check);
    rig.Desktop.SaveChoice = "/missing/list.txt";
    Export();
    EXPECT_FALSE(form.cmdSave.Enabled);
    Open(check);
}

TEST_F(ExportList, Name_and_path_are_a_choice_of_the_column_layout_alone)
{
    Open([](FrmExportDir& dialog) {
        for (const int style : {1, 1, 0, 1, 0}) {
            dialog.optStyle[style].PersonClick();
            for (int i = 0; i < 5; ++i)
                EXPECT_EQ(dialog.chkColumn[i].Enabled, style == 1 || i > exportPath) << i;
        }
    });
}

TEST_F(ExportList, It_opens_over_the_middle_of_the_main_window)
{
    rig.Main().Move(1500, 900, 9000, 7000);
    Open([&](FrmExportDir& dialog) {
        EXPECT_EQ(dialog.Left(), 1500 + (9000 - dialog.Width()) / 2);
        EXPECT_EQ(dialog.Top(), 900 + (7000 - dialog.Height()) / 2);
    });
    ASSERT_FALSE(rig.Desktop.Forms.empty());
    EXPECT_EQ(rig.Desktop.Forms.back().Name, "frmExportDir");
    EXPECT_TRUE(rig.Desktop.Forms.back().Modal);
}

TEST_F(ExportList, The_command_is_refused_in_the_midst_of_another_work)
{
    const std::size_t before = rig.Desktop.Forms.size();
    {
        const LongOperation operation(rig.P());
        rig.Click("ID_ExportList");
        form.EnsureLoaded();
        form.cmdSave.PersonClick();
        EXPECT_TRUE(rig.Desktop.SaveQuestions.empty());
        EXPECT_TRUE(form.cmdSave.Enabled);
        form.Unload();
    }
    EXPECT_EQ(rig.Desktop.Forms.size(), before);
}

TEST_F(ExportList, It_asks_where_to_save)
{
    std::string name = "before";
    rig.Desktop.SaveChoice = "/out/a\xFF.txt\0behind"s;
    EXPECT_TRUE(Export_File_Ask(rig.P(), name, "Any\0*\0\0"s));
    EXPECT_EQ(name, "/out/a\xFF.txt");
    rig.Desktop.SaveChoice.reset();
    EXPECT_FALSE(Export_File_Ask(rig.P(), name, ""));
    EXPECT_EQ(name, "");
    Export();
    ASSERT_EQ(rig.Desktop.SaveQuestions.size(), 3U);
    EXPECT_EQ(rig.Desktop.SaveQuestions[0].Filter, "Any\0*\0\0"s);
    const Desktop::SaveQuestion& question = rig.Desktop.SaveQuestions[2];
    EXPECT_EQ(question.Title, "Save File As...");
    EXPECT_EQ(question.Filter, "Text Files (*.txt)\0*.txt\0\0"s);
    EXPECT_EQ(question.DefaultExtension, "*.txt");
}

TEST_F(ExportList, With_no_answer_nothing_happens)
{
    Names({"a", "b"});
    rig.Desktop.SaveChoice.reset();
    const int turns = rig.Desktop.Turns();
    Open([&](FrmExportDir& dialog) {
        dialog.cmdSave.PersonClick();
        EXPECT_TRUE(dialog.cmdSave.Enabled);
        EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Waiting to Start...");
    });
    EXPECT_EQ(rig.Desktop.Turns(), turns + 1);
    EXPECT_EQ(rig.Disk.Calls("OpenOutput"), 0);
}

// -- What is written.

TEST_F(ExportList, All_rows_stand_in_columns_selected_or_not)
{
    Fill(twoGroups);
    list.PersonSelect({2}, 2);
    EXPECT_EQ(Export(Columns), "photo.jpg,/pics/,12KB,jpg,03/07/2001 09:05 PM\r\n"
                               "long name.jpeg,/pics/,1,203KB,jpeg,03/07/2001 09:06 PM\r\n"
                               "a,/pics/sub/,0KB,,01/01/2000 12:00 AM\r\n");
    EXPECT_EQ(list.SelectedRows(), std::vector<int>{2});
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(ExportList, Each_separator_parts_the_columns)
{
    Fill({{"n", "/d/", " 1KB", "t", "m"}, {"o", "/d/", " 2KB", "u", "l"}});
    struct Row {
        const char* What;
        int Chosen; // -1 is typed
        std::string Typed, Text;
    };
    const Row rows[] = {
        {"tab", 0, "", "n\t/d/\t1KB\tt\tm\r\no\t/d/\t2KB\tu\tl\r\n"},
        {"a line each", 1, "", "n\r\n/d/\r\n1KB\r\nt\r\nm\r\no\r\n/d/\r\n2KB\r\nu\r\nl\r\n"},
        {"NUL", 2, "", "n\0/d/\0"s + "1KB\0t\0m\r\no\0/d/\0"s + "2KB\0u\0l\r\n"s},
        {"typed, with blanks", -1, " ; ", "n ; /d/ ; 1KB ; t ; m\r\no ; /d/ ; 2KB ; u ; l\r\n"},
        {"empty", -1, "", "n/d/1KBtm\r\no/d/2KBul\r\n"},
        {"a name of the list, typed small", -1, "tab key",
         "n\t/d/\t1KB\tt\tm\r\no\t/d/\t2KB\tu\tl\r\n"},
    };
    for (const Row& row : rows) {
        const std::string text = Export([&](FrmExportDir& dialog) {
            Columns(dialog);
            if (row.Chosen >= 0)
                dialog.cboSeperator.PersonChoose(row.Chosen);
            else
                dialog.cboSeperator.PersonText(row.Typed);
        });
        EXPECT_EQ(text, row.Text) << row.What;
    }
}

TEST_F(ExportList, Only_ticked_columns_are_written)
{
    Fill({{"n", "/d/", "  1KB", "t", "m"}, {"o", "/e/", "  2KB", "u", "l"}});
    const struct {
        const char* What;
        ExportColumns Ticked;
        std::string Text;
    } rows[] = {
        {"size alone", {false, false, true, false, false}, "1KB\r\n2KB\r\n"},
        {"none", {}, "\r\n\r\n"},
        {"name and modified", {true, false, false, false, true}, "n,m\r\no,l\r\n"},
        {"path and type", {false, true, false, true, false}, "/d/,t\r\n/e/,u\r\n"},
    };
    for (const auto& row : rows) {
        const std::string text = Export([&](FrmExportDir& dialog) {
            Columns(dialog);
            for (int i = 0; i < 5; ++i)
                if (!row.Ticked[static_cast<std::size_t>(i)])
                    dialog.chkColumn[i].PersonClick();
        });
        EXPECT_EQ(text, row.Text) << row.What;
    }
}

TEST_F(ExportList, Groups_have_a_heading_and_an_empty_line_between_them)
{
    Fill(twoGroups);
    EXPECT_EQ(Export(), twoGroupsText);
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

TEST_F(ExportList, Widths_are_measured_over_unticked_columns_and_anew_for_each_group)
{
    Fill({{"aaaa", "/1/", "100KB", "jpeg", "m1"},
          {"b", "/1/", "1KB", "x", "m2"},
          {"c", "/2/", "1KB", "y", "m3"},
          {"照片.jpg", "/3/", " 20KB", "jpg", "m4"},
          {"\xFF.txt", "/3/", "  5KB", "txt", "m5"}});
    EXPECT_EQ(Export(), "** /1/\r\n"
                        "aaaa  100KB  jpeg  m1\r\n"
                        "b       1KB  x     m2\r\n"
                        "\r\n"
                        "** /2/\r\n"
                        "c  1KB  y  m3\r\n"
                        "\r\n"
                        "** /3/\r\n"
                        "照片.jpg  20KB  jpg  m4\r\n"
                        "\xFF.txt    5KB  txt  m5\r\n");
    EXPECT_EQ(Export([](FrmExportDir& dialog) {
                  for (const int i : {exportSize, exportType, exportModified})
                      dialog.chkColumn[i].PersonClick();
              }),
              "** /1/\r\naaaa\r\nb   \r\n\r\n** /2/\r\nc\r\n\r\n"
              "** /3/\r\n照片.jpg\r\n\xFF.txt \r\n");
}

TEST_F(ExportList, Folders_of_names_that_differ_by_case_are_two_groups)
{
    Fill({{"a", "/d/", "", "", ""}, {"b", "/D/", "", "", ""}});
    EXPECT_EQ(Export(), "** /d/\r\na      \r\n\r\n** /D/\r\nb      \r\n");
}

TEST_F(ExportList, An_empty_list_gives_an_empty_file)
{
    for (const bool columns : {false, true}) {
        rig.Disk.AddFile(target, "old");
        Open([&](FrmExportDir& dialog) {
            dialog.optStyle[columns ? 1 : 0].PersonClick();
            dialog.cmdSave.PersonClick();
            EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Finished!");
            EXPECT_EQ(dialog.prbProgress.Value, 100);
        });
        EXPECT_EQ(Written(), "") << columns;
    }
}

TEST_F(ExportList, What_the_walk_found_is_written_on_both_systems)
{
    struct Row {
        MemoryDisk::Flavour Flavour;
        const char *Folder, *File, *Target, *Text;
    };
    constexpr Row rows[] = {
        {MemoryDisk::Flavour::Windows, "C:\\pics\\", "C:\\pics\\photo.jpg", "C:\\out.txt",
         "** C:\\pics\\\r\nphoto.jpg  12KB  jpg\r\n"},
        {MemoryDisk::Flavour::Posix, "/pics/", "/pics/photo.jpg", "/out.txt",
         "** /pics/\r\nphoto.jpg  12KB  jpg\r\n"},
    };
    for (const Row& row : rows) {
        ProgramRig other(row.Flavour);
        other.Disk.AddFile(row.File);
        other.Disk.SetSize(row.File, 12 * 1024 - 1);
        other.Start(row.Folder);
        other.Desktop.SaveChoice = row.Target;
        other.Desktop.OnModal([](Form& up) {
            auto& dialog = dynamic_cast<FrmExportDir&>(up);
            dialog.chkColumn[exportModified].PersonClick();
            dialog.cmdSave.PersonClick();
            dialog.cmdExit.PersonClick();
        });
        other.Click("ID_ExportList");
        EXPECT_EQ(other.Disk.Content(row.Target), row.Text);
    }
}

// -- The order of the list.

TEST_F(ExportList, The_sort_question_reads_to_the_letter)
{
    Fill(twoGroups);
    list.SetSortKey(3);
    Open([&](FrmExportDir& dialog) {
        dialog.cmdSave.PersonClick();
        EXPECT_TRUE(dialog.cmdSave.Enabled);
        EXPECT_TRUE(dialog.cmdExit.Enabled);
        EXPECT_FALSE(dialog.cmdCancel.Enabled);
    });
    ASSERT_EQ(rig.Desktop.Boxes.size(), 1U);
    const MessageBox& box = rig.Desktop.Boxes[0].Box;
    EXPECT_EQ(box.Text, "This Operation Requires the Selection List to be Sorted by Path!\r\n"
                        "Click OK if you wish to Sort the List Now and Continue.\r\n"
                        "Click Cancel if you wish to Abort Exporting the List");
    EXPECT_EQ(box.Caption, "Tavo Says...");
    EXPECT_EQ(box.Icon, BoxIcon::Question);
    EXPECT_EQ(box.Buttons, BoxButtons::OkCancel);
    EXPECT_EQ(box.Default, BoxAnswer::Cancel);
    EXPECT_EQ(rig.Desktop.Boxes[0].Answer, BoxAnswer::Cancel);
    EXPECT_EQ(rig.Disk.Calls("OpenOutput"), 0);
    EXPECT_FALSE(list.Sorted());
}

TEST_F(ExportList, Only_a_list_sorted_by_path_upwards_goes_without_the_question)
{
    struct Row {
        int Key, Order;
        bool Grouped, Asks;
    };
    constexpr Row rows[] = {
        {1, 0, true, false}, {1, 1, true, true},   {0, 0, true, true},   {2, 0, true, true},
        {4, 1, true, true},  {1, 1, false, false}, {0, 0, false, false},
    };
    for (const Row& row : rows) {
        Fill(twoGroups);
        list.SetSorted(false);
        list.SetSortKey(row.Key);
        list.SetSortOrder(row.Order);
        const std::size_t boxes = rig.Desktop.Boxes.size();
        Export([&](FrmExportDir& dialog) { dialog.optStyle[row.Grouped ? 0 : 1].PersonClick(); });
        EXPECT_EQ(rig.Desktop.Boxes.size() - boxes, row.Asks ? 1U : 0U) << row.Key << row.Order;
    }
}

TEST_F(ExportList, A_list_sorted_downwards_is_sorted_upwards)
{
    Fill(twoGroups);
    list.SetSortKey(1);
    list.SetSortOrder(1);
    list.SetSorted(true);
    list.SetColumnMark(1, SortMark::Down);
    ASSERT_EQ(list.Cell(1, 1), "/pics/sub/");
    rig.Desktop.Answer(BoxAnswer::Ok);
    const int turns = rig.Desktop.Turns();
    EXPECT_EQ(Export(), twoGroupsText);
    EXPECT_EQ(rig.Desktop.Turns(), turns + 2 + 3);
    EXPECT_EQ(list.SortOrder(), 0);
    EXPECT_TRUE(list.Sorted());
    for (int column = 0; column < list.ColumnCount(); ++column)
        EXPECT_EQ(list.Column(column).Mark, SortMark::None) << column;
}

TEST_F(ExportList, A_list_sorted_by_another_column_keeps_its_key)
{
    Fill({{"c", "/1/", "", "", ""}, {"b", "/2/", "", "", ""}, {"a", "/1/", "", "", ""}});
    list.SetSortKey(0);
    list.SetSortOrder(1);
    rig.Desktop.Answer(BoxAnswer::Ok);
    EXPECT_EQ(Export(), "** /1/\r\na      \r\n\r\n** /2/\r\nb      \r\n\r\n** /1/\r\nc      \r\n");
    EXPECT_EQ(list.SortKey(), 0);
    EXPECT_EQ(list.SortOrder(), 0);
    EXPECT_TRUE(list.Sorted());
}

// -- While it runs.

TEST_F(ExportList, The_pump_runs_once_a_row)
{
    Names({"a", "b", "c"});
    std::vector<std::string> seen;
    AtEachRow([&](int row) {
        seen.push_back(std::to_string(row) + " " + *form.prbProgress.PropertyText("Value") + " "
                       + form.lblProgress.Caption.Get());
        EXPECT_TRUE(rig.P().Busy());
        EXPECT_TRUE(form.cmdCancel.Enabled);
        EXPECT_FALSE(form.cmdExit.Enabled);
        EXPECT_FALSE(form.cmdSave.Enabled);
        EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Busy);
    });
    Open([&](FrmExportDir& dialog) {
        dialog.cmdSave.PersonClick();
        EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Finished!");
        EXPECT_EQ(dialog.prbProgress.Value, 100);
        EXPECT_FALSE(dialog.cmdCancel.Enabled);
        EXPECT_TRUE(dialog.cmdExit.Enabled);
        EXPECT_TRUE(dialog.cmdSave.Enabled);
        EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Default);
        EXPECT_FALSE(rig.P().Busy());
    });
    EXPECT_EQ(seen,
              (Cells{"1 33 Outputing File Selection List", "2 67 Outputing File Selection List",
                     "3 100 Outputing File Selection List"}));
}

TEST_F(ExportList, A_cancelled_export_ends_as_any_other)
{
    for (const bool columns : {true, false}) {
        Names({"a", "b", "c", "d"});
        AtEachRow([&](int row) {
            if (row == 2)
                form.cmdCancel.PersonClick();
        });
        Open([&](FrmExportDir& dialog) {
            if (columns)
                OnlyNames(dialog);
            dialog.cmdSave.PersonClick();
            EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Finished!");
            EXPECT_EQ(dialog.prbProgress.Value, 100);
            EXPECT_FALSE(dialog.cmdCancel.Enabled);
            EXPECT_TRUE(dialog.cmdExit.Enabled);
            EXPECT_TRUE(dialog.cmdSave.Enabled);
        });
        EXPECT_EQ(Written(),
                  columns ? "a\r\nb\r\n" : "** /d/\r\na  1KB  txt  m\r\nb  1KB  txt  m\r\n");
    }
}

TEST_F(ExportList, The_next_save_begins_without_the_old_cancel)
{
    Names({"a", "b", "c"});
    AtEachRow([&](int) { form.cmdCancel.PersonClick(); });
    EXPECT_EQ(Export([&](FrmExportDir& dialog) {
                  OnlyNames(dialog);
                  dialog.cmdSave.PersonClick();
                  EXPECT_EQ(Written(), "a\r\n");
                  rig.Desktop.EachTurn = nullptr;
              }),
              "a\r\nb\r\nc\r\n");
}

TEST_F(ExportList, Escape_cancels_what_runs_and_leaves_what_rests)
{
    Names({"a", "b", "c"});
    const Key escape{keyEscape, shiftNone, 27};
    AtEachRow([&](int row) {
        if (row == 2)
            form.PersonKey(nullptr, escape);
    });
    Open([&](FrmExportDir& dialog) {
        OnlyNames(dialog);
        dialog.cmdSave.PersonClick();
        EXPECT_TRUE(dialog.Loaded());
        dialog.PersonKey(nullptr, escape);
        EXPECT_FALSE(dialog.Loaded());
    });
    EXPECT_EQ(Written(), "a\r\nb\r\n");
}

TEST_F(ExportList, To_close_the_dialog_cancels_and_then_closes_it)
{
    Names({"a", "b", "c"});
    AtEachRow([&](int row) {
        if (row == 2) {
            form.PersonClose();
            EXPECT_TRUE(form.Loaded());
        }
    });
    Open([&](FrmExportDir& dialog) {
        OnlyNames(dialog);
        dialog.cmdSave.PersonClick();
        EXPECT_FALSE(dialog.Loaded());
    });
    EXPECT_EQ(Written(), "a\r\nb\r\n");
    rig.Desktop.EachTurn = nullptr;
    EXPECT_EQ(Export(OnlyNames), "a\r\nb\r\nc\r\n");
}

TEST_F(ExportList, To_close_the_program_cancels_and_then_closes_both)
{
    Names({"a", "b", "c"});
    AtEachRow([&](int row) {
        if (row == 1)
            rig.Main().PersonClose();
    });
    Open([&](FrmExportDir& dialog) {
        OnlyNames(dialog);
        dialog.cmdSave.PersonClick();
        EXPECT_FALSE(dialog.Loaded());
        EXPECT_TRUE(rig.Main().Loaded());
    });
    EXPECT_EQ(Written(), "a\r\n");
    rig.P().Settle();
    EXPECT_FALSE(rig.Main().Loaded());
}

TEST_F(ExportList, What_is_closed_before_the_file_is_opened_writes_nothing)
{
    Names({"a"});
    rig.Disk.AddFile(target, "old");
    for (const bool sorting : {false, true}) {
        list.SetSortKey(sorting ? 0 : 1);
        if (sorting)
            rig.Desktop.Answer(BoxAnswer::Ok);
        const int closing = rig.Desktop.Turns() + (sorting ? 2 : 1);
        rig.Desktop.At(closing, [&] { form.PersonClose(); });
        Open([](FrmExportDir& dialog) {
            dialog.cmdSave.PersonClick();
            EXPECT_FALSE(dialog.Loaded());
        });
        EXPECT_EQ(Written(), "old");
    }
    EXPECT_EQ(rig.Disk.Calls("OpenOutput"), 0);
}

// -- Failures.

TEST_F(ExportList, A_file_that_cannot_be_opened_ends_the_export_without_a_word)
{
    Names({"a", "b"});
    const struct {
        const char* What;
        int Code;
    } failures[] = {{"no folder", diskMissingFolder}, {"no right", diskDenied}, {"in use", 32}};
    for (const auto& failure : failures) {
        rig.Disk.AddFile(target, "old");
        const int turns = rig.Desktop.Turns();
        rig.Disk.Fail("OpenOutput", 1, failure.Code);
        Open([&](FrmExportDir& dialog) {
            dialog.cmdSave.PersonClick();
            EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Outputing File Selection List");
            EXPECT_EQ(dialog.prbProgress.Value, 0);
            EXPECT_FALSE(dialog.cmdSave.Enabled);
            EXPECT_FALSE(dialog.cmdCancel.Enabled);
            EXPECT_TRUE(dialog.cmdExit.Enabled);
            EXPECT_FALSE(rig.P().Busy());
            dialog.cmdExit.PersonClick();
        });
        EXPECT_EQ(rig.Desktop.Turns(), turns + 1) << failure.What;
        EXPECT_EQ(Written(), "old") << failure.What;
        EXPECT_EQ(rig.Disk.OpenFiles(), 0) << failure.What;
    }
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
    EXPECT_EQ(rig.Desktop.PointerNow(), Pointer::Default);
}

TEST_F(ExportList, A_file_that_cannot_be_written_whole_leaves_the_old_one)
{
    Names({"a", "b", "c"});
    const struct {
        const char* Call;
        int Nth;
    } failures[] = {{"WriteOutput", 1}, {"WriteOutput", 2}, {"WriteOutput", 3}, {"CloseOutput", 1}};
    for (const bool hasOld : {true, false})
        for (const auto& failure : failures) {
            if (hasOld)
                rig.Disk.AddFile(target, "old");
            else
                rig.Disk.Remove(target);
            rig.Disk.Fail(failure.Call, failure.Nth, 2028);
            Open([](FrmExportDir& dialog) {
                dialog.cmdSave.PersonClick();
                EXPECT_EQ(dialog.lblProgress.Caption.Get(), "Finished!");
                EXPECT_TRUE(dialog.cmdSave.Enabled);
            });
            EXPECT_EQ(Written(), hasOld ? "old" : "none") << failure.Call << failure.Nth;
            EXPECT_EQ(rig.Disk.OpenFiles(), 0);
        }
    EXPECT_TRUE(rig.Desktop.Boxes.empty());
}

} // namespace tavo
