#include "fileactions/mp3_panel.h"

#include "core/frm_main.h"
#include "core/program.h"
#include "fileactions/mp3_file.h"
#include "renamelist/key_filters.h"
#include "renamelist/preview.h"
#include "toolkit/numbers.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr int outcomePanel = 2;

// The fields that hold numbers, and what they hold.
struct NumberField {
    MP3Field Index;
    double Low, High;
};
constexpr NumberField numberFields[] = {{tagYear, 1000, 9999}, {tagTrack, 0, 255}};

void Fields_Fill(FrmMain& f, const MP3Tag& tag)
{
    f.txtMP3[tagTitle].Text = tag.Title;
    f.txtMP3[tagArtist].Text = tag.Artist;
    f.txtMP3[tagAlbum].Text = tag.Album;
    f.txtMP3[tagComment].Text = tag.Comment;
    f.txtMP3[tagYear].Text = tag.Year;
    f.txtMP3[tagTrack].Text = IntToText(tag.Track);
    f.cboMP3Genre.SetListIndex(tag.Genre); // one that has no name is passed over
}

void Fields_Empty(FrmMain& f)
{
    for (const auto& box : f.txtMP3)
        box->Text = box->Index() == tagTitle ? "No Tag Found" : "";
    f.cboMP3Genre.SetListIndex(-1);
}

// A number out of bounds is brought to the nearer one; an empty box stays.
void Number_Hold(TextBox& box, const NumberField& field)
{
    if (box.Text.Get().empty())
        return;
    const double value = Val(box.Text.Get());
    const double held = std::clamp(value, field.Low, field.High);
    if (held != value)
        box.Text = DoubleToText(held);
}

void Field_Remember(Program& p, int index)
{
    p.state.FieldFocus = static_cast<std::int16_t>(index);
}

void Text_Wire(Program& p, TextBox& box)
{
    const int index = box.Index();
    box.Change = [&p, index] { p.main.chkMP3[index].Value = 1; };
    box.GotFocus = [&p, &box, index] {
        Box_SelectAll(box);
        Field_Remember(p, index);
    };
}

void Number_Wire(TextBox& box, const NumberField& field)
{
    box.KeyPress = [](int& key) { Txt_NumericKey(key); };
    box.LostFocus = [&box, &field] { Number_Hold(box, field); };
}

} // namespace

void MP3_Tag_Show(Program& p, const std::string& path)
{
    MP3Tag tag;
    if (!path.empty())
        MP3_Tag_Read(p.files, path, tag);
    if (tag.IsPresent())
        Fields_Fill(p.main, tag);
    else
        Fields_Empty(p.main);
    p.main.stbMain.SetPanel(outcomePanel, tag.IsPresent() ? "ID3v1.1 Tag was Found..."
                                                          : "No ID3v1.1 Tag Found...");
    // Last of all, for filling the fields has ticked them.
    for (const auto& box : p.main.chkMP3)
        box->Value = 0;
}

void MP3_Panel_Wire(Program& p)
{
    FrmMain& f = p.main;
    for (const auto& box : f.txtMP3)
        Text_Wire(p, *box);
    for (const NumberField& field : numberFields)
        Number_Wire(f.txtMP3[field.Index], field);
    f.cboMP3Genre.Click = [&f] { f.chkMP3[tagGenre].Value = 1; };
    f.cboMP3Genre.GotFocus = [&p] { Field_Remember(p, tagGenre); };
    for (const auto& box : f.chkMP3) {
        const int index = box->Index();
        box->GotFocus = [&p, index] { Field_Remember(p, index); };
    }
}

} // namespace tavo
