#pragma once

#include "settings/frm_settings.h"
#include "settings/settings_pages.h"
#include "support/program_rig.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tavo {

inline constexpr const char* settingsText = "[CaseWordList]\r\n1=MP3\r\n2=USA\r\n"
                                            "[Favorites]\r\nHome=/home/\r\nWork=/jobs/\r\n"
                                            "[Filters]\r\nPictures=*.jpg;*.png\r\n"
                                            "[Templates]\r\nOne=a:b\r\nTwo=<ON>:<OE>\r\n"
                                            "Three=plain\r\nFour=x:y:z\r\n"
                                            "[ThumbSchemes]\r\nDark=100,90,3,1,2,3,0,4,5,6\r\n"
                                            "[Settings]\r\nSaveDef=0\r\n";

// The settings of a whole program, loaded and worked by a person.
class SettingsGround : public testing::Test {
public:
    ProgramRig rig{MemoryDisk::Flavour::Posix};
    Program& p;
    FrmSettings& form = p.Settings();

    explicit SettingsGround(const std::string& text = settingsText) : p(rig.Start("", text))
    {
        Load();
    }
    void Load()
    {
        form.EnsureLoaded();
        form.SetVisible(true);
    }
    // Goes to a page as a person does.
    void Tab(int page) { form.ataSettings.PersonTab(page); }
    void Pick(int page, int row)
    {
        form.lsvSettings[page].SetFocus();
        form.lsvSettings[page].PersonSelect({row}, row);
    }
    // Replaces the text as by pasting.
    void Paste(TextBox& box, const std::string& text)
    {
        box.SetFocus();
        box.PersonText(text);
    }
    void Press(Control& control, const char* name)
    {
        Key key;
        ASSERT_TRUE(Key_FromName(name, key)) << name;
        control.SetFocus();
        form.PersonKey(&control, key);
    }
    // The rows as "name|value", the tag behind where there is one.
    std::vector<std::string> Rows(int page) const
    {
        std::vector<std::string> rows;
        const ListView& list = form.lsvSettings[page];
        for (int row = 1; row <= list.Count(); ++row) {
            rows.push_back(std::string(list.Text(row)) + "|" + std::string(list.Cell(row, 1)));
            if (!list.Tag(row).empty())
                rows.back() += "|" + std::string(list.Tag(row));
        }
        return rows;
    }
    // Name and value boxes of a page, as "name|value".
    std::string Boxes(int page) const
    {
        return form.txtName[page].Text.Get() + "|" + Settings_Value_Get(form, page);
    }
    std::string Saved() { return rig.Profile.Text(rig.AppFolder + "Tavo.ini").value_or(""); }
    // What has been said since the last asking.
    std::vector<std::string> Said()
    {
        auto texts = rig.Desktop.BoxTexts();
        rig.Desktop.Boxes.clear();
        return texts;
    }
    bool Dirty(int page) const { return form.ListDirty[static_cast<std::size_t>(page)]; }
};

using Texts = std::vector<std::string>;

} // namespace tavo
